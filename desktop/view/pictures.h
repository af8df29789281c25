// The pictures of stores and buttons, drawn as vectors by name. Each differs from the others in shape, not
// only in colour.
#pragma once

#include <QPainter>
#include <QString>
#include <string_view>

namespace evac::desktop {

// Draws the picture into the middle of the area; false, with nothing drawn, for an unknown name.
bool draw_picture(QPainter& painter, const QRectF& area, std::string_view name, bool enabled = true);
bool is_picture(std::string_view name);
// A lamp of a zone, with its number in it.
void draw_lamp(QPainter& painter, const QRectF& area, std::string_view name, const QString& number);
// A small channel number in the lower right corner of something that has the channel's colour.
void draw_channel_sign(QPainter& painter, const QRectF& area, int channel);
// What the picture says, for assistive technology; empty for one that says nothing.
QString picture_words(std::string_view name);

}  // namespace evac::desktop

// The pictures of stores and buttons, drawn as vectors by word. Each differs from the others in shape, not
// only in colour.
#pragma once

#include <QPainter>
#include <QString>
#include <functional>
#include <string_view>

namespace evac::desktop {

// What is drawn besides the pictures that controls show: on the keys of the decks, and for what is not known.
namespace sign {
inline constexpr std::string_view kUnknown = "unknown";
inline constexpr std::string_view kPlay = "play";
inline constexpr std::string_view kStop = "stop";
inline constexpr std::string_view kNext = "next";
inline constexpr std::string_view kPrevious = "previous";
inline constexpr std::string_view kRestart = "restart";
inline constexpr std::string_view kRestartOn = "restart on";
}  // namespace sign

// Draws the picture into the middle of the area; false, with nothing drawn, for an unknown word.
bool draw_picture(QPainter& painter, const QRectF& area, std::string_view word, bool enabled = true);
bool is_picture(std::string_view word);
void draw_tick(QPainter& painter, const QRectF& area, const QColor& ink);
// A lamp of a zone, with its number in it.
void draw_lamp(QPainter& painter, const QRect& area, std::string_view word, const QString& number);
QString lamp_words(std::string_view word);
// A sample of a colour at the left of the area, which keeps its grey, with the number of its channel where
// there is room; returns its width.
int draw_swatch(QPainter& painter, const QRect& area, const QColor& color, int channel = 0);
// What a picture drawn once is drawn from again: `key` tells everything about it but its size. Smooth shapes
// cost far more than the copying of their points, and boards have hundreds of the same.
void draw_cached(QPainter& painter, const QRect& area, const QString& key,
                 const std::function<void(QPainter&, const QRectF&)>& draw);
// A box with round corners: its ground, its edge and how wide that is.
void draw_box(QPainter& painter, const QRect& area, const QColor& ground, const QColor& edge, double width);
// A rectangle with a thin edge, whole at any scale of the screen.
void draw_field(QPainter& painter, const QRect& area, const QColor& ground);
// Around whatever has the keyboard.
void draw_focus_ring(QPainter& painter, const QRectF& area);
// What the picture says, for assistive technology; empty for one that says nothing.
QString picture_words(std::string_view word);

}  // namespace evac::desktop

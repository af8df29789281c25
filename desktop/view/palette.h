// Colours on the screen: the system's literals as they are, its system colours as a calm grey, and what is
// drawn upon them.
#pragma once

#include <QColor>

#include "model/color.h"

namespace evac::desktop {

namespace grey {
inline const QColor kWindow(0xE4, 0xE6, 0xE8);  // background of windows
inline const QColor kFace(0xD6, 0xD9, 0xDC);    // a button at rest
inline const QColor kField(0xF7, 0xF8, 0xF9);   // what is read or typed
inline const QColor kLine(0x6E, 0x74, 0x7A);    // edges: 3 to 1 on all of the above
inline const QColor kPale(0xB4, 0xB9, 0xBE);    // the place of something that is not there
inline const QColor kFaint(0x55, 0x5A, 0x5F);   // idle, or not to be pressed: 4.5 to 1 on all of the above
inline const QColor kText(0x0C, 0x10, 0x14);
inline const QColor kFocus(0x1B, 0x3A, 0x5C);
}  // namespace grey

namespace signal {
inline const QColor kFire(0xC4, 0x12, 0x12);
inline const QColor kLit(0x2E, 0xB8, 0x4C);
inline const QColor kAlerted(0x1F, 0x4E, 0x8C);  // a zone that hears the message
inline const QColor kPause(0xE8, 0xA0, 0x10);
}  // namespace signal

QColor screen_color(Color color);
// A back colour that says something, unlike the grey of rest.
bool is_signal(Color color);
// The number of the channel that has this colour, so that it can stand beside the colour; 0 for none.
int channel_of(Color color);
// Dark text, or white where dark could not be read.
QColor text_upon(const QColor& back);
// Contrast of two colours, 1 to 21.
double contrast(const QColor& a, const QColor& b);

}  // namespace evac::desktop

// How the whole application looks: style, colours, font and icon. The program, its tests and its measurements
// put on the same dress.
#pragma once

#include <QIcon>

namespace evac::desktop {

void dress_application();
QIcon application_icon();

}  // namespace evac::desktop

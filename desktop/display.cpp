#include "desktop/display.h"

#include <poll.h>

#include <QGuiApplication>

// Last: its macros would spoil the toolkit's names.
#include <X11/Xlib.h>

namespace evac::desktop {

bool display_gone() {
  // Others offer the interface too, with no display behind it.
  if (QGuiApplication::platformName() != QStringLiteral("xcb")) return false;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (!x11) return false;
  pollfd connection{.fd = XConnectionNumber(x11->display()), .events = POLLRDHUP, .revents = 0};
  return ::poll(&connection, 1, 0) == 1;
}

}  // namespace evac::desktop

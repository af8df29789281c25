#include "desktop/keyboard_state.h"

#include <QGuiApplication>
#include <QStringList>

// Last: its macros would spoil the toolkit's names.
#include <X11/XKBlib.h>
#include <X11/Xatom.h>

namespace evac::desktop {
namespace {

// The layouts in use by their names, "us" and "ru", in the order of their groups.
QStringList layouts(::Display* display) {
  constexpr long kMost = 1024;  // of four bytes each
  constexpr int kLayouts = 2;   // behind the rules and the model
  ::Atom type = 0;
  int format = 0;
  unsigned long count = 0, left = 0;
  unsigned char* names = nullptr;
  const ::Atom property = XInternAtom(display, "_XKB_RULES_NAMES", True);
  if (property == 0 || XGetWindowProperty(display, DefaultRootWindow(display), property, 0, kMost, False,
                                          XA_STRING, &type, &format, &count, &left, &names) != Success)
    return {};
  const QStringList parts =
      QString::fromLatin1(reinterpret_cast<const char*>(names), static_cast<qsizetype>(count))
          .split(QChar(0));
  if (names) XFree(names);
  return parts.value(kLayouts).split(',', Qt::SkipEmptyParts);
}

}  // namespace

KeyboardState keyboard_state() {
  KeyboardState state;
  // Others offer the interface too, with no display behind it.
  if (QGuiApplication::platformName() != QStringLiteral("xcb")) return state;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  ::XkbStateRec keyboard;
  if (!x11 || XkbGetState(x11->display(), XkbUseCoreKbd, &keyboard) != Success) return state;
  state.caps_lock = keyboard.locked_mods & LockMask;
  const QString layout = layouts(x11->display()).value(keyboard.group).toUpper();
  state.layout =
      layout == QStringLiteral("US") || layout == QStringLiteral("GB") ? QStringLiteral("EN") : layout;
  return state;
}

}  // namespace evac::desktop

// What widgets are to assistive technology: a name with its value, and for those that paint themselves a role
// that fits.
#pragma once

#include <QAccessible>
#include <optional>

#include "platform/control.h"

namespace evac::desktop {

// A widget that paints itself, and that the toolkit would take for a mere area.
class Spoken {
 public:
  virtual ~Spoken() = default;
  virtual QAccessible::Role role() const = 0;
  // Of a choice, and of a button that is a switch: whether it is on.
  virtual std::optional<bool> pressed() const { return {}; }
  virtual void press() {}
  virtual QString key() const { return {}; }
  // Of one that shows how far something is: that, and its end.
  virtual std::optional<std::pair<int, int>> progress() const { return {}; }
};

// To be told when a switch has been turned.
void tell_turned(QObject& widget);

// Called once, before the first widget is asked for.
void speak_for_widgets();

// "Зона 7, включена": the parts that say something, each once.
QString spoken_name(const QString& words, const QStringList& values);

// Whether a room stands behind the control. A button and an entry of a menu have a handler then; what is
// chosen or typed beside buttons stands with them.
bool is_connected(const Control& control);
inline constexpr const char* kNotConnected = "не подключено";

}  // namespace evac::desktop

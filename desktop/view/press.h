// Presses besides the plain click: the right press by mouse, by keyboard (Minus, Menu, Shift+F10) and, on a
// touch screen, by a long press; and the arrow keys within a board of many small controls.
#pragma once

#include <QObject>
#include <QTimer>
#include <vector>

#include "desktop/view/screen.h"

class QWidget;

namespace evac::desktop {

class PressWatch : public QObject {
  Q_OBJECT
 public:
  static constexpr int kLongPress = 600;  // milliseconds

  PressWatch(QWidget& widget, Control& control, Screen& screen);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void right_press(bool shift, QPoint place);
  void long_press();

  QWidget& widget_;
  Control& control_;
  Screen& screen_;
  QTimer touch_;
  bool swallow_release_ = false;
};

// Arrow keys go from one member to its neighbour on the screen; the Tab key passes the whole board as one.
class FocusBoard : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;
  void add(QWidget& member);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* neighbour(const QWidget& from, int dx, int dy) const;
  std::vector<QWidget*> members_;
};

}  // namespace evac::desktop

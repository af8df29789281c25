// Scroll bars, as a slider between a minus and a plus, for mouse, keyboard and finger; and progress bars. A
// value can also be typed: it counts once it is whole, so that no bar follows half a number.
#pragma once

#include <QAbstractSlider>
#include <QTimer>

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

class BarView : public BoundWidget<QAbstractSlider, ScrollBar> {
 public:
  BarView(ScrollBar& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void show_state() override;
  // The parts: less, the way of the handle (empty when there is no room for it), more.
  struct Parts {
    QRect less, way, more;
  };
  Parts parts() const;
  int value_at(QPoint place) const;
  void type(int digit);
  // The number that was typed is whole.
  void take_typed();

  Deeds deeds_;
  bool showing_ = false;
  int typed_ = -1;  // the number that is being typed; none below 0
  QTimer typing_;
};

class ProgressView : public BoundWidget<QWidget, ProgressBar>, public Spoken {
 public:
  ProgressView(ProgressBar& control, Screen& screen, const Node& node, QWidget* parent);
  QAccessible::Role role() const override { return QAccessible::ProgressBar; }
  std::optional<std::pair<int, int>> progress() const override {
    return std::pair(control_.value(), control_.most());
  }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_state() override {}
  QStringList values() const override;
};

}  // namespace evac::desktop

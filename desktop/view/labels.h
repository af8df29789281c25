// Labels and pictures.
#pragma once

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

// A text on the window's ground, in a field of its own, a sample of colour, or a cell that takes presses. A
// huge one grows with the place that it has.
class LabelView : public BoundWidget<QWidget, Control>, public Spoken {
 public:
  LabelView(Control& control, Screen& screen, const Node& node, QWidget* parent);
  ~LabelView() override;
  QAccessible::Role role() const override;
  std::optional<bool> pressed() const override;
  void press() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void show_state() override {}
  QStringList values() const override;
  bool is_on() const;
  // The caption, unless it is one that is not to be seen now.
  QString text() const;
  QFont fitting_font(const QString& text) const;
  const QString off_, on_;
  const Controls timers_;
};

// The picture that a control shows, with what is printed on it. As a lamp it carries its number.
class PictureView : public BoundWidget<QWidget, Picture>, public Spoken {
 public:
  PictureView(Picture& control, Screen& screen, const Node& node, QWidget* parent);
  QAccessible::Role role() const override { return QAccessible::StatusBar; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_state() override {}
  QStringList values() const override;
};

}  // namespace evac::desktop

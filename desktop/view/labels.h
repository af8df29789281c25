// Labels and pictures.
#pragma once

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

// A text on the window's ground, in a field of its own, a sample of colour, or a cell that takes presses.
class LabelView : public BoundWidget<QWidget, Control> {
 public:
  LabelView(Control& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void show_state() override {}
};

// The picture that a control shows, with what is printed on it. As a lamp it carries its number.
class PictureView : public BoundWidget<QWidget, Picture> {
 public:
  PictureView(Picture& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_state() override;
};

}  // namespace evac::desktop

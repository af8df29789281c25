// Lines of text to type in, and combo boxes.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

class TextView : public BoundWidget<QLineEdit, TextBox> {
 public:
  TextView(TextBox& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void show_state() override;
  Deeds deeds_;
};

// Shows the control's text, which need not be one of its rows.
class ComboView : public BoundWidget<QComboBox, ComboBox> {
 public:
  ComboView(ComboBox& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  // A wheel that is turned in passing must choose nothing.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_state() override;
};

}  // namespace evac::desktop

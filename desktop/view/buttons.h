// Buttons, option buttons and check boxes. They show the control's state and nothing else: a press is told to
// the control, and what comes of it is seen when the control changes.
#pragma once

#include <QCheckBox>
#include <QRadioButton>

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

// Drawn with its back colour, its caption and its picture. One in a signal colour also has a heavy edge and
// bold letters, so that the colour is not the only sign; not one that is shown as a value, whose caption
// tells the same as the colour.
class ButtonView : public BoundWidget<QAbstractButton, Control> {
 public:
  ButtonView(Control& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void show_state() override {}
  std::string_view picture() const;
  const std::string_view sign_;
  const bool tight_;
};

class OptionView : public BoundWidget<QRadioButton, OptionButton> {
 public:
  OptionView(OptionButton& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }

 private:
  int ring_size() const;
  void show_state() override;
  void nextCheckState() override {}
};

class CheckView : public BoundWidget<QCheckBox, CheckBox> {
 public:
  CheckView(CheckBox& control, Screen& screen, const Node& node, QWidget* parent);

 private:
  void show_state() override;
  void nextCheckState() override {}
};

}  // namespace evac::desktop

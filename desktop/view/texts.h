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

// Shows the control's text, which need not be one of its rows. The toolkit tells only that text, not whose.
class ComboView : public BoundWidget<QComboBox, ComboBox>, public Spoken {
 public:
  ComboView(ComboBox& control, Screen& screen, const Node& node, QWidget* parent);
  QAccessible::Role role() const override { return QAccessible::ComboBox; }
  void press() override { showPopup(); }

 protected:
  // A wheel that is turned in passing must choose nothing.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_state() override;
  QStringList values() const override { return {qt(control_.text())}; }
};

}  // namespace evac::desktop

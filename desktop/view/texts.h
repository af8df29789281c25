// Lines of text to type in, masked ones among them, and combo boxes.
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

// An input of digits in a mask: the places still empty are shown as lines. Every key goes to the control,
// which knows where the caret stands; the cursor follows it.
class MaskedView : public BoundWidget<QLineEdit, MaskedEdit> {
 public:
  MaskedView(MaskedEdit& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void show_state() override;
  QStringList values() const override { return {qt(control_.text())}; }
  // As typed: over what is selected, at the caret.
  void type(const QString& keys);
  void rub_out();
  // The digit's place before the cursor, so that no step ends on the mask's own characters.
  int place_before() const;
  // Posts the deed behind the place of the cursor, or behind the emptying of what was selected whole.
  void act_on_selection(std::function<void()> deed);

  Deeds deeds_;
  bool showing_ = false;  // the cursor is moved by the control
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

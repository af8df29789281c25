// Buttons, option buttons and check boxes. They show the control's state and nothing else: a press is told to
// the control, and what comes of it is seen when the control changes.
#pragma once

#include <QCheckBox>
#include <QRadioButton>

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

// A cell is one of many that are on or off: when on it is light, with a heavy edge and bold letters. A
// channel's colour is a swatch at its side, so that a board of them stays calm.
struct CellState {
  bool on = false, enabled = true, raised = false;
  Color color = Color::kButtonFace;
};
void draw_cell(QPainter& painter, const QRect& area, const CellState& state, const QString& text);

// Drawn with its back colour, its caption and its picture. One in a signal colour also has a heavy edge and
// bold letters, so that the colour is not the only sign.
class ButtonView : public BoundWidget<QAbstractButton, Control>, public Spoken {
 public:
  ButtonView(Control& control, Screen& screen, const Node& node, QWidget* parent);
  QAccessible::Role role() const override { return QAccessible::Button; }
  std::optional<bool> pressed() const override;
  void press() override { click(); }
  QString key() const override { return shortcut().toString(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void show_state() override;
  QStringList values() const override;
  void paint_face(QPainter& painter) const;
  void paint_swatch(QPainter& painter) const;
  void paint_ticked(QPainter& painter) const;
  QColor ground() const;
  std::string_view picture() const;
  bool is_on() const;
  const std::string_view sign_, sign_on_;
  const QString off_, on_, letter_;
  const bool tight_;
  const bool hand_;
  bool is_switch_, was_on_ = false;
};

// The toolkit takes a choice that does not manage its neighbours by itself for a mere check box.
class OptionView : public BoundWidget<QRadioButton, OptionButton>, public Spoken {
 public:
  OptionView(OptionButton& control, Screen& screen, const Node& node, QWidget* parent);
  QAccessible::Role role() const override { return QAccessible::RadioButton; }
  std::optional<bool> pressed() const override { return control_.value(); }
  void press() override { click(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }

 private:
  int ring_size() const;
  void show_state() override;
  QStringList values() const override;
  void nextCheckState() override {}
};

class CheckView : public BoundWidget<QCheckBox, CheckBox> {
 public:
  CheckView(CheckBox& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }

 private:
  void show_state() override;
  QStringList values() const override;
  QString own_text() const;
  void nextCheckState() override {}
};

}  // namespace evac::desktop

#include "desktop/view/texts.h"

#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include "platform/user.h"

namespace evac::desktop {

TextView::TextView(TextBox& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), deeds_(screen, *this) {
  keep_size(node, line_ * 8, line_ * 5 / 3);
  if (const auto* masked = dynamic_cast<const MaskedEdit*>(&control)) {
    QString mask = qt(masked->mask());
    setInputMask(mask.replace('#', '9'));
  }
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
    deeds_.post([&box = control_, typed = plain(text)] { user::set_text(box, typed); });
  });
}

void TextView::keyPressEvent(QKeyEvent* event) {
  // A control that looks at single keys gets them one by one, at the end of its text.
  const QString key = event->text();
  const bool backspace = event->key() == Qt::Key_Backspace;
  if (control_.key_press && (backspace || (!key.isEmpty() && key.front().isPrint()))) {
    deeds_.post([&box = control_, pressed = backspace ? std::string("\b") : plain(key)] {
      user::press_key(box, pressed);
    });
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void TextView::show_state() {
  setEchoMode(control_.password() ? QLineEdit::Password : QLineEdit::Normal);
  if (deeds_.under_way()) return;
  if (const QString text = qt(control_.text()); text != this->text()) setText(text);
}

ComboView::ComboView(ComboBox& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  keep_size(node, line_ * 10, line_ * 5 / 3);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  connect(this, &QComboBox::activated, this, [this](int row) {
    screen_.act([&list = control_, row] {
      if (row < list.count()) user::pick(list, row);
    });
  });
}

void ComboView::show_state() {
  bool same = count() == control_.count();
  for (int row = 0; same && row < count(); ++row) same = itemText(row) == qt(control_.row(row));
  if (!same) {
    clear();
    for (const auto& row : control_.rows()) addItem(qt(row));
  }
  setCurrentIndex(control_.selected());
}

void ComboView::paintEvent(QPaintEvent*) {
  QStylePainter p(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = fontMetrics().elidedText(qt(control_.text()), Qt::ElideRight, width() - 2 * line_);
  p.drawComplexControl(QStyle::CC_ComboBox, option);
  p.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace evac::desktop

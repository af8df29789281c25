#include "desktop/view/texts.h"

#include <QClipboard>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <algorithm>

#include "desktop/view/palette.h"
#include "platform/user.h"

namespace evac::desktop {

TextView::TextView(TextBox& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), deeds_(screen, *this) {
  keep_size(node, line_ * 8, line_ * 5 / 3);
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

MaskedView::MaskedView(MaskedEdit& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), deeds_(screen, *this) {
  keep_size(node, line_ * 8, line_ * 5 / 3);
  QPalette greyed = palette();
  greyed.setColor(QPalette::Disabled, QPalette::Base, grey::kWindow);
  setPalette(greyed);
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(false);
  // What found a way past the keys.
  connect(this, &QLineEdit::textEdited, this, [this] { show_state(); });
  connect(this, &QLineEdit::cursorPositionChanged, this, [this](int, int position) {
    if (!showing_ && !hasSelectedText())
      deeds_.post([&box = control_, position] { user::place_caret(box, position); });
  });
}

int MaskedView::place_before() const {
  int place = cursorPosition() - 1;
  while (place > 0 && control_.mask()[static_cast<std::size_t>(place)] != '#') --place;
  return std::max(place, 0);
}

void MaskedView::act_on_selection(std::function<void()> deed) {
  const bool whole = hasSelectedText() && selectedText().size() == text().size();
  const int from = hasSelectedText() ? selectionStart() : -1;
  showing_ = true;
  deselect();
  showing_ = false;
  deeds_.post([&box = control_, whole, from, deed = std::move(deed)] {
    if (from >= 0) user::place_caret(box, whole ? static_cast<int>(box.mask().size()) : from);
    if (whole)
      for (std::size_t left = box.text().size(); left > 0; --left) user::press_key(box, "\b");
    deed();
  });
}

void MaskedView::type(const QString& keys) {
  act_on_selection([&box = control_, keys] {
    for (const QChar key : keys) user::press_key(box, plain(key));
  });
}

void MaskedView::rub_out() {
  const bool selected = hasSelectedText();
  act_on_selection([&box = control_, selected] {
    if (!selected) user::press_key(box, "\b");
  });
}

void MaskedView::keyPressEvent(QKeyEvent* event) {
  const QString key = event->text();
  if (event->matches(QKeySequence::Paste)) {
    QString digits = QApplication::clipboard()->text();
    type(digits.remove(QRegularExpression(QStringLiteral("\\D"))));
  } else if (event->key() == Qt::Key_Backspace) {
    rub_out();
  } else if (event->key() == Qt::Key_Delete && !hasSelectedText()) {
    // The digit behind the caret.
    if (cursorPosition() < static_cast<int>(control_.text().size()))
      deeds_.post([&box = control_, behind = cursorPosition() + 1] {
        user::place_caret(box, behind);
        user::press_key(box, "\b");
      });
  } else if (event->key() == Qt::Key_Delete) {
    rub_out();
  } else if (!key.isEmpty() && key.front().isPrint() &&
             !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    type(key);
  } else if (event->key() == Qt::Key_Left && event->modifiers() == Qt::NoModifier) {
    setCursorPosition(place_before());
  } else if (!event->matches(QKeySequence::Cut) && !event->matches(QKeySequence::Undo) &&
             !event->matches(QKeySequence::Redo)) {
    QLineEdit::keyPressEvent(event);
  }
}

void MaskedView::show_state() {
  if (deeds_.under_way()) return;
  QString shown = qt(control_.mask()).replace('#', '_');
  shown.replace(0, qt(control_.text()).size(), qt(control_.text()));
  showing_ = true;
  if (shown != text()) setText(shown);
  if (!hasSelectedText()) setCursorPosition(control_.caret());
  showing_ = false;
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

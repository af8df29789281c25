#include "desktop/view/buttons.h"

#include <QKeyEvent>
#include <QPainter>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "desktop/view/press.h"
#include "platform/pictures.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

constexpr int kWrap = Qt::AlignCenter | Qt::TextWordWrap;
constexpr double kLongCaption = 9;  // lines of text; a longer one is broken in two

// The caption with the mark of its key before the first such letter.
QString with_letter(QString caption, const QString& letter) {
  caption.replace('&', QStringLiteral("&&"));
  if (const auto at = caption.indexOf(letter, 0, Qt::CaseInsensitive); !letter.isEmpty() && at >= 0)
    caption.insert(at, '&');
  return caption;
}

}  // namespace

QFont font_of(Look look, QFont font) {
  if (look == Look::kHead) font.setPointSizeF(font.pointSizeF() * 0.85);
  if (look == Look::kBig || look == Look::kStop || look == Look::kTitle || look == Look::kHuge) {
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * (look == Look::kHuge ? 1.5 : look == Look::kTitle ? 1.25 : 1.1));
  }
  return font;
}

void draw_cell(QPainter& p, const QRect& area, const CellState& state, const QString& text) {
  const bool empty = text.isEmpty() && !state.enabled;
  const QColor back = state.on ? grey::kField : state.enabled && state.raised ? grey::kFace : grey::kWindow;
  draw_box(p, area, back, empty ? grey::kPale : state.on ? grey::kText : grey::kLine, state.on ? 2 : 1);
  if (text.isEmpty()) return;
  QRect inside = area.adjusted(3, 3, -2, -3);
  if (const int channel = channel_of(state.color); state.on && channel)
    inside.setLeft(inside.left() + draw_swatch(p, inside, screen_color(state.color), channel));
  QFont font = p.font();
  font.setBold(state.on);
  const int needed = QFontMetrics(font).horizontalAdvance(text);
  if (needed > inside.width()) font.setStretch(100 * inside.width() / needed);
  p.setFont(font);
  p.setPen(state.on || (state.enabled && state.raised) ? grey::kText : grey::kFaint);
  p.drawText(inside, Qt::AlignCenter, text);
}

ButtonView::ButtonView(Control& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent),
      sign_(node.sign),
      sign_on_(node.sign_on),
      off_(qt(node.off)),
      on_(qt(node.on)),
      letter_(qt(node.letter)),
      tight_(node.tight),
      hand_(node.hand),
      is_switch_(!node.on.empty()) {
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const QString caption = qt(control.caption());
  int width = metrics.horizontalAdvance(caption), height = line_ * 7 / 4;
  if (width > kLongCaption * line_) {
    const QRect broken = metrics.boundingRect(0, 0, width * 3 / 5, 10 * line_, kWrap, caption);
    width = broken.width();
    height = broken.height() + line_ / 2;
  }
  if (!picture().empty()) width += 2 * line_;
  if (look_ == Look::kTicked) width += line_ / 2;
  keep_size(node, tight_ ? width + line_ / 2 : std::max(width + line_, 2 * line_),
            tight_ ? line_ * 5 / 4 : height);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setFocusPolicy(Qt::StrongFocus);
  if (!letter_.isEmpty()) setShortcut(QKeySequence(QStringLiteral("Alt+") + letter_.toUpper()));
  new PressWatch(*this, control, screen);
  connect(this, &QAbstractButton::clicked, this,
          [this] { screen_.act([&control = control_] { user::click(control); }); });
}

std::string_view ButtonView::picture() const {
  if (is_picture(control_.picture())) return control_.picture();
  return is_on() && !sign_on_.empty() ? sign_on_ : sign_;
}

bool ButtonView::is_on() const {
  return look_ != Look::kSwatch &&
         (is_signal(control_.back_color()) || control_.picture() == picture::kSwitchOn);
}

void ButtonView::show_state() {
  if (hand_) setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
  // One that has been on is a switch, whatever it was laid out as.
  is_switch_ = is_switch_ || is_on();
  if (std::exchange(was_on_, is_on()) != is_on()) tell_turned(*this);
}

std::optional<bool> ButtonView::pressed() const {
  return is_switch_ ? std::optional(is_on()) : std::nullopt;
}

QStringList ButtonView::values() const {
  QStringList values{qt(control_.caption()), is_on() ? on_ : off_};
  if (const int channel = channel_of(control_.back_color()); is_on() && channel && look_ == Look::kCell)
    values << QStringLiteral("канал %1").arg(channel);
  return values;
}

void ButtonView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QAbstractButton::keyPressEvent(event);
}

void ButtonView::enterEvent(QEnterEvent* event) {
  update();
  QAbstractButton::enterEvent(event);
}

void ButtonView::leaveEvent(QEvent* event) {
  update();
  QAbstractButton::leaveEvent(event);
}

void ButtonView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setFont(font());
  if (look_ == Look::kCell)
    draw_cell(p, rect(), {is_on(), isEnabled(), !isDown(), control_.back_color()}, qt(control_.caption()));
  else if (look_ == Look::kSwatch)
    paint_swatch(p);
  else if (look_ == Look::kTicked)
    paint_ticked(p);
  else
    paint_face(p);
  if (hasFocus()) draw_focus_ring(p, rect());
}

QColor ButtonView::ground() const {
  const bool says = is_signal(control_.back_color()) && look_ != Look::kSwatch;
  QColor back = says ? screen_color(control_.back_color()) : isEnabled() ? grey::kFace : grey::kWindow;
  if (look_ == Look::kStop && !says) back = QColor(0xF2, 0xD4, 0xD0);
  if (isDown()) return back.darker(118);
  return underMouse() && isEnabled() ? back.lighter(104) : back;
}

void ButtonView::paint_swatch(QPainter& p) const {
  draw_box(p, rect(), ground(), grey::kLine, 1);
  QRect inside = rect().adjusted(3, 3, -2, -3);
  if (is_signal(control_.back_color()))
    inside.setLeft(inside.left() + draw_swatch(p, inside, screen_color(control_.back_color())));
  p.setPen(isEnabled() ? grey::kText : grey::kFaint);
  p.drawText(inside, Qt::AlignCenter, qt(control_.caption()));
}

void ButtonView::paint_ticked(QPainter& p) const {
  const QColor back = isDown() ? ground() : is_on() ? grey::kField : ground();
  draw_box(p, rect(), back, is_on() ? grey::kText : grey::kLine, is_on() ? 2 : 1);
  const double tick = line_ * 0.9;
  const QRectF inside = QRectF(rect()).adjusted(4, 0, -4, 0);
  p.setRenderHint(QPainter::Antialiasing);
  const QColor ink = isEnabled() ? grey::kText : grey::kFaint;
  if (is_on()) draw_tick(p, {inside.left(), (height() - tick) / 2, tick, tick}, ink);
  QFont font = this->font();
  font.setBold(is_on());
  p.setFont(font);
  p.setPen(ink);
  // The letters keep their place.
  p.drawText(inside.adjusted(tick, 0, 0, 0), Qt::AlignCenter, qt(control_.caption()));
}

void ButtonView::paint_face(QPainter& p) const {
  const bool stands_out = is_signal(control_.back_color());
  const QColor back = ground();
  draw_box(p, rect(), back, stands_out ? grey::kText : grey::kLine, stands_out ? 2 : 1);
  const QRectF box = QRectF(rect()).adjusted(2, 2, -2, -2);
  QRectF text_area = box.adjusted(tight_ ? 1 : 5, 0, tight_ ? -1 : -5, 0);
  const QString caption = qt(control_.caption());
  if (const auto shown = picture(); !shown.empty()) {
    const double side = std::min(box.height() * 0.72, 1.8 * line_);
    QRectF area(box.left() + side / 3, box.center().y() - side / 2, side, side);
    if (caption.isEmpty()) area.moveCenter(box.center());
    draw_picture(p, area, shown, isEnabled());
    text_area.setLeft(area.right() + 2);
  }
  if (caption.isEmpty()) return;
  QFont font = this->font();
  font.setBold(font.bold() || stands_out);
  p.setFont(font);
  p.setPen(isEnabled() || stands_out ? text_upon(back) : grey::kFaint);
  p.drawText(text_area, kWrap | Qt::TextShowMnemonic, with_letter(caption, letter_));
}

OptionView::OptionView(OptionButton& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  setAutoExclusive(false);
  setFocusPolicy(Qt::StrongFocus);
  setText(qt(control.caption()));
  QFont bold = font();
  bold.setBold(true);
  keep_size(node, ring_size() + QFontMetrics(bold).horizontalAdvance(text()) + line_ * 2 / 3, line_ * 5 / 4);
  connect(this, &QAbstractButton::clicked, this,
          [this] { screen_.act([&control = control_] { user::click(control); }); });
}

int OptionView::ring_size() const {
  return line_ * 9 / 10;
}

void OptionView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QColor ink = isEnabled() ? grey::kText : grey::kFaint;
  const double size = ring_size();
  const QRectF ring(2, (height() - size) / 2, size, size);
  p.setPen(QPen(isChecked() ? ink : grey::kFaint, 1.5));
  p.setBrush(isDown() ? grey::kFace : grey::kField);
  p.drawEllipse(ring);
  if (isChecked()) {
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    p.drawEllipse(ring.adjusted(size / 4, size / 4, -size / 4, -size / 4));
  }
  QFont font = this->font();
  font.setBold(isChecked());
  p.setFont(font);
  p.setPen(ink);
  p.drawText(QRectF(ring.right() + line_ / 3.0, 0, width(), height()), Qt::AlignVCenter, text());
  if (hasFocus()) draw_focus_ring(p, rect());
}

void OptionView::show_state() {
  setText(qt(control_.caption()));
  setChecked(control_.value());
}

QStringList OptionView::values() const {
  return words_.isEmpty() ? QStringList{qt(control_.caption())} : QStringList{};
}

CheckView::CheckView(CheckBox& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  setText(own_text());
  keep_size(node, line_ + fontMetrics().horizontalAdvance(text()) + line_ * 2 / 3, line_ * 5 / 4);
  connect(this, &QAbstractButton::clicked, this,
          [this] { screen_.act([&control = control_] { user::click(control); }); });
}

void CheckView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QColor ink = isEnabled() ? grey::kText : grey::kFaint;
  const double size = line_ * 0.9;
  const QRectF box(1.5, (height() - size) / 2, size, size);
  p.setPen(QPen(isEnabled() ? grey::kText : grey::kLine, 1.2));
  p.setBrush(isDown() ? grey::kFace : grey::kField);
  p.drawRoundedRect(box, 2, 2);
  if (isChecked()) draw_tick(p, box, ink);
  p.setPen(ink);
  p.drawText(QRectF(box.right() + line_ / 3.0, 0, width(), height()), Qt::AlignVCenter, text());
  if (hasFocus()) draw_focus_ring(p, rect());
}

QString CheckView::own_text() const {
  return look_ == Look::kNumber ? QString::number(control_.index().value_or(0)) : qt(control_.caption());
}

void CheckView::show_state() {
  setText(own_text());
  setChecked(control_.value());
}

QStringList CheckView::values() const {
  return words_.isEmpty() ? QStringList{qt(control_.caption())} : QStringList{};
}

}  // namespace evac::desktop

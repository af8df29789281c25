#include "desktop/view/buttons.h"

#include <QKeyEvent>
#include <QPainter>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "desktop/view/press.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

constexpr int kWrap = Qt::AlignCenter | Qt::TextWordWrap;
constexpr double kLongCaption = 9;  // lines of text; a longer one is broken in two

}  // namespace

QFont font_of(Look look, QFont font) {
  if (look == Look::kBig || look == Look::kStop || look == Look::kTitle || look == Look::kHuge) {
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * (look == Look::kHuge ? 1.5 : look == Look::kTitle ? 1.25 : 1.1));
  }
  return font;
}

QString spoken_name(const Control& control, const QString& caption) {
  const QString name = qt(control.full_name());
  return caption.isEmpty() ? name : name + ' ' + caption;
}

ButtonView::ButtonView(Control& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), sign_(node.sign), tight_(node.tight) {
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
  keep_size(node, tight_ ? width + line_ / 2 : std::max(width + line_, 2 * line_),
            tight_ ? line_ * 5 / 4 : height);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setFocusPolicy(Qt::StrongFocus);
  new PressWatch(*this, control, screen);
  connect(this, &QAbstractButton::clicked, this,
          [this] { screen_.act([&control = control_] { user::click(control); }); });
}

std::string_view ButtonView::picture() const {
  return is_picture(control_.picture()) ? std::string_view(control_.picture()) : sign_;
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
  const bool says = is_signal(control_.back_color());
  QColor back = isEnabled() || says ? screen_color(control_.back_color()) : grey::kWindow;
  if (look_ == Look::kStop && !says) back = QColor(0xF2, 0xD4, 0xD0);
  if (isDown())
    back = back.darker(118);
  else if (underMouse() && isEnabled())
    back = back.lighter(104);
  const bool stands_out = says && look_ != Look::kValue;
  const QColor edge = !isEnabled() ? grey::kLine.lighter(115) : stands_out ? grey::kText : grey::kLine;
  draw_box(p, rect(), back, edge, stands_out ? 2 : 1);

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
  if (!caption.isEmpty()) {
    QFont font = this->font();
    font.setBold(font.bold() || stands_out);
    p.setFont(font);
    p.setPen(isEnabled() || says ? text_upon(back) : grey::kFaint);
    p.drawText(text_area, kWrap, caption);
    if (look_ == Look::kCell) draw_channel_sign(p, box, channel_of(control_.back_color()));
  }
  if (hasFocus()) draw_focus_ring(p, rect());
}

OptionView::OptionView(OptionButton& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  setAutoExclusive(false);
  setFocusPolicy(Qt::StrongFocus);
  setText(qt(control.caption()));
  QFont bold = font();
  bold.setBold(true);
  keep_size(node, ring_size() + QFontMetrics(bold).horizontalAdvance(text()) + line_ * 2 / 3, line_ * 7 / 5);
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
  p.setPen(QPen(isChecked() ? ink : grey::kLine, 1.5));
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

CheckView::CheckView(CheckBox& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  setText(qt(control.caption()));
  connect(this, &QAbstractButton::clicked, this,
          [this] { screen_.act([&control = control_] { user::click(control); }); });
}

void CheckView::show_state() {
  setText(qt(control_.caption()));
  setChecked(control_.value());
}

}  // namespace evac::desktop

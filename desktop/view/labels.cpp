#include "desktop/view/labels.h"

#include <QKeyEvent>
#include <QPainter>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "desktop/view/press.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

void draw_text(QPainter& p, const QRect& area, int flags, const QString& text) {
  const QFontMetrics metrics = p.fontMetrics();
  if (area.height() >= 2 * metrics.height())
    p.drawText(area, flags | Qt::TextWordWrap, text);
  else
    p.drawText(area, flags, metrics.elidedText(text, Qt::ElideRight, area.width()));
}

}  // namespace

LabelView::LabelView(Control& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  const int own = fontMetrics().horizontalAdvance(qt(control.caption()));
  const bool field = look_ == Look::kValue || look_ == Look::kSwatch;
  keep_size(node, own + (field ? line_ : line_ / 2), look_ == Look::kCell ? line_ * 5 / 4 : line_ * 4 / 3);
  setSizePolicy(QSizePolicy::Preferred, look_ == Look::kCell ? QSizePolicy::Preferred : QSizePolicy::Fixed);
  if (look_ == Look::kCell) {
    setFocusPolicy(Qt::StrongFocus);
    new PressWatch(*this, control, screen);
  }
}

void LabelView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const bool plain_look = look_ != Look::kValue && look_ != Look::kSwatch && look_ != Look::kCell;
  QColor back = palette().color(QPalette::Window);
  if (!plain_look || is_signal(control_.back_color())) {
    back = look_ == Look::kValue && !is_signal(control_.back_color()) ? grey::kField
                                                                      : screen_color(control_.back_color());
    p.setPen(grey::kLine);
    p.setBrush(back);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  const bool on = look_ == Look::kCell && control_.back_color() != Color::kWindow;
  QFont font = this->font();
  font.setBold(font.bold() || on);
  p.setFont(font);
  p.setPen(look_ == Look::kCell && !on ? grey::kFaint : isEnabled() ? text_upon(back) : grey::kFaint);
  const int flags = plain_look ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter;
  draw_text(p, rect().adjusted(2, 0, -2, 0), flags, qt(control_.caption()));
  if (look_ == Look::kCell) draw_channel_sign(p, rect(), channel_of(control_.back_color()));
  if (look_ == Look::kSwatch && channel_of(control_.back_color()))
    draw_text(p, rect(), Qt::AlignCenter, QString::number(channel_of(control_.back_color())));
  if (hasFocus()) draw_focus_ring(p, rect());
}

void LabelView::mousePressEvent(QMouseEvent* event) {
  if (look_ == Look::kCell && event->button() == Qt::LeftButton)
    screen_.act([&control = control_] { user::click(control); });
}

void LabelView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (look_ == Look::kCell && event->button() == Qt::LeftButton)
    screen_.act([&control = control_] { user::double_click(control); });
}

void LabelView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (look_ == Look::kCell && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter))
    screen_.act([&control = control_] { user::double_click(control); });
  else
    QWidget::keyPressEvent(event);
}

PictureView::PictureView(Picture& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  const int side = look_ == Look::kLamp ? line_ * 3 / 2 : line_ * 4 / 3;
  keep_size(node, look_ == Look::kLamp ? 2 * line_ : side, side);
  const bool lamp = look_ == Look::kLamp;
  setSizePolicy(lamp ? QSizePolicy::Preferred : QSizePolicy::Fixed,
                lamp ? QSizePolicy::Preferred : QSizePolicy::Fixed);
  if (!lamp && node.width > 0) setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void PictureView::show_state() {
  setAccessibleDescription(control_.lines().empty() ? picture_words(control_.picture())
                                                    : qt(control_.lines().back()));
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setFont(font());
  if (look_ == Look::kLamp) {
    draw_lamp(p, rect(), control_.picture(), QString::number(control_.index().value_or(0)));
    return;
  }
  draw_picture(p, rect(), control_.picture());
  if (control_.lines().empty()) return;
  p.setPen(grey::kText);
  draw_text(p, rect().adjusted(2, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter, qt(control_.lines().back()));
}

}  // namespace evac::desktop

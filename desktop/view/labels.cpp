#include "desktop/view/labels.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/view/buttons.h"
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
    : BoundWidget(control, screen, node, parent), off_(qt(node.off)), on_(qt(node.on)), timers_(node.timers) {
  const int own = fontMetrics().horizontalAdvance(qt(control.caption()));
  const bool field = look_ == Look::kValue || look_ == Look::kField || look_ == Look::kSwatch;
  const bool gives_way = look_ == Look::kCell || look_ == Look::kHuge;
  keep_size(node, own + (field ? line_ : line_ / 2), look_ == Look::kCell ? line_ * 5 / 4 : line_ * 4 / 3);
  setSizePolicy(QSizePolicy::Preferred, gives_way ? QSizePolicy::Preferred : QSizePolicy::Fixed);
  for (Control* timer : timers_) screen.bind(*timer, *this);
  if (look_ == Look::kCell) setFocusPolicy(Qt::StrongFocus);
  if (look_ == Look::kCell || control.mouse_down) new PressWatch(*this, control, screen);
}

LabelView::~LabelView() {
  for (Control* timer : timers_) screen_.unbind(*timer, *this);
}

QString LabelView::text() const {
  const bool any = std::any_of(timers_.begin(), timers_.end(), [](auto* timer) { return timer->enabled(); });
  return timers_.empty() || any ? qt(control_.caption()) : QString();
}

bool LabelView::is_on() const {
  return look_ == Look::kCell && control_.back_color() != Color::kWindow;
}

QAccessible::Role LabelView::role() const {
  if (look_ == Look::kCell) return QAccessible::Button;
  return words_.isEmpty() ? QAccessible::StaticText : QAccessible::StatusBar;
}

std::optional<bool> LabelView::pressed() const {
  return look_ == Look::kCell ? std::optional(is_on()) : std::nullopt;
}

void LabelView::press() {
  screen_.act([&control = control_] { user::double_click(control); });
}

QStringList LabelView::values() const {
  const int channel = channel_of(control_.back_color());
  QStringList values{text()};
  if (look_ == Look::kCell) values << (is_on() ? on_ : off_);
  if (channel && (look_ == Look::kCell || look_ == Look::kSwatch))
    values << QStringLiteral("канал %1").arg(channel);
  return values;
}

QFont LabelView::fitting_font(const QString& text) const {
  QFont font = this->font();
  if (look_ != Look::kHuge) return font;
  double size = font.pointSizeF() * std::clamp(double(height()) / minimumSizeHint().height(), 1.0, 1.6);
  const QRect area = rect().adjusted(2, 0, -2, 0);
  const double least = QApplication::font().pointSizeF();
  for (; size > least; size -= 1) {
    font.setPointSizeF(size);
    const QRect needed = QFontMetrics(font, this).boundingRect(area, Qt::TextWordWrap, text);
    if (needed.height() <= area.height() && needed.width() <= area.width()) break;
  }
  font.setPointSizeF(size);
  return font;
}

void LabelView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QString caption = text();
  p.setFont(fitting_font(caption));
  if (look_ == Look::kCell) {
    draw_cell(p, rect(), {is_on(), isEnabled(), false, control_.back_color()}, caption);
    if (hasFocus()) draw_focus_ring(p, rect());
    return;
  }
  const bool value = look_ == Look::kValue || look_ == Look::kField;
  const bool plain = !value && look_ != Look::kSwatch;
  const bool says = is_signal(control_.back_color());
  QColor back = grey::kWindow;
  if (!plain || says) {
    back = value && !says ? grey::kField : screen_color(control_.back_color());
    draw_field(p, rect(), back);
  }
  p.setPen(isEnabled() ? text_upon(back) : grey::kFaint);
  const int channel = look_ == Look::kSwatch ? channel_of(control_.back_color()) : 0;
  const bool from_left = plain || look_ == Look::kField;
  const int inset = look_ == Look::kField ? line_ / 4 : 2;
  draw_text(p, rect().adjusted(inset, 0, -inset, 0),
            from_left ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter,
            channel ? QString::number(channel) : caption);
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
    press();
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

QStringList PictureView::values() const {
  if (!control_.lines().empty()) return {qt(control_.lines().back())};
  const std::string_view shown = screen_.picture_of(control_);
  return {look_ == Look::kLamp ? lamp_words(shown) : picture_words(shown)};
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setFont(font());
  if (look_ == Look::kLamp) {
    // The number grows with its lamp.
    const double room = std::min(width() / (3.0 * line_), height() / (2.0 * line_));
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * std::clamp(room, 1.0, 2.0));
    p.setFont(font);
    draw_lamp(p, rect(), screen_.picture_of(control_), QString::number(control_.index().value_or(0)));
    return;
  }
  draw_picture(p, rect(), screen_.picture_of(control_));
  if (control_.lines().empty()) return;
  p.setPen(grey::kText);
  draw_text(p, rect().adjusted(2, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter, qt(control_.lines().back()));
}

}  // namespace evac::desktop

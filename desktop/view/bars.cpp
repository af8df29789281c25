#include "desktop/view/bars.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

// Behind the last digit a number is whole.
constexpr std::chrono::milliseconds kTypingPause{1500};

bool is_digit(const QKeyEvent& key) {
  return key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9 &&
         !(key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier));
}

}  // namespace

BarView::BarView(ScrollBar& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), deeds_(screen, *this) {
  const bool upright = look_ == Look::kUpright;
  setOrientation(upright ? Qt::Vertical : Qt::Horizontal);
  const int thick = line_ * 3 / 2, most = line_ * 4;
  keep_size(node, upright ? thick : most, upright ? most : thick);
  setSizePolicy(upright ? QSizePolicy::Fixed : QSizePolicy::Preferred,
                upright ? QSizePolicy::Preferred : QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
  setRange(control.least(), control.most());
  setPageStep(std::max(1, (control.most() - control.least()) / 10));
  typing_.setSingleShot(true);
  typing_.setInterval(kTypingPause);
  connect(&typing_, &QTimer::timeout, this, &BarView::take_typed);
  connect(this, &QAbstractSlider::valueChanged, this, [this](int value) {
    typed_ = -1;  // the handle has moved meanwhile
    update();
    if (!showing_) deeds_.post([&bar = control_, value] { user::set_value(bar, value); });
  });
}

bool BarView::event(QEvent* event) {
  // A shortcut is coming up, that of a button perhaps that takes the value.
  if (event->type() == QEvent::ShortcutOverride && !is_digit(*static_cast<QKeyEvent*>(event))) take_typed();
  return QAbstractSlider::event(event);
}

void BarView::keyPressEvent(QKeyEvent* event) {
  if (is_digit(*event)) return type(event->key() - Qt::Key_0);
  take_typed();
  QAbstractSlider::keyPressEvent(event);
}

void BarView::focusOutEvent(QFocusEvent* event) {
  take_typed();
  QAbstractSlider::focusOutEvent(event);
}

void BarView::type(int digit) {
  typed_ = std::max(typed_, 0) * 10 + digit;
  update();
  // No further digit would fit.
  if (typed_ * 10 > maximum()) return take_typed();
  typing_.start();
}

void BarView::take_typed() {
  typing_.stop();
  if (typed_ >= 0) setValue(std::exchange(typed_, -1));
  update();
}

void BarView::show_state() {
  if (deeds_.under_way()) return;
  showing_ = true;
  setValue(control_.value());
  showing_ = false;
}

BarView::Parts BarView::parts() const {
  const bool upright = orientation() == Qt::Vertical;
  const int length = upright ? height() : width(), thick = upright ? width() : height();
  const int knob = std::min({thick, length / 2, line_ * 3 / 2});
  Parts parts;
  parts.less = upright ? QRect(0, height() - knob, thick, knob) : QRect(0, 0, knob, thick);
  parts.more = upright ? QRect(0, 0, thick, knob) : QRect(width() - knob, 0, knob, thick);
  if (length >= 3 * knob)
    parts.way = upright ? QRect(0, knob, thick, length - 2 * knob) : QRect(knob, 0, length - 2 * knob, thick);
  return parts;
}

int BarView::value_at(QPoint place) const {
  const QRect way = parts().way;
  const bool upright = orientation() == Qt::Vertical;
  const int thick = upright ? width() : height();
  const double length = std::max(1, (upright ? way.height() : way.width()) - thick / 2);
  const double along =
      upright ? way.bottom() - thick / 4.0 - place.y() : place.x() - way.left() - thick / 4.0;
  return minimum() +
         static_cast<int>(std::lround(std::clamp(along / length, 0.0, 1.0) * (maximum() - minimum())));
}

void BarView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint place = event->position().toPoint();
  const Parts at = parts();
  const auto step = [this](SliderAction action) {
    triggerAction(action);
    setRepeatAction(action);
  };
  if (at.less.contains(place))
    step(SliderSingleStepSub);
  else if (at.more.contains(place))
    step(SliderSingleStepAdd);
  else if (at.way.contains(place)) {
    setSliderDown(true);
    setValue(value_at(place));
  }
}

void BarView::mouseMoveEvent(QMouseEvent* event) {
  if (isSliderDown()) setValue(value_at(event->position().toPoint()));
}

void BarView::mouseReleaseEvent(QMouseEvent*) {
  setRepeatAction(SliderNoAction);
  setSliderDown(false);
  update();
}

void BarView::wheelEvent(QWheelEvent* event) {
  // A wheel that is turned in passing must change no volume.
  if (hasFocus())
    QAbstractSlider::wheelEvent(event);
  else
    event->ignore();
}

void BarView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const Parts at = parts();
  const QColor ink = isEnabled() ? grey::kText : grey::kFaint;
  const bool upright = orientation() == Qt::Vertical;
  for (const QRect& knob : {at.less, at.more}) {
    p.setPen(grey::kLine);
    p.setBrush(isEnabled() ? grey::kFace : grey::kWindow);
    p.drawRoundedRect(QRectF(knob).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
    const QPointF middle = QRectF(knob).center();
    const double arm = std::min(knob.width(), knob.height()) * 0.22;
    p.setPen(QPen(ink, 2));
    p.drawLine(QPointF(middle.x() - arm, middle.y()), QPointF(middle.x() + arm, middle.y()));
    if (knob == at.more)
      p.drawLine(QPointF(middle.x(), middle.y() - arm), QPointF(middle.x(), middle.y() + arm));
  }
  if (!at.way.isEmpty()) {
    const double share =
        maximum() > minimum() ? double(value() - minimum()) / double(maximum() - minimum()) : 0;
    const double thick = upright ? width() : height(), grip = thick / 2;
    QRectF way = QRectF(at.way), groove = way, handle, filled;
    if (upright) {
      groove = QRectF(way.center().x() - 3, way.top() + grip / 2, 6, way.height() - grip);
      const double y = groove.bottom() - share * groove.height();
      handle = QRectF(way.left() + 3, y - grip / 2, thick - 6, grip);
      filled = QRectF(groove.left(), y, 6, groove.bottom() - y);
    } else {
      groove = QRectF(way.left() + grip / 2, way.center().y() - 3, way.width() - grip, 6);
      const double x = groove.left() + share * groove.width();
      handle = QRectF(x - grip / 2, way.top() + 3, grip, thick - 6);
      filled = QRectF(groove.left(), groove.top(), x - groove.left(), 6);
    }
    p.setPen(grey::kLine);
    p.setBrush(grey::kField);
    p.drawRoundedRect(groove, 3, 3);
    p.setBrush(grey::kLine);
    p.drawRoundedRect(filled, 3, 3);
    p.setPen(ink);
    p.setBrush(isSliderDown() ? grey::kLine : grey::kFace);
    p.drawRoundedRect(handle, 3, 3);
  }
  if (typed_ >= 0) {
    const QRect field = rect().adjusted(at.less.width() + 2, 2, -at.more.width() - 2, -2);
    draw_field(p, field, grey::kField);
    p.setPen(grey::kText);
    p.drawText(field, Qt::AlignCenter, QString::number(typed_) + '_');
  }
  if (hasFocus()) draw_focus_ring(p, rect());
}

ProgressView::ProgressView(ProgressBar& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  keep_size(node, line_ * 8, line_);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QStringList ProgressView::values() const {
  return {QStringLiteral("%1 из %2").arg(control_.value()).arg(control_.most())};
}

void ProgressView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  draw_field(p, rect(), grey::kField);
  const int most = std::max(1, control_.most());
  const int parts = std::clamp(control_.value(), 0, most);
  const double step = (width() - 4.0) / most;
  p.setPen(Qt::NoPen);
  p.setBrush(grey::kFocus);
  for (int i = 0; i < parts; ++i) p.drawRect(QRectF(2 + i * step, 3, step - 2, height() - 6));
}

}  // namespace evac::desktop

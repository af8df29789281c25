#include "desktop/view/track.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "platform/user.h"
#include "player/position.h"

namespace evac::desktop {
namespace {

// At 0 the console puts the button there and seeks nowhere.
constexpr int kStart = 1;

}  // namespace

TrackView::TrackView(Button& control, Screen& screen, const Node& node, QWidget* parent, TrackSource source)
    : BoundWidget(control, screen, node, parent), source_(std::move(source)) {
  keep_size(node, line_ * 12, line_ * 3 / 2);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
}

std::optional<std::pair<int, int>> TrackView::progress() const {
  return std::pair(std::clamp(control_.left(), 0, kPositionEnd), kPositionEnd);
}

QRectF TrackView::groove() const {
  const double grip = line_;
  return {grip / 2 + 1, height() / 2.0 - 3, width() - grip - 2, 6};
}

void TrackView::drag_to(double x) {
  const QRectF way = groove();
  const double share = std::clamp((x - way.left()) / std::max(1.0, way.width()), 0.0, 1.0);
  held_ = std::max(kStart, static_cast<int>(std::lround(share * kPositionEnd)));
  update();
  if (std::exchange(under_way_, true)) return;
  screen_.act([this] {
    under_way_ = false;
    if (!held_) return;
    const int left = *held_;
    // At the end the next track takes over; the mouse that still holds the button must not drag that one too.
    if (left >= kPositionEnd) held_.reset();
    user::drag(control_, left);
    if (!held_) user::release(control_);
  });
}

void TrackView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && source_.on()) drag_to(event->position().x());
}

void TrackView::mouseMoveEvent(QMouseEvent* event) {
  if (held_) drag_to(event->position().x());
}

void TrackView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && held_)
    screen_.act([this] {
      if (!held_) return;
      held_.reset();
      user::release(control_);
      update();
    });
}

void TrackView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
      return step(-kStep);
    case Qt::Key_Right:
    case Qt::Key_Up:
      return step(kStep);
    default:
      QWidget::keyPressEvent(event);
  }
}

void TrackView::step(int seconds) {
  screen_.act([this, seconds] {
    const double length = source_.on() ? source_.length() : 0;
    if (length <= 0) return;
    const double target = std::max(0.0, std::floor(source_.position()) + seconds);
    const double left = std::ceil(target * second_on_way(length));
    user::drag(control_, std::clamp(static_cast<int>(left), kStart, kPositionEnd));
    user::release(control_);
  });
}

void TrackView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF way = groove();
  const int left = held_.value_or(std::clamp(control_.left(), 0, kPositionEnd));
  const double x = way.left() + way.width() * left / kPositionEnd;
  const bool alive = isEnabled() && source_.on();
  p.setPen(grey::kLine);
  p.setBrush(grey::kField);
  p.drawRoundedRect(way, 3, 3);
  p.setBrush(grey::kLine);
  p.drawRoundedRect(QRectF(way.left(), way.top(), x - way.left(), way.height()), 3, 3);
  p.setPen(alive ? grey::kText : grey::kFaint);
  p.setBrush(held_ ? grey::kLine : grey::kFace);
  p.drawRoundedRect(QRectF(x - line_ / 2.0, 2, line_, height() - 4), 3, 3);
  if (hasFocus()) draw_focus_ring(p, rect());
}

}  // namespace evac::desktop

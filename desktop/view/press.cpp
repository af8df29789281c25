#include "desktop/view/press.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QWidget>
#include <algorithm>
#include <cstdlib>

#include "platform/user.h"

namespace evac::desktop {

PressWatch::PressWatch(QWidget& widget, Control& control, Screen& screen)
    : QObject(&widget), widget_(widget), control_(control), screen_(screen) {
  touch_.setSingleShot(true);
  touch_.setInterval(kLongPress);
  connect(&touch_, &QTimer::timeout, this, &PressWatch::long_press);
  widget.installEventFilter(this);
}

bool PressWatch::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      const auto* press = static_cast<QMouseEvent*>(event);
      swallow_release_ = false;
      if (press->button() == Qt::RightButton) {
        right_press(press->modifiers() & Qt::ShiftModifier, press->globalPosition().toPoint());
        return true;
      }
      // Only one that is told of the release shows that it is held.
      if (press->button() == Qt::LeftButton && control_.mouse_up)
        screen_.act([&control = control_] { user::press(control); });
      // A finger: the toolkit has made a mouse press of a touch.
      if (press->pointingDevice()->type() == QInputDevice::DeviceType::TouchScreen) touch_.start();
      return false;
    }
    case QEvent::MouseMove:
      if (!widget_.rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) touch_.stop();
      return false;
    case QEvent::MouseButtonRelease:
      touch_.stop();
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton && control_.mouse_up)
        screen_.act([&control = control_] { user::release(control); });
      return std::exchange(swallow_release_, false);
    case QEvent::KeyPress: {
      const auto* key = static_cast<QKeyEvent*>(event);
      const bool asks = key->key() == Qt::Key_Minus || key->key() == Qt::Key_Menu ||
                        (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier);
      if (asks) right_press(false, widget_.mapToGlobal(widget_.rect().center()));
      return asks;
    }
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

void PressWatch::right_press(bool shift, QPoint place) {
  screen_.set_popup_place(place);
  screen_.act([this, shift] { user::right_press(control_, shift); });
}

void PressWatch::long_press() {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget_)) button->setDown(false);
  swallow_release_ = true;
  right_press(false, widget_.mapToGlobal(widget_.rect().center()));
}

void FocusBoard::add(QWidget& member) {
  if (!members_.empty()) member.setFocusPolicy(Qt::ClickFocus);
  members_.push_back(&member);
  member.installEventFilter(this);
}

bool FocusBoard::eventFilter(QObject* watched, QEvent* event) {
  auto* member = static_cast<QWidget*>(watched);
  if (event->type() == QEvent::FocusIn) {
    for (QWidget* other : members_) other->setFocusPolicy(other == member ? Qt::StrongFocus : Qt::ClickFocus);
  } else if (event->type() == QEvent::EnabledChange && !member->isEnabled() &&
             member->focusPolicy() == Qt::StrongFocus) {
    // The way in must not stand on a control that takes no focus.
    const auto usable =
        std::find_if(members_.begin(), members_.end(), [](auto* other) { return other->isEnabled(); });
    if (usable != members_.end()) {
      member->setFocusPolicy(Qt::ClickFocus);
      (*usable)->setFocusPolicy(Qt::StrongFocus);
    }
  } else if (event->type() == QEvent::KeyPress) {
    int dx = 0, dy = 0;
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Left:
        dx = -1;
        break;
      case Qt::Key_Right:
        dx = 1;
        break;
      case Qt::Key_Up:
        dy = -1;
        break;
      case Qt::Key_Down:
        dy = 1;
        break;
      default:
        return false;
    }
    if (QWidget* next = neighbour(*member, dx, dy)) next->setFocus(Qt::TabFocusReason);
    return true;
  }
  return false;
}

QWidget* FocusBoard::neighbour(const QWidget& from, int dx, int dy) const {
  QWidget* best = nullptr;
  int least = 0;
  for (QWidget* other : members_) {
    if (other == &from || !other->isEnabled() || !other->isVisible()) continue;
    const QPoint way = other->mapTo(other->window(), other->rect().center()) -
                       from.mapTo(from.window(), from.rect().center());
    const int along = dx * way.x() + dy * way.y();
    const int aside = std::abs(dy * way.x()) + std::abs(dx * way.y());
    if (along <= 0 || aside > 2 * along) continue;
    const int distance = along + 4 * aside;
    if (!best || distance < least) {
      best = other;
      least = distance;
    }
  }
  return best;
}

}  // namespace evac::desktop

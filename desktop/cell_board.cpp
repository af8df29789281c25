#include "desktop/cell_board.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"

namespace evac::desktop {

CellBoard::CellBoard(int cells, int columns, std::function<CellLook(int)> look, QWidget* parent)
    : QWidget(parent), cells_(cells), columns_(columns), look_(std::move(look)) {
  QFont small = font();
  small.setPointSizeF(small.pointSizeF() * 0.8);
  setFont(small);
}

void CellBoard::set_pressable() {
  pressable_ = true;
  setFocusPolicy(Qt::StrongFocus);
}

QSize CellBoard::sizeHint() const {
  const int rows = (cells_ + columns_ - 1) / columns_, line = fontMetrics().height();
  return {columns_ * line * 9 / 5, rows * line * 5 / 4};
}

QRectF CellBoard::area(int cell) const {
  const int rows = (cells_ + columns_ - 1) / columns_;
  const double w = double(width()) / columns_, h = double(height()) / rows;
  return {(cell - 1) % columns_ * w, double((cell - 1) / columns_) * h, w, h};
}

int CellBoard::cell_at(QPoint place) const {
  for (int cell = 1; cell <= cells_; ++cell)
    if (area(cell).contains(place)) return cell;
  return 0;
}

bool CellBoard::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const int cell = cell_at(help->pos())) QToolTip::showText(help->globalPos(), look_(cell).tip, this);
    return true;
  }
  return QWidget::event(event);
}

void CellBoard::paintEvent(QPaintEvent*) {
  QPainter p(this);
  QFont bold = font();
  bold.setBold(true);
  for (int cell = 1; cell <= cells_; ++cell) {
    const CellLook look = look_(cell);
    const QRectF box = area(cell).adjusted(1, 1, -1, -1);
    p.setPen(look.bold ? grey::kText : grey::kLine);
    p.setBrush(look.back);
    p.drawRect(box);
    p.setFont(look.bold ? bold : font());
    p.setPen(text_upon(look.back));
    p.drawText(box, Qt::AlignCenter, look.text.isEmpty() ? QString::number(cell) : look.text);
    if (hasFocus() && cell == cursor_) draw_focus_ring(p, box);
  }
}

void CellBoard::mousePressEvent(QMouseEvent* event) {
  const int cell = cell_at(event->position().toPoint());
  if (!pressable_ || cell == 0) return;
  cursor_ = cell;
  emit pressed(cell);
  update();
}

void CellBoard::keyPressEvent(QKeyEvent* event) {
  int step = 0;
  switch (event->key()) {
    case Qt::Key_Left:
      step = -1;
      break;
    case Qt::Key_Right:
      step = 1;
      break;
    case Qt::Key_Up:
      step = -columns_;
      break;
    case Qt::Key_Down:
      step = columns_;
      break;
    case Qt::Key_Space:
    case Qt::Key_Return:
      emit pressed(cursor_);
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  cursor_ = std::clamp(cursor_ + step, 1, cells_);
  setAccessibleDescription(QString::number(cursor_) + ' ' + look_(cursor_).tip);
  update();
}

}  // namespace evac::desktop

// A board of many small numbered cells in one widget: what the rack's zones, terminals and contacts are
// doing.
#pragma once

#include <QWidget>
#include <functional>

namespace evac::desktop {

struct CellLook {
  QColor back;
  bool bold = false;
  QString tip;
  QString text{};  // in the place of its number
};

class CellBoard : public QWidget {
  Q_OBJECT
 public:
  // Cells are numbered from 1. `look` is asked for each at painting.
  CellBoard(int cells, int columns, std::function<CellLook(int)> look, QWidget* parent);
  // Cells take presses, by mouse, finger or keyboard.
  void set_pressable();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void pressed(int cell);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QRectF area(int cell) const;
  int cell_at(QPoint place) const;

  const int cells_, columns_;
  const std::function<CellLook(int)> look_;
  bool pressable_ = false;
  int cursor_ = 1;
};

}  // namespace evac::desktop

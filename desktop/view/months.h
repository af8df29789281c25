// The calendar, in which a range of days is chosen: two months side by side, by mouse or finger and by
// keyboard. The first day and the last one are pressed, or drawn over; with the keys, Enter takes each, and
// Shift with an arrow draws.
#pragma once

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

class MonthsView : public BoundWidget<QWidget, MonthCalendar>, public Spoken {
 public:
  MonthsView(MonthCalendar& control, Screen& screen, const Node& node, QWidget* parent);
  QAccessible::Role role() const override { return QAccessible::Grouping; }
  // Where the day stands; empty when its month is not on show.
  QRect place_of(Date day) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  using Days = std::chrono::local_days;
  using Month = std::chrono::year_month;

  void show_state() override;
  QStringList values() const override;
  // Of the two, 0 and 1.
  QRect sheet(int side) const;
  QRect arrow(int side) const;
  std::optional<Days> day_at(QPoint place) const;
  void paint_sheet(QPainter& painter, int side);
  void paint_day(QPainter& painter, Days day);

  // Moves the cursor, and shows its month; from the first day of a range no farther than a range may be long.
  void go_to(Days day);
  void go_by_month(int months);
  void turn(int months);
  // The day of the cursor is the first of a range, or the last of the one that was begun.
  void take_day();
  bool reaches(Days day) const;
  // What is chosen, or being chosen.
  std::optional<std::pair<Days, Days>> range() const;

  Month shown_ = std::chrono::year(1970) / std::chrono::January;  // the left one
  Days cursor_{};
  std::optional<Days> begun_;  // the first day of a range that has no last one yet
  bool drawn_ = false;         // the mouse or Shift has moved away from it
  // What the user chose here: what the control was set to by others is no choice.
  std::optional<std::pair<Date, Date>> chosen_;
  std::pair<Date, Date> seen_{};  // what the control said last
};

}  // namespace evac::desktop

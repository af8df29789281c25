#include "desktop/view/months.h"

#include <QDate>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::months;
using std::chrono::year_month;

constexpr int kSheets = 2, kWeek = 7, kWeeks = 6;
constexpr int kHeadRows = 2;  // the month, and the days of the week
constexpr int kRows = kHeadRows + kWeeks;
constexpr int kGap = 12;  // between the sheets

const QLocale& russian() {
  static const QLocale locale(QLocale::Russian);
  return locale;
}

QString month_text(year_month month) {
  QString name = russian().standaloneMonthName(static_cast<int>(unsigned(month.month())));
  name[0] = name[0].toUpper();
  return QStringLiteral("%1 %2").arg(name).arg(int(month.year()));
}

year_month month_of(Date date) {
  return date.year() / date.month();
}
local_days first_of(year_month month) {
  return local_days(month / 1);
}
// 0 for Monday.
int column_of(local_days day) {
  return weekday_number(Date(day)) - 1;
}

QString text_of(local_days day) {
  return qt(short_date_text(Date(day)));
}

}  // namespace

MonthsView::MonthsView(MonthCalendar& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {
  keep_size(node, kSheets * kWeek * line_ * 2 + kGap, (kRows + 1) * line_ * 3 / 2);
  setFocusPolicy(Qt::StrongFocus);
}

QRect MonthsView::sheet(int side) const {
  const int wide = (width() - kGap) / kSheets;
  return {side * (wide + kGap), 0, wide, height() * kRows / (kRows + 1)};
}

// Over the outer corner of its sheet.
QRect MonthsView::arrow(int side) const {
  const QRect page = sheet(side);
  const int wide = page.width() / kWeek;
  return {side == 0 ? page.left() : page.right() - wide, 0, wide, page.height() / kRows};
}

QRect MonthsView::place_of(Date date) const {
  const Month month = month_of(date);
  const auto side = (month - shown_).count();
  if (side < 0 || side >= kSheets) return {};
  const QRect page = sheet(static_cast<int>(side));
  const int at = column_of(first_of(month)) + day_number(date) - 1;
  const int row = kHeadRows + at / kWeek, column = at % kWeek;
  const auto edge = [](int whole, int part, int parts) { return whole * part / parts; };
  return QRect(QPoint(page.left() + edge(page.width(), column, kWeek), edge(page.height(), row, kRows)),
               QPoint(page.left() + edge(page.width(), column + 1, kWeek) - 1,
                      edge(page.height(), row + 1, kRows) - 1));
}

std::optional<MonthsView::Days> MonthsView::day_at(QPoint place) const {
  for (Days day = first_of(shown_); day < first_of(shown_ + months(kSheets)); day += days(1))
    if (place_of(Date(day)).contains(place)) return day;
  return std::nullopt;
}

void MonthsView::show_state() {
  const std::pair set(control_.from(), control_.to());
  if (!set.first.ok() || set == std::exchange(seen_, set) || chosen_ == set) return;
  chosen_.reset();
  begun_.reset();
  shown_ = month_of(set.first);
  cursor_ = Days(set.first);
}

void MonthsView::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) {
    begun_.reset();
    chosen_.reset();
    seen_ = {};
  }
  QWidget::hideEvent(event);
}

QStringList MonthsView::values() const {
  QStringList values{russian().toString(
      QDate(year_number(Date(cursor_)), month_number(Date(cursor_)), day_number(Date(cursor_))),
      QStringLiteral("d MMMM yyyy, dddd"))};
  if (const auto range = this->range())
    values << QStringLiteral("%1 с %2 по %3")
                  .arg(begun_ ? QStringLiteral("выбирается") : QStringLiteral("выбрано"),
                       text_of(range->first), text_of(range->second));
  return values;
}

std::optional<std::pair<MonthsView::Days, MonthsView::Days>> MonthsView::range() const {
  if (begun_) return std::minmax(*begun_, cursor_);
  if (chosen_) return std::pair(Days(chosen_->first), Days(chosen_->second));
  return std::nullopt;
}

bool MonthsView::reaches(Days day) const {
  return !begun_ || std::chrono::abs(day - *begun_) < days(control_.most_days());
}

void MonthsView::turn(int by) {
  shown_ += months(by);
  refresh();
}

void MonthsView::go_to(Days day) {
  const days most(control_.most_days() - 1);
  cursor_ = begun_ ? std::clamp(day, *begun_ - most, *begun_ + most) : day;
  const Month month = month_of(Date(cursor_));
  if (month < shown_) shown_ = month;
  if (month >= shown_ + months(kSheets)) shown_ = month - months(kSheets - 1);
  refresh();
}

void MonthsView::go_by_month(int by) {
  const Date now(cursor_);
  const Date there = now + months(by);
  go_to(there.ok() ? Days(there) : Days(there.year() / there.month() / std::chrono::last));
}

void MonthsView::take_day() {
  drawn_ = false;
  if (!begun_) {
    begun_ = cursor_;
    return refresh();
  }
  const auto [from, to] = std::minmax(*begun_, cursor_);
  chosen_ = {Date(from), Date(to)};
  begun_.reset();
  screen_.act([&calendar = control_, range = *chosen_] { user::pick(calendar, range.first, range.second); });
  refresh();
}

void MonthsView::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (event->button() != Qt::LeftButton) return;
  if (arrow(0).contains(place)) return turn(-1);
  if (arrow(1).contains(place)) return turn(1);
  const auto day = day_at(place);
  if (!day) return;
  // Too far from the first day: a new beginning.
  if (!reaches(*day)) begun_.reset();
  go_to(*day);
  take_day();
}

void MonthsView::mouseMoveEvent(QMouseEvent* event) {
  const auto day = day_at(event->position().toPoint());
  if (!(event->buttons() & Qt::LeftButton) || !begun_ || !day || *day == cursor_) return;
  drawn_ = true;
  go_to(*day);
}

void MonthsView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && begun_ && drawn_) take_day();
}

void MonthsView::keyPressEvent(QKeyEvent* event) {
  const bool draws = event->modifiers() & Qt::ShiftModifier;
  const auto step = [&](auto move) {
    if (draws && !begun_) begun_ = cursor_;
    move();
  };
  const auto by_days = [&](int count) { step([&] { go_to(cursor_ + days(count)); }); };
  switch (event->key()) {
    case Qt::Key_Left:
      return by_days(-1);
    case Qt::Key_Right:
      return by_days(1);
    case Qt::Key_Up:
      return by_days(-kWeek);
    case Qt::Key_Down:
      return by_days(kWeek);
    case Qt::Key_Home:
      return by_days(1 - day_number(Date(cursor_)));
    case Qt::Key_End:
      return step([&] { go_to(first_of(month_of(Date(cursor_)) + months(1)) - days(1)); });
    case Qt::Key_PageUp:
      return step([&] { go_by_month(-1); });
    case Qt::Key_PageDown:
      return step([&] { go_by_month(1); });
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return take_day();
    case Qt::Key_Escape:
      if (begun_) {
        begun_.reset();
        return refresh();
      }
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

void MonthsView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  for (int side = 0; side < kSheets; ++side) paint_sheet(p, side);
  const QRect foot(0, sheet(0).bottom(), width(), height() - sheet(0).bottom());
  const auto range = this->range();
  p.setFont(font());
  p.setPen(grey::kText);
  p.drawText(foot, Qt::AlignCenter,
             begun_ ? QStringLiteral("С %1; теперь последний день, не более %2 дней")
                          .arg(text_of(*begun_))
                          .arg(control_.most_days())
             : range
                 ? QStringLiteral("Выбрано: с %1 по %2").arg(text_of(range->first), text_of(range->second))
             : hasFocus() ? QStringLiteral("Первый день, затем последний: нажатием или стрелками и Enter")
                          : QStringLiteral("Нажмите первый день, затем последний"));
  if (hasFocus()) draw_focus_ring(p, rect());
}

void MonthsView::paint_sheet(QPainter& p, int side) {
  const QRect page = sheet(side);
  const Month month = shown_ + months(side);
  draw_field(p, page, grey::kField);
  const int row = page.height() / kRows, wide = page.width() / kWeek;
  QFont bold = font();
  bold.setBold(true);
  p.setFont(bold);
  p.setPen(grey::kText);
  p.drawText(QRect(page.left(), 0, page.width(), row), Qt::AlignCenter, month_text(month));
  const QRect way = arrow(side);
  p.drawText(way, Qt::AlignCenter, side == 0 ? QStringLiteral("◀") : QStringLiteral("▶"));
  p.setFont(font());
  p.setPen(grey::kFaint);
  for (int column = 0; column < kWeek; ++column)
    p.drawText(QRect(page.left() + page.width() * column / kWeek, row, wide, row), Qt::AlignCenter,
               russian().standaloneDayName(column + 1, QLocale::ShortFormat).toUpper());
  for (Days day = first_of(month); day < first_of(month + months(1)); day += days(1)) paint_day(p, day);
}

void MonthsView::paint_day(QPainter& p, Days day) {
  const QRect place = place_of(Date(day)).adjusted(1, 1, -1, -1);
  const auto range = this->range();
  const bool inside = range && day >= range->first && day <= range->second;
  const bool end = range && (day == range->first || day == range->second);
  if (inside) draw_box(p, place, end ? grey::kFocus : grey::kPale, grey::kText, end ? 2 : 1);
  QFont letters = font();
  letters.setBold(inside);
  p.setFont(letters);
  p.setPen(end ? QColor(Qt::white) : reaches(day) ? grey::kText : grey::kPale);
  p.drawText(place, Qt::AlignCenter, QString::number(day_number(Date(day))));
  if (day != cursor_) return;
  if (hasFocus())
    draw_focus_ring(p, place);
  else if (!inside)
    draw_box(p, place, Qt::transparent, grey::kLine, 1);
}

}  // namespace evac::desktop

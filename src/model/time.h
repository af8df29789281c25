// Two kinds of time that the compiler keeps apart: an Instant only grows and times what is due; a WallTime is
// the local calendar and clock and may jump. Times of day are whole seconds after midnight.
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace evac {

struct ElapsedClock {
  using duration = std::chrono::milliseconds;
  using rep = duration::rep;
  using period = duration::period;
  using time_point = std::chrono::time_point<ElapsedClock, duration>;
  static constexpr bool is_steady = true;
};
using Instant = ElapsedClock::time_point;
using WallTime = std::chrono::local_time<std::chrono::milliseconds>;
using Date = std::chrono::year_month_day;

inline constexpr int kSecondsPerDay = 86400;

// Index 0 holds "0", so that 1 is January and 1 is Monday.
inline constexpr std::array<std::string_view, 13> MonthName = {
    "0",    "Января",  "Февраля",  "Марта",   "Апреля", "Мая",    "Июня",
    "Июля", "Августа", "Сентября", "Октября", "Ноября", "Декабря"};
inline constexpr std::array<std::string_view, 8> WeekDayName = {
    "0", "ПОНЕДЕЛЬНИК", "ВТОРНИК", "СРЕДА", "ЧЕТВЕРГ", "ПЯТНИЦА", "СУББОТА", "ВОСКРЕСЕНЬЕ"};

Date date_of(WallTime time);
// Whole seconds since midnight, cut down: 0..86399.
int second_of_day(WallTime time);
// 1 Monday .. 7 Sunday.
int weekday_number(Date date);
int year_number(Date date);
int month_number(Date date);
int day_number(Date date);
// `seconds` after `second_of_day`, as a time of day again: 0..86399.
int later_in_day(int second_of_day, int seconds);

// "8:05:09".
std::string time_text(int second_of_day);
// The time of day that a text "h:mm" or "h:mm:ss" tells, blanks around it left out; none for any other.
std::optional<int> time_value(std::string_view text);
// "0:00:07"; a negative value is the time of day of its absolute value with a minus before it.
std::string time_left_text(int seconds);
// "22.11.2026".
std::string short_date_text(Date date);
// A date in that form, with blanks around it or without; day and month may lack their leading zero. None for
// what is no date.
std::optional<Date> short_date(std::string_view text);
// "ПОНЕДЕЛЬНИК 5 Января 2026 года ", the form of the journal's header and of the clock line.
std::string long_date_text(Date date);
// "22-ноя-26", the platform's "Medium Date".
std::string medium_date_text(Date date);

}  // namespace evac

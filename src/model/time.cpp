#include "model/time.h"

#include <cstdio>
#include <cstdlib>

#include "model/text.h"

namespace evac {
namespace {

constexpr std::array<const char*, 12> kShortMonths = {"янв", "фев", "мар", "апр", "май", "июн",
                                                      "июл", "авг", "сен", "окт", "ноя", "дек"};

}  // namespace

Date date_of(WallTime time) {
  return Date(std::chrono::floor<std::chrono::days>(time));
}

int second_of_day(WallTime time) {
  const auto since_midnight = time - std::chrono::floor<std::chrono::days>(time);
  return static_cast<int>(std::chrono::floor<std::chrono::seconds>(since_midnight).count());
}

int weekday_number(Date date) {
  return static_cast<int>(std::chrono::weekday(std::chrono::local_days(date)).iso_encoding());
}

int year_number(Date date) {
  return static_cast<int>(date.year());
}
int month_number(Date date) {
  return static_cast<int>(static_cast<unsigned>(date.month()));
}
int day_number(Date date) {
  return static_cast<int>(static_cast<unsigned>(date.day()));
}

int later_in_day(int second_of_day, int seconds) {
  const int moment = (second_of_day + seconds) % kSecondsPerDay;
  return moment < 0 ? moment + kSecondsPerDay : moment;
}

std::string time_text(int second_of_day) {
  char text[32];
  std::snprintf(text, sizeof text, "%d:%02d:%02d", second_of_day / 3600, second_of_day / 60 % 60,
                second_of_day % 60);
  return text;
}

std::optional<int> time_value(std::string_view text) {
  constexpr std::array kUnits = {3600, 60, 1};
  const std::string time = Trim(text);
  std::string_view rest = time;
  int seconds = 0;
  for (std::size_t part = 0; part < kUnits.size(); ++part) {
    const auto end = rest.find(':');
    const std::string_view digits = rest.substr(0, end);
    const bool short_hour = part == 0 && digits.size() == 1;
    if ((digits.size() != 2 && !short_hour) || digits.find_first_not_of("0123456789") != digits.npos)
      return {};
    const int number = Number(digits);
    if (number >= (part == 0 ? 24 : 60)) return {};
    seconds += number * kUnits[part];
    if (end == rest.npos) return part > 0 ? std::optional(seconds) : std::nullopt;
    rest.remove_prefix(end + 1);
  }
  return {};
}

std::string time_left_text(int seconds) {
  return (seconds < 0 ? "-" : "") + time_text(std::abs(seconds) % kSecondsPerDay);
}

std::string short_date_text(Date date) {
  char text[48];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", day_number(date), month_number(date), year_number(date));
  return text;
}

std::optional<Date> short_date(std::string_view text) {
  unsigned day = 0, month = 0;
  int year = 0, end = 0;
  const std::string trimmed = Trim(text);
  const bool whole = std::sscanf(trimmed.c_str(), "%2u.%2u.%4d%n", &day, &month, &year, &end) == 3 &&
                     static_cast<std::size_t>(end) == trimmed.size();
  const Date date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
  return whole && date.ok() && year >= 100 ? std::optional(date) : std::nullopt;
}

std::string long_date_text(Date date) {
  return join(WeekDayName[static_cast<std::size_t>(weekday_number(date))], " ", day_number(date), " ",
              MonthName[static_cast<std::size_t>(month_number(date))], " ", year_number(date), " года ");
}

std::string medium_date_text(Date date) {
  char text[48];
  std::snprintf(text, sizeof text, "%02d-%s-%02d", day_number(date),
                kShortMonths[static_cast<std::size_t>(month_number(date) - 1)], year_number(date) % 100);
  return text;
}

}  // namespace evac

// The nearest event of a programme, by a table, and the week ahead of it.
#include "timer/nearest_event.h"

#include <gtest/gtest.h>

#include "timer/week_ahead.h"

namespace evac {
namespace {

constexpr int kMonday = 1, kWednesday = 3, kSunday = 7;
constexpr int kNoon = 12 * 3600;

std::vector<ProgrammeEvent> programme(const std::vector<std::pair<int, int>>& rows) {
  std::vector<ProgrammeEvent> events;
  for (const auto& [second, days] : rows) events.push_back({"x", second, static_cast<std::int16_t>(days)});
  return events;
}

TEST(NearestEvent, IsTheFirstBehindTheMoment) {
  struct Row {
    const char* what;
    std::vector<std::pair<int, int>> events;  // second; days, a bit each
    int weekday, second;
    std::optional<Nearest> expected;
  };
  const int every = 127;
  const Row table[] = {
      {"none", {}, kMonday, 0, {}},
      {"an event without a day", {{kNoon, 0}}, kMonday, 0, {}},
      {"later today", {{kNoon, every}}, kMonday, kNoon - 1, Nearest{0, 0, kNoon}},
      {"this very second is passed over", {{kNoon, every}}, kMonday, kNoon, Nearest{0, 1, kNoon}},
      {"this second, once a week", {{kNoon, 1}}, kMonday, kNoon, {}},
      {"once a week, past: today's own", {{kNoon, 1}}, kMonday, kNoon + 1, Nearest{0, 0, kNoon}},
      {"once a week, the day before", {{kNoon, 1}}, kSunday, 0, Nearest{0, 1, kNoon}},
      {"once a week, the day behind", {{kNoon, 1}}, 2, 0, Nearest{0, 6, kNoon}},
      {"another day wins over the own one's wrap", {{5, 4}, {5, 2}}, 3, 6, Nearest{1, 6, 5}},
      {"the sooner of two", {{kNoon, every}, {kNoon - 9, every}}, 4, 0, Nearest{1, 0, kNoon - 9}},
      {"the first of two alike", {{kNoon, every}, {kNoon, every}}, 4, 0, Nearest{0, 0, kNoon}},
      {"alike by the wrap", {{9, 1}, {9, 1}}, 2, 0, Nearest{0, 6, 9}},
      {"a second on", {{kNoon, every}, {kNoon + 1, every}}, 4, kNoon, Nearest{1, 0, kNoon + 1}},
      {"over the week's end", {{0, 1}, {86399, 32}}, kSunday, 86399, Nearest{0, 1, 0}},
      {"midnight", {{0, every}}, kSunday, 0, Nearest{0, 1, 0}},
      {"its last second", {{86399, 64}}, kSunday, 86398, Nearest{0, 0, 86399}},
      {"bits above the week's count for nothing", {{kNoon, 0x7F80}}, kMonday, 0, {}},
  };
  for (const Row& row : table)
    EXPECT_EQ(NearestEvent(programme(row.events), row.weekday, row.second), row.expected) << row.what;
}

TEST(WeekAhead, KnowsWhichRowsNeverCome) {
  const auto ahead = week_ahead(programme({{kNoon, 3}, {kNoon, 6}, {kNoon + 1, 4}, {kNoon + 2, 4}, {0, 0}}));
  EXPECT_EQ(ahead.rows, (std::vector<PassedOver>{{0, 0}, {2, 0}, {0, 4}, {0, 0}, {0, 0}}));
  EXPECT_FALSE(ahead.comes_once);
  // The week's first second behind its last; and a day's behind the day's before.
  EXPECT_EQ(week_ahead(programme({{0, 1}, {86399, 64}, {86399, 1}, {0, 2}})).rows,
            (std::vector<PassedOver>{{0, 1}, {0, 0}, {0, 0}, {0, 2}}));
  EXPECT_TRUE(week_ahead(programme({{kNoon, 8}, {9, 8}})).comes_once);
  EXPECT_FALSE(week_ahead({}).comes_once);

  // The next five: over the week's end, or until the timer waits for what is past.
  EXPECT_EQ(NextEvents(programme({{kNoon, 1}, {86399, 64}}), kSunday, kNoon, 3),
            (std::vector<Nearest>{{1, 0, 86399}, {0, 1, kNoon}, {1, 7, 86399}}));
  EXPECT_EQ(NextEvents(programme({{9, 8}, {kNoon, 8}}), kWednesday, 0, 5),
            (std::vector<Nearest>{{0, 1, 9}, {1, 1, kNoon}}));
}

}  // namespace
}  // namespace evac

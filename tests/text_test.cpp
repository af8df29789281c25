// Operations on text and time, and the code page at the file boundary.
#include "model/text.h"

#include <gtest/gtest.h>

#include "model/time.h"
#include "platform/files.h"
#include "store/code_page.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

TEST(Text, CountsCharactersNotBytes) {
  EXPECT_EQ(Len("Зона №7"), 7);
  EXPECT_EQ(Left("Зона", 3), "Зон");
  EXPECT_EQ(Left("Зона", 30), "Зона");
  EXPECT_EQ(Left("Зона", -1), "");
  EXPECT_EQ(Mid("Зона 7", 2, 3), "она");
  EXPECT_EQ(Mid("Зона 7", 6, 120), "7");
  EXPECT_EQ(Mid("Зона 7", 7, 1), "");
  EXPECT_EQ(InStr("Зона\t|", "\t|"), 5);
  EXPECT_EQ(InStr("Зона", "я"), 0);
  EXPECT_EQ(Trim("  а б\t "), "а б\t");
}

TEST(Text, NumberIsTheValueOfTheLeadingDigitsCutDown) {
  EXPECT_EQ(Number("12abc"), 12);
  EXPECT_EQ(Number(" \t-3"), -3);
  EXPECT_EQ(Number("+4.5"), 4);
  EXPECT_EQ(Number("1.999"), 1);
  EXPECT_EQ(Number("-1.6"), -1);
  EXPECT_EQ(LeadingNumber("0"), 0);
  for (const char* none : {"", "   ", "abc", "-", "+-1", ".5", "№1"})
    EXPECT_FALSE(LeadingNumber(none)) << none;
  EXPECT_EQ(Number(std::string(400, '9')), kMostNumber);
  EXPECT_EQ(Number("-99999999999999999999"), -kMostNumber);
}

TEST(Time, FormsOfText) {
  const WallTime moment = std::chrono::local_days(std::chrono::November / 22 / 2026) + 8h + 5min + 9s + 999ms;
  EXPECT_EQ(second_of_day(moment), 8 * 3600 + 5 * 60 + 9);
  EXPECT_EQ(time_text(second_of_day(moment)), "8:05:09");
  EXPECT_EQ(short_date_text(date_of(moment)), "22.11.2026");
  EXPECT_EQ(medium_date_text(date_of(moment)), "22-ноя-26");
  EXPECT_EQ(weekday_number(date_of(moment)), 7);
  EXPECT_EQ(time_left_text(7), "0:00:07");
  EXPECT_EQ(time_left_text(-86399), "-23:59:59");
  EXPECT_EQ(later_in_day(86399, 2), 1);
}

TEST(CodePage, EveryByteGoesThereAndBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(to_code_page(from_code_page(all)), all);
  EXPECT_EQ(to_code_page("Ёё№Я"), "\xA8\xB8\xB9\xDF");
  EXPECT_EQ(to_code_page("a→😀b"), "a??b");
  EXPECT_EQ(to_code_page("\xD0"), "?");
}

TEST(FileNames, PatternsAndOrder) {
  EXPECT_TRUE(matches_pattern("ТРЕВОГА.WAV", "*.Wav;*.mp3"));
  EXPECT_TRUE(matches_pattern("a.b.mp3", "*.Wav;*.mp3"));
  EXPECT_FALSE(matches_pattern("a.mp34", "*.Wav;*.mp3"));
  EXPECT_FALSE(matches_pattern("mp3", "*.Wav;*.mp3"));
  EXPECT_TRUE(listed_before("Play-list10", "play-list2"));
  EXPECT_TRUE(listed_before("б", "В"));
  EXPECT_EQ(lower_case("ABC ЁЖПРЯ №"), "abc ёжпря №");
}

}  // namespace
}  // namespace evac

// One event of a weekly programme as a text of nine fields, the form in which lists show it and files keep
// it.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace evac {

enum TimerField {
  kTmNumber = 1,
  kTmHours = 2,
  kTmMinutes = 3,
  kTmSeconds = 4,
  kTmDays = 5,     // bit n - 1 is day n, 1 Monday to 7 Sunday
  kTmMessage = 6,  // a message file or a play-list; kNoTimerMessage where the function has none
  kTmFrom = 7,     // first terminal; the preset where the function recalls one
  kTmTo = 8,       // last terminal
  kTmFunction = 9,
  kTmFields = 9
};
using TimerFields = std::array<std::string, kTmFields>;

inline constexpr int kDaysOfWeek = 7;
inline constexpr std::string_view kNoTimerMessage = "Вкл/Выкл";

// What a function says. A number of one digit stands behind kDevice, and behind it one of the operations.
namespace timer_function {
inline constexpr std::string_view kMessage = "Сообщение", kPlay = "Воспроизведение", kStop = "Остановка",
                                  kDevice = "№", kPreset = "пресета", kCdPlay = "CD-play",
                                  kCdStop = "CD-stop", kMp3Play = "MP3-play", kMp3Stop = "MP3-stop",
                                  kFm = "FM", kAm = "AM";
}  // namespace timer_function

// Field n, 1..9, without blanks around it; field 1 keeps the bar behind it. Empty for another n and for an
// empty record.
std::string TmField(std::string_view record, int n);

// The record of these fields, each cut to the length that a record gives it.
std::string timer_record(const TimerFields& fields);

}  // namespace evac

#include "store/algorithm_record.h"

#include <array>

#include "model/text.h"
#include "store/record_fields.h"

namespace evac {
namespace {

// What ends fields 1 to 4: one blank more each time.
constexpr std::array<std::string_view, 4> kEnds = {"\t|", "\t |", "\t  |", "\t   |"};
constexpr int kNumberLength = 3, kMessageLength = 20, kPlaysLength = 3;

}  // namespace

std::string AlgField(std::string_view record, int n) {
  return CutField(record, n, kEnds);
}

bool has_alarm_mark(std::string_view record) {
  return AlgField(record, kAlgZones).starts_with(kAlarmMark);
}

std::string algorithm_record(std::string_view number, int order, std::string_view message,
                             std::string_view plays, std::string_view zones) {
  return join(Left(number, kNumberLength), kEnds[0], order, kEnds[1], Left(message, kMessageLength), kEnds[2],
              Left(plays, kPlaysLength), kEnds[3], zones);
}

}  // namespace evac

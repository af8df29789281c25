#include "store/timer_record.h"

#include "model/text.h"
#include "store/record_fields.h"

namespace evac {
namespace {

// What ends fields 1 to 8: one blank more each time.
constexpr std::array<std::string_view, kTmFields - 1> kEnds = {
    "|\t", " |\t", "  |\t", "   |\t", "    |\t", "     |\t", "      |\t", "       |\t"};
constexpr std::array<int, kTmFields - 1> kLengths = {3, 2, 2, 2, 3, 20, 3, 3};

}  // namespace

std::string TmField(std::string_view record, int n) {
  return CutField(record, n, kEnds);
}

std::string timer_record(const TimerFields& fields) {
  std::string record;
  for (std::size_t i = 0; i < kEnds.size(); ++i) {
    record += Left(fields[i], kLengths[i]);
    record += kEnds[i];
  }
  return record + fields.back();
}

}  // namespace evac

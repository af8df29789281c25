#include "store/record_number.h"

#include <cmath>
#include <limits>

#include "model/text.h"

namespace evac {
namespace {

template <class Whole>
std::optional<Whole> fitting(std::string_view text) {
  const double value = std::nearbyint(Val(text));
  if (!(value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max())) return {};
  return static_cast<Whole>(value);
}

}  // namespace

std::optional<std::int16_t> record_number16(std::string_view text) {
  return fitting<std::int16_t>(text);
}

std::optional<std::int32_t> record_number32(std::string_view text) {
  return fitting<std::int32_t>(text);
}

}  // namespace evac

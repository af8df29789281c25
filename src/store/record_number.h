// A number in a record of a settings file. One that does not fit its field ends the reading, with no message.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace evac {

// The leading number, rounded to the nearest whole one, ties to even; 0 when there is none. No value outside
// the field's range.
std::optional<std::int16_t> record_number16(std::string_view text);
std::optional<std::int32_t> record_number32(std::string_view text);

}  // namespace evac

// Text is UTF-8; these are the operations that count characters, not bytes, and the rule by which text
// becomes a number. Positions of characters start at 1.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace evac {

// Number of characters.
int Len(std::string_view text);
// The first `count` characters; all of them when the text is shorter, none when count is below 1.
std::string Left(std::string_view text, int count);
// `count` characters from position `start` on; what lies past the end is left out.
std::string Mid(std::string_view text, int start, int count);
// Position of the first `part` in `text`, 0 when there is none.
int InStr(std::string_view text, std::string_view part);
// The text without blanks at both ends (other white space stays).
std::string Trim(std::string_view text);
// What a number in a text comes to at most, either way: small sums of such numbers still fit.
inline constexpr int kMostNumber = 1'000'000'000;
// The whole number at the head of the text, from -kMostNumber to kMostNumber: blanks and tabs before it are
// passed over, a sign is taken, a fraction is cut off. None when no digit stands there.
std::optional<int> LeadingNumber(std::string_view text);
// The same, 0 when there is none. Whatever a file holds, this is no fault.
int Number(std::string_view text);
// A whole number as a byte; an overflow fault outside 0..255.
std::uint8_t ToByte(int value);

// All arguments put together: texts as they stand, whole numbers in decimal.
inline void append_one(std::string& out, std::string_view text) {
  out.append(text);
}
inline void append_one(std::string& out, int value) {
  out.append(std::to_string(value));
}
template <class... Parts>
std::string join(const Parts&... parts) {
  std::string out;
  (append_one(out, parts), ...);
  return out;
}

// Lower case of the Latin and the Cyrillic letters; other characters stay.
std::string lower_case(std::string_view text);

}  // namespace evac

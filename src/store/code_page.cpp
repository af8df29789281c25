#include "store/code_page.h"

#include <array>
#include <cstdint>

namespace evac {
namespace {

// Code points of bytes 0x80 to 0xBF; 0xC0 on is the Cyrillic alphabet in order. The one unused place keeps
// its number.
constexpr std::array<char16_t, 64> kUpper = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021, 0x20AC, 0x2030, 0x0409, 0x2039, 0x040A,
    0x040C, 0x040B, 0x040F, 0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F, 0x00A0, 0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6,
    0x00A7, 0x0401, 0x00A9, 0x0404, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x0407, 0x00B0, 0x00B1, 0x0406, 0x0456,
    0x0491, 0x00B5, 0x00B6, 0x00B7, 0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457};
constexpr char32_t kCyrillicA = 0x0410, kCyrillicLast = 0x044F;

void append_utf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

char to_byte(char32_t c) {
  if (c < 0x80) return static_cast<char>(c);
  if (c >= kCyrillicA && c <= kCyrillicLast) return static_cast<char>(0xC0 + (c - kCyrillicA));
  for (std::size_t i = 0; i < kUpper.size(); ++i)
    if (kUpper[i] == c) return static_cast<char>(0x80 + i);
  return '?';
}

}  // namespace

std::string to_code_page(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if (length == 0 || i + length > utf8.size()) {
      out += '?';
      ++i;
      continue;
    }
    char32_t c = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t k = 1; k < length; ++k) c = c << 6 | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
    out += to_byte(c);
    i += length;
  }
  return out;
}

std::string from_code_page(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() * 2);
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    if (value < 0x80)
      append_utf8(out, value);
    else if (value >= 0xC0)
      append_utf8(out, kCyrillicA + (value - 0xC0u));
    else
      append_utf8(out, kUpper[value - 0x80u]);
  }
  return out;
}

}  // namespace evac

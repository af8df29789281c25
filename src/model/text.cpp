#include "model/text.h"

#include <algorithm>

#include "model/fault.h"

namespace evac {
namespace {

bool starts_character(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

// Byte offset of character `position` (from 1); the size of the text when it has fewer.
std::size_t offset_of(std::string_view text, int position) {
  int seen = 0;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (starts_character(text[i]) && ++seen == position) return i;
  return text.size();
}

}  // namespace

int Len(std::string_view text) {
  int count = 0;
  for (char byte : text) count += starts_character(byte);
  return count;
}

std::string Left(std::string_view text, int count) {
  return Mid(text, 1, count);
}

std::string Mid(std::string_view text, int start, int count) {
  if (count < 1 || start < 1) return {};
  text.remove_prefix(offset_of(text, start));
  if (count >= static_cast<int>(text.size())) return std::string(text);
  return std::string(text.substr(0, offset_of(text, count + 1)));
}

int InStr(std::string_view text, std::string_view part) {
  const auto at = text.find(part);
  return at == std::string_view::npos ? 0 : Len(text.substr(0, at)) + 1;
}

std::string Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::optional<int> LeadingNumber(std::string_view text) {
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  const bool minus = text.starts_with('-');
  if (minus || text.starts_with('+')) text.remove_prefix(1);
  if (text.empty() || !is_digit(text.front())) return {};
  std::int64_t value = 0;
  for (; !text.empty() && is_digit(text.front()); text.remove_prefix(1))
    value = std::min<std::int64_t>(value * 10 + (text.front() - '0'), kMostNumber);
  return static_cast<int>(minus ? -value : value);
}

int Number(std::string_view text) {
  return LeadingNumber(text).value_or(0);
}

std::uint8_t ToByte(int value) {
  if (value < 0 || value > 255) overflow();
  return static_cast<std::uint8_t>(value);
}

std::string lower_case(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 'A' && byte <= 'Z') {
      out += static_cast<char>(byte + 32);
      continue;
    }
    if (byte == 0xD0 && i + 1 < text.size()) {
      const auto next = static_cast<unsigned char>(text[i + 1]);
      if (next == 0x81) {  // Ё
        out += "\xD1\x91";
        ++i;
        continue;
      }
      if (next >= 0x90 && next <= 0x9F) {  // А..П
        out += '\xD0';
        out += static_cast<char>(next + 0x20);
        ++i;
        continue;
      }
      if (next >= 0xA0 && next <= 0xAF) {  // Р..Я
        out += '\xD1';
        out += static_cast<char>(next - 0x20);
        ++i;
        continue;
      }
    }
    out += text[i];
  }
  return out;
}

}  // namespace evac

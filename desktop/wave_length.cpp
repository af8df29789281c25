#include "desktop/wave_length.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace evac::desktop {
namespace {

constexpr std::size_t kMark = 4;  // bytes of "RIFF" and the like
constexpr std::streamoff kByteRatePlace = 8;

std::uint32_t read_number(std::istream& in) {
  std::array<unsigned char, 4> bytes{};
  in.read(reinterpret_cast<char*>(bytes.data()), bytes.size());
  return bytes[0] | bytes[1] << 8 | bytes[2] << 16 | static_cast<std::uint32_t>(bytes[3]) << 24;
}

bool read_mark(std::istream& in, std::array<char, kMark>& mark) {
  return static_cast<bool>(in.read(mark.data(), mark.size()));
}

}  // namespace

double wave_length(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::error_code unknown;
  const auto file_size = std::filesystem::file_size(file, unknown);
  std::array<char, kMark> mark{};
  const auto is = [&mark](std::string_view name) {
    return std::string_view(mark.data(), mark.size()) == name;
  };
  if (!read_mark(in, mark) || !is("RIFF")) return 0;
  read_number(in);
  if (!read_mark(in, mark) || !is("WAVE")) return 0;
  std::uint32_t bytes_a_second = 0;
  while (read_mark(in, mark)) {
    const std::uint32_t size = read_number(in);
    const std::streamoff body = in.tellg();
    if (!in) return 0;
    if (is("data")) {
      const auto there = file_size - std::min<std::uintmax_t>(file_size, static_cast<std::uintmax_t>(body));
      const auto bytes = std::min<std::uintmax_t>(size, there);
      return bytes_a_second == 0 ? 0 : static_cast<double>(bytes) / bytes_a_second;
    }
    if (is("fmt ")) {
      in.seekg(body + kByteRatePlace);
      bytes_a_second = read_number(in);
    }
    in.seekg(body + static_cast<std::streamoff>(size) + size % 2);  // chunks begin at even places
  }
  return 0;
}

}  // namespace evac::desktop

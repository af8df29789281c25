// The tag of an audio file: the 128 bytes at its end, as ID3v1 lays them out, in Windows-1251. The fields
// keep their full width; nothing is trimmed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace evac {

struct TrackTag {
  // Characters of each field.
  static constexpr std::size_t kTextWidth = 30, kYearWidth = 4;

  std::string title = std::string(kTextWidth, ' ');
  std::string artist = title, album = title;
  std::string year = std::string(kYearWidth, ' ');
  std::string comment = title;
};

inline constexpr std::size_t kTagSize = 128;

// The tag in the last bytes of a file; blank fields when there is none in them. A byte of zero, with which
// many fill their fields up, is a blank. No value for less than a tag's length.
std::optional<TrackTag> parse_tag(std::string_view last_bytes);
// No value when the file cannot be read or is shorter than a tag.
std::optional<TrackTag> read_tag(Files& files, std::string_view path);

}  // namespace evac

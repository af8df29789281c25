#include "store/track_tag.h"

#include <algorithm>

#include "store/code_page.h"

namespace evac {
namespace {

constexpr std::string_view kMagic = "TAG";

// Where a field lies, counted from the end of the file.
struct Field {
  std::string TrackTag::*text;
  std::size_t from_end, width;
};
constexpr Field kFields[] = {{&TrackTag::title, 125, TrackTag::kTextWidth},
                             {&TrackTag::artist, 95, TrackTag::kTextWidth},
                             {&TrackTag::album, 65, TrackTag::kTextWidth},
                             {&TrackTag::year, 35, TrackTag::kYearWidth},
                             {&TrackTag::comment, 31, TrackTag::kTextWidth}};

}  // namespace

std::optional<TrackTag> parse_tag(std::string_view last_bytes) {
  if (last_bytes.size() < kTagSize) return {};
  const std::string_view block = last_bytes.substr(last_bytes.size() - kTagSize);
  TrackTag tag;
  if (!block.starts_with(kMagic)) return tag;
  for (const Field& field : kFields) {
    std::string bytes(block.substr(kTagSize - field.from_end, field.width));
    std::ranges::replace(bytes, '\0', ' ');
    tag.*field.text = from_code_page(bytes);
  }
  return tag;
}

std::optional<TrackTag> read_tag(Files& files, std::string_view path) {
  std::string bytes;
  if (files.read_end(path, kTagSize, bytes) != kNoError) return {};
  return parse_tag(bytes);
}

}  // namespace evac

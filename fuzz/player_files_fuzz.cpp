// Any bytes as an audio file's end and as a play-list: a tag always has its widths, a list never has more
// tracks than lines, and what is shown of either is whole characters.
#include <cstdint>

#include "fuzz/tally.h"
#include "model/text.h"
#include "store/code_page.h"
#include "store/play_list_file.h"
#include "store/track_tag.h"

namespace {

using namespace evac;

void check_tag(std::string_view bytes) {
  const auto tag = parse_tag(bytes);
  check(tag.has_value() == (bytes.size() >= kTagSize), "a tag is as long as it is");
  if (!tag) return;
  for (const std::string* text : {&tag->title, &tag->artist, &tag->album, &tag->comment})
    check(Len(*text) == TrackTag::kTextWidth && text->find('\0') == std::string::npos,
          "a field has its width");
  check(Len(tag->year) == TrackTag::kYearWidth, "a year has its width");
}

void check_list(std::string_view bytes) {
  const auto lines = play_list_lines(bytes);
  const auto tracks = play_list_tracks(bytes);
  check(tracks.size() <= lines.size(), "no more tracks than lines");
  for (std::size_t i = 0; i < lines.size(); ++i) {
    check(lines[i].find_first_of("\r\n") == std::string::npos, "a line has no line end");
    check(from_code_page(to_code_page(lines[i])) == lines[i], "a line comes back as it was");
    check(i >= tracks.size() || tracks[i] == lines[i], "tracks are the first lines");
  }
  if (is_play_list(lines.empty() ? "" : lines[0])) play_list_number(lines[0]);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static evac::Tally tally;
  tally.take(size);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  check_tag(bytes);
  check_list(bytes);
  return 0;
}

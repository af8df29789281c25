#include "desktop/mp3_length.h"

#include <mpg123.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string_view>

namespace evac::desktop {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kLongestWalk{400};
constexpr int kFramesALook = 256;         // at the clock
constexpr std::size_t kHeadBytes = 4096;  // that the first frame lies in, behind a tag

struct Closed {
  void operator()(mpg123_handle* handle) const { mpg123_delete(handle); }
};
using Reader = std::unique_ptr<mpg123_handle, Closed>;

// An ID3v2 tag before the first frame: its bytes, in seven bits each.
std::streamoff leading_tag(std::istream& in) {
  constexpr std::streamoff kTagHead = 10;
  std::array<unsigned char, kTagHead> head{};
  in.read(reinterpret_cast<char*>(head.data()), head.size());
  if (!in || head[0] != 'I' || head[1] != 'D' || head[2] != '3') return 0;
  return kTagHead + (head[6] << 21 | head[7] << 14 | head[8] << 7 | head[9]);
}

// The file through a large buffer: the library reads by frames, of which an hour has well over a hundred
// thousand.
ssize_t read_some(void* file, void* bytes, std::size_t count) {
  return static_cast<ssize_t>(std::fread(bytes, 1, count, static_cast<FILE*>(file)));
}
off_t seek_to(void* file, off_t offset, int whence) {
  return fseeko(static_cast<FILE*>(file), offset, whence) == 0 ? ftello(static_cast<FILE*>(file)) : -1;
}
void close_file(void* file) {
  std::fclose(static_cast<FILE*>(file));
}

bool open_buffered(mpg123_handle* reader, const std::filesystem::path& path) {
  constexpr std::size_t kBuffer = 1 << 18;
  FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) return false;
  std::setvbuf(file, nullptr, _IOFBF, kBuffer);
  if (mpg123_replace_reader_handle(reader, read_some, seek_to, close_file) == MPG123_OK)
    return mpg123_open_handle(reader, file) == MPG123_OK;  // which takes the file in either case
  close_file(file);
  return false;
}

// Whether the first frame carries the number of them all.
bool says_its_length(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::streamoff start = leading_tag(in);
  std::array<char, kHeadBytes> bytes{};
  in.clear();
  in.seekg(start);
  in.read(bytes.data(), bytes.size());
  const std::string_view head(bytes.data(), static_cast<std::size_t>(in.gcount()));
  return std::ranges::any_of(std::array{"Xing", "Info", "VBRI"},
                             [&](const char* mark) { return head.find(mark) != std::string_view::npos; });
}

// Seconds of all frames; those behind the longest walk at the pace of the ones before.
double walk(mpg123_handle& reader, double file_size) {
  const auto end = Clock::now() + kLongestWalk;
  double seconds = 0;
  for (long frames = 0;; ++frames) {
    const int result = mpg123_framebyframe_next(&reader);
    if (result == MPG123_NEW_FORMAT) continue;
    if (result != MPG123_OK) return seconds;
    seconds += mpg123_tpf(&reader);
    if (frames % kFramesALook == 0 && Clock::now() > end)
      return seconds * file_size / std::max(1.0, static_cast<double>(mpg123_framepos(&reader)));
  }
}

}  // namespace

double mp3_length(const std::filesystem::path& file) {
  static const bool usable = mpg123_init() == MPG123_OK;
  const Reader reader(usable ? mpg123_new(nullptr, nullptr) : nullptr);
  long rate = 0;
  int channels = 0, encoding = 0;
  if (!reader || mpg123_param(reader.get(), MPG123_ADD_FLAGS, MPG123_QUIET, 0) != MPG123_OK ||
      !open_buffered(reader.get(), file) ||
      mpg123_getformat(reader.get(), &rate, &channels, &encoding) != MPG123_OK || rate <= 0)
    return 0;
  if (says_its_length(file)) {
    const off_t samples = mpg123_length(reader.get());
    return samples > 0 ? static_cast<double>(samples) / static_cast<double>(rate) : 0;
  }
  std::error_code unknown;
  const auto size = std::filesystem::file_size(file, unknown);
  return unknown ? 0 : walk(*reader, static_cast<double>(size));
}

}  // namespace evac::desktop

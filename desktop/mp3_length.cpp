#include "desktop/mp3_length.h"

#include <mpg123.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <numeric>
#include <string_view>

namespace evac::desktop {
namespace {

constexpr int kPlaces = 8;                // that are sampled
constexpr int kFramesAPlace = 3;          // of which the first may begin in the midst of one
constexpr long kStraysAPlace = 8192;      // bytes up to a first frame
constexpr off_t kWalkedAtOnce = 1 << 20;  // bytes of a file that is walked sooner than sampled
constexpr int kFramesALook = 256;         // whether to go on
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

// A file from some place on, through a buffer: the library reads by frames, of which an hour has well over a
// hundred thousand.
struct Piece {
  FILE* file;
  off_t base;
};
ssize_t read_some(void* piece, void* bytes, std::size_t count) {
  return static_cast<ssize_t>(std::fread(bytes, 1, count, static_cast<Piece*>(piece)->file));
}
off_t seek_to(void* handle, off_t offset, int whence) {
  const Piece& piece = *static_cast<Piece*>(handle);
  const off_t place = whence == SEEK_SET ? piece.base + offset : offset;
  return fseeko(piece.file, place, whence) == 0 ? ftello(piece.file) - piece.base : -1;
}
void close_piece(void* handle) {
  auto* piece = static_cast<Piece*>(handle);
  std::fclose(piece->file);
  delete piece;
}

// Ready to give frame after frame; null where there is none.
Reader open_at(const std::filesystem::path& path, off_t place, std::size_t buffer) {
  static const bool usable = mpg123_init() == MPG123_OK;
  Reader reader(usable ? mpg123_new(nullptr, nullptr) : nullptr);
  FILE* file = reader ? std::fopen(path.c_str(), "rb") : nullptr;
  if (!file) return nullptr;
  std::setvbuf(file, nullptr, _IOFBF, buffer);
  auto* piece = new Piece{file, place};
  if (fseeko(file, place, SEEK_SET) != 0 ||
      mpg123_param(reader.get(), MPG123_ADD_FLAGS, MPG123_QUIET, 0) != MPG123_OK ||
      mpg123_param(reader.get(), MPG123_RESYNC_LIMIT, kStraysAPlace, 0) != MPG123_OK ||
      mpg123_replace_reader_handle(reader.get(), read_some, seek_to, close_piece) != MPG123_OK) {
    close_piece(piece);
    return nullptr;
  }
  long rate = 0;
  int channels = 0, encoding = 0;
  // The opening takes the piece in either case.
  const bool opened = mpg123_open_handle(reader.get(), piece) == MPG123_OK &&
                      mpg123_getformat(reader.get(), &rate, &channels, &encoding) == MPG123_OK && rate > 0;
  return opened ? std::move(reader) : nullptr;
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

// Kilobits a second of some frames at that place; nothing where they differ, or there are none.
int rate_at(const std::filesystem::path& file, off_t place) {
  constexpr std::size_t kBuffer = 1 << 12;
  const Reader reader = open_at(file, place, kBuffer);
  int rate = 0;
  for (int frame = 0; reader && frame < kFramesAPlace; ++frame) {
    mpg123_frameinfo info{};
    if (mpg123_framebyframe_next(reader.get()) == MPG123_ERR || mpg123_info(reader.get(), &info) != MPG123_OK)
      return 0;
    if (rate != 0 && rate != info.bitrate) return 0;
    rate = info.bitrate;
  }
  return rate;
}

SoundLength sampled_length(const std::filesystem::path& file, off_t begin, off_t size) {
  constexpr double kBitsAByte = 8, kKilo = 1000;
  std::array<int, kPlaces> rates{};
  for (int i = 0; i < kPlaces; ++i)
    rates[static_cast<std::size_t>(i)] = rate_at(file, begin + (size - begin) / kPlaces * i);
  const auto known = kPlaces - std::ranges::count(rates, 0);
  if (known == 0) return {};
  const double rate = static_cast<double>(std::accumulate(rates.begin(), rates.end(), 0)) / known;
  const bool agree = known == kPlaces && std::ranges::count(rates, rates[0]) == kPlaces;
  return {static_cast<double>(size - begin) * kBitsAByte / (rate * kKilo),
          agree ? Sure::kSampled : Sure::kGuess};
}

}  // namespace

SoundLength quick_mp3_length(const std::filesystem::path& file) {
  constexpr std::size_t kBuffer = 1 << 14;
  const Reader reader = open_at(file, 0, kBuffer);
  if (!reader) return {};
  if (says_its_length(file)) {
    long rate = 0;
    int channels = 0, encoding = 0;
    mpg123_getformat(reader.get(), &rate, &channels, &encoding);
    const off_t samples = mpg123_length(reader.get());
    return {samples > 0 && rate > 0 ? static_cast<double>(samples) / static_cast<double>(rate) : 0};
  }
  std::error_code unknown;
  const auto size = static_cast<off_t>(std::filesystem::file_size(file, unknown));
  if (unknown) return {};
  if (size <= kWalkedAtOnce) return {walked_mp3_length(file, [] { return true; }).value_or(0)};
  std::ifstream in(file, std::ios::binary);
  return sampled_length(file, leading_tag(in), size);
}

std::optional<double> walked_mp3_length(const std::filesystem::path& file,
                                        const std::function<bool()>& goes_on) {
  constexpr std::size_t kBuffer = 1 << 18;
  const Reader reader = open_at(file, 0, kBuffer);
  double seconds = 0;
  for (long frames = 0; reader; ++frames) {
    const int result = mpg123_framebyframe_next(reader.get());
    if (result == MPG123_NEW_FORMAT) continue;
    if (result != MPG123_OK) break;
    seconds += mpg123_tpf(reader.get());
    if (frames % kFramesALook == 0 && !goes_on()) return {};
  }
  return seconds;
}

}  // namespace evac::desktop

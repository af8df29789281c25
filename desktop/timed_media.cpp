#include "desktop/timed_media.h"

#include <algorithm>

namespace evac::desktop {
namespace {

constexpr double kUnknownLength = 5;  // seconds, of a file whose header tells nothing

std::uint32_t word_at(const std::string& bytes, std::size_t at) {
  std::uint32_t word = 0;
  for (std::size_t i = 4; i-- > 0;) word = word << 8 | static_cast<std::uint8_t>(bytes[at + i]);
  return word;
}

// Seconds of a wave file, by its byte rate and the size of its samples.
double length_of(const std::string& bytes) {
  constexpr std::size_t kByteRate = 28, kHeader = 44;
  if (bytes.size() < kHeader || !bytes.starts_with("RIFF")) return kUnknownLength;
  const std::uint32_t rate = word_at(bytes, kByteRate);
  return rate == 0 ? kUnknownLength : static_cast<double>(bytes.size() - kHeader) / rate;
}

}  // namespace

void TimedMedia::set_file(std::string_view path) {
  stop();
  std::string bytes;
  length_ = files_.is_file(path) && files_.read(path, bytes) == kNoError ? length_of(bytes) : 0;
}

void TimedMedia::play() {
  if (!playing_since_) playing_since_ = Clock::now();
}

void TimedMedia::hold() {
  position_ = position();
  playing_since_.reset();
}

void TimedMedia::stop() {
  position_ = 0;
  playing_since_.reset();
}

double TimedMedia::position() {
  if (!playing_since_) return position_;
  return std::min(length_, position_ + std::chrono::duration<double>(Clock::now() - *playing_since_).count());
}

void TimedMedia::seek(double seconds) {
  position_ = std::clamp(seconds, 0.0, length_);
  if (playing_since_) playing_since_ = Clock::now();
}

}  // namespace evac::desktop

#include "drill/carried_line.h"

#include <algorithm>

#include "rack/rack.h"

namespace evac::drill {
namespace {

constexpr auto kCharacter = rack::PacedLine::kCharacter;

Outbox::Moment moment(Instant time) {
  return Outbox::Moment(time.time_since_epoch());
}
Instant instant(Outbox::Moment time) {
  return Instant(std::chrono::ceil<std::chrono::milliseconds>(time.time_since_epoch()));
}

}  // namespace

CarriedLine::CarriedLine(std::size_t buffer) : buffer_(buffer) {
  outbox_.set_character(kCharacter);
}

void CarriedLine::put(std::span<const std::uint8_t, 9> frame, Instant now) {
  advance(now);
  outbox_.put(frame, moment(now));
  outbox_.hand_over(faults_, at_);
}

std::optional<std::size_t> CarriedLine::take(std::span<const std::uint8_t> bytes) {
  const std::size_t taken = std::min(bytes.size(), buffer_ - device_.size());
  if (device_.empty()) wire_free_ = at_ + kCharacter;
  device_.insert(device_.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(taken));
  return taken;
}

void CarriedLine::advance(Instant now) {
  const Outbox::Moment until = moment(now);
  while (true) {
    outbox_.hand_over(faults_, at_);
    auto next = Outbox::Moment::max();
    if (!device_.empty()) next = wire_free_;
    if (const auto more = outbox_.next(); more && *more > at_) next = std::min(next, *more);
    if (next > until) break;
    at_ = next;
    if (device_.empty() || wire_free_ > at_) continue;
    const std::uint8_t byte = device_.front();
    device_.pop_front();
    wire_free_ += kCharacter;
    arrived(byte, instant(at_));
  }
  at_ = std::max(at_, until);
}

void CarriedLine::lose(Instant now) {
  advance(now);
  faults_.set_lost(true);
  device_.clear();
  outbox_.line_lost(moment(now));
}

void CarriedLine::forget() {
  device_.clear();
  outbox_ = {};
  outbox_.set_character(kCharacter);
}

int CarriedLine::frames_waiting(Instant now) const {
  const int in_device = static_cast<int>((device_.size() + rack::Frame{}.size() - 1) / rack::Frame{}.size());
  return std::max(outbox_.frames_waiting(moment(now)), in_device);
}

std::chrono::milliseconds CarriedLine::backlog(Instant now) const {
  return std::chrono::ceil<std::chrono::milliseconds>(outbox_.backlog(moment(now)));
}

}  // namespace evac::drill

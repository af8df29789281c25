#include "machine/outbox.h"

#include <algorithm>

namespace evac {
namespace {

using std::chrono::nanoseconds;

// Zones and terminals are set by pairs of equal frames; an alert starts with three.
constexpr int kPair = 2, kAlertStartFrames = 3;

template <class... Each>
struct Overloaded : Each... {
  using Each::operator()...;
};
template <class... Each>
Overloaded(Each...) -> Overloaded<Each...>;

}  // namespace

Outbox::Subject Outbox::subject_of(const rack::Frame& frame) {
  return std::visit(Overloaded{[](const rack::ZoneSet& set) {
                                 return Subject{Subject::kZone, set.zone};
                               },
                               [](const rack::TerminalSet& set) {
                                 return Subject{Subject::kTerminal, set.terminal};
                               },
                               [](const rack::OutletsSet& set) {
                                 return Subject{Subject::kOutlets, set.block};
                               },
                               [](const rack::MatrixSet&) { return Subject{Subject::kMatrix}; },
                               [](const rack::AlarmPower& power) {
                                 return power.channel == 9 && !power.on
                                            ? Subject{Subject::kStop}
                                            : Subject{Subject::kAlarm, power.channel};
                               },
                               [](const rack::AlertStart&) { return Subject{Subject::kAlertStart}; },
                               // Whichever terminal it asks: whoever asked before waits no longer.
                               [](const rack::TerminalQuery&) { return Subject{Subject::kQuery}; },
                               [](const rack::PollAnswer&) { return Subject{Subject::kAnswer}; },
                               [](const rack::DateSet&) { return Subject{Subject::kClock}; },
                               [](const rack::TimeSet&) { return Subject{Subject::kClock}; },
                               [](const auto&) { return Subject{}; }},
                    rack::order_of(frame));
}

void Outbox::put(std::span<const std::uint8_t, 9> bytes, Moment now) {
  Waiting frame{};
  std::copy(bytes.begin(), bytes.end(), frame.frame.begin());
  frame.subject = subject_of(frame.frame);
  if (is_answer(frame)) {
    waiting_.insert(place_of_answer(), frame);
    return;
  }
  frame.goes_on = continues_the_last(frame.subject);
  if (!frame.goes_on && backlog(now) > kLong) drop_overridden(frame.subject);
  waiting_.insert(place_behind_others(frame.goes_on), frame);
}

std::deque<Outbox::Waiting>::iterator Outbox::behind_last_other() {
  return std::find_if_not(waiting_.rbegin(), waiting_.rend(), is_answer).base();
}

// Answers that heap up under polls faster than the line let it pass, but for one.
std::deque<Outbox::Waiting>::iterator Outbox::place_behind_others(bool goes_on) {
  auto place = behind_last_other();
  if (goes_on || place == waiting_.end()) return place;
  const bool one_is_due = place != waiting_.begin() || taken_of_first_ > 0 || !answered_last_;
  return one_is_due ? place + 1 : place;
}

std::deque<Outbox::Waiting>::iterator Outbox::place_of_answer() {
  auto place = std::find_if(waiting_.rbegin(), waiting_.rend(), is_answer).base();
  const bool behind_answer = place != waiting_.begin() || (taken_of_first_ == 0 && answered_last_);
  if (place == waiting_.begin() && taken_of_first_ > 0) ++place;
  // Not into the middle of what goes together, and never two in a row while others wait: polls that come
  // faster than the line can answer them must not keep an alert from it.
  const auto pass_group = [&] {
    while (place != waiting_.end() && place->goes_on) ++place;
  };
  pass_group();
  if (behind_answer && place != waiting_.end()) {
    ++place;
    pass_group();
  }
  return place;
}

bool Outbox::continues_the_last(const Subject& subject) const {
  auto frame = std::find_if_not(waiting_.rbegin(), waiting_.rend(), is_answer);
  if (subject.kind == Subject::kNone || subject.kind == Subject::kQuery || frame == waiting_.rend() ||
      frame->subject != subject)
    return false;
  int together = 1;
  for (; frame != waiting_.rend() && frame->goes_on; ++frame) ++together;
  return together < (subject.kind == Subject::kAlertStart ? kAlertStartFrames : kPair);
}

void Outbox::drop_overridden(const Subject& by) {
  const auto needless = [&](const Subject& subject) {
    switch (by.kind) {
      case Subject::kNone:
        return false;
      case Subject::kStop:
        return subject.kind == Subject::kZone || subject.kind == Subject::kTerminal ||
               subject.kind == Subject::kAlertStart || subject.kind == Subject::kStop;
      default:
        return subject == by;
    }
  };
  // What the device has begun to take, and what goes on from what it took, stays.
  auto from = waiting_.begin() + (taken_of_first_ > 0 ? 1 : 0);
  while (from != waiting_.end() && from->goes_on) ++from;
  const auto gone =
      std::remove_if(from, waiting_.end(), [&](const Waiting& frame) { return needless(frame.subject); });
  dropped_ += static_cast<int>(waiting_.end() - gone);
  waiting_.erase(gone, waiting_.end());
}

std::span<const std::uint8_t> Outbox::ready(Moment now) const {
  if (waiting_.empty()) return {};
  if (taken_of_first_ == 0 && *next() > now) return {};
  return std::span(waiting_.front().frame).subspan(taken_of_first_);
}

void Outbox::taken(std::size_t count, Moment now) {
  free_ = std::max(free_, now) + character_ * static_cast<int>(count);
  taken_of_first_ += count;
  if (waiting_.empty() || taken_of_first_ < waiting_.front().frame.size()) return;
  answered_last_ = is_answer(waiting_.front());
  handed_.push_back({now, waiting_.front()});
  waiting_.pop_front();
  taken_of_first_ = 0;
  while (now - handed_.front().when > kRepeated) handed_.pop_front();
}

Outbox::HandedOver Outbox::hand_over(LineDevice& device, Moment now) {
  for (auto bytes = ready(now); !bytes.empty(); bytes = ready(now)) {
    const auto count = device.take(bytes);
    if (!count) return HandedOver::kGone;
    if (*count == 0) return HandedOver::kFull;
    taken(*count, now);
  }
  return HandedOver::kEnough;
}

std::optional<Outbox::Moment> Outbox::next() const {
  if (waiting_.empty()) return std::nullopt;
  return free_ - (kAhead - time_of_frame());
}

void Outbox::line_lost(Moment now) {
  for (; !handed_.empty(); handed_.pop_back())
    if (now - handed_.back().when <= kRepeated) waiting_.push_front(handed_.back().frame);
  std::erase_if(waiting_, [](const Waiting& frame) { return frame.subject.kind == Subject::kAnswer; });
  taken_of_first_ = 0;
  free_ = {};
}

int Outbox::frames_waiting(Moment now) const {
  if (time_of_frame() == nanoseconds{}) return static_cast<int>(waiting_.size());
  return static_cast<int>((backlog(now) + time_of_frame() - nanoseconds(1)) / time_of_frame());
}

nanoseconds Outbox::backlog(Moment now) const {
  return std::max<nanoseconds>(free_ - now, nanoseconds{}) +
         time_of_frame() * static_cast<int>(waiting_.size()) - character_ * static_cast<int>(taken_of_first_);
}

nanoseconds Outbox::time_of_frame() const {
  return character_ * static_cast<int>(rack::Frame{}.size());
}

}  // namespace evac

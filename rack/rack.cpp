#include "rack/rack.h"

#include <algorithm>

namespace evac::rack {
namespace {

using std::chrono::milliseconds;

constexpr std::uint8_t kPoll = 0x10, kAnswer = 0x0A, kAlarm = 0x70;
constexpr std::uint8_t kLinkBit = 1, kProgrammeBit = 2;
constexpr std::uint8_t kNoTerminal = 0xFF, kFire = 15;
constexpr milliseconds kQuietAfterAlarm{250};
constexpr milliseconds kQuietAfterQuery{300};  // longer than a terminal takes that is well

std::uint8_t byte_of(int value) {
  return static_cast<std::uint8_t>(value);
}

}  // namespace

void PacedLine::put(std::span<const std::uint8_t> bytes, Time now) {
  free_ = std::max(free_, std::chrono::nanoseconds(now));
  for (const std::uint8_t byte : bytes) {
    if (paced_) free_ += kCharacter;
    bytes_.push_back({byte, free_});
  }
}

std::optional<Time> PacedLine::next() const {
  if (bytes_.empty()) return std::nullopt;
  return std::chrono::ceil<Time>(bytes_.front().arrives);
}

std::uint8_t PacedLine::take() {
  const std::uint8_t byte = bytes_.front().byte;
  bytes_.pop_front();
  return byte;
}

void Rack::advance(Time now) {
  for (auto due = next_due(); due && *due <= now; due = next_due()) {
    now_ = std::max(now_, *due);
    if (from_console_.next() == due) {
      hear(from_console_.take());
    } else if (to_console_.next() == due) {
      deliver();
    } else if (const auto answer = std::find_if(answers_.begin(), answers_.end(),
                                                [&](const Waiting& waiting) { return waiting.due == *due; });
               answer != answers_.end()) {
      const Frame frame = answer->frame;
      answers_.erase(answer);
      send_frame(frame);
    } else {
      next_poll_ += poll_period_;
      // On a line that is still busy with the last one a poll would only add to the queue.
      if (to_console_.empty()) send_poll();
    }
  }
  now_ = std::max(now_, now);
}

void Rack::receive(std::span<const std::uint8_t> bytes) {
  from_console_.put(bytes, now_);
  advance(now_);
}

std::optional<Time> Rack::next_due() const {
  std::optional<Time> due;
  const auto consider = [&](std::optional<Time> time) {
    if (time && (!due || *time < *due)) due = time;
  };
  consider(from_console_.next());
  consider(to_console_.next());
  for (const Waiting& waiting : answers_) consider(waiting.due);
  if (poll_period_.count() > 0) consider(next_poll_);
  return due;
}

void Rack::lose_line() {
  to_console_.clear();
  from_console_.clear();
  reader_.reset();
  sent_reader_.reset();
  answers_.clear();
}

void Rack::set_paced(bool on) {
  to_console_.set_paced(on);
  from_console_.set_paced(on);
}

void Rack::set_poll_period(milliseconds period) {
  poll_period_ = period;
  next_poll_ = now_ + period;
}

void Rack::set_status(bool link, bool programme) {
  link_ = link;
  programme_ = programme;
}

void Rack::send_poll() {
  ++polls_sent_;
  send_frame(
      make_frame(kPoll, {0, 0, byte_of((link_ ? kLinkBit : 0) + (programme_ ? kProgrammeBit : 0)), 0, 0}));
}

void Rack::report_alarm(int zone) {
  next_poll_ = std::max<Time>(next_poll_, now_ + kQuietAfterAlarm);
  send_frame(make_frame(kAlarm, {0, kFire, byte_of(zone - 1), 0, 0}));
}

void Rack::send_frame(const Frame& frame) {
  send_bytes(frame);
}

void Rack::send_bytes(std::span<const std::uint8_t> bytes) {
  to_console_.put(bytes, now_);
}

void Rack::set_silent(int terminal, bool silent) {
  silent_.set(static_cast<std::size_t>(terminal), silent);
}

void Rack::set_absent(int terminal, bool absent) {
  absent_.set(static_cast<std::size_t>(terminal), absent);
}

void Rack::set_answer(int terminal, std::optional<Answer> answer) {
  if (answer)
    own_answers_[terminal] = *answer;
  else
    own_answers_.erase(terminal);
}

void Rack::set_slow(int terminal, std::optional<milliseconds> delay) {
  if (delay)
    own_delays_[terminal] = *delay;
  else
    own_delays_.erase(terminal);
}

void Rack::send_answers(int first, int last) {
  for (int t = first; t <= last; ++t)
    if (const auto frame = answer_of(t)) send_frame(*frame);
}

void Rack::set_contact(int number, bool closed) {
  contacts_.set(static_cast<std::size_t>(number - 1), closed);
}

std::uint32_t Rack::contact_word(int card, int port) const {
  std::uint32_t word = 0;
  for (int bit = 0; bit < 32; ++bit)
    if (contact(64 * card + 32 * port + bit + 1)) word |= std::uint32_t{1} << bit;
  return word;
}

void Rack::hear(std::uint8_t byte) {
  Frame frame;
  if (!reader_.take(byte, frame)) return;
  const Order order = order_of(frame);
  network_.obey(order, now_);
  if (std::holds_alternative<PollAnswer>(order) || std::holds_alternative<DateSet>(order) ||
      std::holds_alternative<TimeSet>(order))
    ++polls_answered_;
  if (const auto* query = std::get_if<TerminalQuery>(&order)) answer_query(query->terminal);
  if (passed) passed({now_, true, frame});
}

void Rack::deliver() {
  // All bytes that arrive at this very moment go as one piece.
  std::vector<std::uint8_t> bytes;
  std::vector<Frame> whole;
  while (to_console_.next() && *to_console_.next() <= now_) {
    bytes.push_back(to_console_.take());
    Frame frame;
    if (sent_reader_.take(bytes.back(), frame)) whole.push_back(frame);
  }
  if (passed)
    for (const Frame& frame : whole) passed({now_, false, frame});
  send_(bytes);
}

void Rack::answer_query(int terminal) {
  const auto frame = answer_of(terminal);
  if (!frame) return;
  if (!polls_in_scan_) next_poll_ = std::max<Time>(next_poll_, now_ + kQuietAfterQuery);
  const auto own = own_delays_.find(terminal);
  answers_.push_back({now_ + (own == own_delays_.end() ? answer_delay_ : own->second), *frame});
}

std::optional<Frame> Rack::answer_of(int terminal) const {
  const auto at = static_cast<std::size_t>(terminal);
  if (silent_.test(at)) return std::nullopt;
  const Output& output = network_.terminal(terminal);
  Answer answer{byte_of(output.channel), byte_of(output.volume),
                byte_of((terminal - 1) % Network::kZones + 1), byte_of(terminal)};
  if (absent_.test(at)) answer = {kNoTerminal, 0, 0, 0};
  if (const auto own = own_answers_.find(terminal); own != own_answers_.end()) answer = own->second;
  return make_frame(kAnswer, {answer.channel, answer.volume, answer.zone, answer.terminal, 0});
}

}  // namespace evac::rack

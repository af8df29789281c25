// The other end of the line: a virtual rack. Its controller polls the console, hears its frames, answers the
// terminal scan and reports alarms; beside it stand the fire contacts of the digital-input cards. It has no
// clock and no thread: whoever carries its bytes tells it the time.
#pragma once

#include <bitset>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>

#include "rack/network.h"

namespace evac::rack {

// A frame that has passed on the line, at the moment its last byte did.
struct Passed {
  Time at;
  bool from_console;
  Frame frame;
  std::string words() const { return from_console ? rack::words(order_of(frame)) : report_words(frame); }
};

// One direction of a line of 4800 baud and 11 bits a character: each byte arrives when its last bit has
// passed. At once when it is not paced.
class PacedLine {
 public:
  static constexpr std::chrono::nanoseconds kCharacter{11'000'000'000LL / 4800};

  void set_paced(bool on) { paced_ = on; }
  void put(std::span<const std::uint8_t> bytes, Time now);
  std::optional<Time> next() const;
  // The oldest byte, which has arrived by `next()`.
  std::uint8_t take();
  bool empty() const { return bytes_.empty(); }
  void clear() { bytes_.clear(); }

 private:
  struct OnTheWay {
    std::uint8_t byte;
    std::chrono::nanoseconds arrives;
  };
  bool paced_ = false;
  std::deque<OnTheWay> bytes_;
  std::chrono::nanoseconds free_{0};
};

class Rack {
 public:
  using Send = std::function<void(std::span<const std::uint8_t>)>;
  static constexpr int kContacts = 128;

  // `send` takes the bytes that go to the console.
  explicit Rack(Send send) : send_(std::move(send)) {}
  Rack(const Rack&) = delete;
  Rack& operator=(const Rack&) = delete;

  // Does all that falls due up to `now`, each thing at its own moment; what was asked to be sent leaves here.
  // Time never goes back.
  void advance(Time now);
  // Bytes from the console; they came at the moment of the last `advance`.
  void receive(std::span<const std::uint8_t> bytes);
  // When something falls due next.
  std::optional<Time> next_due() const;
  // The line was pulled out and put back: what was on its way is gone.
  void lose_line();

  // Both directions take the time that the real line takes.
  void set_paced(bool on);
  // Zero is no polls. The first one comes a period later.
  void set_poll_period(std::chrono::milliseconds period);
  std::chrono::milliseconds poll_period() const { return poll_period_; }
  // A terminal that answers has the line to itself: polls wait until the console has asked no other for a
  // while, or one that is silent. A controller that polls on all the same takes the console's wait away from
  // the terminal.
  void set_polls_in_scan(bool on) { polls_in_scan_ = on; }
  bool polls_in_scan() const { return polls_in_scan_; }
  // What the polls say.
  void set_status(bool link, bool programme);
  bool link_bit() const { return link_; }
  bool programme_bit() const { return programme_; }
  void send_poll();
  // The controller's report of a fire in that zone. No poll follows at once: whoever looks at the last frame
  // a few times a second must find it.
  void report_alarm(int zone);
  // Any frame at all, and bytes that are none.
  void send_frame(const Frame& frame);
  void send_bytes(std::span<const std::uint8_t> bytes);

  // Answers to the scan. What a terminal says of itself unless an answer of its own was set: the routing that
  // it has, a zone of its own number, its number.
  struct Answer {
    std::uint8_t channel, volume, zone, terminal;
  };
  void set_answer_delay(std::chrono::milliseconds delay) { answer_delay_ = delay; }
  // A slow terminal has a delay of its own; none gives it that of all.
  void set_slow(int terminal, std::optional<std::chrono::milliseconds> delay);
  // A silent terminal sends nothing; `absent` ones are answered for by the controller with channel 255.
  void set_silent(int terminal, bool silent);
  void set_absent(int terminal, bool absent);
  void set_answer(int terminal, std::optional<Answer> answer);
  bool is_silent(int terminal) const { return silent_.test(static_cast<std::size_t>(terminal)); }
  bool is_absent(int terminal) const { return absent_.test(static_cast<std::size_t>(terminal)); }
  bool is_slow(int terminal) const { return own_delays_.contains(terminal); }
  std::optional<Answer> own_answer(int terminal) const {
    const auto own = own_answers_.find(terminal);
    return own == own_answers_.end() ? std::nullopt : std::optional(own->second);
  }
  // The answers of these terminals, unasked and back to back, but for the silent ones.
  void send_answers(int first, int last);

  // Fire contacts, 1..128.
  void set_contact(int number, bool closed);
  bool contact(int number) const { return contacts_.test(static_cast<std::size_t>(number - 1)); }
  // The inputs of card 0 or 1, port 0 or 1: 32 contacts, the lowest in bit 0.
  std::uint32_t contact_word(int card, int port) const;

  const Network& network() const { return network_; }
  Time now() const { return now_; }
  std::chrono::local_seconds calendar() const { return network_.calendar(now_); }
  int polls_sent() const { return polls_sent_; }
  int polls_answered() const { return polls_answered_; }
  int bytes_dropped() const { return reader_.dropped_bytes(); }

  // Told of every frame in both directions.
  std::function<void(const Passed&)> passed;

 private:
  void hear(std::uint8_t byte);
  void deliver();
  void answer_query(int terminal);
  // None for a silent terminal.
  std::optional<Frame> answer_of(int terminal) const;

  struct Waiting {
    Time due;
    Frame frame;
  };

  Send send_;
  Network network_;
  FrameReader reader_;
  PacedLine to_console_, from_console_;
  FrameReader sent_reader_;  // follows what has passed to the console
  std::vector<Waiting> answers_;
  std::chrono::milliseconds poll_period_{0}, answer_delay_{60};
  Time now_{0}, next_poll_{0};
  bool link_ = true, programme_ = true, polls_in_scan_ = false;
  std::bitset<Network::kTerminals + 1> silent_, absent_;
  std::map<int, Answer> own_answers_;
  std::map<int, std::chrono::milliseconds> own_delays_;
  std::bitset<kContacts> contacts_;
  int polls_sent_ = 0, polls_answered_ = 0;
};

}  // namespace evac::rack

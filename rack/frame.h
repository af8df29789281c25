// The nine-byte frame as the rack sees it, and the orders that frames from the console carry.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace evac::rack {

using Frame = std::array<std::uint8_t, 9>;

// Adds the two sync bytes and the checksum.
Frame make_frame(std::uint8_t command, const std::array<std::uint8_t, 5>& data);
// Both sync bytes stand and the checksum fits.
bool is_sound(const Frame& frame);
// "AA AA 04 01 20 FD 07 00 29".
std::string hexadecimal(const Frame& frame);

// What a frame from the console asks for. Numbers as they stand on the line unless said otherwise.
struct ZoneSet {
  int zone, channel, volume;
};
struct TerminalSet {
  int terminal, channel, volume;
};
struct MatrixSet {
  std::array<int, 8> inputs;  // of outputs 1 to 8: 0 muted, 1..7, 15 none
};
struct SourceSet {
  int device;                    // as written in hexadecimal: 0x11 CD deck, 0x13 MP3 deck, 0x12 tuner
  int output, operation, value;  // decimal, from digits
};
struct OutletsSet {
  int block;          // 1..8
  std::uint8_t mask;  // outlet 1 is bit 7
};
struct AlarmPower {
  int channel;  // 9 or 10; 9 off is the stop of everything
  bool on;
};
struct AlertStart {
  int part;  // 1..3
};
struct TerminalQuery {
  int terminal;
};
struct PollAnswer {};
struct DateSet {
  int year, month, day, weekday;  // the year in full
};
struct TimeSet {
  int hour, minute, second;
};
struct Unknown {};

using Order = std::variant<ZoneSet, TerminalSet, MatrixSet, SourceSet, OutletsSet, AlarmPower, AlertStart,
                           TerminalQuery, PollAnswer, DateSet, TimeSet, Unknown>;

// Anything that makes no sense, such as zone 121 or a 32nd of a month that lacks one, is Unknown.
Order order_of(const Frame& frame);
// The order in plain words, Russian.
std::string words(const Order& order);
// The same for a frame that the rack itself sends.
std::string report_words(const Frame& frame);

// Takes sound frames out of a stream of bytes; what does not belong to one is dropped byte by byte.
class FrameReader {
 public:
  // The frames that `byte` completes: one at most.
  bool take(std::uint8_t byte, Frame& frame);
  void reset() { held_.clear(); }
  int dropped_bytes() const { return dropped_; }

 private:
  std::vector<std::uint8_t> held_;
  int dropped_ = 0;
};

}  // namespace evac::rack

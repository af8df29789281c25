// A pseudo-terminal with a stable name, the way a USB adapter keeps its name when it is pulled out and put
// back: the rack sits at the one end, the console opens the other as a serial port.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace evac::rack {

class PseudoTerminal {
 public:
  // `name` is the path of the link under which the console finds the line. Nothing is opened yet.
  explicit PseudoTerminal(std::string name) : name_(std::move(name)) {}
  ~PseudoTerminal() { close(); }
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  // Opens a fresh pair, raw, and points the name at it. The reason when that fails, else empty.
  std::string open();
  // The other end sees the line vanish; the name is gone.
  void close();
  bool is_open() const { return end_ >= 0; }
  const std::string& name() const { return name_; }
  // To wait for what can be read; -1 while closed.
  int descriptor() const { return end_; }
  // What is there; never waits.
  std::vector<std::uint8_t> read();
  // What finds no room is lost, as on a line that nobody reads.
  void write(std::span<const std::uint8_t> bytes);

 private:
  const std::string name_;
  int end_ = -1;
  int held_ = -1;  // the console's end, held open so that the line does not hang up between two openings
};

}  // namespace evac::rack

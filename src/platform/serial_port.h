// The serial port: opened, set up and written to at once; received bytes wait in its buffer and raise
// `receive` as an event of the loop for as long as there are any. A line that is lost is tried again once a
// second. Hosts give it a line.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>

#include "platform/event.h"
#include "platform/event_loop.h"

namespace evac {

class SerialPort {
 public:
  explicit SerialPort(EventLoop& loop) : loop_(loop) {}
  virtual ~SerialPort() = default;

  // 1 is COM1, 2 is COM2. Takes effect at the next opening.
  void set_port(int number) { number_ = number; }
  int port() const { return number_; }
  // A fault, with the port's name and the reason, when it cannot be opened.
  void open();
  // The same without the fault: a line that cannot be opened is a lost one.
  void reopen();
  void close();
  bool is_open() const { return state_ == State::kOpen; }
  // Opened by the console, and not there.
  bool is_lost() const { return state_ == State::kLost; }
  // Whether what is written now reaches the line, at once or when it is back.
  bool carries() const { return is_open() || (is_lost() && keeps_frames()); }
  // Such as "4800,o,8,1"; kept over a change of port.
  void set_settings(const std::string& settings);
  const std::string& settings() const { return settings_; }
  // Writes all bytes as one piece; never waits. Dropped by a port that does not carry.
  void write(std::span<const std::uint8_t> bytes);
  int in_buffer_count() const { return static_cast<int>(in_.size()); }
  const std::deque<std::uint8_t>& in_buffer() const { return in_; }
  // The oldest byte received, none when the buffer is empty.
  std::optional<std::uint8_t> read();

  Event<> receive;

 protected:
  // The reason in plain words when the port cannot be opened.
  virtual std::optional<std::string> open_line(int number) = 0;
  virtual void close_line(int number) = 0;
  virtual void configure_line(const std::string& settings) = 0;
  virtual void write_line(std::span<const std::uint8_t> bytes) = 0;
  // Whether the host keeps what is written while the line is lost.
  virtual bool keeps_frames() const { return false; }
  // For a host that shows it.
  virtual void loss_changed(bool /*lost*/) {}
  // The host calls this when an open line has gone, and has let go of it.
  void lose();
  // Called by the host with what came; dropped while the port is closed.
  void deliver(std::span<const std::uint8_t> bytes);
  // The host calls this when the console that used the port, and the events that it posted, are gone.
  void reset();

 private:
  enum class State { kClosed, kOpen, kLost };
  void announce();
  void try_later();
  void try_again();

  EventLoop& loop_;
  int number_ = 1;
  State state_ = State::kClosed;
  unsigned attempt_ = 0;    // the one that is to come, as long as the line is lost
  bool announced_ = false;  // an event that will read the buffer is on its way
  std::string settings_;
  std::deque<std::uint8_t> in_;
};

}  // namespace evac

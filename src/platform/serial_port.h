// The serial port: opened, set up and written to at once; received bytes wait in its buffer and raise
// `receive` as an event of the loop for as long as there are any. Hosts give it a line.
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
  void close();
  bool is_open() const { return open_; }
  // Such as "4800,o,8,1"; kept over a change of port.
  void set_settings(const std::string& settings);
  const std::string& settings() const { return settings_; }
  // Writes all bytes as one piece; never waits.
  void write(std::span<const std::uint8_t> bytes);
  int in_buffer_count() const { return static_cast<int>(in_.size()); }
  // The oldest byte received, none when the buffer is empty.
  std::optional<std::uint8_t> read();

  Event<> receive;

 protected:
  // The reason in plain words when the port cannot be opened.
  virtual std::optional<std::string> open_line(int number) = 0;
  virtual void close_line(int number) = 0;
  virtual void configure_line(const std::string& settings) = 0;
  virtual void write_line(std::span<const std::uint8_t> bytes) = 0;
  // Called by the host with what came; dropped while the port is closed.
  void deliver(std::span<const std::uint8_t> bytes);
  // The host calls this when the console that used the port, and the events that it posted, are gone.
  void reset();

 private:
  void announce();

  EventLoop& loop_;
  int number_ = 1;
  bool open_ = false;
  bool announced_ = false;  // an event that will read the buffer is on its way
  std::string settings_;
  std::deque<std::uint8_t> in_;
};

}  // namespace evac

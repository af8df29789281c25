#include "platform/serial_port.h"

#include "model/fault.h"
#include "model/text.h"

namespace evac {

void SerialPort::open() {
  if (const auto reason = open_line(number_))
    throw Fault(FaultNumber::kPortUnavailable, join("Invalid port number: COM", number_, ": ", *reason));
  open_ = true;
}

void SerialPort::close() {
  if (!open_) return;
  open_ = false;
  in_.clear();
  close_line(number_);
}

void SerialPort::set_settings(const std::string& settings) {
  settings_ = settings;
  configure_line(settings);
}

void SerialPort::write(std::span<const std::uint8_t> bytes) {
  if (open_) write_line(bytes);
}

std::optional<std::uint8_t> SerialPort::read() {
  if (in_.empty()) return std::nullopt;
  const std::uint8_t byte = in_.front();
  in_.pop_front();
  // Whoever reads stops where it likes; what is behind is an event of its own.
  if (!in_.empty()) announce();
  return byte;
}

void SerialPort::deliver(std::span<const std::uint8_t> bytes) {
  if (!open_) return;
  in_.insert(in_.end(), bytes.begin(), bytes.end());
  announce();
}

void SerialPort::reset() {
  receive = nullptr;
  open_ = false;
  in_.clear();
  announced_ = false;
  settings_.clear();
}

void SerialPort::announce() {
  if (announced_) return;
  announced_ = true;
  loop_.post([this] {
    announced_ = false;
    receive();
  });
}

}  // namespace evac

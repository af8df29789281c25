#include "platform/serial_port.h"

#include <utility>

#include "model/fault.h"
#include "model/text.h"

namespace evac {
namespace {

constexpr std::chrono::seconds kRetry{1};

}  // namespace

void SerialPort::open() {
  if (const auto reason = open_line(number_))
    throw Fault(FaultNumber::kPortUnavailable, join("Invalid port number: COM", number_, ": ", *reason));
  state_ = State::kOpen;
}

void SerialPort::reopen() {
  state_ = State::kOpen;
  if (open_line(number_)) lose();
}

void SerialPort::close() {
  const State before = std::exchange(state_, State::kClosed);
  in_.clear();
  if (before == State::kOpen) close_line(number_);
  if (before == State::kLost) loss_changed(false);
}

void SerialPort::lose() {
  if (state_ != State::kOpen) return;
  state_ = State::kLost;
  loss_changed(true);
  try_later();
}

void SerialPort::try_later() {
  loop_.post_after(kRetry, [this, attempt = ++attempt_] {
    if (is_lost() && attempt == attempt_) try_again();
  });
}

void SerialPort::try_again() {
  if (open_line(number_)) return try_later();
  state_ = State::kOpen;
  loss_changed(false);
}

void SerialPort::set_settings(const std::string& settings) {
  settings_ = settings;
  configure_line(settings);
}

void SerialPort::write(std::span<const std::uint8_t> bytes) {
  if (carries()) write_line(bytes);
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
  if (!is_open()) return;
  in_.insert(in_.end(), bytes.begin(), bytes.end());
  announce();
}

void SerialPort::reset() {
  receive = nullptr;
  state_ = State::kClosed;
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

// The serial port on Qt SerialPort. Writing never waits. The first error of any kind after the opening closes
// the device, and the line counts as lost until its configured name can be opened again.
#pragma once

#include <QObject>
#include <QSerialPort>
#include <QTimer>
#include <chrono>
#include <map>

#include "desktop/notices.h"
#include "platform/serial_port.h"

namespace evac::desktop {

class SerialLine : public QObject, public SerialPort {
  Q_OBJECT
 public:
  // `devices`: the device of COM1 and of COM2.
  SerialLine(EventLoop& loop, std::map<int, QString> devices, Notices& notices);
  ~SerialLine() override;

  // Frames that were written and that the line, at its speed, has not carried yet.
  int frames_waiting() const;

 protected:
  std::optional<std::string> open_line(int number) override;
  void close_line(int number) override;
  void configure_line(const std::string& settings) override;
  void write_line(std::span<const std::uint8_t> bytes) override;
  void loss_changed(bool lost) override;

 private:
  using Clock = std::chrono::steady_clock;
  void take_bytes();
  void give_up();
  void show_backlog();
  void apply_settings();
  QString device() const;

  const std::map<int, QString> devices_;
  Notices& notices_;
  QSerialPort device_;
  QTimer backlog_;
  bool closing_ = false;                   // the console has closed its port, and not yet opened one again
  bool configuring_ = false;               // errors of opening and setting up are told by their callers
  std::chrono::nanoseconds character_{0};  // time of one character on the line
  Clock::time_point free_{};               // when the line has carried all that was written
};

}  // namespace evac::desktop

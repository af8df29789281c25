// The serial port on Qt SerialPort. Writing never waits: frames go through an outbox that keeps to the speed
// of the line and outlives the device. The first error of any kind after the opening closes the device, and
// the line counts as lost until its configured name can be opened again.
#pragma once

#include <QObject>
#include <QSerialPort>
#include <QSocketNotifier>
#include <QTimer>
#include <map>
#include <memory>

#include "desktop/notices.h"
#include "machine/outbox.h"
#include "platform/serial_port.h"

namespace evac::desktop {

class SerialLine : public QObject, public SerialPort, private LineDevice {
  Q_OBJECT
 public:
  // `devices`: the device of COM1 and of COM2.
  SerialLine(EventLoop& loop, std::map<int, QString> devices, Notices& notices);
  ~SerialLine() override;

  // Frames that were written and that the line, at its speed, has not carried yet.
  int frames_waiting() const { return outbox_.frames_waiting(Outbox::Clock::now()); }
  const Outbox& outbox() const { return outbox_; }

 protected:
  std::optional<std::string> open_line(int number) override;
  void close_line(int number) override;
  void configure_line(const std::string& settings) override;
  void write_line(std::span<const std::uint8_t> bytes) override;
  bool keeps_frames() const override { return true; }
  void loss_changed(bool lost) override;

 private:
  std::optional<std::size_t> take(std::span<const std::uint8_t> bytes) override;
  void take_bytes();
  // Hands over what the line can carry soon, and comes back for the rest.
  void hand_over();
  void give_up();
  void show_backlog();
  void apply_settings();
  QString device() const;

  const std::map<int, QString> devices_;
  Notices& notices_;
  QSerialPort device_;
  QString opened_;                             // the configured name of the open device
  std::unique_ptr<QSocketNotifier> writable_;  // while the device is open
  Outbox outbox_;
  QTimer hand_over_, backlog_;
  bool closing_ = false;      // the console has closed its port, and not yet opened one again
  bool configuring_ = false;  // errors of opening and setting up are told by their callers
};

}  // namespace evac::desktop

// The line to the controller: every frame that the console can send, and the machine that takes frames off
// the line. A frame leaves at once, from the handler that makes it. There is no queue, no acknowledgement and
// no retry.
#pragma once

#include <functional>

#include "model/system_model.h"
#include "platform/serial_port.h"

namespace evac {

// Digits of `decimal` read as hexadecimal: 12 gives 0x12. An overflow fault when that does not fit a byte.
std::uint8_t digits_as_hex(int decimal);

class Link {
 public:
  // Devices and operations of SendSource, as the decimal numbers that callers give.
  static constexpr int kSourceCommand = 6;
  static constexpr int kCdDeck = 11, kTuner = 12, kMp3Deck = 13;

  struct Doors {
    LinkState& state;
    SerialPort& port;
  };
  explicit Link(const Doors& doors) : doors_(doors) {}

  // Sync off, no body: the state at start.
  void reset_receiver();
  // Called with each complete frame, while the machine is ready for the next one.
  Event<> frame_received;
  // Takes all that waits in the port's buffer.
  void receive();
  // From `frame_received`: what is behind this frame is an event of its own, so that whoever waits for the
  // frame sees it before the next one takes its place.
  void leave_rest() { rest_waits_ = true; }
  // One byte through the receive machine.
  void take(std::uint8_t byte);

  // All of these fault with an overflow when an argument does not fit its byte; then nothing is sent.
  // Channel, volume and zone as numbers.
  void SendZoneSet(int channel, int volume, int zone);
  // The terminal's number is split by 256.
  void SendTermSet(int channel, int volume, int terminal);
  // Numbers of up to two decimal digits, each sent as those digits.
  void SendSource(int command, int device, int channel, int operation, int value);
  // Two outputs a byte, the odd one in the low nibble.
  void SendMatrix(const std::array<std::uint8_t, 4>& pairs);
  void SendAllStop();
  // Three frames, back to back.
  void SendAlertStart();
  // Outlet mask of sequencer code 0..7.
  void SendSeqPower(int code, int mask);
  void SendAlarm9(bool on);
  void SendAlarm10(bool on);
  // The high byte is rounded to the nearest whole number, ties to even, unlike that of SendTermSet.
  void SendScanQuery(int terminal);
  void SendPollAnswer();
  void SendDate(Date today);
  void SendTime(int second_of_day);

 private:
  // A port that carries nothing switches nothing.
  void note_alarm_zones(bool on);
  void send(Frame9& buffer, std::uint8_t command, const std::array<std::uint8_t, 5>& data);

  const Doors doors_;
  bool rest_waits_ = false;
};

}  // namespace evac

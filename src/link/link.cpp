#include "link/link.h"

#include <numeric>

#include "model/fault.h"
#include "model/text.h"

namespace evac {
namespace {

constexpr std::uint8_t kSync = 0xAA;
constexpr int kSyncBytes = 2;
constexpr int kBodyBytes = kFrameSize - kSyncBytes;

// Commands and fixed data bytes of outgoing frames.
enum Command : std::uint8_t {
  kCmdAlarm10 = 0x01,
  kCmdAddress = 0x04,
  kCmdMatrix = 0x05,
  kCmdSeqPower = 0x07,
  kCmdAlarm9 = 0x09,
  kCmdScanQuery = 0x0A,
  kCmdPollAnswer = 0x20,
  kCmdCalendar = 0xFA
};
constexpr std::uint8_t kZoneAddress = 0xFD, kTerminalAddress = 0xFC;
constexpr std::uint8_t kMatrixMark = 0xEE, kSeqPowerMark = 0xEE, kScanMark = 0x03, kPollMark = 0x11;
constexpr std::uint8_t kDateMark = 0x05, kTimeMark = 0x06;
constexpr std::uint8_t kPowerOn = 0x00, kPowerOff = 0xFF;

struct FixedFrame {
  std::uint8_t command;
  std::array<std::uint8_t, 5> data;
};
// Power of alarm channel 9 off is, byte for byte, the stop of all.
constexpr FixedFrame kAllStop = {kCmdAlarm9, {0x00, kPowerOff, 0x00, 0x00, 0x00}};
constexpr FixedFrame kAlertStart[] = {{0x0C, {0x01, 0x00, 0xD2, 0x00, 0xAA}},
                                      {0x20, {0x01, 0x02, 0xD2, 0x00, 0xAA}},
                                      {0x09, {0x00, 0x0F, 0xD2, 0x00, 0xAA}}};

// value / 256 to the nearest whole number, ties to even.
int nearest_high_byte(int value) {
  const int whole = value / 256, rest = value % 256;
  return whole + (rest > 128 || (rest == 128 && whole % 2 == 1) ? 1 : 0);
}

}  // namespace

std::uint8_t digits_as_hex(int decimal) {
  if (decimal < 0 || decimal > 99) overflow();
  return static_cast<std::uint8_t>(decimal / 10 * 16 + decimal % 10);
}

void Link::reset_receiver() {
  doors_.state.rx_state = 0;
  doors_.state.rx_count = 0;
}

void Link::receive() {
  rest_waits_ = false;
  while (!rest_waits_) {
    const auto byte = doors_.port.read();
    if (!byte) return;
    take(*byte);
  }
}

void Link::take(std::uint8_t byte) {
  LinkState& state = doors_.state;
  switch (state.rx_state) {
    case 0:
      if (byte != kSync) return;
      state.r_frame[0] = kSync;
      state.rx_state = 1;
      return;
    case 1:
      state.rx_count = 0;
      state.rx_state = byte == kSync ? 2 : 0;
      if (byte == kSync) state.r_frame[1] = kSync;
      return;
    default: {
      const auto at = static_cast<std::size_t>(state.rx_count);
      state.r_frame[at + kSyncBytes] = byte;
      state.r_buf[at] = byte;
      if (++state.rx_count < kBodyBytes) return;
      reset_receiver();
      frame_received();
    }
  }
}

void Link::SendZoneSet(int channel, int volume, int zone) {
  send(doors_.state.h_buf, kCmdAddress, {ToByte(channel), ToByte(volume), kZoneAddress, ToByte(zone), 0});
}

void Link::SendTermSet(int channel, int volume, int terminal) {
  send(doors_.state.h_buf, kCmdAddress,
       {ToByte(channel), ToByte(volume), kTerminalAddress, ToByte(terminal % 256), ToByte(terminal / 256)});
}

void Link::SendSource(int command, int device, int channel, int operation, int value) {
  Frame9 buffer;
  send(buffer, digits_as_hex(command),
       {digits_as_hex(device), digits_as_hex(channel), digits_as_hex(operation), digits_as_hex(value), 0});
}

void Link::SendMatrix(const std::array<std::uint8_t, 4>& pairs) {
  Frame9 buffer;
  send(buffer, kCmdMatrix, {kMatrixMark, pairs[0], pairs[1], pairs[2], pairs[3]});
}

void Link::SendAllStop() {
  note_alarm_zones(false);
  send(doors_.state.h_buf, kAllStop.command, kAllStop.data);
}

void Link::SendAlertStart() {
  note_alarm_zones(true);
  for (const auto& frame : kAlertStart) send(doors_.state.h_buf, frame.command, frame.data);
}

void Link::SendSeqPower(int code, int mask) {
  send(doors_.state.t_buf, kCmdSeqPower, {ToByte(code), ToByte(mask), kSeqPowerMark, 0, 0});
}

void Link::SendAlarm9(bool on) {
  if (!on) note_alarm_zones(false);
  send(doors_.state.t_buf, kCmdAlarm9, {0, on ? kPowerOn : kPowerOff, 0, 0, 0});
}

void Link::SendAlarm10(bool on) {
  send(doors_.state.t_buf, kCmdAlarm10, {on ? kPowerOn : kPowerOff, 0, 0, 0, 0});
}

void Link::SendScanQuery(int terminal) {
  send(doors_.state.h_buf, kCmdScanQuery,
       {kScanMark, ToByte(terminal % 256), ToByte(nearest_high_byte(terminal)), 0, 0});
}

void Link::SendPollAnswer() {
  send(doors_.state.t_buf, kCmdPollAnswer, {kPollMark, 0, 0, 0, 0});
}

void Link::SendDate(Date today) {
  send(doors_.state.t_buf, kCmdCalendar,
       {kDateMark, ToByte(year_number(today) % 100), ToByte(month_number(today)), ToByte(day_number(today)),
        ToByte(weekday_number(today))});
}

void Link::SendTime(int second_of_day) {
  send(doors_.state.t_buf, kCmdCalendar,
       {kTimeMark, ToByte(second_of_day / 3600), ToByte(second_of_day / 60 % 60), ToByte(second_of_day % 60),
        0});
}

void Link::note_alarm_zones(bool on) {
  if (doors_.port.carries()) doors_.state.alarm_zones_on = on;
}

void Link::send(Frame9& buffer, std::uint8_t command, const std::array<std::uint8_t, 5>& data) {
  buffer = {kSync, kSync, command, data[0], data[1], data[2], data[3], data[4], 0};
  buffer.back() =
      static_cast<std::uint8_t>(std::accumulate(buffer.begin() + kSyncBytes, buffer.end() - 1, 0) & 0xFF);
  doors_.port.write(buffer);
}

}  // namespace evac

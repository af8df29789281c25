// What the network behind the controller is doing, as the console's frames have told it: zones, terminals,
// power, audio matrix, sources, and the controller's calendar and clock.
#pragma once

#include <chrono>
#include <optional>

#include "rack/frame.h"

namespace evac::rack {

// Microseconds since a moment of the caller's choice.
using Time = std::chrono::microseconds;

struct Output {
  bool on = false;
  int channel = 0, volume = 0;
  int times_set = 0;
};

struct Source {
  bool playing = false;
  int output = 0;     // 1..8 by the number on the source's panel
  int operation = 0;  // as on the line; for the tuner 1 FM, 2 AM
  int value = 0;      // track or station
};

class Network {
 public:
  static constexpr int kZones = 120, kTerminals = 255, kBlocks = 8;

  void obey(const Order& order, Time now);

  // By number, from 1.
  const Output& zone(int number) const { return zones_.at(static_cast<std::size_t>(number - 1)); }
  const Output& terminal(int number) const { return terminals_.at(static_cast<std::size_t>(number - 1)); }
  int zones_on() const;
  // Outlet 1..8 of block 1..8.
  bool outlet(int block, int outlet) const;
  // Input of output 1..8: 0 muted, 15 none.
  int matrix_input(int output) const { return matrix_.at(static_cast<std::size_t>(output - 1)); }
  const Source& cd() const { return cd_; }
  const Source& mp3() const { return mp3_; }
  const Source& tuner() const { return tuner_; }
  bool alarm9() const { return alarm9_; }
  bool alarm10() const { return alarm10_; }
  // All three frames of the alert's start came, and nothing has stopped it since.
  bool alert() const { return alert_parts_ == 3; }

  // The controller's own calendar and clock run from 1 January 2000 until the console sets them.
  std::chrono::local_seconds calendar(Time now) const;
  bool date_set() const { return date_set_; }
  bool time_set() const { return time_set_; }
  int weekday() const { return weekday_; }

 private:
  void act(const ZoneSet&, Time);
  void act(const TerminalSet&, Time);
  void act(const MatrixSet&, Time);
  void act(const SourceSet&, Time);
  void act(const OutletsSet&, Time);
  void act(const AlarmPower&, Time);
  void act(const AlertStart&, Time);
  void act(const DateSet&, Time);
  void act(const TimeSet&, Time);
  template <class Other>
  void act(const Other&, Time) {}

  std::array<Output, kZones> zones_{};
  std::array<Output, kTerminals> terminals_{};
  std::array<std::uint8_t, kBlocks> outlets_{};
  std::array<int, 8> matrix_{};
  Source cd_, mp3_, tuner_;
  bool alarm9_ = false, alarm10_ = false;
  int alert_parts_ = 0;
  std::chrono::local_seconds clock_{std::chrono::local_days{std::chrono::year{2000} / 1 / 1}};
  Time clock_set_at_{};
  bool date_set_ = false, time_set_ = false;
  int weekday_ = 6;
};

}  // namespace evac::rack

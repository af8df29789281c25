#include "rack/network.h"

#include <algorithm>

namespace evac::rack {
namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::hours;
using std::chrono::local_days;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr int kStopOperation = 5;

void route(Output& output, int channel, int volume) {
  output = {channel > 0, channel, volume, output.times_set + 1};
}

}  // namespace

void Network::obey(const Order& order, Time now) {
  std::visit([&](const auto& o) { act(o, now); }, order);
}

int Network::zones_on() const {
  return static_cast<int>(std::count_if(zones_.begin(), zones_.end(), [](auto& zone) { return zone.on; }));
}

bool Network::outlet(int block, int outlet) const {
  return outlets_.at(static_cast<std::size_t>(block - 1)) & (1 << (8 - outlet));
}

std::chrono::local_seconds Network::calendar(Time now) const {
  return clock_ + floor<seconds>(now - clock_set_at_);
}

void Network::act(const ZoneSet& o, Time) {
  route(zones_[static_cast<std::size_t>(o.zone - 1)], o.channel, o.volume);
}

void Network::act(const TerminalSet& o, Time) {
  route(terminals_[static_cast<std::size_t>(o.terminal - 1)], o.channel, o.volume);
}

void Network::act(const MatrixSet& o, Time) {
  matrix_ = o.inputs;
}

void Network::act(const SourceSet& o, Time) {
  Source& source = o.device == 0x11 ? cd_ : o.device == 0x13 ? mp3_ : tuner_;
  source = {o.operation != kStopOperation, o.output + 1, o.operation, o.value};
}

void Network::act(const OutletsSet& o, Time) {
  outlets_[static_cast<std::size_t>(o.block - 1)] = o.mask;
}

void Network::act(const AlarmPower& o, Time) {
  (o.channel == 9 ? alarm9_ : alarm10_) = o.on;
  if (o.channel != 9 || o.on) return;
  for (auto& zone : zones_) zone.on = false;
  for (auto& terminal : terminals_) terminal.on = false;
  alert_parts_ = 0;
}

void Network::act(const AlertStart& o, Time) {
  if (o.part == 1)
    alert_parts_ = 1;
  else if (alert_parts_ == o.part - 1)
    alert_parts_ = o.part;
}

void Network::act(const DateSet& o, Time now) {
  const auto running = calendar(now);
  const local_days date{std::chrono::year{o.year} / o.month / o.day};
  clock_ = date + (running - floor<days>(running));
  clock_set_at_ = now;
  date_set_ = true;
  weekday_ = o.weekday;
}

void Network::act(const TimeSet& o, Time now) {
  clock_ = floor<days>(calendar(now)) + hours(o.hour) + minutes(o.minute) + seconds(o.second);
  clock_set_at_ = now;
  time_set_ = true;
}

}  // namespace evac::rack

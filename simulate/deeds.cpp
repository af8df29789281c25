// What befalls the system in its days: fires, an operator, faults of the machine, noise, kills.
#include "model/text.h"
#include "simulate/simulation.h"

namespace evac::simulate {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr int kLastAlgorithm = 96;

std::string milliseconds_text(milliseconds time) {
  return join(time.count(), "ms");
}

}  // namespace

void Simulation::choose_deed() {
  later(chance(6) ? some(5min, 1h) : some(2s, 60s), "!deed");
  const int what = below(100);
  if (what < 36)
    fire();
  else if (what < 54)
    operator_comes();
  else if (what < 65)
    line_fault();
  else if (what < 74)
    disk_fault();
  else if (what < 82)
    device_fault();
  else if (what < 88)
    clock_step();
  else if (what < 94)
    alarm_frame();
  else if (what < 96)
    lines_.push_back(join("kill in ", below(3000)));
  else
    lines_.push_back("kill");
}

void Simulation::poll_otherwise() {
  constexpr std::array kPeriods = {100ms, 500ms, 1000ms, 1000ms, 3000ms, 3000ms};
  rack_.set_poll_period(kPeriods[static_cast<std::size_t>(below(kPeriods.size()))]);
  later(some(10min, 3h), "!polls");
}

void Simulation::fire() {
  ++counts_.fires;
  milliseconds at{0};
  for (int more = below(3); more >= 0; --more) {
    const int zone = 1 + below(chance(10) ? kContacts : kLastAlgorithm);
    later(at, join("contact ", zone, " on"));
    // So short that the engine may miss it, or long beyond the message.
    const milliseconds burns = chance(15) ? some(20ms, 400ms) : chance(70) ? some(1s, 40s) : some(1s, 6min);
    later(at + burns, join("contact ", zone, " off"));
    at += some(0ms, chance(50) ? 300ms : 30s);
  }
  // Somebody comes, and puts all back to rest.
  if (attended_ && chance(60)) {
    const milliseconds late = some(10s, 5min);
    later(at + late, "click Form1.CmdStF");
    later(at + late + 2s, "click Form1.CmdStF");
  }
}

void Simulation::operator_comes() {
  if (!attended_ || std::exchange(busy_, true)) return;
  later(some(5s, 90s), "!busy over");
  later(0ms, "!press");
  if (chance(50)) lines_.push_back(chance(50) ? "answer yes" : "answer text \"3\"");
}

void Simulation::operator_at_work() {
  Console& console = *drill_.console();
  std::string press = busy_ && !chance(4) ? operator_.press(console) : Operator::leave(console);
  // Who goes closes what is open, and mostly sees to it that detection is on again.
  if (press.empty() && !busy_ && chance(80)) press = Operator::put_right(console);
  if (!busy_ && press.empty()) return;
  later(some(30ms, 1500ms), "!press");
  if (!press.empty()) lines_.push_back(press);
}

void Simulation::line_fault() {
  ++counts_.line_faults;
  switch (below(4)) {
    case 0:
      for (int blinks = below(5); blinks >= 0; --blinks) {
        later(milliseconds(blinks * 3000), "line lost");
        later(milliseconds(blinks * 3000) + some(1ms, 2s), "line back");
      }
      break;
    case 1:
      later(0ms, "line lost");
      later(chance(10) ? some(1h, 4h) : some(1s, 3min), "line back");
      break;
    case 2:
      later(0ms, "line stall");
      later(some(5ms, 10s), "line work");
      break;
    default:
      later(0ms, join("line short ", 1 + below(8)));
      later(some(1s, 1h), "line work");
  }
  if (chance(20)) fire();
}

void Simulation::disk_fault() {
  ++counts_.disk_faults;
  switch (below(4)) {
    case 0:
      later(0ms, chance(50) ? "disk full" : "disk fail");
      break;
    case 1:
      later(0ms, join("disk room ", below(5000)));
      break;
    case 2:
      later(0ms, join("disk short ", 1 + below(100)));
      break;
    default:
      // As long as the host lets a write hold it.
      later(0ms, join("disk stall ", 1 + below(20), "ms"));
      return;
  }
  later(some(1s, 10min), "disk work");
  if (chance(30)) fire();
}

void Simulation::device_fault() {
  ++counts_.other_faults;
  const int card = below(2);
  switch (below(4)) {
    case 0:
      later(0ms, join("card ", card, " fail"));
      later(some(100ms, 5min), join("card ", card, " work"));
      break;
    case 1:
      later(0ms, join("card ", card, " stall ", 1 + below(50), "ms"));
      break;
    case 2:
      later(0ms, "media silent");
      later(some(1s, 5min), "media work");
      break;
    default:
      later(0ms, "hold " + milliseconds_text(some(100ms, 20s)));
  }
}

void Simulation::clock_step() {
  ++counts_.steps;
  lines_.push_back(join(chance(50) ? "clock on " : "clock back ",
                        milliseconds_text(chance(50) ? some(1ms, 2s) : some(1s, 60s))));
}

void Simulation::alarm_frame() {
  ++counts_.alarms;
  if (chance(50)) {
    rack_.report_alarm(1 + below(kZones));
    return;
  }
  std::vector<std::uint8_t> noise;
  for (int n = 1 + below(40); n > 0; --n) noise.push_back(static_cast<std::uint8_t>(below(0xA9)));
  if (chance(30)) noise.insert(noise.end(), {0xAA, 0xAA, static_cast<std::uint8_t>(below(0x10))});
  lines_.push_back("!garbled");
  lines_.push_back(received(noise));
}

}  // namespace evac::simulate

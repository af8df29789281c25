// A console on a virtual machine, and behind its line the virtual rack on the same clock. Whenever time
// may pass no further, the bytes are carried.
#pragma once

#include "rack/rack.h"
#include "tests/alert_rig.h"

namespace evac {

struct RackRig : AlertRig {
  RackRig() {
    machine.trace = [this, log = machine.trace](const std::string& line) {
      log(line);
      // What was written leaves before any more time passes.
      if (line.starts_with("tx")) machine.allow({});
    };
    machine.out_of_time = [this] {
      carry();
      // Little at a time: what is left over when the wait ends passes all the same.
      machine.allow(std::min(until_rack(), std::chrono::milliseconds(20)));
    };
  }

  // Preset 1 with terminals 1 to `last` in use.
  void settle_terminals(int last) {
    std::vector<std::string> labels;
    for (int t = 1; t <= last; ++t) labels.push_back(std::to_string(t));
    write("F_ustT1.dat", 256, labels);
  }

  // Lets time pass.
  void run(std::chrono::milliseconds duration) {
    for (const Instant until = machine.now() + duration; machine.now() < until;) {
      carry();
      machine.run_for(std::min(until - machine.now(), until_rack()));
    }
    carry();
  }
  // A pass of the scan; the seconds that it takes.
  double scan() {
    const Instant began = machine.now();
    console->form1().CmdSkan.click();
    while (console->model().supervision.ScanRunning) machine.loop().pump();
    return std::chrono::duration<double>(machine.now() - began).count();
  }

  rack::Rack rack{[this](std::span<const std::uint8_t> bytes) { machine.receive(bytes); }};
  std::size_t frames_carried = 0;

 private:
  void carry() {
    rack.advance(machine.now().time_since_epoch());
    while (!machine.sent().empty()) {
      const Frame9 frame = machine.sent().front();
      machine.sent().pop_front();
      ++frames_carried;
      rack.receive(frame);
    }
  }
  std::chrono::milliseconds until_rack() const {
    const auto due = rack.next_due();
    if (!due) return std::chrono::hours(1);
    const auto gap = std::chrono::ceil<std::chrono::milliseconds>(*due - machine.now().time_since_epoch());
    return std::max(gap, std::chrono::milliseconds(0));
  }
};

}  // namespace evac

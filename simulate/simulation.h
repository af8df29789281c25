// The whole system on the virtual clock, from one seed: the console in its machine, the rack behind its line,
// an operator, fires, a schedule, faults, kills and restarts. All that is done to the console is a line of
// the drill's language, so that a day that breaks a rule can be told again as a drill.
#pragma once

#include <filesystem>
#include <map>
#include <random>

#include "drill/drill.h"
#include "simulate/operator.h"
#include "simulate/rules.h"

namespace evac::simulate {

class Simulation {
 public:
  // `root` is an empty directory.
  Simulation(std::filesystem::path root, unsigned seed);

  // Lives so many days; throws Broken.
  void live(double days);
  double days() const;
  const Rules& rules() const { return rules_; }
  struct Counts {
    long starts = 0, kills = 0, presses = 0, alarms = 0, fires = 0, restarts = 0, steps = 0, line_faults = 0,
         disk_faults = 0, other_faults = 0;
    std::map<std::string, long> told_faults;
  };
  const Counts& counts() const { return counts_; }
  // The files at the last start, and all that was done since.
  std::string as_drill(const std::string& why) const;

 private:
  int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool chance(int percent) { return below(100) < percent; }
  std::chrono::milliseconds some(std::chrono::milliseconds least, std::chrono::milliseconds most) {
    return least + std::chrono::milliseconds(below(static_cast<int>((most - least).count()) + 1));
  }
  Instant now() { return drill_.machine().now(); }

  // The engineer's work, before the first start and again where an operator has undone it.
  void settle();
  // The drill asks for its next line, and tells what came of it.
  bool next_line(std::string& line);
  void told(const std::string& line, bool result);
  void after_start();
  void carry();
  std::string next_deed();
  void begin_process();
  void choose_deed();
  void fire();
  void operator_comes();
  void operator_at_work();
  void line_fault();
  void disk_fault();
  void device_fault();
  void clock_step();
  void alarm_frame();
  void poll_otherwise();
  bool fault_is_told(int number) const;
  void later(std::chrono::milliseconds in, std::string deed) { agenda_.emplace(now() + in, std::move(deed)); }
  void record(const std::string& line);
  // The bytes as a line of the drill.
  static std::string received(std::span<const std::uint8_t> bytes);

  const unsigned seed_;
  std::mt19937 random_;
  std::deque<std::string> lines_;  // to be obeyed before anything else
  drill::Drill drill_;
  Rules rules_;
  Operator operator_;
  rack::Rack rack_;
  // What happens when: lines of the drill, or with "!" before them the simulation's own.
  std::multimap<Instant, std::string> agenda_;
  Instant end_{};
  bool alert_by_block_ = false;
  bool attended_ = false, busy_ = false;  // an operator comes now and then, and stands at the console
  std::string last_press_;
  int test_zone_ = 0;  // of the test start, when it was pressed last
  bool line_open_ = false, line_stalled_ = false;
  bool killed_in_write_ = false;
  std::optional<std::string> broken_;
  Counts counts_;
  // The drill of this process.
  std::vector<std::string> before_, script_;
  std::chrono::milliseconds waited_{0};
  std::string setup_;
};

}  // namespace evac::simulate

// A season of virtual time with automatic control every quarter of an hour, all from one seed: terminals fall
// silent and come back, the clock jumps, it burns, operators press in the middle of a pass. Every scan must
// come in its very second, but for those whose second a jump of the clock left out; every report must name
// exactly the silent terminals; memory may not grow. Prints a line every ten days; ends with status 1 at the
// first thing that is wrong.
#include <set>

#include "tests/soak/soak.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr int kInUse = 24, kLimit = 3, kPeriod = 15 * 60;

class Season : Dice {
 public:
  explicit Season(unsigned seed) : Dice(seed) {
    rig_.logging = false;
    rig_.sound("fire.wav", 20);
    auto lines = controller_settings();
    lines[kAutoControl] = lines[kAudibleWarning] = lines[kRemoteControl] = "1";
    lines[kScanMinutes] = std::to_string(kPeriod / 60);
    lines[kScanCycles] = std::to_string(kLimit);
    rig_.settle(lines);
    rig_.settle_steps({step_record(7, 1, 1, 7)});
    rig_.settle_terminals(kInUse);
    rig_.start();
    rig_.rack.set_paced(true);
    rig_.rack.set_poll_period(61s);
    rig_.rack.set_polls_in_scan(true);
    rig_.rack.passed = [this](const rack::Passed& passed) {
      const auto order = rack::order_of(passed.frame);
      const auto* query = std::get_if<rack::TerminalQuery>(&order);
      if (!passed.from_console || !query) return;
      ++counts.queries;
      if (query->terminal == 1) ++counts.passes;
    };
    next_ = supervision().NextCheck;
  }

  // One event, then some quiet hours.
  void live() {
    switch (below(12)) {
      case 0:
        jump(std::chrono::seconds(below(2 * 3600)) + milliseconds(below(1000)));
        break;
      case 1:
        jump(-std::chrono::seconds(below(2 * 3600)) - milliseconds(below(1000)));
        break;
      case 2:
        jump(milliseconds(below(200) - 100));
        break;
      case 3:
        fire();
        break;
      case 4:
        disturb([this] { rig_.machine.set_contact(7, true); });
        want(!supervision().auto_mode, "a fire in a pass leaves the monitor on");
        end_fire();
        break;
      case 5:
        disturb([this] { form().CmdSkan.click(); });
        break;
      case 6:
        disturb([this] {
          form().CmdArm.click();
          form().CmdZ.click();
        });
        next_ = supervision().NextCheck;
        break;
      case 7:
        // Back to the second in which the pass began: it comes again while the pass runs.
        disturb([this] { rig_.machine.set_wall(rig_.machine.wall() - milliseconds(1200)); });
        break;
      case 8:
        by_hand();
        break;
      case 9:
        form().CmdSb.click();
        missed_.clear();
        want(form().List4.count() == 0 && !form().Timer9.enabled(), "something found outlives the reset");
        break;
      default:
        for (int n = below(4); n > 0; --n) {
          const int terminal = 1 + below(kInUse);
          const bool silent = silent_.insert(terminal).second;
          if (!silent) silent_.erase(terminal);
          rig_.rack.set_silent(terminal, silent);
        }
    }
    ++counts.events;
    let_pass(std::chrono::seconds(600 + below(4 * 3600)));
    want(counts.passes == counts.expected, "more scans than expected");
  }
  double days() const { return static_cast<double>(rig_.machine.now().time_since_epoch() / 1s) / 86400.0; }

  std::string told() const {
    return join(counts.events, " events, ", counts.passes, " scans (", counts.jumped_over,
                " seconds jumped over), ", counts.told, " exact reports, ", counts.queries, " queries");
  }

 private:
  Form1& form() { return rig_.console->form1(); }
  SupervisionState& supervision() { return rig_.console->model().supervision; }
  // Until the second of the next scan begins.
  milliseconds until_next() {
    const auto wall = rig_.machine.wall().time_since_epoch() % 24h;
    const auto gap = std::chrono::seconds(next_) - wall;
    return std::chrono::duration_cast<milliseconds>(gap > 0ms ? gap : gap + 24h);
  }
  // Quiet time, with the scans that are due in it or a moment behind it: never does it end just before one.
  void let_pass(milliseconds duration) {
    for (const Instant until = rig_.machine.now() + duration; rig_.machine.now() < until;) {
      const bool due = supervision().auto_mode && until_next() < until - rig_.machine.now() + 5s;
      const long before = counts.passes;
      rig_.run(due ? until_next() - 5ms : until - rig_.machine.now());
      want(counts.passes == before, "a scan out of its time");
      if (due) scan(true);
    }
  }
  // The very second of a scan; nothing happens in it but that, if `quiet`.
  void scan(bool quiet) {
    const long before = counts.passes;
    const int polls = rig_.rack.polls_sent();
    const int began = next_;
    rig_.run(1005ms);
    ++counts.expected;
    want(counts.passes == before + 1, "a scan was missed, or came twice");
    want(!supervision().ScanRunning, "a scan without an end");
    next_ = supervision().NextCheck;
    const int took = later_in_day(next_, -kPeriod - began);
    want(!quiet || took <= kInUse, "the next scan is not a period behind this one");
    // A poll in the wait ends it.
    check_report(quiet && rig_.rack.polls_sent() == polls);
  }
  void check_report(bool exact) {
    if (!exact) {
      missed_.clear();
      for (int t = 1; t <= kInUse; ++t)
        if (const int count = supervision().TermMissCount[t]) missed_[t] = count;
      return;
    }
    ++counts.told;
    for (auto at = missed_.begin(); at != missed_.end();)
      at = silent_.contains(at->first) ? std::next(at) : missed_.erase(at);
    for (const int terminal : silent_) ++missed_[terminal];
    std::set<int> told;
    for (const auto& line : form().List5.rows())
      if (const int name = InStr(line, "Терминал "); name > 0)
        told.insert(Number(Mid(line, name + Len("Терминал "), 3)));
    want(told == silent_, "the report does not name the silent terminals");
    bool lost = false;
    for (int t = 1; t <= kInUse; ++t) {
      const auto count = missed_.find(t);
      want(supervision().TermMissCount[t] == (count == missed_.end() ? 0 : count->second),
           "passes missed are miscounted");
      lost |= count != missed_.end() && count->second >= kLimit;
    }
    want(!lost || form().Timer9.enabled(), "a terminal is lost without an alarm");
  }
  // Something happens half a second into the next scan.
  void disturb(const std::function<void()>& deed) {
    rig_.run(until_next() - 5ms);
    rig_.machine.loop().post_after(500ms, deed);
    scan(false);
  }
  void jump(milliseconds by) {
    const milliseconds before = until_next();
    if (std::chrono::abs(before - by) < 5s) return;  // the second itself
    rig_.machine.set_wall(rig_.machine.wall() + by);
    if (by > 0ms && before < by) ++counts.jumped_over;
    // An operator who sees the countdown of a day begins it anew.
    if (until_next() > 3h && below(2) == 0) monitor_anew();
  }
  void monitor_anew() {
    if (supervision().auto_mode) form().CmdZ.click();
    form().CmdZ.click();
    next_ = later_in_day(second_of_day(rig_.machine.wall()), kPeriod);
    want(supervision().NextCheck == next_, "the period does not begin at the switch");
  }
  void fire() {
    rig_.machine.set_contact(7, true);
    rig_.run(1s);
    want(!supervision().auto_mode, "a fire leaves the monitor on");
    end_fire();
  }
  void end_fire() {
    rig_.run(30s);
    rig_.machine.set_contact(7, false);
    for (int i = 0; i < 2; ++i) form().CmdStF.click();
    // Nobody watches the terminals until the operator does so again.
    let_pass(std::chrono::seconds(below(2 * kPeriod)));
    monitor_anew();
  }
  void by_hand() {
    const long before = counts.passes;
    form().CmdArm.click();
    want(counts.passes == before + 1 && form().Lbl_m.caption() == "Все в порядке", "no scan by hand");
    want(!supervision().auto_mode, "both modes are on");
    check_report(false);
    ++counts.expected;
    let_pass(1h);
    monitor_anew();
    want(!supervision().ManualMode, "both modes are on");
  }

  RackRig rig_;
  struct {
    long events = 0, passes = 0, queries = 0, expected = 0, jumped_over = 0, told = 0;
  } counts;
  int next_ = 0;  // second of the day of the next scan, by our own reckoning
  std::set<int> silent_;
  std::map<int, int> missed_;
};

}  // namespace
}  // namespace evac

int main(int argc, char** argv) {
  return evac::soak<evac::Season>(argc, argv, 90, 1);
}

// A year of virtual time with a fire, a test or a hand on the panel every few hours, all from one seed. After
// each the system must be where it belongs: watching again, or held where the operator left it. Nothing may
// fault, and memory may not grow. Prints a line a month; ends with status 1 at the first thing that is wrong.
#include "tests/soak/soak.h"
namespace evac {
namespace {

using namespace std::chrono_literals;

class Year : Dice {
 public:
  explicit Year(unsigned seed) : Dice(seed) {
    rig_.logging = false;
    rig_.machine.trace = [](const std::string&) {};
    for (const auto& [name, seconds] : {std::pair{"fire.wav", 20.0}, {"short.wav", 3.5}, {"long.wav", 180.0}})
      rig_.sound(name, seconds);
    const std::string all = "7" + std::string(kZones - 1, '1');
    std::vector<std::string> steps;
    for (int z = 1; z <= 96; ++z) {
      if (z % 16 == 9) continue;  // no algorithm
      if (z % 16 == 4) {
        steps.push_back(algorithm_record(std::to_string(z), 1, "short.wav", "2", all));
        continue;
      }
      const bool cannot_open = z % 16 == 13;
      steps.push_back(step_record(z, 1, 1 + z % 5, z, cannot_open ? "gone.wav" : "fire.wav"));
      if (z % 3 == 0) steps.push_back(step_record(z, 2, 1 + z % 7, z % kZones + 1, "short.wav"));
      if (z % 6 == 0) steps.push_back(step_record(z, 3, 1, z % kZones + 1, "long.wav"));
    }
    rig_.settle_steps(steps);
    for (const char* type : {"1", "3"}) restart(type);
  }

  // One event, and what must be true after it; then a few quiet hours.
  void live() {
    switch (below(10)) {
      case 0:
        block_alarm();
        break;
      case 1:
        manual_message();
        break;
      case 2:
        test_start();
        break;
      case 3:
        all_zones();
        break;
      case 4:
        stop_under_fire();
        break;
      default:
        fire();
    }
    const auto sent = frames_;
    run(std::chrono::seconds(3600 + below(4 * 3600)));
    want(watching(), "not watching after some quiet hours");
    want(frames_ == sent, "frames out of a quiet house");
  }
  double days() const { return static_cast<double>(rig_.machine.now().time_since_epoch() / 1s) / 86400.0; }
  std::string told() const { return join(events_, " events"); }

 private:
  // The machine keeps what was sent until somebody takes it.
  void run(std::chrono::milliseconds duration) {
    for (; duration > 10s; duration -= 10s) {
      rig_.run(10s);
      frames_ += rig_.machine.sent().size();
      rig_.forget();
    }
    rig_.run(duration);
    frames_ += rig_.machine.sent().size();
    rig_.machine.sent().clear();
  }
  Form1& form() { return rig_.console->form1(); }
  AlertState& alert() { return rig_.alert(); }
  void answer_yes() { rig_.machine.queue_answer({drill::Answer::Kind::kYes, "", 0ms}); }
  bool watching() {
    return !alert().al_active && !alert().fire_stop && !alert().msg_manual && !form().Timer5.enabled() &&
           !form().Timer6.enabled() && !form().Timer7.enabled() &&
           rig_.mode_line() == (type_ == "3" ? "Автоматическое оповещение о пожаре" : "Q-4710");
  }
  void reset() {
    ++events_;
    if (alert().fire_stop) form().CmdStF.click();
    for (int i = 0; i < 2; ++i) form().CmdStF.click();
    // The alarm mark holds until the next fire; only that fire clears it.
    run(1s);
  }
  void restart(const std::string& type) {
    type_ = type;
    auto lines = controller_settings();
    lines[kAlertType] = type;
    rig_.settle(lines);
    rig_.start();
    run(2s);
    want(watching(), "not watching after a start");
  }

  // Up to three contacts, seconds apart; they open again early, late or never before the reset.
  void fire() {
    std::vector<int> zones;
    for (int n = 1 + below(3); n > 0; --n) zones.push_back(1 + below(kZones));
    for (const int zone : zones) {
      rig_.machine.set_contact(zone, true);
      run(std::chrono::milliseconds(below(40000)));
    }
    const bool heard = std::any_of(zones.begin(), zones.end(), [](int z) { return z <= 96; });
    const bool early = below(2) == 0;
    if (early) open_all(zones);
    // Two alarm marks in one bank start each other anew with every tick, for as long as both contacts are
    // closed.
    const bool restless = std::count_if(zones.begin(), zones.end(), [](int z) { return z % 16 == 4; }) > 1;
    run(std::chrono::seconds(early ? 1 : restless ? 10 : 1800));
    if (!heard) want(watching(), "a fourth bank's contact raised an alert");
    if (early) want(!alert().al_active, "an alert outlives its silent banks");
    if (!early) {
      // Each alert has run to its end, but for one that has no sound: its bank stays taken.
      want(!form().Timer7.enabled() || alert().al_active, "a timer runs with no alert");
      open_all(zones);
      run(1s);
      want(!alert().al_active, "an alert is left with no contact closed");
    }
    reset();
  }
  void open_all(const std::vector<int>& zones) {
    for (const int zone : zones) rig_.machine.set_contact(zone, false);
  }

  void block_alarm() {
    restart("1");
    const auto report = [this](std::uint8_t what, int zone) {
      const std::array<std::uint8_t, 9> frame = {
          0xAA, 0xAA, 0x41, 0, what, static_cast<std::uint8_t>(zone - 1), 0, 0, 0};
      rig_.machine.receive(frame);
    };
    report(15, 1 + below(kZones));
    run(1s);
    want(alert().al_active && form().Timer5.enabled(), "a block's alarm was not recognised");
    run(std::chrono::seconds(3 * 21 + 2));
    want(alert().al_active && !form().Timer5.enabled(), "a block's alert does not wait for its reset");
    report(0, 1);
    reset();
    want(watching(), "not watching after a block's alert");
    restart("3");
    ++events_;
  }
  void manual_message() {
    form().CmbF.set_text("short.wav");
    answer_yes();
    form().CmdAl.click();
    const int zone = 1 + 3 * below(10);
    rig_.machine.set_contact(zone, true);
    run(60s);
    want(alert().msg_manual && !alert().al_active, "a manual message does not hold detection");
    rig_.machine.set_contact(zone, false);
    for (int i = 0; i < 2; ++i) form().CmdCan.click();
    run(1s);
    reset();
  }
  void test_start() {
    const int zone = 1 + below(96);
    if (zone == 64 || zone == 96) return;
    form().VSFD.set_value(zone);
    answer_yes();
    form().CmdDem.click();
    run(std::chrono::seconds(1 + below(60)));
    want(alert().fire_sim, "a test start reads the cards");
    reset();
    want(!alert().fire_sim && watching(), "a test start is not over after the stop");
  }
  void all_zones() {
    for (int i = 0; i < 2; ++i) {
      form().CmdAlAl.click();
      run(std::chrono::seconds(below(100)));
    }
    reset();
  }
  void stop_under_fire() {
    rig_.machine.set_contact(6, true);
    run(5s);
    form().CmdStF.click();
    run(std::chrono::seconds(below(600)));
    want(alert().fire_stop && !alert().al_active, "stopped, and yet an alert");
    form().CmdStF.click();
    run(1s);
    want(alert().al_active && alert().alg_zone == 6, "the fire is not taken up after the stop");
    rig_.machine.set_contact(6, false);
    run(1s);
    reset();
  }

  AlertRig rig_;
  std::string type_;
  std::size_t frames_ = 0;
  int events_ = 0;
};

}  // namespace
}  // namespace evac

int main(int argc, char** argv) {
  return evac::soak<evac::Year>(argc, argv, 365, 1);
}

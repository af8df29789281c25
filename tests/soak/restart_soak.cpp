// A year of daily restarts, all from one seed: each day the process ends at the restart and another comes up
// on the same files, with fires before, in and behind that second. Every restart must be asked for in its
// second, once; every start must answer the controller's first poll with the day; what burns over a restart
// must be found again; no file of the settings may change but by the operator, and the journal must have it
// all. Ends with status 1 at the first thing that is wrong.
#include "platform/user.h"
#include "tests/soak/soak.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

class Year : Dice {
 public:
  explicit Year(unsigned seed) : Dice(seed) {
    rig_.sound("fire.wav", 5);
    rig_.settle(controller_settings());
    rig_.settle_steps({step_record(7, 1, 1, 7)});
    rig_.settle_terminals(20);
    rig_.start();
    set_time();
  }

  void live() {
    ++days_;
    const int fire_at = below(3) == 0 ? below(60) - 40 : 1000;  // seconds before or behind the restart
    const int fire_for = 2 + below(40);
    machine().set_wall(midnight() + 24h + std::chrono::seconds(at_) - 45s);
    begin_process();
    const auto files = settings();
    want(burning_ == rig_.alert().al_active, "a fire is not found again by the next process");
    for (int second = -43; second < 20; ++second) {
      if (second == fire_at) burn(true);
      if (second == fire_at + fire_for) burn(false);
      rig_.run(1s);
      if (second == 10 && below(2) == 0) {
        // The machine goes down in the middle of all that, whatever burns.
        begin_process();
      }
    }
    keep_restarts();
    const std::string moment = time_text(at_) + " restart 7";
    want(restarts_ == std::vector<std::string>{moment}, join("no restart at ", moment, ", or another one"));
    restarts_.clear();
    want(settings() == files, "a restart changed a file");
    if (below(10) == 0) {
      burn(false);
      rig_.run(15s);
      set_time();
    }
    want(journal_lines() == written_, "the journal has lost a line");
    written_ = 0;
  }

  int days() const { return days_; }
  std::string told() const {
    return join(counts.starts, " starts, ", counts.fires, " fires, ", counts.changes, " changes of the time");
  }

 private:
  drill::VirtualMachine& machine() { return rig_.machine; }
  WallTime midnight() { return std::chrono::floor<std::chrono::days>(machine().wall()); }
  void burn(bool on) {
    counts.fires += on && !burning_;
    burning_ = on;
    machine().set_contact(7, on);
  }
  // A process on the files that the one before left; the first poll is answered with the day.
  void begin_process() {
    keep_restarts();
    ++counts.starts;
    rig_.console.reset();
    machine().clear_process();
    rig_.console = std::make_unique<Console>(rig_.machine.machine());
    rig_.console->journal().written = [this](const std::string&) { ++written_; };
    rig_.forget();
    rig_.console->load();
    rig_.rack.set_poll_period(500ms);
    rig_.run(2s);
    const auto tx = std::ranges::find_if(rig_.log, [](const std::string& line) {
      return InStr(line, "tx AA AA FA") + InStr(line, "tx AA AA 20") > 0;
    });
    const Date today = date_of(machine().wall());
    char day[64];
    std::snprintf(day, sizeof day, "tx AA AA FA 05 %02X %02X %02X %02X", year_number(today) % 100,
                  month_number(today), day_number(today), weekday_number(today));
    want(tx != rig_.log.end() && InStr(*tx, day) > 0, "the first poll is not answered with the day");
  }
  void keep_restarts() {
    for (const auto& line : rig_.log)
      if (line.find(" restart ") != std::string::npos) restarts_.push_back(line);
    rig_.log.clear();
  }
  // The operator puts the restart to another time, in every other slot that is on.
  void set_time() {
    ++counts.changes;
    at_ = 60 + below(kSecondsPerDay - 300);
    const std::string digits = join(at_ / 3600 + 100, at_ / 60 % 60 + 100, at_ % 60 + 100);
    bool worked = false;
    const auto carry = machine().out_of_time;
    machine().out_of_time = [&] {
      FrmRez& form = rig_.console->forms().frm_rez;
      if (!form.Timer1.enabled() && !std::exchange(worked, true)) {
        for (int n = 1; n <= kRestartSlots; ++n) user::set_checked(form.Chk1[n], n % 2 == counts.changes % 2);
        for (int n = 1; n <= kRestartSlots; ++n)
          if (form.Chk1[n].value())
            for (const std::size_t i : {1u, 2u, 4u, 5u, 7u, 8u})
              user::press_key(form.TxtTper[n], {digits[i]});
        user::click(form.CmdPrim);
        want(!form.CmdPrim.enabled(), "the time is not taken");
        user::close(form);
      }
      machine().allow(50ms);
    };
    user::click(rig_.console->form1().M_perez);
    want(worked, "the window did not come up");
    machine().out_of_time = carry;
  }
  std::map<std::string, std::string> settings() {
    std::map<std::string, std::string> files;
    for (const char* folder : {"C:\\ZEF_DAT\\", "C:\\ZEF_DAT\\alarm\\"})
      for (const std::string& name : machine().files().files(folder))
        must(machine().files().read(folder + name, files[name]));
    return files;
  }
  // Of the day, but for its header.
  int journal_lines() {
    std::string text;
    must(machine().files().read("C:\\ZEF\\protocol\\П-" + medium_date_text(date_of(machine().wall())), text));
    return static_cast<int>(std::ranges::count(text, '\n'));
  }

  RackRig rig_;
  int at_ = 0;  // time of day of the restart
  bool burning_ = false;
  std::vector<std::string> restarts_;
  int written_ = 0, days_ = 0;
  struct {
    int starts = 0, fires = 0, changes = 0;
  } counts;
};

}  // namespace
}  // namespace evac

int main(int argc, char** argv) {
  return evac::soak<evac::Year>(argc, argv, 365, 1);
}

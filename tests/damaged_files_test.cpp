// Every file of the settings damaged at random: the console starts on what is left of them, and lives through
// a fire, a second one, resets, messages, the timer and all the settings' saves.
#include <gtest/gtest.h>

#include "store/programme_files.h"
#include "store/settings_files.h"
#include "store/timer_record.h"
#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

class DamagedFiles : public testing::Test, protected AlertRig {
 protected:
  void SetUp() override {
    logging = false;
    sound("fire.wav", 3);
    settle(controller_settings());
    settle_steps({step_record(1, 1, 2, 1), step_record(1, 2, 1, 2), step_record(33, 1, 1, 33),
                  step_record(96, 1, 100, 96)});
    EquipmentRecords equipment;
    equipment.rows[4] = {"Компьютер", 25, 1};
    must(write_equipment(data.folder, equipment));
    must(write_cells(data.folder, kZoneFile, std::vector<CellRecord>(kZones, {"7", 4})));
    must(write_cells(data.folder, preset_file(1), std::vector<CellRecord>(kTerminals, {"9", 2})));
    must(write_names(data.folder, kTerminalNamesFile, {"1\tA", "2\tB"}));
    write("F_reset.dat", 256, {"1", "0", "1", "1", "", "9:00:05", "9:00:07", "08:00:04"});
    must(machine.files().make_folder(data.folder.path("timer")));
    must(write_last_programme(data.folder, "Школа"));
    must(write_programme(data.folder, "Школа",
                         std::vector<std::string>(20, timer_record({"1", "8", "0", "5", "127", "fire.wav",
                                                                    "1", "3", "Сообщение"}))));
    must(write_schedule(data.folder, {schedule_text("Школа", "01.01.2026", "31.01.2026")}));
  }
  void live() {
    machine.set_wall(std::chrono::floor<std::chrono::days>(machine.wall()) + 8h);
    start();
    machine.set_contact(1, true);
    run(5s);
    machine.set_contact(33, true);
    run(5s);
    Form1& form = console->form1();
    for (int i = 0; i < 2; ++i) form.CmdStF.click();
    machine.queue_answer({drill::Answer::Kind::kYes, "", 0ms});
    form.CmdAl.click();
    run(5s);
    for (Button* button : {&form.CmdCan, &form.CmdAllZ, &form.CmdGr2, &form.CmdGrK, &form.CmdAG, &form.CmdTG})
      button->click();
    form.Option1.press();
    form.CmdU.click();
    for (const auto name : {"Form22", "Form33", "Form55"})
      console->windows().find(name)->find("Command1")->click();
    console->windows().find("Form4")->find("CmdSave")->click();
    for (const int zone : {1, 33}) machine.set_contact(zone, false);
    run(1s);
    forget();
  }
};

TEST_F(DamagedFiles, LoadAndCanBeWorkedWith) {
  std::map<std::string, std::string> whole;
  for (const char* folder : {"", "alarm\\", "timer\\"})
    for (const auto& name : machine.files().files(data.folder.path(folder)))
      whole[folder + name] = data.bytes_of(folder + name);
  ASSERT_GE(whole.size(), 10u);
  for (unsigned seed = 1; seed <= 100; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (const auto& [name, bytes] : whole) must(data.folder.replace(name, damaged(bytes, 30, random)));
    ASSERT_NO_THROW(live());
    for (const auto& event : console->model().timer.events)
      ASSERT_TRUE(event.tm_time >= 0 && event.tm_time < kSecondsPerDay);
  }
}

}  // namespace
}  // namespace evac

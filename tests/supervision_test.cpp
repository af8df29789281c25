// What the drills can't see of the supervision: the status file, tones, the limit of nothing.
#include <gtest/gtest.h>

#include "store/code_page.h"
#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

class Supervision : public testing::Test {
 protected:
  // Automatic control every hour with the audible warning, the status file on; `limit` of missed passes.
  void start(const std::string& limit) {
    auto lines = controller_settings();
    lines[kAutoControl] = lines[kScanHours] = lines[kAudibleWarning] = lines[kRemoteControl] = "1";
    lines[kScanCycles] = limit;
    rig.settle(lines);
    rig.start();
  }
  Form1& form() { return rig.console->form1(); }
  std::string status() {
    std::string bytes;
    (void)rig.machine.files().read("C:\\ZEF\\FNetKntrl", bytes);
    return from_code_page(bytes);
  }

  AlertRig rig;
};

TEST_F(Supervision, TellsTheWatcherOnceASecondThatItLives) {
  start("1");
  rig.run(1500ms);
  EXPECT_EQ(status(), "05-янв-26 # 8:00:01 $ 1 % 0 = 0\r\n");
  (void)rig.machine.files().remove("C:\\ZEF\\FNetKntrl");
  (void)rig.machine.files().make_folder("C:\\ZEF\\FNetKntrl");  // it can't be written for a while
  rig.run(10s);
  EXPECT_EQ(status(), "");
  (void)rig.machine.files().remove("C:\\ZEF\\FNetKntrl");
  std::filesystem::remove(rig.scratch.path / "c" / "ZEF" / "FNetKntrl");
  rig.alert().al_active = true;
  rig.run(88s);
  EXPECT_EQ(status(), "05-янв-26 # 8:01:39 $ 99 % 1 = 0\r\n");
  rig.run(1s);
  EXPECT_EQ(status(), "05-янв-26 # 8:01:40 $ 100 % 1 = 0\r\n");
  rig.run(1s);
  EXPECT_EQ(status(), "05-янв-26 # 8:01:41 $ 1 % 1 = 0\r\n");
}

TEST_F(Supervision, WithALimitOfNothingEveryNumberIsLostOnEachReport) {
  start("0");
  for (int report = 0; report < 2; ++report) {
    form().CmdArm.click();
    form().CmdArm.click();
  }
  EXPECT_EQ(form().List4.count(), 2 * kTerminals);
  EXPECT_EQ(form().List4.row(kTerminals), "Терминал 1 не отвечает");
  EXPECT_EQ(form().List5.rows(), std::vector<std::string>{"Все терминалы в порядке"});
  EXPECT_EQ(rig.logged("beep 1500 100"), 2 * kTerminals);
  // With the monitor off the alarm is on, and silent.
  form().CmdArm.click();
  rig.run(5s);
  EXPECT_TRUE(form().Timer9.enabled());
  EXPECT_EQ(rig.logged("beep 1500 100"), 3 * kTerminals);
}

TEST_F(Supervision, YearsOfLostPassesOverflowNothing) {
  start("1");
  form().CmdAT[5].set_caption("5");
  auto& missed = rig.console->model().supervision.TermMissCount[5];
  missed = 32766;
  for (int i = 0; i < 32765; ++i) form().List4.add("Терминал 5 не отвечает");
  for (int i = 0; i < 6; ++i) form().CmdArm.click();
  EXPECT_EQ(missed, 32767);
  EXPECT_EQ(form().List4.count(), 32767);
}

}  // namespace
}  // namespace evac

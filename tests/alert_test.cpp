// The alert engine where a table or a property says it better than an operator's day.
#include <gtest/gtest.h>

#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

class Alerts : public testing::Test, protected AlertRig {
 protected:
  void SetUp() override {
    settle(controller_settings());
    sound("fire.wav", 10);
    sound("short.wav", 0);
  }
};

TEST_F(Alerts, EachOfTheFirst96ContactsRunsItsOwnAlgorithmAndTheRestNone) {
  std::vector<std::string> steps;
  for (int z = 1; z <= kZones; ++z) steps.push_back(step_record(z, 1, 1, z));
  settle_steps(steps);
  start();
  for (int z = 1; z <= kZones; ++z) {
    forget();
    machine.set_contact(z, true);
    run(2s);
    const bool heard = z <= 96;
    ASSERT_EQ(machine.sent().size(), heard ? 2u : 0u) << z;
    ASSERT_EQ(alert().al_active, heard) << z;
    if (heard) {
      EXPECT_EQ(machine.sent()[1][6], z);
      EXPECT_EQ(alert().alg_zone, z);
    }
    machine.set_contact(z, false);
    run(100ms);
    ASSERT_FALSE(alert().al_active) << z;
  }
}

TEST_F(Alerts, ABankWithAllItsContactsClosedIsNotSilent) {
  settle_steps({step_record(33, 1, 2, 33)});
  start();
  for (int z = 33; z <= 64; ++z) machine.set_contact(z, true);
  run(15s);
  EXPECT_EQ(logged("media MP2 play"), 2);
  EXPECT_EQ(logged("Сброс"), 0);
  for (int z = 33; z <= 64; ++z) machine.set_contact(z, z == 64);
  run(1s);
  EXPECT_TRUE(alert().al_bank[2]);
  machine.set_contact(64, false);
  run(100ms);
  EXPECT_FALSE(alert().al_bank[2]);
}

TEST_F(Alerts, AStepOfNoPlaysPlaysOnceWhenItIsTheFirstAndEndsTheAlgorithmLater) {
  settle_steps({step_record(1, 1, 0, 1), step_record(1, 2, 5, 2), step_record(2, 1, 1, 3),
                step_record(2, 2, 0, 4), step_record(2, 3, 1, 5)});
  start();
  machine.set_contact(1, true);
  run(12s);
  EXPECT_FALSE(alert().al_active);
  EXPECT_EQ(logged("media MP2 play"), 1);
  forget();
  machine.set_contact(2, true);
  run(12s);
  EXPECT_FALSE(alert().al_active);
  EXPECT_EQ(logged("media MP2 play"), 1);
  EXPECT_EQ(logged("Зона - 4"), 0);
}

TEST_F(Alerts, AnAlgorithmOf119StepsRunsThroughAndOneOf120FaultsAtItsEnd) {
  for (const int count : {kAlgorithmSteps - 1, kAlgorithmSteps}) {
    std::vector<std::string> steps;
    for (int s = 1; s <= count; ++s) steps.push_back(step_record(1, s, 1, s, "short.wav"));
    settle_steps(steps);
    machine.set_contact(1, false);
    start();
    machine.set_contact(1, true);
    run(std::chrono::seconds(count - 1));
    EXPECT_TRUE(alert().al_active);
    EXPECT_EQ(machine.sent().size(), 2u * static_cast<std::size_t>(count));
    if (count < kAlgorithmSteps) {
      run(2s);
      EXPECT_FALSE(alert().al_active);
    } else {
      try {
        run(2s);
        FAIL() << "no fault";
      } catch (const Fault& fault) {
        EXPECT_EQ(fault.number(), 9);
      }
    }
  }
}

TEST_F(Alerts, TheAlarmMarkOfALaterStepIsNoMoreThanItsOtherZones) {
  const std::string all = "7" + std::string(kZones - 1, '1');
  settle_steps({step_record(3, 1, 1, 3), algorithm_record("3", 2, "fire.wav", "1", all)});
  start();
  machine.set_contact(3, true);
  run(2s);
  forget();
  run(11s);
  // Zones 2 to 120, twice each; no alarm frames.
  ASSERT_EQ(machine.sent().size(), 2u * (kZones - 1));
  EXPECT_EQ(machine.sent().front()[6], 2);
  EXPECT_FALSE(alert().al_alarm_zones);
  EXPECT_EQ(console->form1().PctA[1].picture(), "PctD2");
}

TEST_F(Alerts, ReleasingAllZonesSilencesTheMessagesOfBothPlayers) {
  start();
  console->form1().CmdAlAl.click();
  forget();
  console->form1().CmdAlAl.click();
  EXPECT_EQ(logged("media MP1 stop") + logged("media MP2 stop"), 2);
}

}  // namespace
}  // namespace evac

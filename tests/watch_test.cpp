// The watch where whole lists of lines say it: what is not told, what several banks make of it, and how long
// a line lives.
#include <gtest/gtest.h>

#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

class WatchLines : public testing::Test, protected AlertRig {
 protected:
  void SetUp() override {
    settle(controller_settings());
    sound("fire.wav", 10);
    settle_steps({step_record(7, 1, 1, 7), step_record(12, 1, 2, 12)});
  }

  // Without the timer, which every alert switches off.
  Lines lines() const {
    Lines told;
    for (const auto& line : console->watch().lines())
      if (line.text != "Выключено оповещением: недельный таймер") told.push_back(line.text);
    return told;
  }
  bool told(const std::string& text) const {
    const Lines all = lines();
    return std::find(all.begin(), all.end(), text) != all.end();
  }
  void frame(std::uint8_t command, std::uint8_t report = 0, std::uint8_t zone = 0) {
    machine.receive(std::array<std::uint8_t, 9>{0xAA, 0xAA, command, 0, report, zone, 0, 0, 0});
  }
  // Time in which the controller polls.
  void pass(std::chrono::milliseconds duration) {
    for (; duration > 0s; duration -= std::min<std::chrono::milliseconds>(duration, 4s)) {
      frame(0x10);
      run(std::min<std::chrono::milliseconds>(duration, 4s));
    }
  }
  void say_yes(Button& button) {
    machine.queue_answer({.kind = drill::Answer::Kind::kYes, .text = {}});
    button.click();
  }
  void reset_by_hand() {
    console->form1().CmdStF.click();
    console->form1().CmdStF.click();
  }
};

TEST_F(WatchLines, NoLineLivesForOneTickOnly) {
  start();
  machine.set_contact(7, true);
  for (int tick = 0; tick < 20; ++tick) {
    pass(100ms);
    ASSERT_EQ(lines(), Lines{"ПОЖАР: зона 7"}) << tick;
  }
  machine.set_contact(7, false);
  pass(100ms);
  EXPECT_EQ(lines(), Lines{});
  // The engine can hold everything with a box: the fire is told before it.
  machine.unset_sound("C:\\ZEF_DAT\\message\\fire.wav");
  Lines under_the_box;
  machine.trace = [&](const std::string& line) {
    if (line.starts_with("box")) under_the_box = lines();
  };
  machine.set_contact(7, true);
  pass(100ms);
  EXPECT_EQ(under_the_box, Lines{"ПОЖАР: зона 7"});
  machine.set_contact(12, true);
  pass(100ms);
  EXPECT_EQ(lines(),
            (Lines{"ПОЖАР: зоны 7, 12", "Сообщение не звучит: зона 7", "Не включится до сброса: зона 12"}));
}

TEST_F(WatchLines, EveryContactAtOnce) {
  std::vector<std::string> steps;
  for (int zone = 1; zone <= 95; ++zone) steps.push_back(step_record(zone, 1, 1, zone));
  settle_steps(steps);
  start();
  for (int zone = 1; zone <= kContacts; ++zone) machine.set_contact(zone, true);
  const auto zones = [](std::initializer_list<std::pair<int, int>> ranges) {
    std::string text;
    for (const auto& [first, last] : ranges)
      for (int zone = first; zone <= last; ++zone) text += (text.empty() ? "" : ", ") + std::to_string(zone);
    return text;
  };
  const Lines expected = {"ПОЖАР: зоны " + zones({{1, 128}}), "Алгоритм не указан: зона 96",
                          "Контакт не включает оповещение: зоны " + zones({{97, 128}}),
                          "Ждёт, пока идёт оповещение зоны 65: зоны " + zones({{2, 32}, {34, 64}, {66, 95}})};
  for (int tick = 0; tick < 10; ++tick) {
    pass(100ms);
    ASSERT_EQ(lines(), expected) << tick;
  }
  // Held by the operator, the rows that tell of an engine at work are silent.
  say_yes(console->form1().CmdAl);
  pass(100ms);
  const std::string blind = "ОБНАРУЖЕНИЕ ПОЖАРА ОТКЛЮЧЕНО: ";
  EXPECT_EQ(lines(), (Lines{expected[0], "РУЧНОЕ СООБЩЕНИЕ: fire.wav", blind + "ручное сообщение",
                            expected[1], expected[2]}));
  console->form1().CmdStF.click();
  pass(100ms);
  EXPECT_EQ(lines(), (Lines{expected[0], blind + "нажата «Стоп / сброс»", expected[1], expected[2]}));
}

TEST_F(WatchLines, AThirdRestartWithinFiveSecondsIsToldForFiveMore) {
  start();
  const auto bounce = [&] {
    machine.set_contact(7, false);
    pass(500ms);
    machine.set_contact(7, true);
    pass(500ms);
  };
  machine.set_contact(7, true);
  pass(100ms);
  bounce();
  // What the operator resets does not count.
  reset_by_hand();
  pass(100ms);
  bounce();
  EXPECT_EQ(lines(), Lines{"ПОЖАР: зона 7"});
  bounce();
  const Lines restarting = {"ПОЖАР: зона 7", "Оповещение перезапускается: зона 7"};
  EXPECT_EQ(lines(), restarting);
  // The first of the three was 2.5 s ago.
  pass(2400ms);
  EXPECT_EQ(lines(), restarting);
  pass(200ms);
  EXPECT_EQ(lines(), Lines{"ПОЖАР: зона 7"});
}

TEST_F(WatchLines, AMessageIsMissedByTheCalendarAndTheClock) {
  const std::string missed = "Сообщение не звучит: зона 12";
  start();
  set_clock(23h + 59min + 55s);
  machine.set_contact(12, true);
  pass(1s);
  // Its end lies behind midnight: not past, also when the clock is set back a little.
  EXPECT_FALSE(told(missed));
  set_clock(23h + 59min + 30s);
  pass(1s);
  EXPECT_FALSE(told(missed));
  // Set on over it, the second passes unseen; set back again, the message has been missed all the same.
  machine.set_wall(machine.wall() + 1h);
  pass(100ms);
  EXPECT_TRUE(told(missed));
  machine.set_wall(machine.wall() - 1h);
  pass(100ms);
  EXPECT_TRUE(told(missed));
  // Once the time of day comes round the next play is heard.
  pass(45s);
  EXPECT_FALSE(told(missed));
}

// A fire that no handler has seen yet, for a host whose box holds everything.
class FiresWaiting : public WatchLines {
 protected:
  bool waits() const { return console->fire_waiting().now(); }
};

TEST_F(FiresWaiting, AContactThatHasClosedSinceTheLastLook) {
  start();
  machine.set_contact(7, true);
  EXPECT_TRUE(waits());
  run(100ms);
  EXPECT_FALSE(waits());
  machine.set_contact(7, false);
  EXPECT_FALSE(waits());
  machine.faulty_cards().set_failing(1, true);
  machine.set_contact(128, true);
  EXPECT_FALSE(waits());
  machine.faulty_cards().set_failing(1, false);
  EXPECT_TRUE(waits());
}

TEST_F(FiresWaiting, AReportOfTheBlockAmongTheBytesThatWait) {
  const auto burst = [&](std::initializer_list<std::uint8_t> bytes) { machine.receive(std::vector(bytes)); };
  auto lines = controller_settings();
  lines[kAlertType] = "1";
  settle(lines);
  start();
  frame(0x10, 0, 3);
  EXPECT_FALSE(waits());
  run(100ms);
  // A poll behind it does not hide it.
  frame(0x41, 15, 3);
  frame(0x10, 0, 3);
  EXPECT_TRUE(waits());
  run(100ms);
  // Torn: the head has been taken, the rest waits.
  burst({0xAA, 0xAA, 0x41, 0x00});
  run(0ms);
  EXPECT_FALSE(waits());
  burst({0x0F, 0x0F, 0x00});
  EXPECT_FALSE(waits());
  burst({0x00, 0x00});
  EXPECT_TRUE(waits());
  // Looking ahead has taken nothing: the alert starts by it, and another report is no news.
  run(100ms);
  EXPECT_EQ(alert().block_zone, 16);
  frame(0x41, 15, 3);
  EXPECT_FALSE(waits());
}

}  // namespace
}  // namespace evac

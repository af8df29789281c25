// Administration: the password's stored form, and the second of the forced restart. The windows are told in
// the drills.
#include <gtest/gtest.h>

#include "admin/password.h"
#include "platform/user.h"
#include "store/code_page.h"
#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

class Admin : public testing::Test, protected AlertRig {
 protected:
  static std::string record(const std::string& bytes) { return stored_record(bytes, 256); }
  // Times of day at which the machine was asked to restart, in that order.
  std::string restarts() const {
    std::string times;
    for (const auto& line : log)
      if (const int at = InStr(line, " restart 7"); at > 0) times += Left(line, at - 1) + " ";
    return times;
  }
  // Marks in records 1 to 5, times in 6 to 10.
  void start_with(const std::vector<std::string>& records) {
    write("F_reset.dat", 256, records);
    start();
  }
  std::string password_after(const std::string& password) {
    write("F_nastr.dat", 256, {});
    start();
    bool typed = false;
    machine.out_of_time = [&] {
      FrmPwR& form = console->forms().frm_pwr;
      if (!std::exchange(typed, true)) {
        for (TextBox* box : {&form.Txt2, &form.Txt3}) user::set_text(*box, password + "x");
        for (TextBox* box : {&form.Txt2, &form.Txt3}) user::set_text(*box, password);
        user::click(form.Cmd1);
        user::click(form.Cmd2);
      }
    };
    user::click(console->form1().MusPar);
    return data.bytes_of("F_nastr.dat");
  }
};

TEST_F(Admin, APasswordIsStoredWithEachCodeOfItsLettersLoweredByOne) {
  EXPECT_EQ(password_after("Az9"), record("@y8"));
  EXPECT_EQ(password_after(""), record("/"));
  EXPECT_EQ(password_after("Ая ё№!"), record("\xBF\xFE\x1F\xB7\xB8\x20"));
  // Every character but the first of the code page goes there and back, and opens what it was stored as.
  for (int code = 1; code < 256; ++code) {
    const std::string letter = from_code_page(std::string(1, static_cast<char>(code)));
    EXPECT_EQ(to_code_page(stored_password(letter)), std::string(1, static_cast<char>(code - 1))) << code;
    EXPECT_TRUE(opens(stored_new_password(letter), letter));
    EXPECT_EQ(opens(stored_new_password(letter), ""), letter == "0") << code;
    EXPECT_FALSE(opens(stored_new_password(letter), letter + letter));
  }
  EXPECT_EQ(password_after(std::string(254, 'b')), record(std::string(254, 'a')));
  EXPECT_EQ(password_after(std::string(255, 'b')), "") << "and not a part of it";
}

TEST_F(Admin, TheMachineIsRestartedInTheVerySecondOnceAndEachDay) {
  start_with({"1", "0", "1", "1", "", "09:00", "9:00:07", "9:00:05", "9:00:05", "9:00:09"});
  set_clock(9h - 2s);
  run(30s);
  EXPECT_EQ(restarts(), "9:00:00 9:00:05 ") << "two slots at one time, two slots off";
  run(24h - 1min);
  EXPECT_EQ(restarts(), "9:00:00 9:00:05 ");
  run(1min);
  EXPECT_EQ(restarts(), "9:00:00 9:00:05 9:00:00 9:00:05 ");
  forget();
  // A second that a box holds up is lost for the day; one that comes again restarts again.
  set_clock(9h - 2s);
  drill::Answer late;
  late.after = 3s;
  machine.queue_answer(late);
  machine.loop().post([this] { machine.message("", ""); });
  machine.out_of_time = [this] { machine.allow(1s); };
  run(4s);
  EXPECT_EQ(restarts(), "");
  for (int i = 0; i < 2; ++i) {
    set_clock(9h + 4s);
    run(2s);
  }
  EXPECT_EQ(restarts(), "9:00:05 9:00:05 ");
}

TEST_F(Admin, ATimeThatCantBeReadIsMidnightAndEndsTheReading) {
  for (const char* time : {"24:00:00", "12:60", "12:00:60", "12", "12:3", "1:2:3:4", "-1:00", "", "полдень",
                           "12:00:00:00", "123:00"}) {
    start_with({"0", "1", "1", "", "", "", time, "0:00:02"});
    set_clock(24h - 2s);
    run(6s);
    EXPECT_EQ(restarts(), "0:00:00 ") << time;
    const WatchLine told{WatchRank::kWarning, "Время перезапуска 2 не прочитано"};
    EXPECT_EQ(std::ranges::count(console->watch().lines(), told), 1) << time;
  }
  // A slot that is off has no time to be read; what is no plain mark arms nothing.
  start_with({"0", "01", "2", "99999", "off", "x", "x", "x", "x", "x"});
  set_clock(24h - 2s);
  run(4s);
  EXPECT_EQ(restarts(), "");
}

TEST_F(Admin, TheWindowWritesWhatItSetsAndTheRestKeepsItsBytes) {
  start_with({"1", "1", "0", "", "1", "1:00", "2:00", "3:00", "", "never"});
  bool worked = false;
  machine.out_of_time = [&] {
    if (std::exchange(worked, true)) return;
    FrmRez& form = console->forms().frm_rez;
    user::set_checked(form.Chk1[2], false);
    user::set_checked(form.Chk1[4], true);
    user::set_checked(form.Chk1[5], false);
    for (const char key : std::string("123456")) user::press_key(form.TxtTper[4], {key});
    user::click(form.CmdPrim);
    user::close(form);
  };
  machine.allow(200ms);
  user::click(console->form1().M_perez);
  std::string expected;
  for (const char* text : {"1", "0", "0", "1", "0", "01:00:00", "2:00", "3:00", "12:34:56", "never"})
    expected += record(text);
  EXPECT_EQ(data.bytes_of("F_reset.dat"), expected);
  run(200ms);
  for (const auto& line : console->watch().lines()) EXPECT_EQ(InStr(line.text, "ерезапуск"), 0) << line.text;
  forget();
  set_clock(12h + 34min + 50s);
  run(10s);
  EXPECT_EQ(restarts(), "12:34:56 ");
}

}  // namespace
}  // namespace evac

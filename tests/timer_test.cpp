// The weekly timer where a table or the bytes of a file say it better than a drill: the fields of a record,
// the schedule's dates, the seconds around an event.
#include <gtest/gtest.h>

#include "store/programme_files.h"
#include "store/timer_record.h"
#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

std::string record(int second, int mask, const std::string& function, const std::string& message = "Вкл/Выкл",
                   int from = 1, int to = 1) {
  return timer_record({"1", std::to_string(second / 3600), std::to_string(second / 60 % 60),
                       std::to_string(second % 60), std::to_string(mask), message, std::to_string(from),
                       std::to_string(to), function});
}

TEST(TimerRecord, FieldsEndWhereTheirMarksFirstStand) {
  const std::string whole =
      timer_record({"1234", "123", "456", "789", "1277", "двадцать знаков и ещё", "2500", "2501", "№1FM12"});
  EXPECT_EQ(
      whole,
      "123|\t12 |\t45  |\t78   |\t127    |\tдвадцать знаков и ещ     |\t250      |\t250       |\t№1FM12");
  const Texts fields = {"123|", "12", "45", "78", "127", "двадцать знаков и ещ", "250", "250", "№1FM12"};
  for (int n = 1; n <= kTmFields; ++n) EXPECT_EQ(TmField(whole, n), fields[static_cast<std::size_t>(n - 1)]);
  EXPECT_EQ(TmField(whole, 0) + TmField(whole, 10) + TmField("", 9), "");
  // A name that ends in blanks is taken for the marks of the fields behind it, and these are lost.
  const std::string blanks = record(0, 1, "Сообщение", "имя  ");
  EXPECT_EQ(TmField(blanks, kTmDays), "1");
  EXPECT_EQ(TmField(blanks, kTmMessage), "имя");
  EXPECT_EQ(TmField(blanks, kTmFrom), "");
  EXPECT_EQ(TmField(blanks, kTmFunction), "1      |\t1       |\tСообщение");
  // Marks in another order, or none.
  EXPECT_EQ(TmField("1 |\t2|\t3", kTmHours), "");
  EXPECT_EQ(TmField("bare", kTmHours), "");
  EXPECT_EQ(TmField("bare", kTmNumber), "");
}

// A data folder with the console's own files of the timer in it.
struct TimerFiles : testing::Test, AlertRig {
  TimerFiles() { (void)machine.files().make_folder("C:\\ZEF_DAT\\timer"); }
  std::string bytes(const std::string& name) {
    return StoredData(machine.files()).bytes_of("timer\\" + name);
  }
  void programme(const std::string& name, const Texts& records) {
    write("timer\\" + name, 128, records);
    write("timer\\Name_f.dat", 32, {name});
  }
  TimerState& timer() { return console->model().timer; }
  Form1& form() { return console->form1(); }
};

TEST_F(TimerFiles, LieInRecordsOfTheirOwnLength) {
  must(write_programme(data.folder, "Школа", {"1|\tа", "2|\tбв"}));
  std::string expected("\4\0001|\t\xE0", 6);
  expected.resize(128);
  expected += std::string("\5\0002|\t\xE1\xE2", 7);
  expected.resize(256);
  EXPECT_EQ(bytes("Школа"), expected);
  must(write_last_programme(data.folder, "Школа"));
  EXPECT_EQ(bytes("Name_f.dat"), std::string("\5\0\xD8\xEA\xEE\xEB\xE0", 7) + std::string(25, '\0'));
  must(write_schedule(data.folder, {schedule_text("A", "1", "2")}));
  expected = std::string(256, '\0') + std::string("\x0A\0A\t\xF1 1 \xEF\xEE 2", 12);
  expected.resize(512);
  EXPECT_EQ(bytes("List_prog.dat"), expected);

  Texts records;
  must(read_programme(data.folder, "Школа", records));
  EXPECT_EQ(records, (Texts{"1|\tа", "2|\tбв", ""}));
  EXPECT_EQ(read_last_programme(data.folder), "Школа");
  EXPECT_EQ(read_schedule(data.folder), Texts{"A\tс 1 по 2"});
  const ScheduleEntry entry = schedule_entry("A\tс 1 по 2");
  EXPECT_EQ(join(entry.sch_name, entry.sch_from, "|", entry.sch_to), "A 1|2");
  EXPECT_EQ(schedule_entry("Депо 1\tс 1 по 2").sch_to, "1\tс 1 по 2") << "the name's own word";
  EXPECT_EQ(programme_names(data.folder), Texts{"Школа"});
  // One that is cut off is read as far as it goes.
  must(data.folder.replace("timer\\Школа", bytes("Школа").substr(0, 133)));
  must(read_programme(data.folder, "Школа", records));
  EXPECT_EQ(records, (Texts{"1|\tа", "2|\t"}));
}

TEST_F(TimerFiles, ASaveIsSearchedFromItsFirstRecordAndADayWithoutAProgrammeBeginsWithNothing) {
  programme("Школа", {record(30, 127, "Остановка"), record(60, 127, "Остановка")});
  start();
  console->forms().form3.CmbLstProg.set_text("Школа");
  console->forms().form3.Lst1.add(record(60, 127, "Остановка"));
  timer().tm_scan = false;
  timer().tm_next_i = 1;
  console->forms().form3.CmdSave.click();
  EXPECT_TRUE(timer().tm_scan);
  EXPECT_EQ(timer().tm_next_i, 0);
  must(machine.files().remove("C:\\ZEF_DAT\\timer\\Name_f.dat"));
  machine.set_wall(machine.wall() + 24h);
  run(1100ms);
  EXPECT_TRUE(timer().events.empty());
}

TEST_F(TimerFiles, TheScheduleKnowsTodaysProgramme) {
  const struct {
    const char* what;
    Texts entries;
    std::string today;
  } table[] = {
      {"none", {}, ""},
      {"inside", {"A\tс 01.01.2026 по 31.01.2026"}, "A"},
      {"its first day", {"A\tс 05.01.2026 по 06.01.2026"}, "A"},
      {"its last day", {"A\tс 31.12.2025 по 05.01.2026"}, "A"},
      {"ended", {"A\tс 01.01.2025 по 04.01.2026"}, ""},
      {"to come", {"A\tс 06.01.2026 по 07.01.2027"}, ""},
      {"the last that holds",
       {"A\tс 05.01.2026 по 05.01.2026", "B\tс 01.01.2026 по 09.01.2026", "C\tс 06.01.2026 по 09.01.2026"},
       "B"},
      {"an empty record takes over from one that holds", {"A\tс 05.01.2026 по 05.01.2026", ""}, ""},
      {"an empty record behind one that does not",
       {"A\tс 05.01.2026 по 05.01.2026", "B\tс 06.01.2026 по 06.01.2026", "", "C\tс 1"},
       "A"},
      {"no date",
       {"A\tс 05.13.2026 по 06.01.2026", "B\tс вчера по 06.01.2026", "C\tс 01.01.2026 по завтра"},
       ""},
      {"damage costs no other", {"\t\tс по", "no marks", "B\tс 05.01.2026 по 05.01.2026"}, "B"},
      {"the mark in the name", {"Час с кл\tс 05.01.2026 по 05.01.2026"}, ""},
  };
  for (const auto& row : table) {
    Texts records = row.entries;
    records.insert(records.begin(), "A\tс 01.01.2026 по 31.01.2026");  // the first record is none
    write("timer\\List_prog.dat", 256, records);
    start();
    EXPECT_EQ(timer().prog_today, row.today) << row.what;
  }
}

TEST_F(TimerFiles, NamesThatNoProgrammeBears) {
  for (const char* name :
       {"Школа", "Школа 2", ".x", "a.b", "Name_f", "Ровно тридцать знаков, не боле", "ё№«»"})
    EXPECT_TRUE(is_programme_name(name)) << name;
  for (const char* name :
       {"", " ", "a ", "a.", "a\\b", "a/b", "a:b", "a*", "a?", "a\"", "<", ">", "|", "a\tb", "日本",
        "Name_f.dat", "List_prog.dat", "NAME_F.DAT", "Ровно тридцать один знак, увы, !"})
    EXPECT_FALSE(is_programme_name(name)) << name;
}

class TimerTicks : public TimerFiles {
 protected:
  // Monday 7:59:50.
  void begin(const Texts& records) {
    sound("bell.wav", 5);
    programme("Школа", records);
    machine.set_wall(std::chrono::local_days(std::chrono::January / 5 / 2026) + 8h - 10s);
    start();
  }
};
constexpr int kEight = 8 * 3600;

TEST_F(TimerTicks, TerminalsOutsideTheirRangeArePassedOver) {
  begin({record(kEight, 127, "Сообщение", "bell.wav", -5, 999)});
  console->model().terminals.TermChan.fill(3);
  run(11s);
  EXPECT_EQ(logged("tx AA AA 04"), 2 * kTerminals);
}

// How the player makes way: its level before, at each of the last seconds, and back at the operator's.
TEST_F(TimerTicks, TheFadesStepByTheLevel) {
  const struct {
    float level;
    std::array<float, 3> down, up;
  } table[] = {
      {10, {8, 6, 4}, {2, 4, 6}},
      {6, {4, 3, 2}, {2, 3, 4}},
      {5, {3, 2, 1}, {2, 3, 4}},
      {2, {1, 0.5, 0.5}, {1, 1.5, 1.5}},
      {1, {0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}},
      {0.5, {0.5, 0.5, 0.5}, {0, 0, 0}},
  };
  for (const auto& row : table) {
    SCOPED_TRACE(row.level);
    begin({record(kEight, 127, "Сообщение", "bell.wav")});
    PlayerState& player = console->model().player;
    player.mp_pow = player.mp_play = true;
    player.mp_lvl = player.mp_lvl0 = row.level;
    player.mp_pct = static_cast<int>(row.level * 10);
    run(6500ms);
    EXPECT_EQ(player.mp_lvl, row.level);
    for (const float level : row.down) {
      run(1s);
      EXPECT_EQ(player.mp_lvl, level);
      EXPECT_EQ(player.mp_pct, level * 10);
    }
    run(1s);
    EXPECT_EQ(player.mp_lvl, 0);
    EXPECT_EQ(form().LblMPU.caption(), "0 %");
    run(2s);
    EXPECT_EQ(player.mp_lvl, 0);
    for (const float level : row.up) {
      run(1s);
      EXPECT_EQ(player.mp_lvl, level);
    }
    run(1s);
    EXPECT_EQ(player.mp_lvl, row.level);
    EXPECT_FALSE(form().Timer11.enabled());
  }
}

}  // namespace
}  // namespace evac

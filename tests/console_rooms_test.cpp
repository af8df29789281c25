// The settings and console rooms on a whole console: files that hold what no window would write.
#include <gtest/gtest.h>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "store/record_file.h"
#include "tests/scratch.h"
#include "tests/stored_data.h"

namespace evac {
namespace {

class ConsoleRooms : public testing::Test {
 protected:
  Form1& start() {
    console.emplace(machine.machine());
    console->load();
    return console->form1();
  }
  Form& window(std::string_view name) { return *console->windows().find(name); }

  Scratch scratch;
  drill::VirtualMachine machine{scratch.path};
  StoredData data{machine.files()};
  std::optional<Console> console;
};

TEST_F(ConsoleRooms, ADamagedNumberCostsNoOther) {
  RecordFile preset(data.folder, preset_file(1), 256);
  for (int t = 1; t <= kTerminals; ++t) {
    preset.put(t, "9");
    preset.put(kTerminals + t, t == 4 ? "70000" : "2.9");
  }
  ASSERT_EQ(preset.save(), kNoError);
  RecordFile equipment(data.folder, kEquipmentFile, 256);
  const std::pair<int, const char*> records[] = {{2, "Компьютер"}, {22, "20.7"}, {3, "Тюнер"}, {23, "99999"},
                                                 {33, "три"},      {4, "mp3"},   {24, "5"},    {34, "2"},
                                                 {7, "2"},         {8, "-1"},    {9, "255"}};
  for (const auto& [n, text] : records) equipment.put(n, text);
  ASSERT_EQ(equipment.save(), kNoError);
  Form1& form1 = start();
  auto& model = console->model();

  EXPECT_EQ(model.terminals.TermChan[3], 2);
  EXPECT_EQ(model.terminals.TermChan[4], 0);
  EXPECT_EQ(model.terminals.TermChan[5], 2);
  EXPECT_EQ(model.terminals.term_count, kTerminals);
  // The damaged volume and output are as they were before any file; all behind them is read.
  EXPECT_EQ(model.sources.vol_computer, 20);
  EXPECT_EQ(model.sources.ch_tuner, 2);
  EXPECT_EQ(model.sources.vol_tuner, 0);
  EXPECT_EQ(window("Form22").find("LblN", 2)->caption(), "1");
  EXPECT_EQ(model.sources.ch_mp3, 3);
  EXPECT_TRUE(form1.Opt_mp[1].value());
  EXPECT_EQ(machine.machine().port.port(), 2);
  EXPECT_EQ(model.power.SeqSavedMask[1], 0);
  EXPECT_EQ(model.power.SeqSavedMask[2], 255);
  EXPECT_TRUE(machine.raised().empty());
}

}  // namespace
}  // namespace evac

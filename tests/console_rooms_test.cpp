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
    machine.sent().clear();
    return console->form1();
  }
  // Every zone on that channel.
  void write_zones(std::int16_t channel) {
    std::vector<CellRecord> zones(kZones);
    for (int z = 1; z <= kZones; ++z) zones[static_cast<std::size_t>(z - 1)] = {std::to_string(z), channel};
    ASSERT_EQ(write_cells(data.folder, kZoneFile, zones), kNoError);
  }
  std::string last_box() {
    if (machine.raised().empty()) return "";
    const std::string text = machine.raised().back();
    machine.raised().clear();
    return text;
  }
  Form& window(std::string_view name) { return *console->windows().find(name); }

  Scratch scratch;
  drill::VirtualMachine machine{scratch.path};
  StoredData data{machine.files()};
  std::optional<Console> console;
};

TEST_F(ConsoleRooms, AChannelThatIsNoneOfOursIsPassedOver) {
  write_zones(7);
  std::vector<CellRecord> terminals(kTerminals);
  terminals[0] = {"1", 9};
  terminals[1] = {"2", 3};
  ASSERT_EQ(write_cells(data.folder, preset_file(1), terminals), kNoError);
  Form1& form1 = start();
  auto& model = console->model();
  model.zones.ZoneChan[5] = 0;
  model.zones.ZoneVolScan[5] = 12;
  form1.VS_Z[0].set_value(6);

  // Only the zone of which a scan told a volume goes out, with no channel, at the volume of row 0.
  form1.CmdAllZ.click();
  ASSERT_EQ(machine.sent().size(), 1u);
  EXPECT_EQ(machine.sent()[0], (Frame9{0xAA, 0xAA, 4, 0, 6, 0xFD, 5, 0, 0x0C}));
  EXPECT_EQ(form1.CmdCh[5].caption(), "0");
  EXPECT_EQ(form1.CmdVol[5].caption(), "6");
  EXPECT_EQ(form1.CmdCh[6].caption(), "1");
  // From 0 a row goes on to 1, and never below 0.
  form1.CmdCh[5].mouse_down({.button = 2});
  EXPECT_EQ(form1.CmdCh[5].caption(), "0");
  form1.CmdCh[5].click();
  EXPECT_EQ(form1.CmdCh[5].caption(), "1");

  form1.Option1.press();
  EXPECT_EQ(last_box(), "");
  EXPECT_EQ(model.terminals.selected_count, 1);
  form1.CmdAT[1].click();
  EXPECT_EQ(last_box(), "Данному терминалу не назначен звуковой канал");
}

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
  EXPECT_EQ(last_box(), "");
}

TEST_F(ConsoleRooms, AMaskTooWideBringsUpNoOutletThatIsNotThere) {
  Form1& form1 = start();
  console->model().power.SeqSavedMask[1] = -128;
  console->model().power.SeqSavedMask[8] = 65408;
  machine.run_for(std::chrono::seconds(34));
  ASSERT_EQ(machine.sent().size(), 2u);
  EXPECT_EQ(machine.sent()[1], (Frame9{0xAA, 0xAA, 7, 7, 1, 0xEE, 0, 0, 0xFD}));
  EXPECT_FALSE(form1.Timer13.enabled());
}

}  // namespace
}  // namespace evac

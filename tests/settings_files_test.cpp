// The files of the settings windows: their bytes, what a damaged one still gives, a save that is cut off.
#include "store/settings_files.h"

#include <gtest/gtest.h>

#include "store/code_page.h"
#include "tests/cut_files.h"
#include "tests/scratch.h"

namespace evac {
namespace {

class SettingsFiles : public testing::Test {
 protected:
  SettingsFiles() {
    settings.data_drive = "C";
    settings.data_folder = "ZEF_DAT";
    files.make_folder("C:\\ZEF_DAT");
  }
  std::string bytes_of(const std::string& path) {
    std::string bytes;
    EXPECT_EQ(files.read(path, bytes), kNoError);
    return bytes;
  }
  // The record as it must lie in the file: length, text, zero bytes.
  static std::string record(const std::string& text, std::size_t length) {
    const std::string encoded = to_code_page(text);
    std::string bytes = std::string{static_cast<char>(encoded.size()), 0} + encoded;
    bytes.resize(length);
    return bytes;
  }

  Scratch scratch;
  CutFiles files{{{'C', scratch.path}}};
  SettingsState settings;
};

TEST_F(SettingsFiles, EquipmentLiesAtItsPlaces) {
  EquipmentRecords records;
  std::string expected[37];
  for (int i = 0; i < kSourceRows; ++i) {
    auto& row = records.rows[static_cast<std::size_t>(i)];
    expected[1 + i] = row.source = i == 5 ? "Цифровой магн" : "Тюнер";
    expected[21 + i] = std::to_string(*(row.volume = 20 + i));
    expected[31 + i] = std::to_string(*(row.output = i));
  }
  expected[7] = std::to_string(*(records.port = 2));
  for (int n = 1; n <= kSequencers; ++n)
    expected[7 + n] = std::to_string(*(records.outlets[static_cast<std::size_t>(n - 1)] = 30 * n));
  ASSERT_EQ(write_equipment(files, settings, records), kNoError);

  const std::string bytes = bytes_of("C:\\ZEF_DAT\\F_ust.dat");
  ASSERT_EQ(bytes.size(), 36u * 256);
  for (std::size_t n = 1; n <= 36; ++n)
    EXPECT_EQ(bytes.substr((n - 1) * 256, 256), record(expected[n], 256)) << "record " << n;

  const auto back = read_equipment(files, settings);
  ASSERT_TRUE(back);
  EXPECT_EQ(back->rows[5].source, "Цифровой магн");
  EXPECT_EQ(back->rows[5].output, 5);
  EXPECT_EQ(back->outlets[7], 240);
}

TEST_F(SettingsFiles, CellsAndNamesLieAtTheirPlaces) {
  EXPECT_EQ(zone_file(settings), "C:\\ZEF_DAT\\F_ustZ.dat");
  EXPECT_EQ(preset_file(settings, 7), "C:\\ZEF_DAT\\F_ustT7.dat");
  std::vector<CellRecord> cells(kTerminals);
  cells[0] = {"1", 5};
  cells[254] = {"255", 0};
  ASSERT_EQ(write_cells(files, preset_file(settings, 7), cells), kNoError);
  const std::string bytes = bytes_of(preset_file(settings, 7));
  ASSERT_EQ(bytes.size(), 510u * 256);
  EXPECT_EQ(bytes.substr(0, 512), record("1", 256) + record("", 256));
  EXPECT_EQ(bytes.substr(254 * 256, 512), record("255", 256) + record("5", 256));

  // A name that its record cannot hold is cut off, a sign that the code page lacks becomes "?".
  const std::string long_name = "3\t" + std::string(200, 'x');
  ASSERT_EQ(write_names(files, zone_names_file(settings), {"1\tХолл №1", "2\t日", long_name}), kNoError);
  EXPECT_EQ(bytes_of("C:\\ZEF_DAT\\F_name_z.dat"),
            record("1\tХолл №1", 128) + record("2\t?", 128) + record(long_name.substr(0, 126), 128));
  EXPECT_EQ(read_names(files, zone_names_file(settings)),
            (std::vector<std::string>{"1\tХолл №1", "2\t?", long_name.substr(0, 126)}));
}

TEST_F(SettingsFiles, ADamagedFileGivesWhatCanBeRead) {
  const std::string path = terminal_names_file(settings);
  EXPECT_EQ(terminal_names_file(settings), "C:\\ZEF_DAT\\F_name_t.dat");
  const auto names_in = [&](const std::string& bytes) {
    EXPECT_EQ(files.replace(path, bytes), kNoError);
    return read_names(files, path);
  };
  using Names = std::vector<std::string>;
  EXPECT_EQ(names_in(""), Names{});
  EXPECT_EQ(names_in("\x02"), Names{""});                                  // not even a length
  EXPECT_EQ(names_in(record("1\tA", 128) + "\x09"), (Names{"1\tA", ""}));  // the next begun
  EXPECT_EQ(names_in(std::string("\x05\0"
                                 "2\tB",
                                 5)),
            Names{"2\tB"});  // cut off in the text
  EXPECT_EQ(names_in(std::string(128, '\0') + record("3\tC", 128)), (Names{"", "3\tC"}));
  // A length beyond the record gives the record, and the next one is whole.
  const std::string claims_all = "\xFF\xFF" + std::string(126, 'y');
  EXPECT_EQ(names_in(claims_all + record("4\tD", 128)), (Names{std::string(126, 'y'), "4\tD"}));
  // Every byte is a character of the code page; the unused one too lasts through a save.
  const Names odd = names_in(std::string("\x03\0\x98\xFF\x01", 5));
  ASSERT_EQ(write_names(files, path, odd), kNoError);
  EXPECT_EQ(bytes_of(path).substr(0, 5), std::string("\x03\0\x98\xFF\x01", 5));

  // A zone file that ends among the channels has its labels; a missing one comes to be.
  std::vector<CellRecord> zones(kZones, {"9", 2});
  ASSERT_EQ(write_cells(files, zone_file(settings), zones), kNoError);
  ASSERT_EQ(files.replace(zone_file(settings), bytes_of(zone_file(settings)).substr(0, 121 * 256)), kNoError);
  const auto cut = read_cells(files, zone_file(settings), kZones);
  ASSERT_EQ(cut.size(), static_cast<std::size_t>(kZones));
  EXPECT_EQ(cut[0].channel, 2);
  EXPECT_EQ(cut[119].label, "9");
  EXPECT_EQ(cut[119].channel, 0);
  EXPECT_FALSE(read_equipment(files, settings));
  EXPECT_EQ(bytes_of("C:\\ZEF_DAT\\F_ust.dat"), "");
}

TEST_F(SettingsFiles, APresetCutOffInItsSaveIsTheOldOneOrTheNewOneWhole) {
  const std::string path = preset_file(settings, 1);
  const std::vector<CellRecord> old_preset(kTerminals, {"1", 2}), new_preset(kTerminals, {"33", 5});
  for (int step = 1; step <= CutFiles::kSteps; ++step) {
    files.cut_at = 0;
    ASSERT_EQ(write_cells(files, path, old_preset), kNoError);
    files.cut_at = step;
    EXPECT_THROW(write_cells(files, path, new_preset), CutFiles::PowerCut);
    const auto found = read_cells(files, path, kTerminals);
    ASSERT_EQ(found.size(), old_preset.size());
    const std::string label = step == CutFiles::kSteps ? "33" : "1";
    for (const auto& cell : found) ASSERT_EQ(cell.label, label) << "step " << step;
  }
}

}  // namespace
}  // namespace evac

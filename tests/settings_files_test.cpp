// The files of the settings windows: their bytes, what a damaged one still gives, and what the next save
// keeps of it.
#include "store/settings_files.h"

#include <gtest/gtest.h>

#include "machine/posix_files.h"
#include "store/code_page.h"
#include "store/record_file.h"
#include "tests/scratch.h"
#include "tests/stored_data.h"

namespace evac {
namespace {

struct ScratchDisk {
  Scratch scratch;
  PosixFiles disk{{{'C', scratch.path}}};
};

class SettingsFiles : public testing::Test, protected ScratchDisk, protected StoredData {
 protected:
  SettingsFiles() : StoredData(disk) {}
  static std::string record(const std::string& text, std::size_t length) {
    return stored_record(to_code_page(text), length);
  }
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
  ASSERT_EQ(write_equipment(folder, records), kNoError);

  const std::string bytes = bytes_of(kEquipmentFile);
  ASSERT_EQ(bytes.size(), 36u * 256);
  for (std::size_t n = 1; n <= 36; ++n)
    EXPECT_EQ(bytes.substr((n - 1) * 256, 256), record(expected[n], 256)) << "record " << n;
}

TEST_F(SettingsFiles, CellsAndNamesLieAtTheirPlaces) {
  EXPECT_EQ(preset_file(7), "F_ustT7.dat");
  std::vector<CellRecord> cells(kTerminals);
  cells[0] = {"1", 5};
  cells[254] = {"255", 0};
  ASSERT_EQ(write_cells(folder, preset_file(7), cells), kNoError);
  const std::string bytes = bytes_of("F_ustT7.dat");
  ASSERT_EQ(bytes.size(), 510u * 256);
  EXPECT_EQ(bytes.substr(0, 512), record("1", 256) + record("", 256));
  EXPECT_EQ(bytes.substr(254 * 256, 512), record("255", 256) + record("5", 256));

  // A name that its record cannot hold is cut off, a sign that the code page lacks becomes "?".
  const std::string long_name = "3\t" + std::string(200, 'x');
  ASSERT_EQ(write_names(folder, kZoneNamesFile, {"1\tХолл №1", "2\t日", long_name}), kNoError);
  EXPECT_EQ(bytes_of(kZoneNamesFile),
            record("1\tХолл №1", 128) + record("2\t?", 128) + record(long_name.substr(0, 126), 128));
  std::vector<std::string> names;
  ASSERT_EQ(read_names(folder, kZoneNamesFile, names), kNoError);
  EXPECT_EQ(names, (std::vector<std::string>{"1\tХолл №1", "2\t?", long_name.substr(0, 126)}));
}

// Reads the file whole, then with one record of its own put in: cut or not, and what the next saves keep.
TEST_F(SettingsFiles, WhatAReadingLeftIsKeptByTheFirstSaveBehindIt) {
  std::optional<EquipmentRecords> equipment;
  std::vector<CellRecord> cells;
  std::vector<std::string> names;
  const auto read = [&](const std::string& file) {
    if (file == kEquipmentFile) return read_equipment(folder, equipment);
    if (file == kTerminalNamesFile) return read_names(folder, file, names);
    return read_cells(folder, file, file == kZoneFile ? kZones : kTerminals, cells);
  };
  const auto write = [&](const std::string& file) {
    if (file == kEquipmentFile) return write_equipment(folder, *equipment);
    return file == kTerminalNamesFile ? write_names(folder, file, names) : write_cells(folder, file, cells);
  };
  struct Damage {
    std::string file;
    int record;
    const char* text;
    bool cut;
  };
  for (const auto& [name, record, text, is_cut] : {
           Damage{"F_ust.dat", 1, "Патефон", false},
           Damage{"F_ust.dat", 22, "громко", true},
           Damage{"F_ust.dat", 22, "99999", true},
           Damage{"F_ust.dat", 7, "3", true},
           Damage{"F_ust.dat", 8, "256", true},
           Damage{"F_ust.dat", 37, "?", true},
           Damage{"F_ustZ.dat", 7, "7", false},
           Damage{"F_ustZ.dat", 129, "3", true},  // of zone 9, which is off
           Damage{"F_ustZ.dat", 241, "?", true},
           Damage{"F_ustT3.dat", 256, "70000", true},
           Damage{"F_name_t.dat", 7, "без номера", false},
       }) {
    SCOPED_TRACE(name + " " + text);
    state.cut_files.clear();
    (void)files.remove(folder.path(name + ".bak"));
    RecordFile file(folder, name, name == kTerminalNamesFile ? 128 : 256);
    ASSERT_EQ(file.load(), kNoError);
    file.put(record, text);
    ASSERT_EQ(file.save(), kNoError);
    const std::string damaged = bytes_of(name);
    ASSERT_EQ(read(name), kNoError);
    EXPECT_EQ(cut(name), is_cut);
    for (int save = 0; save < 2; ++save) {
      ASSERT_EQ(write(name), kNoError);
      EXPECT_EQ(bytes_of(name + ".bak"), is_cut ? damaged : "");
      EXPECT_EQ(kept(name), is_cut);
      EXPECT_FALSE(cut(name));
    }
    ASSERT_EQ(read(name), kNoError);
    EXPECT_FALSE(cut(name));
    (void)files.remove(folder.path(name));
  }
}

TEST_F(SettingsFiles, WhatCannotBeKeptIsNotReplaced) {
  RecordFile file(folder, kEquipmentFile, 256);
  file.put(7, "3");
  ASSERT_EQ(file.save(), kNoError);
  const std::string before = bytes_of(kEquipmentFile);
  std::optional<EquipmentRecords> records;
  ASSERT_EQ(read_equipment(folder, records), kNoError);
  ASSERT_EQ(files.make_folder(folder.path("F_ust.dat.bak")), kNoError);
  EXPECT_EQ(write_equipment(folder, *records), kPathFileAccess);
  EXPECT_EQ(bytes_of(kEquipmentFile), before);
  EXPECT_TRUE(cut(kEquipmentFile));
  EXPECT_FALSE(kept(kEquipmentFile));
  // A file that can't even be read is left alone too, until it is gone.
  ASSERT_EQ(files.make_folder(folder.path(kZoneFile)), kNoError);
  std::vector<CellRecord> zones;
  EXPECT_EQ(read_cells(folder, kZoneFile, kZones, zones), kPathFileAccess);
  EXPECT_TRUE(cut(kZoneFile));
  std::filesystem::remove(disk.locate(folder.path(kZoneFile)));
  EXPECT_EQ(write_cells(folder, kZoneFile, std::vector<CellRecord>(kZones)), kNoError);
  EXPECT_FALSE(cut(kZoneFile) || kept(kZoneFile));
}

}  // namespace
}  // namespace evac

// The files of the settings windows, record by place: F_ust.dat (equipment), F_ustZ.dat (zones),
// F_ustT<n>.dat (terminals of preset n), F_name_z.dat and F_name_t.dat (names). A missing file is created
// empty. One damaged record costs no other: a number that no window could have written reads as none.
// Writers return the file's error number.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/system_model.h"
#include "platform/files.h"

namespace evac {

inline constexpr int kSourceRows = 6;

struct EquipmentRecords {
  struct Row {
    std::string source;
    std::optional<int> volume, output;  // within 16 bits
  };
  std::array<Row, kSourceRows> rows;  // row i is channel i; row 0 is "6 канал"
  std::optional<int> port;            // 1 or 2
  // Masks 0..255, by outlet from the lowest bit on.
  std::array<std::optional<int>, kSequencers> outlets;
};
// None when the file is empty or cannot be read.
std::optional<EquipmentRecords> read_equipment(Files& files, const SettingsState& settings);
int write_equipment(Files& files, const SettingsState& settings, const EquipmentRecords& records);

// A zone or a terminal: its label, empty when it is off, and its channel, 0 when it has none.
struct CellRecord {
  std::string label;
  std::int16_t channel = 0;
};
std::string zone_file(const SettingsState& settings);
std::string preset_file(const SettingsState& settings, int preset);
// `count` cells, none when the file is empty or cannot be read.
std::vector<CellRecord> read_cells(Files& files, const std::string& path, int count);
int write_cells(Files& files, const std::string& path, const std::vector<CellRecord>& cells);

std::string zone_names_file(const SettingsState& settings);
std::string terminal_names_file(const SettingsState& settings);
// The records in order, the empty ones too.
std::vector<std::string> read_names(Files& files, const std::string& path);
int write_names(Files& files, const std::string& path, const std::vector<std::string>& lines);

}  // namespace evac

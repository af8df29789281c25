// The files of the settings windows, as texts by place: F_ust.dat (equipment), F_ustZ.dat (zones),
// F_ustT<n>.dat (terminals of preset n), F_name_z.dat and F_name_t.dat (names). What the texts mean is told
// by the rooms. A missing file is created empty. Writers return the file's error number.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "model/system_model.h"
#include "platform/files.h"

namespace evac {

inline constexpr int kSourceRows = 6;

struct EquipmentRecords {
  struct Row {
    std::string source, volume, output;
  };
  std::array<Row, kSourceRows> rows;  // row i is channel i; row 0 is "6 канал"
  std::string port;                   // "1" or "2"
  std::array<std::string, kSequencers> outlets;
};
// None when the file is empty or cannot be read.
std::optional<EquipmentRecords> read_equipment(Files& files, const SettingsState& settings);
int write_equipment(Files& files, const SettingsState& settings, const EquipmentRecords& records);

// A zone or a terminal: its label, empty when it is off, and its channel, empty when it has none.
struct CellRecord {
  std::string label, channel;
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

// The files of the settings windows, record by place: F_ust.dat (equipment), F_ustZ.dat (zones),
// F_ustT<n>.dat (terminals of preset n), F_name_z.dat and F_name_t.dat (names). A missing file is created
// empty. One damaged record costs no other: a number that no window could have written reads as none,
// and its record is left untaken. Readers give nothing where they return an error.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/system_model.h"
#include "store/data_folder.h"

namespace evac {

inline constexpr std::string_view kEquipmentFile = "F_ust.dat", kZoneFile = "F_ustZ.dat",
                                  kZoneNamesFile = "F_name_z.dat", kTerminalNamesFile = "F_name_t.dat";

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
// None when the file is empty.
FileError read_equipment(DataFolder& folder, std::optional<EquipmentRecords>& records);
FileError write_equipment(DataFolder& folder, const EquipmentRecords& records);

// A zone or a terminal: its label, empty when it is off, and its channel, 0 when it has none.
struct CellRecord {
  std::string label;
  std::int16_t channel = 0;
};
// The name of the file of a preset, 1..100.
std::string preset_file(int preset);
// `count` cells, none when the file is empty.
FileError read_cells(DataFolder& folder, std::string_view file, int count, std::vector<CellRecord>& cells);
FileError write_cells(DataFolder& folder, std::string_view file, const std::vector<CellRecord>& cells);

// The records in order, the empty ones too.
FileError read_names(DataFolder& folder, std::string_view file, std::vector<std::string>& lines);
FileError write_names(DataFolder& folder, std::string_view file, const std::vector<std::string>& lines);

}  // namespace evac

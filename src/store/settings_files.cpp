#include "store/settings_files.h"

#include <algorithm>
#include <limits>

#include "model/text.h"
#include "store/record_file.h"

namespace evac {
namespace {

constexpr int kSettingsRecord = 256, kNameRecord = 128;

struct Range {
  int least, most;
};
constexpr Range kPorts{1, 2}, kMasks{0, 255};
constexpr Range kWords{std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()};

// The record places of F_ust.dat, for reading and for writing: visit(record, text) and
// visit(record, number, range).
template <class Records, class Visit>
void at_equipment_places(Records& records, const Visit& visit) {
  constexpr int kSource = 1, kPort = 7, kOutlets = 8, kVolume = 21, kOutput = 31;
  for (int i = 0; i < kSourceRows; ++i) {
    auto& row = records.rows[static_cast<std::size_t>(i)];
    visit(kSource + i, row.source);
    visit(kVolume + i, row.volume, kWords);
    visit(kOutput + i, row.output, kWords);
  }
  visit(kPort, records.port, kPorts);
  for (int n = 0; n < kSequencers; ++n)
    visit(kOutlets + n, records.outlets[static_cast<std::size_t>(n)], kMasks);
}

// Those of a zone or a preset file: all labels, then all channels.
template <class Cells, class Visit>
void at_cell_places(Cells& cells, const Visit& visit) {
  const int count = static_cast<int>(cells.size());
  for (int i = 1; i <= count; ++i) {
    auto& cell = cells[static_cast<std::size_t>(i - 1)];
    visit(i, cell.label);
    visit.channel(count + i, cell);
  }
}

// Those of a name file: one line a record.
template <class Lines, class Visit>
void at_name_places(Lines& lines, const Visit& visit) {
  int record = 0;
  for (auto& line : lines) visit(++record, line);
}

struct Taking {
  RecordFile& file;
  void operator()(int record, std::string& text) const { text = file.take(record); }
  void operator()(int record, std::optional<int>& number, Range range) const {
    number = LeadingNumber(file.text(record));
    if (number && (*number < range.least || *number > range.most)) number.reset();
    if (number) file.take(record);
  }
  // A cell that is off has no channel to take.
  void channel(int record, CellRecord& cell) const {
    std::optional<int> number;
    if (!cell.label.empty()) (*this)(record, number, kWords);
    cell.channel = static_cast<std::int16_t>(number.value_or(0));
  }
};

struct Putting {
  RecordFile& file;
  void operator()(int record, const std::string& text) const { file.put(record, text); }
  void operator()(int record, const std::optional<int>& number, Range) const {
    file.put(record, number ? std::to_string(*number) : "");
  }
  void channel(int record, const CellRecord& cell) const {
    file.put(record, cell.channel > 0 ? std::to_string(cell.channel) : "");
  }
};

}  // namespace

FileError read_equipment(DataFolder& folder, std::optional<EquipmentRecords>& records) {
  records.reset();
  RecordFile file(folder, kEquipmentFile, kSettingsRecord);
  if (const FileError error = file.load()) return error;
  if (!file.empty()) at_equipment_places(records.emplace(), Taking{file});
  file.end_reading();
  return kNoError;
}

FileError write_equipment(DataFolder& folder, const EquipmentRecords& records) {
  RecordFile file(folder, kEquipmentFile, kSettingsRecord);
  at_equipment_places(records, Putting{file});
  return file.save();
}

std::string preset_file(int preset) {
  return join("F_ustT", preset, ".dat");
}

FileError read_cells(DataFolder& folder, std::string_view name, int count, std::vector<CellRecord>& cells) {
  cells.clear();
  RecordFile file(folder, name, kSettingsRecord);
  if (const FileError error = file.load()) return error;
  if (!file.empty()) cells.resize(static_cast<std::size_t>(count));
  at_cell_places(cells, Taking{file});
  file.end_reading();
  return kNoError;
}

FileError write_cells(DataFolder& folder, std::string_view name, const std::vector<CellRecord>& cells) {
  RecordFile file(folder, name, kSettingsRecord);
  at_cell_places(cells, Putting{file});
  return file.save();
}

FileError read_names(DataFolder& folder, std::string_view name, std::vector<std::string>& lines) {
  lines.clear();
  RecordFile file(folder, name, kNameRecord);
  if (const FileError error = file.load()) return error;
  lines.resize(static_cast<std::size_t>(file.count()));
  at_name_places(lines, Taking{file});
  file.end_reading();
  return kNoError;
}

FileError write_names(DataFolder& folder, std::string_view name, const std::vector<std::string>& lines) {
  RecordFile file(folder, name, kNameRecord);
  at_name_places(lines, Putting{file});
  return file.save();
}

}  // namespace evac

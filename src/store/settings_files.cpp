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
    visit.channel(count + i, cell.channel);
  }
}

// Those of a name file: one line a record.
template <class Lines, class Visit>
void at_name_places(Lines& lines, const Visit& visit) {
  int record = 0;
  for (auto& line : lines) visit(++record, line);
}

struct Taking {
  const RecordFile& file;
  void operator()(int record, std::string& text) const { text = file.text(record); }
  void operator()(int record, std::optional<int>& number, Range range) const {
    number = LeadingNumber(file.text(record));
    if (number && (*number < range.least || *number > range.most)) number.reset();
  }
  void channel(int record, std::int16_t& number) const {
    number = static_cast<std::int16_t>(std::clamp(Number(file.text(record)), kWords.least, kWords.most));
  }
};

struct Putting {
  RecordFile& file;
  void operator()(int record, const std::string& text) const { file.put(record, text); }
  void operator()(int record, const std::optional<int>& number, Range) const {
    file.put(record, number ? std::to_string(*number) : "");
  }
  void channel(int record, std::int16_t number) const {
    file.put(record, number > 0 ? std::to_string(number) : "");
  }
};

RecordFile equipment_file(Files& files, const SettingsState& settings) {
  return {files, settings.data_path("F_ust.dat"), kSettingsRecord};
}

}  // namespace

std::optional<EquipmentRecords> read_equipment(Files& files, const SettingsState& settings) {
  RecordFile file = equipment_file(files, settings);
  if (file.load() != kNoError || file.empty()) return {};
  EquipmentRecords records;
  at_equipment_places(records, Taking{file});
  return records;
}

int write_equipment(Files& files, const SettingsState& settings, const EquipmentRecords& records) {
  RecordFile file = equipment_file(files, settings);
  at_equipment_places(records, Putting{file});
  return file.save();
}

std::string zone_file(const SettingsState& settings) {
  return settings.data_path("F_ustZ.dat");
}

std::string preset_file(const SettingsState& settings, int preset) {
  return settings.data_path(join("F_ustT", preset, ".dat"));
}

std::vector<CellRecord> read_cells(Files& files, const std::string& path, int count) {
  RecordFile file(files, path, kSettingsRecord);
  if (file.load() != kNoError || file.empty()) return {};
  std::vector<CellRecord> cells(static_cast<std::size_t>(count));
  at_cell_places(cells, Taking{file});
  return cells;
}

int write_cells(Files& files, const std::string& path, const std::vector<CellRecord>& cells) {
  RecordFile file(files, path, kSettingsRecord);
  at_cell_places(cells, Putting{file});
  return file.save();
}

std::string zone_names_file(const SettingsState& settings) {
  return settings.data_path("F_name_z.dat");
}

std::string terminal_names_file(const SettingsState& settings) {
  return settings.data_path("F_name_t.dat");
}

std::vector<std::string> read_names(Files& files, const std::string& path) {
  RecordFile file(files, path, kNameRecord);
  if (file.load() != kNoError) return {};
  std::vector<std::string> lines(static_cast<std::size_t>(file.count()));
  at_name_places(lines, Taking{file});
  return lines;
}

int write_names(Files& files, const std::string& path, const std::vector<std::string>& lines) {
  RecordFile file(files, path, kNameRecord);
  at_name_places(lines, Putting{file});
  return file.save();
}

}  // namespace evac

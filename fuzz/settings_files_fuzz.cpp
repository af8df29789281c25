// Any bytes as each file of the settings: no reader crashes, what it gives is within its ranges, and what is
// read and saved reads the same again. The first byte says which file the others are.
#include <cstdint>

#include "fuzz/memory_files.h"
#include "fuzz/tally.h"
#include "model/text.h"
#include "store/admin_files.h"
#include "store/alert_store.h"
#include "store/algorithm_record.h"
#include "store/programme_files.h"
#include "store/settings_files.h"
#include "store/timer_record.h"

namespace {

using namespace evac;

void must(FileError error) {
  check(error == kNoError, "a file in memory can be read and written");
}

class Disk {
 public:
  explicit Disk(std::string_view bytes) : bytes_(bytes) {}

  void hold(std::string_view file) { files_.bytes_of[folder.path(file)] = bytes_; }

 private:
  const std::string_view bytes_;
  MemoryFiles files_;
  FilesState known_;

 public:
  SettingsState settings;
  AlgorithmState algorithms;
  DataFolder folder{{.files = files_, .settings = settings, .known = known_}};
};

bool same(const EquipmentRecords& a, const EquipmentRecords& b) {
  for (std::size_t i = 0; i < a.rows.size(); ++i)
    if (a.rows[i].source != b.rows[i].source || a.rows[i].volume != b.rows[i].volume ||
        a.rows[i].output != b.rows[i].output)
      return false;
  return a.port == b.port && a.outlets == b.outlets;
}

void check_equipment(Disk& disk) {
  disk.hold(kEquipmentFile);
  std::optional<EquipmentRecords> records, again;
  must(read_equipment(disk.folder, records));
  if (!records) return;
  check(!records->port || *records->port == 1 || *records->port == 2, "a port is one of two");
  for (const auto& mask : records->outlets) check(!mask || (*mask >= 0 && *mask <= 255), "a mask is a byte");
  must(write_equipment(disk.folder, *records));
  must(read_equipment(disk.folder, again));
  check(again && same(*records, *again), "the equipment reads as it was saved");
}

void check_cells(Disk& disk, std::string_view file, int count) {
  disk.hold(file);
  std::vector<CellRecord> cells, again;
  must(read_cells(disk.folder, file, count, cells));
  check(cells.empty() || cells.size() == static_cast<std::size_t>(count), "all cells or none");
  must(write_cells(disk.folder, file, cells));
  must(read_cells(disk.folder, file, count, again));
  check(again.size() == cells.size(), "as many cells as before");
  for (std::size_t i = 0; i < cells.size(); ++i) {
    check(again[i].label == cells[i].label, "a label reads as it was saved");
    check(again[i].channel == std::max<std::int16_t>(cells[i].channel, 0), "so does its channel");
  }
}

void check_names(Disk& disk) {
  disk.hold(kZoneNamesFile);
  std::vector<std::string> lines, again;
  must(read_names(disk.folder, kZoneNamesFile, lines));
  must(write_names(disk.folder, kZoneNamesFile, lines));
  must(read_names(disk.folder, kZoneNamesFile, again));
  check(lines == again, "the names read as they were saved");
}

void check_alert_settings(Disk& disk) {
  AlertStore store({.settings = disk.settings, .algorithms = disk.algorithms, .folder = disk.folder});
  disk.hold("alarm\\f_al_str.dat");
  must(store.LoadSettings());
  const std::vector<std::string> lines(disk.settings.SettingsLine.begin(), disk.settings.SettingsLine.end());
  check(scan_period(disk.settings) >= 0 && scan_period(disk.settings) < kSecondsPerDay,
        "a period lies in a day");
  must(store.SaveSettings());
  must(store.LoadSettings());
  check(std::ranges::equal(lines, disk.settings.SettingsLine), "the settings read as they were saved");
}

void check_algorithms(Disk& disk) {
  AlertStore store({.settings = disk.settings, .algorithms = disk.algorithms, .folder = disk.folder});
  disk.hold("alarm\\f_al.dat");
  const FileError error = store.LoadAlgorithms();
  check(error == kNoError || error == kFileSubscript, "an algorithm file is read as far as it goes");
  AlertStore::AlgorithmLines lines;
  for (int zone = 1; zone <= kZones; ++zone)
    for (const std::string& step : disk.algorithms.AlgZoneTable[zone]) {
      if (step.empty()) continue;
      for (int field = kAlgNumber; field <= kAlgZones; ++field)
        check(Len(AlgField(step, field)) <= Len(step), "a field is a part of its record");
      lines[zone].push_back(step);
    }
  must(store.SaveAlgorithms(lines));
  std::vector<std::string> print;
  must(store.PrintAlgorithms(print));
  for (const auto& line : print) check(Len(line) <= 3 * 512, "a line of the print is bounded");
}

void check_admin(Disk& disk) {
  disk.hold(kPasswordFile);
  disk.hold(kRestartFile);
  disk.hold(kTrialFile);
  std::string text, again;
  must(read_password(disk.folder, text));
  if (write_password(disk.folder, text) == kNoError) {
    must(read_password(disk.folder, again));
    check(text == again, "the password reads as it was saved");
  }
  must(read_trial(disk.folder, text));
  RestartSlots slots, slots_again;
  must(read_restart(disk.folder, slots));
  for (const auto& slot : slots)
    if (const auto time = time_value(*slot.time))
      check(*time >= 0 && *time < kSecondsPerDay, "a time lies in a day");
  must(write_restart(disk.folder, slots));
  must(read_restart(disk.folder, slots_again));
  for (std::size_t i = 0; i < slots.size(); ++i)
    check(slots[i].mark == slots_again[i].mark && slots[i].time == slots_again[i].time,
          "the restart reads as it was saved");
}

void check_programme(Disk& disk) {
  constexpr std::string_view kName = "Неделя";
  disk.hold("timer\\Неделя");
  std::vector<std::string> records, again;
  must(read_programme(disk.folder, kName, records));
  check(!records.empty(), "there is one record more than whole ones");
  for (const std::string& record : records)
    for (int n = kTmNumber; n <= kTmFields; ++n)
      check(Len(TmField(record, n)) <= Len(record), "a field is a part of its record");
  must(write_programme(disk.folder, kName, records));
  must(read_programme(disk.folder, kName, again));
  records.emplace_back();
  check(records == again, "the programme reads as it was saved, and one record more");
}

void check_schedule(Disk& disk) {
  disk.hold("timer\\List_prog.dat");
  disk.hold("timer\\Name_f.dat");
  const std::string name = read_last_programme(disk.folder);
  must(write_last_programme(disk.folder, name));
  check(read_last_programme(disk.folder) == name, "the name of the programme reads as it was saved");
  const auto entries = read_schedule(disk.folder);
  for (const std::string& text : entries) {
    const ScheduleEntry entry = schedule_entry(text);
    check(Len(entry.sch_name) + Len(entry.sch_from) <= 2 * Len(text) && Len(entry.sch_to) <= Len(text),
          "an entry's parts are parts of it");
    (void)short_date(entry.sch_from);
  }
  must(write_schedule(disk.folder, entries));
  check(read_schedule(disk.folder) == entries, "the schedule reads as it was saved");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static evac::Tally tally;
  tally.take(size);
  if (size == 0) return 0;
  Disk disk({reinterpret_cast<const char*>(data) + 1, size - 1});
  switch (data[0] % 9) {
    case 0:
      check_equipment(disk);
      break;
    case 1:
      check_cells(disk, kZoneFile, kZones);
      break;
    case 2:
      check_cells(disk, preset_file(1), kTerminals);
      break;
    case 3:
      check_names(disk);
      break;
    case 4:
      check_alert_settings(disk);
      break;
    case 5:
      check_algorithms(disk);
      break;
    case 6:
      check_programme(disk);
      break;
    case 7:
      check_schedule(disk);
      break;
    default:
      check_admin(disk);
  }
  return 0;
}

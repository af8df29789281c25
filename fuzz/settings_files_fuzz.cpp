// Any bytes as each file of the settings: no reader crashes, what it gives is within its ranges, and what was
// read and saved stays as it is when that is done once more. The first byte says which file the others are.
#include <cstdint>
#include <functional>

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

struct Disk {
  MemoryFiles files;
  FilesState known;
  SettingsState settings;
  AlgorithmState algorithms;
  DataFolder folder{{.files = files, .settings = settings, .known = known}};
  AlertStore store{{.settings = settings, .algorithms = algorithms, .folder = folder}};

  std::string& bytes_of(std::string_view file) { return files.bytes_of[folder.path(file)]; }
};

void equipment(Disk& disk) {
  std::optional<EquipmentRecords> records;
  must(read_equipment(disk.folder, records));
  if (!records) return;
  check(!records->port || *records->port == 1 || *records->port == 2, "a port is one of two");
  for (const auto& mask : records->outlets) check(!mask || (*mask >= 0 && *mask <= 255), "a mask is a byte");
  must(write_equipment(disk.folder, *records));
}

void cells(Disk& disk, std::string_view file, int count) {
  std::vector<CellRecord> cells;
  must(read_cells(disk.folder, file, count, cells));
  check(cells.empty() || cells.size() == static_cast<std::size_t>(count), "all cells or none");
  must(write_cells(disk.folder, file, cells));
}

void names(Disk& disk) {
  std::vector<std::string> lines;
  must(read_names(disk.folder, kZoneNamesFile, lines));
  must(write_names(disk.folder, kZoneNamesFile, lines));
}

void alert_settings(Disk& disk) {
  must(disk.store.LoadSettings());
  const int period = scan_period(disk.settings);
  check(period >= 0 && period < kSecondsPerDay, "a period lies in a day");
  must(disk.store.SaveSettings());
}

void algorithms(Disk& disk) {
  const FileError error = disk.store.LoadAlgorithms();
  check(error == kNoError || error == kFileSubscript, "an algorithm file is read as far as it goes");
  AlertStore::AlgorithmLines lines;
  for (int zone = 1; zone <= kZones; ++zone)
    for (const std::string& step : disk.algorithms.AlgZoneTable[zone]) {
      if (step.empty()) continue;
      for (int field = kAlgNumber; field <= kAlgZones; ++field)
        check(Len(AlgField(step, field)) <= Len(step), "a field is a part of its record");
      lines[zone].push_back(step);
    }
  must(disk.store.SaveAlgorithms(lines));
  std::vector<std::string> print;
  must(disk.store.PrintAlgorithms(print));
}

void password(Disk& disk) {
  std::string text;
  must(read_password(disk.folder, text));
  // One that its record can't hold is refused.
  (void)write_password(disk.folder, text);
}

void restart(Disk& disk) {
  RestartSlots slots;
  must(read_restart(disk.folder, slots));
  for (const auto& slot : slots)
    if (const auto time = time_value(*slot.time))
      check(*time >= 0 && *time < kSecondsPerDay, "a time lies in a day");
  must(write_restart(disk.folder, slots));
}

void programme(Disk& disk, std::string_view name) {
  std::vector<std::string> records;
  must(read_programme(disk.folder, name, records));
  check(!records.empty(), "there is one record more than whole ones");
  for (const std::string& record : records)
    for (int n = kTmNumber; n <= kTmFields; ++n)
      check(Len(TmField(record, n)) <= Len(record), "a field is a part of its record");
  records.pop_back();
  must(write_programme(disk.folder, name, records));
}

void schedule(Disk& disk) {
  const auto entries = read_schedule(disk.folder);
  for (const std::string& text : entries) {
    const ScheduleEntry entry = schedule_entry(text);
    check(Len(entry.sch_name) + Len(entry.sch_from) <= 2 * Len(text) && Len(entry.sch_to) <= Len(text),
          "an entry's parts are parts of it");
    (void)short_date(entry.sch_from);
  }
  must(write_schedule(disk.folder, entries));
}

struct File {
  std::string name;
  std::function<void(Disk&)> read_and_save;
};
const File kFiles[] = {
    {std::string(kEquipmentFile), equipment},
    {std::string(kZoneFile), [](Disk& disk) { cells(disk, kZoneFile, kZones); }},
    {preset_file(1), [](Disk& disk) { cells(disk, preset_file(1), kTerminals); }},
    {std::string(kZoneNamesFile), names},
    {"alarm\\f_al_str.dat", alert_settings},
    {"alarm\\f_al.dat", algorithms},
    {"timer\\Неделя", [](Disk& disk) { programme(disk, "Неделя"); }},
    {"timer\\List_prog.dat", schedule},
    {"timer\\Name_f.dat",
     [](Disk& disk) { must(write_last_programme(disk.folder, read_last_programme(disk.folder))); }},
    {std::string(kPasswordFile), password},
    {std::string(kRestartFile), restart},
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static evac::Tally tally;
  tally.take(size);
  if (size == 0) return 0;
  const File& file = kFiles[data[0] % std::size(kFiles)];
  Disk disk;
  disk.bytes_of(file.name) = {reinterpret_cast<const char*>(data) + 1, size - 1};
  file.read_and_save(disk);
  const std::string saved = disk.bytes_of(file.name);
  file.read_and_save(disk);
  check(disk.bytes_of(file.name) == saved, "what was saved stays as it is when it is read and saved again");
  return 0;
}

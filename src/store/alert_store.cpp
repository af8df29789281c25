#include "store/alert_store.h"

#include "model/text.h"
#include "store/algorithm_record.h"
#include "store/code_page.h"
#include "store/record_file.h"

namespace evac {
namespace {

constexpr std::string_view kSettingsFile = "alarm\\f_al_str.dat";
constexpr int kSettingsRecordLength = 256;
// Settings line i is the record one above it.
constexpr int kFirstSettingsRecord = 1;

constexpr std::string_view kAlgorithmFile = "alarm\\f_al.dat";
constexpr int kAlgorithmRecordLength = 512;

}  // namespace

FileError AlertStore::LoadSettings() {
  RecordFile file(doors_.folder, kSettingsFile, kSettingsRecordLength);
  if (const FileError error = file.load()) return error;
  for (int i = 0; i < kSettingsLines; ++i)
    doors_.settings.SettingsLine[i] = file.take(i + kFirstSettingsRecord);
  file.end_reading();
  return kNoError;
}

FileError AlertStore::SaveSettings() {
  RecordFile file(doors_.folder, kSettingsFile, kSettingsRecordLength);
  for (int i = 0; i < kSettingsLines; ++i)
    file.put(i + kFirstSettingsRecord, doors_.settings.SettingsLine[i]);
  return file.save();
}

FileError AlertStore::LoadAlgorithms() {
  ++doors_.algorithms.edition;
  auto& table = doors_.algorithms.AlgZoneTable;
  for (auto& steps : table) steps.fill({});
  RecordFile file(doors_.folder, kAlgorithmFile, kAlgorithmRecordLength);
  if (const FileError error = file.load()) return error;
  FileError error = kNoError;
  int current = 1, step = 0;
  for (int r = 1; r <= file.count(); ++r) {
    const int number = Number(AlgField(file.text(r), kAlgNumber));
    if (number < current) break;
    if (number != current) step = 0;
    current = number;
    ++step;
    if (number > kZones || step > kAlgorithmSteps) {
      error = kFileSubscript;
      break;
    }
    table[number][step] = file.take(r);
  }
  file.end_reading();
  return error;
}

FileError AlertStore::SaveAlgorithms(const AlgorithmLines& lines) {
  RecordFile file(doors_.folder, kAlgorithmFile, kAlgorithmRecordLength);
  for (const auto& steps : lines) {
    if (steps.size() > kAlgorithmSteps) return kFileSubscript;
    for (const auto& step : steps) file.put(file.count() + 1, step);
  }
  if (const FileError error = file.save()) return error;
  ++doors_.algorithms.edition;
  for (int n = 1; n <= kZones; ++n)
    for (std::size_t i = 0; i < lines[n].size(); ++i)
      doors_.algorithms.AlgZoneTable[n][static_cast<int>(i) + 1] = lines[n][i];
  return kNoError;
}

FileError AlertStore::PrintAlgorithms(std::vector<std::string>& lines) {
  lines.clear();
  for (int n = 1; n <= kZones; ++n) {
    const auto& steps = doors_.algorithms.AlgZoneTable[n];
    if (steps[1].empty()) continue;
    lines.push_back(join("Алгоритм № ", n));
    for (const auto& step : steps) {
      if (step.empty()) continue;
      lines.push_back(join(AlgField(step, kAlgOrder), " - Сообщение: ", AlgField(step, kAlgMessage),
                           " , Повторы - ", AlgField(step, kAlgPlays)));
      lines.push_back("Номера зон:");
      const std::string zones = AlgField(step, kAlgZones);
      for (int k = 1; k <= kZones; ++k)
        if (Mid(zones, k, 1) == kZoneIn) lines.push_back(join("Зона - ", k));
    }
  }
  std::string bytes;
  for (const auto& line : lines) bytes += to_code_page(line) + "\r\n";
  return doors_.folder.replace(kPrintFile, bytes);
}

int scan_period(const SettingsState& settings) {
  const std::int64_t hours = Number(settings.SettingsLine[kScanHours]);
  const std::int64_t minutes = Number(settings.SettingsLine[kScanMinutes]);
  return later_in_day(0, static_cast<int>((hours * 3600 + minutes * 60) % kSecondsPerDay));
}

}  // namespace evac

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

constexpr std::string_view kPrintFile = "alarm\\f_alg";

// What the operator is told, before the number of the error; the comma is as it stands.
constexpr std::string_view kSettingsReadFault = "Ошибка чтения файла f_al_str,dat ";
constexpr std::string_view kSettingsWriteFault = "Ошибка записи f_al_str.dat ";
constexpr std::string_view kAlgorithmReadFault = "Ошибка чтения файла f_al.dat ";
constexpr std::string_view kAlgorithmWriteFault = "Ошибка записи в файл f_al.dat ";
constexpr std::string_view kPrintWriteFault = "Ошибка записи f_alg ";

}  // namespace

void AlertStore::LoadSettings() {
  RecordFile file(doors_.files, doors_.settings.data_path(kSettingsFile), kSettingsRecordLength);
  if (const int error = file.load()) {
    doors_.boxes.message(join(kSettingsReadFault, error));
    return;
  }
  for (int i = 0; i < kSettingsLines; ++i)
    doors_.settings.SettingsLine[i] = file.text(i + kFirstSettingsRecord);
}

void AlertStore::SaveSettings() {
  RecordFile file(doors_.files, doors_.settings.data_path(kSettingsFile), kSettingsRecordLength);
  for (int i = 0; i < kSettingsLines; ++i)
    file.put(i + kFirstSettingsRecord, doors_.settings.SettingsLine[i]);
  if (const int error = file.save()) doors_.boxes.message(join(kSettingsWriteFault, error));
}

void AlertStore::LoadAlgorithms() {
  ++doors_.algorithms.edition;
  auto& table = doors_.algorithms.AlgZoneTable;
  for (auto& steps : table) steps.fill({});
  RecordFile file(doors_.files, doors_.settings.data_path(kAlgorithmFile), kAlgorithmRecordLength);
  int error = file.load();
  int current = 1, step = 0;
  for (int r = 1; error == kNoError && r <= file.count(); ++r) {
    const int number = ClampedNumber(AlgField(file.text(r), kAlgNumber));
    if (number < current) return;
    if (number != current) step = 0;
    current = number;
    ++step;
    if (number > kZones || step > kAlgorithmSteps)
      error = kFileSubscript;
    else
      table[number][step] = file.text(r);
  }
  if (error) doors_.boxes.message(join(kAlgorithmReadFault, error));
}

void AlertStore::SaveAlgorithms(const AlgorithmLines& lines) {
  RecordFile file(doors_.files, doors_.settings.data_path(kAlgorithmFile), kAlgorithmRecordLength);
  int error = kNoError;
  for (const auto& steps : lines) {
    if (steps.size() > kAlgorithmSteps) error = kFileSubscript;
    for (const auto& step : steps) file.put(file.count() + 1, step);
  }
  if (error == kNoError) error = file.save();
  if (error) {
    doors_.boxes.message(join(kAlgorithmWriteFault, error));
    return;
  }
  ++doors_.algorithms.edition;
  for (int n = 1; n <= kZones; ++n)
    for (std::size_t i = 0; i < lines[n].size(); ++i)
      doors_.algorithms.AlgZoneTable[n][static_cast<int>(i) + 1] = lines[n][i];
}

std::vector<std::string> AlertStore::PrintAlgorithms() {
  std::vector<std::string> lines;
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
  if (const int error = doors_.files.replace(print_path(), bytes))
    doors_.boxes.message(join(kPrintWriteFault, error));
  return lines;
}

std::string AlertStore::print_path() const {
  return doors_.settings.data_path(kPrintFile);
}

int scan_period(const SettingsState& settings) {
  const std::int64_t hours = ClampedNumber(settings.SettingsLine[kScanHours]);
  const std::int64_t minutes = ClampedNumber(settings.SettingsLine[kScanMinutes]);
  return later_in_day(0, static_cast<int>((hours * 3600 + minutes * 60) % kSecondsPerDay));
}

}  // namespace evac

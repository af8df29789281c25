#include "store/alert_store.h"

#include "model/text.h"
#include "store/record_file.h"

namespace evac {
namespace {

constexpr std::string_view kSettingsFile = "alarm\\f_al_str.dat";
constexpr int kSettingsRecordLength = 256;
// Settings line i is the record one above it.
constexpr int kFirstSettingsRecord = 1;

// What the operator is told, before the number of the error; the comma is as it stands.
constexpr std::string_view kSettingsReadFault = "Ошибка чтения файла f_al_str,dat ";

}  // namespace

void AlertStore::LoadSettings() {
  RecordFile file(files_, settings_.data_path(kSettingsFile), kSettingsRecordLength);
  if (const int error = file.load()) {
    boxes_.message(join(kSettingsReadFault, error));
    return;
  }
  for (int i = 0; i < kSettingsLines; ++i) settings_.SettingsLine[i] = file.text(i + kFirstSettingsRecord);
}

int scan_period(const SettingsState& settings) {
  const std::int64_t hours = ClampedNumber(settings.SettingsLine[kScanHours]);
  const std::int64_t minutes = ClampedNumber(settings.SettingsLine[kScanMinutes]);
  return later_in_day(0, static_cast<int>((hours * 3600 + minutes * 60) % kSecondsPerDay));
}

}  // namespace evac

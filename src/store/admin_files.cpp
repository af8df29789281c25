#include "store/admin_files.h"

#include "store/record_file.h"

namespace evac {
namespace {

constexpr int kRecord = 256;

FileError read_only_record(DataFolder& folder, std::string_view name, std::string& text) {
  text.clear();
  RecordFile file(folder, name, kRecord);
  if (const FileError error = file.load()) return error;
  text = file.take(1);
  file.end_reading();
  return kNoError;
}

FileError write_only_record(DataFolder& folder, std::string_view name, std::string_view text) {
  RecordFile file(folder, name, kRecord);
  if (!file.holds(text)) return kBadRecordLength;
  file.put(1, text);
  return file.save();
}

// The record places of F_reset.dat: all marks, then all times.
template <class Slots, class Visit>
void at_restart_places(Slots& slots, const Visit& visit) {
  for (int n = 1; n <= kRestartSlots; ++n) {
    auto& slot = slots[static_cast<std::size_t>(n - 1)];
    visit(n, slot.mark);
    visit(kRestartSlots + n, slot.time);
  }
}

}  // namespace

FileError read_password(DataFolder& folder, std::string& stored) {
  return read_only_record(folder, kPasswordFile, stored);
}

FileError write_password(DataFolder& folder, std::string_view stored) {
  return write_only_record(folder, kPasswordFile, stored);
}

FileError read_restart(DataFolder& folder, RestartSlots& slots) {
  RecordFile file(folder, kRestartFile, kRecord);
  if (const FileError error = file.load()) return error;
  at_restart_places(slots, [&](int record, std::optional<std::string>& text) { text = file.take(record); });
  file.end_reading();
  return kNoError;
}

FileError write_restart(DataFolder& folder, const RestartSlots& slots) {
  RecordFile file(folder, kRestartFile, kRecord);
  if (const FileError error = file.load()) return error;
  at_restart_places(slots, [&](int record, const std::optional<std::string>& text) {
    if (text) file.put(record, *text);
  });
  return file.save();
}

FileError read_trial(DataFolder& folder, std::string& text) {
  return read_only_record(folder, kTrialFile, text);
}

FileError write_trial(DataFolder& folder, std::string_view text) {
  return write_only_record(folder, kTrialFile, text);
}

}  // namespace evac

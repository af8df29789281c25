#include "store/programme_files.h"

#include <algorithm>

#include "model/text.h"
#include "store/code_page.h"
#include "store/record_file.h"

namespace evac {
namespace {

constexpr std::string_view kFolder = "timer", kNameFile = "Name_f.dat", kScheduleFile = "List_prog.dat";
constexpr int kNameLength = 32, kEventLength = 128, kEntryLength = 256;
constexpr std::size_t kLongestName = 30;  // bytes
constexpr std::string_view kBarred = "\\/:*?\"<>|";
// The first record of the schedule is no entry.
constexpr int kFirstEntry = 2;
constexpr std::string_view kTab = "\t", kFrom = "с ", kTo = " по ", kToWord = "по ";

std::string in_folder(std::string_view file) {
  return join(kFolder, "\\", file);
}

// A reading that came through: whatever else a file of the timer holds has no meaning, so that nothing is
// left.
void end_reading(RecordFile& file) {
  for (int k = 1; k <= file.count(); ++k) file.take(k);
  file.end_reading();
}

}  // namespace

bool is_programme_name(std::string_view name) {
  const std::string bytes = to_code_page(name);
  if (bytes.empty() || bytes.size() > kLongestName || from_code_page(bytes) != name) return false;
  const auto is_barred = [](char c) {
    return static_cast<unsigned char>(c) < ' ' || kBarred.find(c) != std::string_view::npos;
  };
  if (std::ranges::any_of(bytes, is_barred) || bytes.ends_with('.') || bytes.ends_with(' ')) return false;
  // The disk finds a file whatever the case of its letters.
  return lower_case(name) != lower_case(kNameFile) && lower_case(name) != lower_case(kScheduleFile);
}

std::vector<std::string> programme_names(const DataFolder& folder) {
  auto names = folder.names(kFolder);
  std::erase_if(names, [](const std::string& name) { return name == kNameFile || name == kScheduleFile; });
  return names;
}

bool has_programme(const DataFolder& folder, std::string_view name) {
  return folder.has(in_folder(name));
}

FileError read_programme(DataFolder& folder, std::string_view name, std::vector<std::string>& records) {
  RecordFile file(folder, in_folder(name), kEventLength);
  records.clear();
  if (const FileError error = file.load()) return error;
  const int elements = file.whole_count() + 1;
  records.reserve(static_cast<std::size_t>(elements));
  for (int k = 1; k <= elements; ++k) records.push_back(file.text(k));
  end_reading(file);
  return kNoError;
}

FileError write_programme(DataFolder& folder, std::string_view name,
                          const std::vector<std::string>& records) {
  RecordFile file(folder, in_folder(name), kEventLength);
  for (const std::string& record : records) file.put(file.count() + 1, record);
  return file.save();
}

std::string read_last_programme(DataFolder& folder) {
  RecordFile file(folder, in_folder(kNameFile), kNameLength);
  if (file.load() != kNoError) return {};
  end_reading(file);
  return file.text(1);
}

FileError write_last_programme(DataFolder& folder, std::string_view name) {
  RecordFile file(folder, in_folder(kNameFile), kNameLength);
  file.put(1, name);
  return file.save();
}

std::vector<std::string> read_schedule(DataFolder& folder) {
  RecordFile file(folder, in_folder(kScheduleFile), kEntryLength);
  std::vector<std::string> entries;
  if (file.load() != kNoError) return entries;
  for (int k = kFirstEntry; k <= file.count(); ++k) entries.push_back(file.text(k));
  end_reading(file);
  return entries;
}

FileError write_schedule(DataFolder& folder, const std::vector<std::string>& entries) {
  RecordFile file(folder, in_folder(kScheduleFile), kEntryLength);
  for (std::size_t i = 0; i < entries.size(); ++i) file.put(kFirstEntry + static_cast<int>(i), entries[i]);
  return file.save();
}

std::string schedule_text(std::string_view name, std::string_view from, std::string_view to) {
  return join(name, kTab, kFrom, from, kTo, to);
}

ScheduleEntry schedule_entry(std::string_view text) {
  const int from = InStr(text, kFrom), to = InStr(text, kTo);
  return {Left(text, InStr(text, kTab) - 1), Mid(text, from + 1, to - from - 1),
          Mid(text, InStr(text, kToWord) + Len(kToWord), Len(text))};
}

}  // namespace evac

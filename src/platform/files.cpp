#include "platform/files.h"

#include <algorithm>
#include <utility>

#include "model/text.h"

namespace evac {
namespace {

bool fits(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*')
    return fits(name, pattern.substr(1)) || (!name.empty() && fits(name.substr(1), pattern));
  return !name.empty() && (pattern.front() == '?' || pattern.front() == name.front()) &&
         fits(name.substr(1), pattern.substr(1));
}

}  // namespace

std::string_view words_of(FileError error) {
  switch (error) {
    case kNoError:
      return "нет ошибки";
    case kFileSubscript:
      return "номер вне таблицы";
    case kFileNotFound:
      return "файл не найден";
    case kBadFileMode:
      return "не обычный файл или больше 16 МБ";
    case kDeviceError:
      return "сбой устройства";
    case kFileExists:
      return "файл уже есть";
    case kBadRecordLength:
      return "не помещается в запись";
    case kDiskFull:
      return "нет места на диске";
    case kPermissionDenied:
      return "нет прав доступа";
    case kDriveNotReady:
      return "диск не готов";
    case kPathFileAccess:
      return "на этом месте папка";
    case kPathNotFound:
      return "папка не найдена";
  }
  return "неизвестная ошибка";
}

bool matches_pattern(std::string_view name, std::string_view patterns) {
  const std::string low_name = lower_case(name), low = lower_case(patterns);
  std::string_view rest = low;
  while (true) {
    const auto end = rest.find(';');
    if (fits(low_name, rest.substr(0, end))) return true;
    if (end == std::string_view::npos) return false;
    rest.remove_prefix(end + 1);
  }
}

bool listed_before(std::string_view a, std::string_view b) {
  const std::string low_a = lower_case(a), low_b = lower_case(b);
  return low_a != low_b ? low_a < low_b : a < b;
}

void sort_as_listed(std::vector<std::string>& names) {
  std::vector<std::pair<std::string, std::string>> by_letters;
  by_letters.reserve(names.size());
  for (std::string& name : names) {
    std::string low = lower_case(name);
    by_letters.emplace_back(std::move(low), std::move(name));
  }
  std::ranges::sort(by_letters);
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = std::move(by_letters[i].second);
}

}  // namespace evac

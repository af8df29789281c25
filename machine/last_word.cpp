#include "machine/last_word.h"

#include <algorithm>

#include "model/text.h"

namespace evac {
namespace {

std::size_t size_of(const std::string& key, const DiskAnswer& answer) {
  std::size_t bytes = sizeof(DiskAnswer) + key.size() + answer.bytes.size();
  for (const auto& name : answer.names) bytes += sizeof name + name.size();
  return bytes;
}

std::string_view name_of(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);
}

bool names_it(const DiskAnswer& listing, std::string_view path) {
  return std::ranges::any_of(listing.names,
                             [&](const std::string& name) { return same_path(name, name_of(path)); });
}

}  // namespace

std::string reading_of(std::string_view path) {
  return "read " + lower_case(path);
}
std::string file_at(std::string_view path) {
  return "file " + lower_case(path);
}
std::string folder_at(std::string_view path) {
  return "folder " + lower_case(path);
}
std::string files_in(std::string_view folder) {
  return "files " + lower_case(folder);
}
std::string folders_in(std::string_view folder) {
  return "folders " + lower_case(folder);
}

std::string_view folder_of(std::string_view path) {
  const auto end = path.rfind('\\');
  return end == std::string_view::npos ? std::string_view() : path.substr(0, end);
}

bool same_path(std::string_view one, std::string_view other) {
  return lower_case(one) == lower_case(other);
}

std::optional<DiskAnswer> LastWord::of(const std::string& key) const {
  const auto last = said_.find(key);
  return last == said_.end() ? std::nullopt : std::optional(last->second);
}

std::optional<bool> LastWord::lists(std::string_view path) const {
  const auto listing = said_.find(files_in(folder_of(path)));
  return listing == said_.end() ? std::nullopt : std::optional(names_it(listing->second, path));
}

void LastWord::keep(const std::string& key, const DiskAnswer& answer) {
  forget(key);
  const std::size_t size = size_of(key, answer);
  // What went wrong once may be right the next time; that there is no such file is a word.
  if ((answer.error != kNoError && answer.error != kFileNotFound) || bytes_ + size > kMostKnown) return;
  said_[key] = answer;
  bytes_ += size;
}

void LastWord::forget(const std::string& key) {
  const auto last = said_.find(key);
  if (last == said_.end()) return;
  bytes_ -= size_of(key, last->second);
  said_.erase(last);
}

void LastWord::note_file(std::string_view path, bool there) {
  keep(file_at(path), {.yes = there});
  const auto listed = lists(path);
  if (!listed || *listed == there) return;
  const std::string key = files_in(folder_of(path));
  DiskAnswer listing = said_.at(key);
  auto& names = listing.names;
  if (there)
    names.emplace_back(name_of(path));
  else
    std::erase_if(names, [&](const std::string& name) { return same_path(name, name_of(path)); });
  sort_as_listed(names);
  keep(key, listing);
}

void LastWord::forget_all_of(std::string_view path) {
  for (const std::string& key :
       {reading_of(path), file_at(path), folder_at(path), folders_in(folder_of(path))})
    forget(key);
}

}  // namespace evac

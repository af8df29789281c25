#include "store/play_list_file.h"

#include <algorithm>

#include "model/text.h"
#include "store/code_page.h"

namespace evac {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr char kRemark = '#';

}  // namespace

bool is_play_list(std::string_view name) {
  return name.starts_with(kPlayListName);
}

int play_list_number(std::string_view name) {
  return Number(name.substr(kPlayListName.size()));
}

std::vector<std::string> play_list_lines(std::string_view bytes) {
  std::vector<std::string> lines;
  while (!bytes.empty()) {
    const auto end = bytes.find_first_of(kLineEnd);
    lines.push_back(from_code_page(bytes.substr(0, end)));
    if (end == std::string_view::npos) break;
    bytes.remove_prefix(end + (bytes.substr(end).starts_with(kLineEnd) ? kLineEnd.size() : 1));
  }
  return lines;
}

std::vector<std::string> play_list_tracks(std::string_view bytes) {
  std::vector<std::string> lines = play_list_lines(bytes);
  const auto remarks =
      std::ranges::count_if(lines, [](const std::string& line) { return line.starts_with(kRemark); });
  lines.resize(lines.size() - static_cast<std::size_t>(remarks));
  return lines;
}

std::optional<std::vector<std::string>> read_play_list(Files& files, std::string_view path) {
  std::string bytes;
  if (files.read(path, bytes) != kNoError) return {};
  return play_list_tracks(bytes);
}

int write_play_list(Files& files, std::string_view path, const std::vector<std::string>& tracks) {
  std::string bytes;
  for (const std::string& track : tracks) bytes += to_code_page(track).append(kLineEnd);
  return files.replace(path, bytes);
}

}  // namespace evac

#include "player/track_list.h"

#include "model/text.h"

namespace evac {
namespace {

// The rows of these tracks, the first with number `first`.
std::vector<std::string> numbered(const std::vector<std::string>& paths, int first, std::string_view gap) {
  std::vector<std::string> rows;
  rows.reserve(paths.size());
  for (const std::string& path : paths) rows.push_back(join(first++, gap, path));
  return rows;
}

}  // namespace

void TrackList::fill(std::vector<std::string> paths, std::string_view gap) {
  doors_.rows.add_all(numbered(paths, 1, gap));
  doors_.player.mp_list = std::move(paths);
}

void TrackList::add(const std::vector<std::string>& paths) {
  auto& list = doors_.player.mp_list;
  doors_.rows.add_all(numbered(paths, doors_.player.mp_cnt() + 1, kGap));
  list.insert(list.end(), paths.begin(), paths.end());
}

void TrackList::remove(const std::string& path) {
  auto& list = doors_.player.mp_list;
  const std::size_t left = list.size() - 1;
  std::erase(list, std::string(path));
  doors_.rows.clear();
  doors_.rows.add_all(numbered(list, 1, kGap));
  list.resize(left);
}

void TrackList::erase() {
  doors_.player.mp_list.clear();
  doors_.rows.clear();
}

void TrackList::mark_current() {
  const int row = doors_.player.mp_trk - 1;
  if (row >= 0 && row < doors_.rows.count()) doors_.rows.mark(row);
}

}  // namespace evac

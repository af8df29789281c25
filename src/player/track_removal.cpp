#include "player/track_removal.h"

#include <algorithm>
#include <iterator>

#include "model/text.h"
#include "store/play_list_file.h"

namespace evac {
namespace {

constexpr std::string_view kTemporary = "Temp-Лист";

}  // namespace

void TrackRemoval::remove_chosen(MousePress press) {
  PlayerState& player = doors_.player;
  const int row = doors_.tab.LstPtreckMP.selected();
  if (!press.plain_right() || !player.mp_pow || row < 0 || row >= player.mp_cnt()) return;
  const std::string path = player.mp_list[static_cast<std::size_t>(row)];
  if (path.empty() || !doors_.boxes.ask(join("Удалить запись? ", path), "!!!")) return;
  doors_.tab.CmdStopMP.click();
  if (lies_in_play_list(path)) {
    if (doors_.files.remove(path) != kNoError) return;
    doors_.tab.Dir2.refresh();
    doors_.tab.File2.refresh();
  }
  if (player.mp_cnt() > 1) {
    doors_.tracks.remove(path);
    if (!player.mp_pl_name.empty() && rewrite_list()) doors_.tab.File2.refresh();
    return;
  }
  doors_.tracks.erase();
  if (player.mp_pl_name.empty() || doors_.files.remove(base_path(player.mp_pl_name)) != kNoError) return;
  player.mp_pl_name.clear();
  doors_.lists.ListRefresh();
}

// What lies in the folder PlayList drops out of a saved list here.
bool TrackRemoval::rewrite_list() {
  std::vector<std::string> kept;
  std::ranges::copy_if(doors_.player.mp_list, std::back_inserter(kept),
                       [this](const std::string& path) { return !lies_in_play_list(path); });
  const std::string temporary = base_path(kTemporary);
  return write_play_list(doors_.files, temporary, kept) == kNoError &&
         doors_.files.copy(temporary, base_path(doors_.player.mp_pl_name)) == kNoError &&
         doors_.files.remove(temporary) == kNoError;
}

bool TrackRemoval::lies_in_play_list(std::string_view path) const {
  return path.find(base_path("PlayList")) != std::string_view::npos;
}

std::string TrackRemoval::base_path(std::string_view name) const {
  return path_in(doors_.settings.protocol_base, name);
}

}  // namespace evac

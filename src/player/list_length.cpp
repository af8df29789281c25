#include "player/list_length.h"

#include <cmath>

#include "model/text.h"

namespace evac {

void ListLength::toggle() {
  if (!doors_.player.mp_pow) return;
  if (doors_.player.mp_svl || !doors_.boxes.ask("Вы желаете подсчитать объем Play-list?", "?"))
    return clear();
  doors_.tab.CmdSVL.set_back_color(Color::kModeOn);
  doors_.tab.LblVPL.set_visible(true);
  const auto seconds = measure();
  if (!seconds) return doors_.tab.CmdStopMP.click();
  const int time = *seconds % kSecondsPerDay;
  doors_.tab.LblVPL.set_caption(
      join("Play-list: ", time / 3600, " hh ", time / 60 % 60, " mm ", time % 60, " ss"));
  doors_.player.mp_svl = true;
}

void ListLength::clear() {
  doors_.player.mp_svl = false;
  doors_.tab.CmdSVL.set_back_color(Color::kButtonFace);
  doors_.tab.LblVPL.set_caption("");
  doors_.tab.LblVPL.set_visible(false);
}

std::optional<int> ListLength::measure() {
  BusyPointer pointer(doors_.windows, "Длительность списка", doors_.player.mp_cnt());
  double sum = 0;
  int done = 0;
  for (const std::string& path : doors_.player.mp_list) {
    if (!doors_.steps.browsing_drive_ready(kLengthTexts) || !doors_.steps.is_there(path, kLengthTexts))
      return {};
    doors_.MP3.set_file(path);
    sum = std::nearbyint(sum + doors_.MP3.duration());
    doors_.MP3.hold();
    if (!pointer.show(++done)) return {};
  }
  return static_cast<int>(std::fmod(sum, kSecondsPerDay));
}

}  // namespace evac

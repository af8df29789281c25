#include "player/tag_search.h"

#include <algorithm>

#include "model/text.h"
#include "player/list_panels.h"

namespace evac {

void TagSearch::toggle() {
  PlayerState& player = doors_.player;
  if (!player.mp_pow) return;
  if (player.mp_seek) {
    player.mp_seek = false;
    return show_panel(false);
  }
  if (!doors_.boxes.ask("Начать поиск", "???")) {
    show_panel(false);
    return doors_.tab.TxtSeek.set_text("");
  }
  player.mp_seek = true;
  show_panel(true);
  doors_.tab.TxtSeek.set_focus();
  doors_.tab.CmdSeekOk.set_enabled(false);
}

void TagSearch::text_changed() {
  doors_.tab.CmdSeekOk.set_enabled(true);
}

void TagSearch::run() {
  PlayerTab& tab = doors_.tab;
  if (!doors_.player.mp_pow) return;
  if (tab.TxtSeek.text().empty()) {
    doors_.boxes.message("Введите строку для поиска", "???");
    return tab.TxtSeek.set_focus();
  }
  const std::string text = lower_case(Trim(tab.TxtSeek.text()));
  BusyPointer pointer(doors_.windows, "Поиск", doors_.player.mp_cnt());
  for (int i = 1; i <= doors_.player.mp_cnt(); ++i) {
    switch (look_at(i, text)) {
      case Walk::kGoesOn:
        if (!pointer.show(i)) return;
        break;
      case Walk::kFailed:
        return;
      case Walk::kEndedByOperator:
        show_panel(false);
        return tab.TxtSeek.set_text("");
    }
  }
  doors_.boxes.message("Поиск завершен", "!!!");
}

TagSearch::Walk TagSearch::look_at(int number, std::string_view text) {
  PlayerState& player = doors_.player;
  const std::string path = player.mp_list[static_cast<std::size_t>(number - 1)];
  const bool browsing = doors_.steps.browsing_drive_ready(kSearchTexts);
  const bool drive = browsing && doors_.steps.DriveCheck(path);
  if (!drive || !doors_.steps.is_there(path, kSearchTexts)) {
    doors_.tab.CmdStopMP.click();
    if (browsing && !drive) doors_.MP.hold();
    return Walk::kFailed;
  }
  doors_.MP3.set_file(path);
  doors_.MP3.hold();
  const TrackTag tag = read_tag(doors_.files, path).value_or(TrackTag{});
  const std::string* const places[] = {&path, &tag.title, &tag.artist, &tag.album, &tag.year, &tag.comment};
  if (std::ranges::none_of(places, [&](const std::string* place) {
        return lower_case(Trim(*place)).find(text) != std::string::npos;
      }))
    return Walk::kGoesOn;
  player.mp_trk = number;
  doors_.transport.SelectTrack();
  return doors_.boxes.ask("Продолжить поиск?", "!") ? Walk::kGoesOn : Walk::kEndedByOperator;
}

void TagSearch::show_panel(bool on) {
  PlayerTab& tab = doors_.tab;
  tab.CmdSeek.set_back_color(mode_color(on));
  for (Control* control : std::initializer_list<Control*>{&tab.TxtSeek, &tab.LblSeek, &tab.CmdSeekOk})
    control->set_visible(on);
}

}  // namespace evac

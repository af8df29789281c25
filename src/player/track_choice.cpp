#include "player/track_choice.h"

#include "model/text.h"

namespace evac {

void TrackChoice::pick() {
  const int row = doors_.tab.LstPtreckMP.selected();
  if (!doors_.player.mp_pow || row < 0) return;
  doors_.player.mp_trk = row + 1;
  doors_.transport.SelectTrack();
  doors_.tab.CmdPlayMP.set_tool_tip(doors_.player.mp_file);
}

void TrackChoice::play_picked() {
  if (doors_.tab.LstPtreckMP.selected() >= 0 && !doors_.player.mp_play) doors_.tab.CmdPlayMP.click();
}

void TrackChoice::jump(MousePress press) {
  PlayerState& player = doors_.player;
  PlayerTab& tab = doors_.tab;
  if (!press.plain_right() || !player.mp_pow || player.mp_show) return;
  if (!player.mp_goto) {
    player.mp_goto = true;
    tab.Label5.set_visible(true);
    tab.TxtNzMp.set_text(std::to_string(player.mp_trk));
    tab.TxtNzMp.set_visible(true);
    tab.TxtNzMp.set_focus();
    tab.CmdListMP.set_back_color(Color::kButtonFace);
    return;
  }
  const int number = Number(tab.TxtNzMp.text());
  if (number < 1 || number > player.mp_cnt()) {
    doors_.boxes.message(join("Введите значение от 1 до ", player.mp_cnt()), "!!!");
    tab.TxtNzMp.set_focus();
    return;
  }
  tab.Label5.set_visible(false);
  tab.TxtNzMp.set_visible(false);
  player.mp_goto = false;
  player.mp_trk = number;
  doors_.transport.SelectTrack();
}

void TrackChoice::filter_key(std::string& key) const {
  if (key != "\b" && (key.size() != 1 || key[0] < '0' || key[0] > '9')) key.clear();
}

}  // namespace evac

#include "player/list_panels.h"

namespace evac {

void ListPanels::toggle_tracks() {
  PlayerState& player = doors_.player;
  PlayerTab& tab = doors_.tab;
  if (!player.mp_pow || player.mp_goto) return;
  player.mp_show = !player.mp_show;
  tab.LstPtreckMP.set_visible(player.mp_show);
  tab.CmdListMP.set_back_color(mode_color(player.mp_show));
  if (player.mp_show && player.mp_lists) tab.CmdLpl.click();
}

void ListPanels::toggle_lists() {
  PlayerState& player = doors_.player;
  PlayerTab& tab = doors_.tab;
  if (!player.mp_pow) return;
  player.mp_lists = !player.mp_lists;
  tab.LstPll.set_visible(player.mp_lists);
  tab.CmdLpl.set_back_color(mode_color(player.mp_lists));
  if (player.mp_lists && player.mp_show) tab.CmdListMP.click();
}

}  // namespace evac

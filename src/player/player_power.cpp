#include "player/player_power.h"

#include "console/channel_colors.h"
#include "model/text.h"
#include "player/list_panels.h"

namespace evac {
namespace {

constexpr std::string_view kReady = "ГОТОВ К РАБОТЕ", kOff = "mp3-player";

}  // namespace

void PlayerPower::toggle() {
  if (doors_.player.mp_pow)
    switch_off();
  else
    switch_on();
}

void PlayerPower::toggle_cycle() {
  if (!doors_.player.mp_pow) return;
  doors_.player.mp_cycle = !doors_.player.mp_cycle;
  doors_.tab.CmdCicl2.set_back_color(mode_color(doors_.player.mp_cycle));
}

void PlayerPower::switch_on() {
  PlayerState& player = doors_.player;
  PlayerTab& tab = doors_.tab;
  tab.CmdPMP.set_picture(picture::kPower.on);
  tab.CmdPMP.set_caption("On");
  const BusyPointer pointer(doors_.windows, "Включение плеера");
  tab.LblUP.set_caption(kReady);
  tab.Tmr1.set_enabled(false);
  tab.Tmr2.set_enabled(false);
  // A drag before the first play still goes by the length of the track that was played last.
  const double last_length = player.mp_dur;
  player = {};
  player.mp_pow = true;
  player.mp_lvl0 = player.mp_lvl;
  player.mp_dur = last_length;
  tab.LblMPU.set_caption(join(player.mp_pct, "%"));
  if (!doors_.lists.PlayerInit()) return;
  doors_.MP.set_volume(player.mp_vol);
  doors_.MP.set_file(player.mp_file);
  doors_.MP.hold();
  tab.CmdCicl2.click();
  tab.LblUP.set_caption(kReady);
  tab.LblUP.set_tool_tip(join("Tracks - ", player.mp_cnt()));
  doors_.lists.ListRefresh();
}

void PlayerPower::switch_off() {
  PlayerState& player = doors_.player;
  PlayerTab& tab = doors_.tab;
  tab.CmdStopMP.click();
  doors_.transport.ResetButtons();
  // Stop leaves an empty list alone, but a track that has been deleted from it may still sound.
  if (player.mp_cnt() == 0 && (player.mp_play || !player.mp_file.empty())) doors_.MP.hold();
  player.mp_play = player.mp_pause = false;
  tab.Tmr1.set_enabled(false);
  tab.Tmr2.set_enabled(false);

  player.mp_pow = false;
  tab.CmdPMP.set_picture(picture::kPower.off);
  tab.CmdPMP.set_caption("Off");
  for (Button* button :
       {&tab.CmdListMP, &tab.CmdCicl2, &tab.CmdLpl, &tab.CmdSVL, &tab.CmdAddPl, &tab.CmdSeek})
    button->set_back_color(Color::kButtonFace);
  tab.hide_panels();
  tab.LstPll.clear();
  doors_.tracks.erase();
  doors_.tags.clear();
  tab.LblVPL.set_caption("");
  tab.TxtSeek.set_text("");
  tab.LblTMP.set_caption("");
  tab.LblMPU.set_caption("");
  player.mp_pl_name.clear();
  player.mp_add = player.mp_goto = player.mp_show = false;
  tab.Ipos.set_left(0);
  tab.LblUP.set_caption(kOff);
  ChanLamp(doors_.terminals_tab, kComputerSource, SourceLamp::kStopped);
}

}  // namespace evac

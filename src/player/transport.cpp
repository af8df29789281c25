#include "player/transport.h"

#include <algorithm>
#include <cmath>

#include "console/channel_colors.h"
#include "model/text.h"

namespace evac {
namespace {

struct ButtonLook {
  Button PlayerTab::*button;
  picture::Faces faces;
  std::string_view tip;
};
constexpr ButtonLook kPowerLook{&PlayerTab::CmdPMP, picture::kPower, "Включить или выключить плеер"};
constexpr ButtonLook kLooks[] = {{&PlayerTab::CmdPlayMP, picture::kPlay, "Воспроизведение"},
                                 {&PlayerTab::CmdPauseMP, picture::kHold, "Пауза"},
                                 {&PlayerTab::CmdStopMP, picture::kStop, "Стоп"},
                                 {&PlayerTab::CmdPrevMP, picture::kPrevious, "Предыдущий трек"},
                                 {&PlayerTab::CmdNextMP, picture::kNext, "Следующий трек"},
                                 {&PlayerTab::CmdUpMP, picture::kLouder, "Громче"},
                                 {&PlayerTab::CmdDownMP, picture::kQuieter, "Тише"}};

constexpr double kLongestTrack = 1e9;  // seconds; more is no length

}  // namespace

int whole_seconds(double seconds) {
  return seconds > 0 && seconds < kLongestTrack ? static_cast<int>(std::floor(seconds + 0.5)) : 0;
}

void Transport::show_off() {
  for (const ButtonLook& look : kLooks) (doors_.tab.*look.button).set_tool_tip(look.tip);
  doors_.tab.CmdPMP.set_tool_tip(kPowerLook.tip);
  doors_.tab.CmdPMP.set_picture(kPowerLook.faces.off);
  ResetButtons();
}

void Transport::ResetButtons() {
  for (const ButtonLook& look : kLooks) (doors_.tab.*look.button).set_picture(look.faces.off);
  doors_.tab.CmdPlayMP.set_back_color(Color::kButtonFace);
  doors_.tab.Label5.set_visible(false);
  doors_.tab.TxtNzMp.set_visible(false);
  doors_.player.mp_goto = false;
}

void Transport::play() {
  PlayerState& player = doors_.player;
  if (!player.mp_pow || player.mp_play) return;
  if (player.mp_pause) return doors_.tab.CmdPauseMP.click();
  if (!player.mp_show) doors_.tab.CmdListMP.click();
  if (doors_.MP.ready_state() < 1) {
    enable_timers(false);
    player.mp_trk = 1;
    return;
  }
  enable_timers(true);
  player.mp_play = true;
  ResetButtons();
  doors_.tab.CmdPlayMP.set_picture(picture::kPlay.on);
  TrackStart();
  doors_.MP.set_file(player.mp_file);
  doors_.MP.play();
  show_track("|| Track ");
  ChanLamp(doors_.terminals_tab, kComputerSource, SourceLamp::kPlaying);
  doors_.tab.CmdPlayMP.set_tool_tip(player.mp_file);
}

void Transport::stop() {
  PlayerState& player = doors_.player;
  if (!player.mp_pow || player.mp_cnt() == 0) return;
  player.mp_play = player.mp_pause = false;
  ResetButtons();
  doors_.tab.CmdStopMP.set_picture(picture::kStop.on);
  doors_.MP.hold();
  player.mp_trk = 1;
  doors_.tab.LblTMP.set_caption("");
  show_track("Stop || Track ");
  enable_timers(false);
  ChanLamp(doors_.terminals_tab, kComputerSource, SourceLamp::kStopped);
}

void Transport::pause() {
  PlayerState& player = doors_.player;
  PlayerTab& tab = doors_.tab;
  if (!player.mp_pow || (!player.mp_play && !player.mp_pause)) return;
  if (player.mp_play) {
    player.mp_play = false;
    player.mp_pause = true;
    // The end is watched on: a pause that lasts past it goes over to the next track.
    tab.Tmr2.set_enabled(false);
    doors_.MP.hold();
    tab.CmdPauseMP.set_picture(picture::kHold.on);
    tab.CmdPlayMP.set_picture(picture::kPlay.off);
    tab.CmdPlayMP.set_back_color(Color::kButtonFace);
    player.held_since = now();
    tab.LblTMP.set_caption("");
    show_track("Pause || Track ");
  } else {
    player.mp_play = true;
    player.mp_pause = false;
    tab.Tmr2.set_enabled(true);
    ResetButtons();
    tab.CmdPlayMP.set_picture(picture::kPlay.on);
    player.mp_end = later_in_day(player.mp_end, now() - player.held_since);
    doors_.MP.play();
    show_track("|| Track ");
  }
}

void Transport::next() {
  PlayerState& player = doors_.player;
  if (!player.mp_pow || player.mp_cnt() == 0) return;
  if (player.mp_trk == player.mp_cnt()) {
    if (!player.mp_cycle) return;
    player.mp_trk = 0;
  }
  ++player.mp_trk;
  step(kNextTexts, doors_.tab.CmdNextMP, picture::kNext);
}

void Transport::previous() {
  PlayerState& player = doors_.player;
  if (!player.mp_pow || player.mp_cnt() == 0) return;
  if (player.mp_trk == 1) {
    if (!player.mp_cycle) return;
    player.mp_trk = player.mp_cnt() + 1;
  }
  --player.mp_trk;
  step(kPreviousTexts, doors_.tab.CmdPrevMP, picture::kPrevious);
}

void Transport::step(const StepTexts& texts, Button& button, const picture::Faces& faces) {
  enable_timers(false);
  ResetButtons();
  if (!doors_.steps.track_ready(texts)) return;
  take_file();
  doors_.tags.ReadTag();
  doors_.tab.LblTMP.set_caption("");
  show_track("|| Track ");
  play_on();
  doors_.tracks.mark_current();
  button.set_picture(faces.on);
  doors_.tab.CmdPlayMP.set_tool_tip(doors_.player.mp_file);
  button.set_focus();
}

void Transport::LoadTrack() {
  if (!doors_.player.mp_pow || doors_.player.mp_trk == 0) return;
  enable_timers(false);
  ResetButtons();
  if (!doors_.steps.track_ready(kLoadTexts)) return;
  take_file();
  show_track("||Track ");
  play_on();
}

void Transport::SelectTrack() {
  if (!doors_.player.mp_pow || doors_.player.mp_trk == 0) return;
  ResetButtons();
  if (!doors_.steps.track_ready(kSelectTexts)) return;
  take_file();
  doors_.tags.ReadTag();
  doors_.tracks.mark_current();
  show_track("||Track ");
  play_on();
}

void Transport::watch_end() {
  PlayerState& player = doors_.player;
  if (left() != 0) return;
  if (player.mp_trk == player.mp_cnt()) {
    if (!player.mp_cycle) return doors_.tab.CmdStopMP.click();
    player.mp_trk = 0;
  }
  ++player.mp_trk;
  if (!doors_.steps.track_ready(kEndTexts)) return;
  player.mp_file = player.track();
  doors_.MP.set_file(player.mp_file);
  TrackStart();
  show_track("|| Track ");
  doors_.tab.CmdPlayMP.set_tool_tip(player.mp_file);
}

int Transport::left() const {
  return doors_.player.mp_end - now();
}

void Transport::mend_length(std::string_view file, double seconds, int late) {
  PlayerState& player = doors_.player;
  if ((!player.mp_play && !player.mp_pause) || file != followed_ || file != player.mp_file) return;
  const int moves = whole_seconds(seconds) - whole_seconds(player.mp_dur) + late;
  player.mp_dur = seconds;
  if (moves == 0) return;
  const int to_the_end = (left() + kSecondsPerDay) % kSecondsPerDay;
  // An end that is past already comes with the next second.
  player.mp_end = later_in_day(now(), std::max(1, to_the_end + moves));
}

void Transport::TrackStart() {
  followed_ = doors_.player.mp_file;
  doors_.tags.ReadTag();
  doors_.player.mp_dur = doors_.MP.duration();
  doors_.player.mp_end = later_in_day(now(), whole_seconds(doors_.player.mp_dur));
  doors_.tab.Ipos.set_left(0);
  doors_.tracks.mark_current();
}

void Transport::take_file() {
  doors_.player.mp_file = doors_.player.track();
  doors_.MP.set_file(doors_.player.mp_file);
  doors_.MP.hold();
}

void Transport::play_on() {
  if (!doors_.player.mp_play) return;
  doors_.player.mp_play = false;
  doors_.tab.CmdPlayMP.click();
}

void Transport::show_track(std::string_view state) {
  doors_.tab.LblUP.set_caption(join(state, doors_.player.mp_trk));
}

void Transport::enable_timers(bool on) {
  doors_.tab.Tmr1.set_enabled(on);
  doors_.tab.Tmr2.set_enabled(on);
}

int Transport::now() const {
  return second_of_day(doors_.loop.wall());
}

}  // namespace evac

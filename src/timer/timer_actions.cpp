#include "timer/timer_actions.h"

#include <algorithm>

#include "console/channel_colors.h"
#include "console/source_names.h"
#include "model/text.h"
#include "store/timer_record.h"
#include "timer/own_selection.h"

namespace evac {
namespace {

using namespace timer_function;

enum DeckButton { kPlayButton = 0, kStopButton = 3 };

// Selects the output of device n, from 1; a number that no output has leaves the choice as it is.
void choose(SourceOutputs& outputs, int device) {
  if (device >= 1 && device <= SourceOutputs::kOutputs) outputs[device - 1].set_value(true);
}

}  // namespace

void TimerActions::prepare(const std::string& record) {
  if (TmField(record, kTmFunction).starts_with(kMessage)) doors_.message.fade_down();
}

void TimerActions::carry_out(const std::string& record) {
  const std::string function = TmField(record, kTmFunction);
  if (function.starts_with(kMessage)) {
    doors_.message.start(TmField(record, kTmMessage));
    return TermRange(record, doors_.sources.ch_computer, doors_.sources.vol_computer);
  }
  if (function == kPlay) return play_list(record);
  if (function == kStop) return stop_player();

  const int device = Number(Mid(function, 2, 1));
  const std::string operation = Mid(function, 3, Len(function));
  if (work_deck(record, device, operation) || tune(record, device, operation)) return;
  // The blank and the first digit behind it: of a longer number the rest is not read.
  if (Mid(function, 2, Len(kPreset)) == kPreset) recall_preset(Number(Mid(function, 9, 2)));
}

void TimerActions::play_list(const std::string& record) {
  PlayerTab& tab = doors_.player_tab;
  if (!doors_.player.mp_pow) tab.CmdPMP.click();
  tab.CmdStopMP.click();
  tab.LstPtreckMP.clear();
  doors_.lists.LoadPlayList(TmField(record, kTmMessage));
  doors_.player.mp_trk = 1;
  doors_.transport.LoadTrack();
  tab.CmdPlayMP.click();
  ChanLamp(doors_.terminals_tab, source_name::kComputer, SourceLamp::kPlaying);
  TermRange(record, doors_.sources.ch_computer, doors_.sources.vol_computer);
}

void TimerActions::stop_player() {
  if (doors_.player.mp_pow) doors_.player_tab.CmdPMP.click();
  send_own_selection(doors_.terminals, doors_.terminals_tab);
  ChanLamp(doors_.terminals_tab, source_name::kComputer, SourceLamp::kStopped);
}

bool TimerActions::work_deck(const std::string& record, int device, std::string_view operation) {
  struct Deck {
    std::string_view play, stop, source;
    SourceOutputs& outputs;
    ControlArray<Button>& buttons;
    int channel, volume;
  };
  SourcesTab& tab = doors_.sources_tab;
  const SourceState& sources = doors_.sources;
  const Deck decks[] = {
      {kCdPlay, kCdStop, source_name::kCd, tab.Opt_cd, tab.CmdCD, sources.ch_cd, sources.vol_cd},
      {kMp3Play, kMp3Stop, source_name::kMp3, tab.Opt_mp, tab.CmdMP3, sources.ch_mp3, sources.vol_mp3}};
  for (const Deck& deck : decks) {
    const bool play = operation == deck.play;
    if (!play && operation != deck.stop) continue;
    choose(deck.outputs, device);
    deck.buttons[play ? kPlayButton : kStopButton].click();
    if (!play) send_own_selection(doors_.terminals, doors_.terminals_tab);
    ChanLamp(doors_.terminals_tab, deck.source, play ? SourceLamp::kPlaying : SourceLamp::kStopped);
    if (play) TermRange(record, deck.channel, deck.volume);
    return true;
  }
  return false;
}

bool TimerActions::tune(const std::string& record, int device, std::string_view operation) {
  const bool fm = operation.starts_with(kFm);
  if (!fm && !operation.starts_with(kAm)) return false;
  choose(doors_.sources_tab.Opt_t, device);
  doors_.tuner.tune(fm ? kFmBand : kAmBand, Number(operation.substr(kFm.size())));
  TermRange(record, doors_.sources.ch_tuner, doors_.sources.vol_tuner);
  return true;
}

void TimerActions::recall_preset(int preset) {
  if (preset < 1) return;  // no number that an editor writes
  doors_.presets.PresetLoad(preset);
  doors_.terminals_tab.Option1.set_value(true);
  doors_.terminals_tab.CmdU.click();
}

void TimerActions::TermRange(const std::string& record, int channel, int volume) {
  const int from = std::max(Number(TmField(record, kTmFrom)), 1);
  const int to = std::min(Number(TmField(record, kTmTo)), kTerminals);
  for (int t = from; t <= to; ++t) {
    if (doors_.terminals.TermChan[t] == 0) continue;
    for (int twice = 0; twice < 2; ++twice) doors_.link.SendTermSet(channel, volume, t);
  }
}

}  // namespace evac

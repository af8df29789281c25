// The wing of the sound sources and of power.
#include "app/console.h"

namespace evac {

void Console::wire_sources() {
  Form1& form1 = forms_.form1;
  form1.Opt_cd.on_click([this](int i) { cd_deck_.choose_output(i); });
  form1.Opt_mp.on_click([this](int i) { mp3_deck_.choose_output(i); });
  form1.Opt_t.on_click([this](int i) { tuner_.choose_output(i); });
  form1.CmdCD.on_click([this](int i) { cd_deck_.press(i); });
  form1.CmdMP3.on_click([this](int i) { mp3_deck_.press(i); });
  form1.CmdT.on_click([this](int i) { tuner_.press(i); });
  form1.SourcesTab::Opt1.on_click([this](int k) { audio_matrix_.choose(k); });

  for (int n = 1; n <= kSequencers; ++n)
    form1.CmdTW(n).on_click([this, n](int i) { sequencers_.toggle(n, i); });
  form1.CmdTW9.click = [this] { alarm_channels_.toggle_both(); };
  form1.CmdTW10.click = [this] { alarm_channels_.toggle_10(); };
  form1.Timer13.tick = [this] { sequencers_.replay(); };
}

}  // namespace evac

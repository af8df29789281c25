// The wing of the sound sources.
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
}

}  // namespace evac

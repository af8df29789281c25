#include "supervision/scan_report.h"

#include <limits>

#include "model/text.h"

namespace evac {
namespace {

constexpr int kWarningTone = 1500, kWarningLength = 100;

// As many as a list of the system can have; then the oldest goes.
constexpr int kMostLines = 32767;

}  // namespace

void warn(Tone& tone, const SettingsState& settings) {
  if (Number(settings.SettingsLine[kAudibleWarning]) == 1) tone.beep(kWarningTone, kWarningLength);
}

void ScanReport::tell() {
  tell_missed();
  for (int t = 1; t <= kTerminals; ++t)
    if (doors_.supervision.TermMissCount[t] >= doors_.supervision.TermMissLimit) tell_lost(t);
}

void ScanReport::tell_missed() {
  auto& supervision = doors_.supervision;
  ListBox& list = doors_.panel.List5;
  list.clear();
  const std::string now = time_text(second_of_day(doors_.loop.wall()));
  for (int t = 1; t <= kTerminals; ++t) {
    const bool is_on = Number(doors_.terminals_tab.CmdAT[t].caption()) > 0;
    if (!is_on || supervision.TermAddrOk[t] || supervision.TermZoneOk[t]) continue;
    list.add(join(now, " Терминал ", t, " не ответил"));
    // A terminal that stays lost for years must not overflow its count.
    std::int16_t& missed = supervision.TermMissCount[t];
    if (missed < std::numeric_limits<std::int16_t>::max()) ++missed;
  }
  if (list.count() == 0) list.add("Все терминалы в порядке");
}

void ScanReport::tell_lost(int terminal) {
  warn(doors_.tone, doors_.settings);
  ListBox& list = doors_.panel.List4;
  if (list.count() == kMostLines) list.remove(0);
  list.add(join("Терминал ", terminal, " не отвечает"));
  doors_.journal.JournalLine(join("Не найден ", terminal, " терминал"));
  doors_.panel.Timer9.set_enabled(true);
  doors_.panel.PctM.set_picture(picture::kPause);
  doors_.panel.Label3.set_caption("");
}

}  // namespace evac

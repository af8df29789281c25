#include "timer/timer_message.h"

#include "model/text.h"
#include "timer/own_selection.h"

namespace evac {
namespace {

constexpr int kPercentOfLevel = 10;
constexpr int kFadeSeconds = 3;  // before the end

// The steps of both fades, the greatest first: so far from silence, or from the operator's level, the volume
// changes by so much in a second.
struct FadeStep {
  float far, by;
};
constexpr FadeStep kFadeSteps[] = {{5, 2}, {2, 1}, {1, 0.5}};

}  // namespace

TimerMessage::TimerMessage(const Doors& doors)
    : doors_(doors),
      message_({.media = doors.MP1,
                .end = doors.timer.msg_end,
                .settings = doors.settings,
                .loop = doors.loop,
                .file_given = &doors.messages.mp1_file}) {}

void TimerMessage::fade_down() {
  if (!doors_.player.mp_play) return;
  for (const FadeStep& step : kFadeSteps) {
    if (doors_.player.mp_lvl < step.far) continue;
    doors_.volume.set_level(doors_.player.mp_lvl - step.by);
    doors_.volume.show_percent(doors_.player.mp_pct - static_cast<int>(step.by * kPercentOfLevel));
    return;
  }
}

void TimerMessage::start(std::string_view file) {
  if (doors_.player.mp_play) {
    doors_.volume.set_level(0);
    doors_.volume.show_percent(0);
  }
  if (message_.play(file))
    doors_.panel.Timer11.set_enabled(true);
  else
    doors_.boxes.message(join("Ошибка открытия файла ", file));
}

void TimerMessage::tick() {
  const int left = message_.left();
  if (left >= 1 && left <= kFadeSeconds && doors_.player.mp_pow) fade_up();
  if (left != 0) return;
  doors_.volume.set_level(doors_.player.mp_lvl0);
  doors_.volume.show_percent(static_cast<int>(doors_.player.mp_lvl * kPercentOfLevel));
  send_own_selection(doors_.terminals, doors_.terminals_tab);
  doors_.panel.Timer11.set_enabled(false);
}

void TimerMessage::fade_up() {
  for (const FadeStep& step : kFadeSteps) {
    if (doors_.player.mp_lvl0 - step.far < doors_.player.mp_lvl) continue;
    doors_.volume.set_level(doors_.player.mp_lvl + step.by);
    doors_.volume.show_percent(static_cast<int>(doors_.player.mp_lvl * kPercentOfLevel));
    return;
  }
}

}  // namespace evac

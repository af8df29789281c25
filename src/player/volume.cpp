#include "player/volume.h"

#include <cmath>

#include "model/text.h"

namespace evac {
namespace {

constexpr float kFull = 10, kSilent = 0, kStep = 0.5;
constexpr int kPercentOfStep = 5, kPercentOfLevel = 10;

}  // namespace

void Volume::up() {
  if (!doors_.player.mp_pow) return;
  doors_.tab.CmdUpMP.set_picture(picture::kLouder.on);
  doors_.tab.CmdDownMP.set_picture(picture::kQuieter.off);
  step(+1, kFull);
}

void Volume::down() {
  if (!doors_.player.mp_pow) return;
  doors_.tab.CmdUpMP.set_picture(picture::kLouder.off);
  doors_.tab.CmdDownMP.set_picture(picture::kQuieter.on);
  step(-1, kSilent);
}

void Volume::step(int direction, float end) {
  PlayerState& player = doors_.player;
  const float way = kStep * static_cast<float>(direction);
  if (player.mp_lvl * static_cast<float>(direction) < end) {
    set_level(player.mp_lvl + way);
    player.mp_lvl0 = player.mp_lvl;
    show_percent(player.mp_pct + direction * kPercentOfStep);
  } else {
    show_percent(static_cast<int>(end) * kPercentOfLevel);
  }
}

void Volume::set_level(float level) {
  doors_.player.mp_lvl = level;
  doors_.player.mp_vol = -static_cast<std::int32_t>(std::lround(std::pow(kFull - level, 4)));
  doors_.MP.set_volume(doors_.player.mp_vol);
}

void Volume::show_percent(int percent) {
  doors_.player.mp_pct = percent;
  doors_.tab.LblMPU.set_caption(join(percent, " %"));
}

}  // namespace evac

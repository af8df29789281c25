#include "player/position.h"

#include <algorithm>
#include <cmath>

namespace evac {

double second_on_way(double duration) {
  const double units = std::abs(kPositionEnd / duration);
  return units >= 1 ? std::floor(units) : units;  // a track of an hour and a half has less than one
}

void Position::tick() {
  doors_.tab.LblTMP.set_caption(time_left_text(doors_.transport.left()));
  advance();
}

void Position::advance() {
  Button& button = doors_.tab.Ipos;
  if (const int left = std::clamp(button.left(), 0, kPositionEnd); left != std::lround(exact_)) exact_ = left;
  // Something without a length gets nowhere.
  if (doors_.player.mp_dur > 0) exact_ += kPositionEnd / doors_.player.mp_dur;
  button.set_left(static_cast<int>(std::lround(exact_)));
}

void Position::press(MousePress press) {
  if (!doors_.player.mp_pow || press.button != 1) return;
  doors_.player.mp_drag = true;
  doors_.tab.Tmr1.set_enabled(false);
  doors_.tab.Tmr2.set_enabled(false);
}

void Position::move(int way) {
  PlayerState& player = doors_.player;
  if (!player.mp_pow || !player.mp_drag) return;
  Button& button = doors_.tab.Ipos;
  button.set_left(button.left() + way);
  if (button.left() >= kPositionEnd) return doors_.tab.CmdNextMP.click();
  if (button.left() <= 0) return button.set_left(0);
  const double second = second_on_way(doors_.MP.duration());
  if (!std::isfinite(second)) return;
  const double position = std::floor(button.left() / second);
  doors_.MP.seek(position);
  if (position >= std::abs(player.mp_dur)) return doors_.tab.CmdNextMP.click();
  player.mp_end = later_in_day(second_of_day(doors_.loop.wall()), whole_seconds(player.mp_dur - position));
}

void Position::release() {
  if (!doors_.player.mp_play) return;
  doors_.player.mp_drag = false;
  doors_.tab.Tmr2.set_enabled(true);
  doors_.tab.Tmr1.set_enabled(true);
}

}  // namespace evac

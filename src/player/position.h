// The position button: it moves along its way while a track plays, and the operator drags it to seek.
#pragma once

#include "player/transport.h"

namespace evac {

// Of the position button's way, what a second of a track of that length takes: whole units, as long as it is
// at least one. Nothing finite for a track without a length.
double second_on_way(double duration);

class Position {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    Transport& transport;
    Media& MP;
    EventLoop& loop;
  };
  explicit Position(const Doors& doors) : doors_(doors) {}

  // One tick of Tmr2: the time left, and the way of a second.
  void tick();
  // The drag; `way` to the right.
  void press(MousePress press);
  void move(int way);
  void release();

 private:
  void advance();

  const Doors doors_;
  double exact_ = 0;  // where the button is, with the fraction that its left side can't show
};

}  // namespace evac

// An operator who presses whatever is in reach: one press as a line of the drill's language.
#pragma once

#include <random>
#include <string>

#include "app/console.h"

namespace evac::simulate {

class Operator {
 public:
  explicit Operator(std::mt19937& random) : random_(random) {}

  // What is pressed next, in the window in front. Empty where the hand finds nothing.
  std::string press(Console& console);
  // What closes the window in front; empty when only the main window is open.
  static std::string leave(Console& console);
  // What brings detection back into its state of rest, a press at a time; empty when it is there.
  static std::string put_right(Console& console);

 private:
  int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  std::string act_on(const Control& control);

  std::mt19937& random_;
};

}  // namespace evac::simulate

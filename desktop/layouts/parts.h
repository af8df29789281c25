// Pieces that several windows lay out alike.
#pragma once

#include "desktop/view/layout.h"

namespace evac::desktop {

// What an operator presses in an emergency is at least two lines high.
inline constexpr double kEmergencyHigh = 2.2;

// Words at the side of a control.
struct Beside {
  const char* words;
  double width = 9;
};

// A scroll bar between its words and the label that shows its value. `aloud` says more than the words do
// where these stand several times in a window.
inline Node amount(const Beside& what, ScrollBar& bar, Label& value, const std::string& aloud = {},
                   double height = 0) {
  const std::string name = aloud.empty() ? what.words : aloud;
  return row({words(what.words).wide(what.width), use(bar).called(name).high(height).grow(1),
              use(value).shown(Look::kValue).wide(2.6).called(name)});
}

// The same with words that are a control's own.
inline Node amount(Label& what, ScrollBar& bar, Label& value, double words_width) {
  const std::string name = what.caption();
  return row({use(what).wide(words_width), use(bar).called(name).grow(1),
              use(value).shown(Look::kValue).wide(2.6).called(name)});
}

// The buttons at the foot of a settings window, each with its letter.
inline Node foot(Nodes buttons) {
  for (Node& button : buttons) button.wide(8).high(2.2);
  buttons.insert(buttons.begin(), space());
  return row(std::move(buttons));
}

}  // namespace evac::desktop

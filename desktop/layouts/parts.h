// Pieces that several windows lay out alike.
#pragma once

#include "desktop/view/layout.h"

namespace evac::desktop {

// A scroll bar between its words and the label that shows its value.
inline Node amount(const char* what, ScrollBar& bar, Label& value, double words_width = 9) {
  return row({words(what).wide(words_width), use(bar).called(what).grow(1),
              use(value).shown(Look::kValue).wide(2.6)});
}

// The same with words that are a control's own.
inline Node amount(Label& what, ScrollBar& bar, Label& value, double words_width) {
  return row({use(what).wide(words_width), use(bar).called(what.caption()).grow(1),
              use(value).shown(Look::kValue).wide(2.6)});
}

// The buttons at the foot of a settings window.
inline Node foot(Nodes buttons) {
  for (Node& button : buttons) button.wide(8).high(2.2);
  buttons.insert(buttons.begin(), space());
  return row(std::move(buttons));
}

}  // namespace evac::desktop

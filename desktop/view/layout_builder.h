// Makes the widgets of a window from its layout.
#pragma once

#include <functional>

#include "desktop/keyboard_state.h"
#include "desktop/view/layout.h"
#include "desktop/view/screen.h"
#include "desktop/view/track.h"

class QGridLayout;

namespace evac::desktop {

class FocusBoard;
class Notices;
class ScanFeed;
class WatchFeed;

// What layouts can show of the host.
struct HostParts {
  Notices& notices;
  WatchFeed& feed;
  ScanFeed& scan;
  TrackSource track{};
  // What the weekly timer does next, a line each.
  std::function<QStringList()> timer_ahead{};
  // Makes the button that brings up the virtual rack; null where there is none.
  std::function<QWidget*(QWidget* parent)> stand_button;
  std::function<KeyboardState()> keyboard = keyboard_state;
};

class LayoutBuilder {
 public:
  LayoutBuilder(Screen& screen, const HostParts& host) : screen_(screen), host_(host) {}

  QWidget* build(const Node& node, QWidget* parent);

 private:
  QWidget* make_control(Control& control, const Node& node, QWidget* parent);
  QWidget* make_box(const Node& node, QWidget* parent);
  QWidget* make_grid(const Node& node, QWidget* parent);
  QWidget* make_frame(const Node& node, QWidget* parent);
  QWidget* make_tabs(const Node& node, QWidget* parent);
  QWidget* make_board(const Node& node, QWidget* parent);
  QWidget* make_rows(const Node& node, QWidget* parent);
  // A control among many like it: its number stands behind the words.
  void add_cell(Node cell, const std::string& words, int number, FocusBoard& keys, QGridLayout& layout,
                int row, int column);
  QWidget* make_pile(const Node& node, QWidget* parent);
  QWidget* make_shared_place(const Node& node, QWidget* parent);
  QWidget* make_text(const Node& node, QWidget* parent);

  Screen& screen_;
  const HostParts& host_;
};

}  // namespace evac::desktop

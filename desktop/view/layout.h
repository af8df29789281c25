// A window's layout as data: which control stands where, with which words beside it. Rows, columns and frames
// hold others; a leaf is a control of the form or a word of its own. Sizes are in heights of a line of text,
// so that everything grows with the font.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/listers.h"

namespace evac::desktop {

// How a control is shown where its kind leaves a choice.
enum class Look {
  kNormal,
  kBig,      // an operator's chief button, a heading
  kHead,     // small words over what they belong to
  kHuge,     // a status line to be read from across the room
  kStop,     // the button that ends an alert
  kTitle,    // the heading of a window or of the strip
  kValue,    // a number or text in a field of its own; a row or column on a ground of its own
  kField,    // a text in a field of its own, from its left side
  kSwatch,   // a sample of a colour; a button that carries one
  kCell,     // a button or a label that takes presses, one of many: on or off, and of which channel
  kTicked,   // a button, one of a few that are chosen side by side: a tick in it when it is on
  kNumber,   // a check box, one of several with the same caption: its number in the place of it
  kLamp,     // a picture as a lamp with its number
  kColumns,  // a list whose rows are cut at tabs
  kUpright,  // a scroll bar that stands
};

using Controls = std::vector<Control*>;

// An array of controls on a board, with the head that stands over it.
struct BoardArray {
  Controls controls;
  std::string head, words;
  Look look = Look::kNormal;
  std::string off{}, on{};
};

struct Node {
  enum class What {
    kControl,  // the only one of `controls`
    kText,     // `text`
    kRow,
    kColumn,
    kGrid,          // `columns` children a row
    kFrame,         // a frame control around its only child
    kTabs,          // a tab strip with one child a tab
    kBoard,         // `controls`, `columns` a row
    kRows,          // rows of `arrays`, side by side under their heads, in `columns` columns of rows
    kPile,          // `controls` in one place, where the visible one is seen
    kShared,        // the same of `children`
    kWatch,         // the alarm bar
    kTrack,         // the position button of the player, on its way
    kFolderUp,      // a lister's folder, and the way out of it
    kScan,          // how far the scan of the terminals is
    kBoxNote,       // what boxes that answered themselves said
    kNotices,       // what the host has to say
    kTimerAhead,    // what the weekly timer does next, and what it never will
    kKeyboardNote,  // beside a password: the keyboard's layout, and whether Caps Lock is on
    kStandButton,   // the way to the virtual rack, where there is one
    kCloseButton,   // closes the window that it stands in
    kSpace          // takes what room is left
  };

  What what;
  Controls controls;
  std::vector<BoardArray> arrays;
  std::string text;
  std::vector<Node> children;
  int columns = 1;
  std::vector<double> stops;  // of a list in columns: the width of each but the last
  Look look = Look::kNormal;
  double width = 0, height = 0;  // 0 is its own
  int stretch = 0;
  std::string tip;           // shown while the control says nothing itself
  std::string_view sign;     // the picture of a button that has none of its own
  std::string_view sign_on;  // the same while it is on, where that differs
  std::string words;         // what it is, for assistive technology; its value follows
  std::string off, on;       // of a switch: how its two states are called
  std::string letter;        // with Alt, the button's key
  Controls timers;           // of a label: shown while one of these is on
  std::string (*reads)(std::string_view) = nullptr;  // of a list: a row as it is shown
  bool tight = false;
  bool hand = false;  // of a button: the pointer over it is a hand while it can be pressed

  Node& shown(Look as) { return look = as, *this; }
  Node& wide(double lines) { return width = lines, *this; }
  Node& high(double lines) { return height = lines, *this; }
  Node& grow(int share = 1) { return stretch = share, *this; }
  Node& with_sign(std::string_view picture) { return sign = picture, *this; }
  Node& with_signs(std::string_view off_picture, std::string_view on_picture) {
    return sign = off_picture, sign_on = on_picture, *this;
  }
  Node& called(std::string what_it_is) { return words = std::move(what_it_is), *this; }
  Node& switching(std::string off_word, std::string on_word) {
    return off = std::move(off_word), on = std::move(on_word), *this;
  }
  Node& hinted(std::string words_shown) { return tip = std::move(words_shown), *this; }
  Node& key(std::string alt_letter) { return letter = std::move(alt_letter), *this; }
  Node& while_on(Controls any_of) { return timers = std::move(any_of), *this; }
  Node& reading(std::string (*row)(std::string_view)) { return reads = row, *this; }
  Node& cut_at(std::vector<double> widths) { return look = Look::kColumns, stops = std::move(widths), *this; }
  Node& pointed_at() { return hand = true, *this; }
  Node& packed() { return tight = true, *this; }
};

using Nodes = std::vector<Node>;

// Every control of an array, in its order.
template <class T>
Controls all(ControlArray<T>& array) {
  Controls controls;
  for (T& control : array) controls.push_back(&control);
  return controls;
}

inline Node make_node(Node::What what, Controls controls = {}) {
  Node node{};
  node.what = what;
  node.controls = std::move(controls);
  return node;
}
inline Node use(Control& control) {
  return make_node(Node::What::kControl, {&control});
}
inline Node words(std::string text) {
  Node node = make_node(Node::What::kText);
  node.text = std::move(text);
  return node;
}
inline Node with_children(Node::What what, Nodes children) {
  Node node = make_node(what);
  node.children = std::move(children);
  return node;
}
inline Node row(Nodes children) {
  return with_children(Node::What::kRow, std::move(children));
}
inline Node column(Nodes children) {
  return with_children(Node::What::kColumn, std::move(children));
}
inline Node grid(int columns, Nodes children) {
  Node node = with_children(Node::What::kGrid, std::move(children));
  node.columns = columns;
  return node;
}
inline Node frame(Frame& control, Node child) {
  Node node = with_children(Node::What::kFrame, {std::move(child)});
  node.controls = {&control};
  return node;
}
inline Node tabs(TabStrip& control, Nodes pages) {
  Node node = with_children(Node::What::kTabs, std::move(pages));
  node.controls = {&control};
  return node;
}
template <class T>
Node board(ControlArray<T>& array, int columns) {
  Node node = make_node(Node::What::kBoard, all(array));
  node.columns = columns;
  return node;
}
// All arrays have one length.
inline Node rows_of(std::vector<BoardArray> arrays, int columns) {
  Node node = make_node(Node::What::kRows);
  node.arrays = std::move(arrays);
  node.columns = columns;
  return node;
}
template <class T>
Node pile(ControlArray<T>& array) {
  return make_node(Node::What::kPile, all(array));
}
inline Node shared_place(Nodes children) {
  return with_children(Node::What::kShared, std::move(children));
}
inline Node track(Button& position) {
  return make_node(Node::What::kTrack, {&position});
}
inline Node folder_up(FolderLister& folders) {
  return make_node(Node::What::kFolderUp, {&folders});
}
inline Node watch_bar() {
  return make_node(Node::What::kWatch);
}
inline Node scan_progress() {
  return make_node(Node::What::kScan);
}
inline Node timer_ahead_list() {
  return make_node(Node::What::kTimerAhead);
}
inline Node box_note() {
  return make_node(Node::What::kBoxNote);
}
inline Node notices() {
  return make_node(Node::What::kNotices);
}
inline Node keyboard_note() {
  return make_node(Node::What::kKeyboardNote);
}
inline Node stand_button() {
  return make_node(Node::What::kStandButton);
}
inline Node close_button() {
  return make_node(Node::What::kCloseButton);
}
inline Node space() {
  return make_node(Node::What::kSpace).grow();
}

// Controls and whole arrays of them that are out of sight on purpose.
class OutOfSight {
 public:
  template <class... Each>
  explicit OutOfSight(Each&... each) {
    (add(each), ...);
  }
  const Controls& controls() const { return controls_; }

 private:
  void add(Control& control) { controls_.push_back(&control); }
  template <class T>
  void add(ControlArray<T>& array) {
    for (T& control : array) controls_.push_back(&control);
  }
  Controls controls_;
};

// Where the Enter key leads from these controls, or from any when none is named: it presses a button, and
// goes on to any other control. A button that sleeps because nothing was typed yet is woken by `wakes`: a
// letter typed and taken back.
struct EnterKey {
  Control& to;
  Controls from{};
  TextBox* wakes = nullptr;
};

// The layout of one window. Every control of the form stands in it or is out of sight on purpose; timers and
// menus need no word.
struct WindowLayout {
  Form& form;
  Node content;
  OutOfSight out_of_sight{};
  // The choice that has the keyboard when the window opens: the one of these that is made.
  std::vector<OptionButton*> opens_on{};
  // The first that fits counts.
  std::vector<EnterKey> on_enter{};
  // Entries of the menu with a line above them.
  Controls set_apart{};
};

}  // namespace evac::desktop

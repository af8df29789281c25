// A window's layout as data: which control stands where, with which words beside it. Rows, columns and frames
// hold others; a leaf names a control or is a word of its own. Sizes are in heights of a line of text, so
// that everything grows with the font.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace evac::desktop {

// How a control is shown where its kind leaves a choice.
enum class Look {
  kNormal,
  kBig,      // an operator's chief button, a heading
  kHuge,     // a status line to be read from across the room
  kStop,     // the button that ends an alert
  kTitle,    // the heading of a window or of the strip
  kValue,    // a number or text in a field of its own; a row or column on a ground of its own
  kSwatch,   // a sample of a colour
  kCell,     // a label that takes presses, one of many
  kLamp,     // a picture as a lamp with its number
  kColumns,  // a list whose rows are cut at tabs
  kUpright,  // a scroll bar that stands
};

struct Node {
  enum class What {
    kControl,  // `name`, `index`, `section`
    kText,     // `text`
    kRow,
    kColumn,
    kGrid,     // `columns` children a row
    kFrame,    // a frame control around its only child
    kTabs,     // a tab strip with one child a tab
    kBoard,    // `count` controls of an array from `first`, `columns` a row; or rows of several arrays
    kPile,     // controls of an array in one place, where the visible one is seen
    kFires,    // the numbers of an array whose picture is the fire's
    kNotices,  // what the host has to say
    kExtra,    // a button of the host's own, `name`
    kSpace     // takes what room is left
  };

  What what;
  std::string name, section, text;
  std::optional<int> index;
  std::vector<Node> children;
  std::vector<std::string> names;  // of a board: its arrays, side by side; their heads stand in `heads`
  std::vector<std::string> heads;
  int first = 1, count = 0, columns = 1;
  std::vector<double> stops;  // of a list in columns: the width of each but the last
  Look look = Look::kNormal;
  double width = 0, height = 0;  // 0 is its own
  int stretch = 0;
  std::string sign;   // of a button with neither caption nor picture
  std::string words;  // what stands for the caption in assistive technology
  bool tight = false;

  Node& shown(Look as) { return look = as, *this; }
  Node& wide(double lines) { return width = lines, *this; }
  Node& high(double lines) { return height = lines, *this; }
  Node& grow(int share = 1) { return stretch = share, *this; }
  Node& with_sign(const char* picture) { return sign = picture, *this; }
  Node& called(const char* what_it_is) { return words = what_it_is, *this; }
  Node& of(const char* part) { return section = part, *this; }
  Node& cut_at(std::vector<double> widths) { return look = Look::kColumns, stops = std::move(widths), *this; }
  Node& packed() { return tight = true, *this; }
};

using Nodes = std::vector<Node>;

inline Node make_node(Node::What what, std::string name = {}) {
  Node node{};
  node.what = what;
  node.name = std::move(name);
  return node;
}
inline Node use(const char* name) {
  return make_node(Node::What::kControl, name);
}
inline Node use(const char* name, int index) {
  Node node = use(name);
  node.index = index;
  return node;
}
inline Node words(const char* text) {
  Node node = make_node(Node::What::kText);
  node.text = text;
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
inline Node frame(const char* name, Node child) {
  Node node = with_children(Node::What::kFrame, {std::move(child)});
  node.name = name;
  return node;
}
inline Node frame(const char* name, int index, Node child) {
  Node node = frame(name, std::move(child));
  node.index = index;
  return node;
}
inline Node tabs(const char* name, Nodes pages) {
  Node node = with_children(Node::What::kTabs, std::move(pages));
  node.name = name;
  return node;
}
inline Node board(const char* name, int first, int count, int columns) {
  Node node = make_node(Node::What::kBoard);
  node.names = {name};
  node.first = first;
  node.count = count;
  node.columns = columns;
  return node;
}
// Rows of several arrays, side by side under heads, in `columns` columns of rows.
inline Node rows_of(std::vector<std::string> names, std::vector<std::string> heads, int first, int count,
                    int columns) {
  Node node = board("", first, count, columns);
  node.names = std::move(names);
  node.heads = std::move(heads);
  return node;
}
inline Node pile(const char* name, int first, int count) {
  Node node = board(name, first, count, 1);
  node.what = Node::What::kPile;
  return node;
}
inline Node fires(const char* array) {
  return make_node(Node::What::kFires, array);
}
inline Node notices() {
  return make_node(Node::What::kNotices);
}
inline Node extra(const char* name) {
  return make_node(Node::What::kExtra, name);
}
inline Node space() {
  return make_node(Node::What::kSpace).grow();
}

struct ControlName {
  std::string name;
  std::optional<int> index;
};

// The layout of one window, and its controls that are out of sight on purpose: a name without an index
// stands for the whole array. Timers and menus need no word.
struct WindowLayout {
  std::string form;
  Node content;
  std::vector<ControlName> out_of_sight;
};

const std::vector<WindowLayout>& all_layouts();
// A fault of the program when there is none.
const WindowLayout& layout_of(const std::string& form);

}  // namespace evac::desktop

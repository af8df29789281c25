// The widget layer: controls are plain state with events, and both hosts show the same ones. A setter that
// changes nothing does nothing; one that does tells the view, if there is one. Everything here runs on the
// console's thread.
#pragma once

#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/color.h"
#include "model/fault.h"
#include "model/time.h"
#include "platform/event.h"
#include "platform/event_loop.h"

namespace evac {

class Control;
class Form;
class Frame;
class PopupMenu;
class Windows;

// Told of every change of a control's state.
class ControlView {
 public:
  virtual ~ControlView() = default;
  virtual void control_changed(Control& control) = 0;
  virtual void focus_wanted(Control& control) = 0;
};

// Where a control is put: its form, the part of the form that owns it ("AlarmTab"), and the frame around it,
// if any.
struct Place {
  Form* form = nullptr;
  const char* section = "";
  Frame* frame = nullptr;

  Place in(Frame& inner) const { return {form, section, &inner}; }
};

struct MousePress {
  int button = 1;  // 1 left, 2 right
  bool shift = false;
  int x = 1, y = 1;

  // What the system calls a right press: no shift, and inside the control.
  bool plain_right() const { return button == 2 && !shift && x > 0 && y > 0; }
};

enum class Kind {
  kButton,
  kLabel,
  kOptionButton,
  kCheckBox,
  kScrollBar,
  kTextBox,
  kMaskedEdit,
  kComboBox,
  kListBox,
  kPicture,
  kProgressBar,
  kGrid,
  kMonthCalendar,
  kFrame,
  kTabStrip,
  kMenuItem,
  kPopupMenu,
  kTimer,
  kLister
};

class Control {
 public:
  Control(const Place& place, Kind kind, std::string_view name, std::string_view caption = {},
          std::optional<int> index = {});
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Kind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  std::optional<int> index() const { return index_; }
  // "CmdAZ(7)".
  std::string full_name() const;
  Form& form() const { return *place_.form; }
  std::string_view section() const { return place_.section; }
  Frame* frame() const { return place_.frame; }

  const std::string& caption() const { return caption_; }
  Color back_color() const { return back_color_; }
  const std::string& tool_tip() const { return tool_tip_; }
  bool enabled() const { return enabled_; }
  bool visible() const { return visible_; }
  // Name of the store or bitmap shown, such as "PctD3".
  const std::string& picture() const { return picture_; }
  int left() const { return left_; }

  void set_caption(std::string_view caption) { assign(caption_, caption); }
  void set_back_color(Color color) { assign(back_color_, color); }
  void set_tool_tip(std::string_view tip) { assign(tool_tip_, tip); }
  virtual void set_enabled(bool on) { assign(enabled_, on); }
  void set_visible(bool on) { assign(visible_, on); }
  void set_picture(std::string_view picture) { assign(picture_, picture); }
  // Takes the picture that the store shows.
  void set_picture(const Control& store) { set_picture(store.picture()); }
  void set_left(int left) { assign(left_, left); }
  void set_focus() {
    if (view_) view_->focus_wanted(*this);
  }

  // Enabled and visible, and so is every frame around it.
  bool usable() const;

  // One view at most; null takes it off.
  void attach(ControlView* view) { view_ = view; }

  Event<> click;
  Event<> double_click;
  Event<MousePress> mouse_down;
  Event<> mouse_up;
  Event<int> mouse_move;  // the pointer's way to the right since the press, while a button of it is held

 protected:
  void changed() {
    if (view_) view_->control_changed(*this);
  }
  template <class T, class V>
  bool assign(T& field, const V& value) {
    if (field == value) return false;
    field = value;
    changed();
    return true;
  }

 private:
  const Place place_;
  const Kind kind_;
  const std::string name_;
  const std::optional<int> index_;
  std::string caption_, tool_tip_, picture_;
  Color back_color_ = Color::kButtonFace;
  bool enabled_ = true, visible_ = true;
  int left_ = 0;
  ControlView* view_ = nullptr;
};

class Button : public Control {
 public:
  Button(const Place& place, std::string_view name, std::string_view caption = {},
         std::optional<int> index = {})
      : Control(place, Kind::kButton, name, caption, index) {}
};

class Label : public Control {
 public:
  Label(const Place& place, std::string_view name, std::string_view caption = {},
        std::optional<int> index = {})
      : Control(place, Kind::kLabel, name, caption, index) {}
};

// A picture: shows a store or bitmap by name, and text printed on it.
class Picture : public Control {
 public:
  Picture(const Place& place, std::string_view name, std::string_view picture = {},
          std::optional<int> index = {})
      : Control(place, Kind::kPicture, name, {}, index) {
    set_picture(picture);
  }
  const std::vector<std::string>& lines() const { return lines_; }
  void print(std::string_view line);
  void clear();

 private:
  std::vector<std::string> lines_;
};

class OptionButton;

// Option buttons of which one at most is on.
class OptionGroup {
 public:
  // The one that is on, or null.
  OptionButton* chosen() const;

 private:
  friend class OptionButton;
  std::vector<OptionButton*> members_;
};

class OptionButton : public Control {
 public:
  OptionButton(const Place& place, OptionGroup& group, std::string_view name, std::string_view caption = {},
               std::optional<int> index = {});
  bool value() const { return value_; }
  // Turning it on raises its click when it was off, and turns its group-mates off without one.
  void set_value(bool on);
  // A user's click raises the click always.
  void press();

 private:
  void take_over();
  OptionGroup& group_;
  bool value_ = false;
};

class CheckBox : public Control {
 public:
  CheckBox(const Place& place, std::string_view name, std::string_view caption = {},
           std::optional<int> index = {})
      : Control(place, Kind::kCheckBox, name, caption, index) {}
  bool value() const { return value_; }
  // Raises its click when the value changes.
  void set_value(bool on);

 private:
  bool value_ = false;
};

class ScrollBar : public Control {
 public:
  ScrollBar(const Place& place, std::string_view name, int least, int most, int value,
            std::optional<int> index = {});
  int least() const { return least_; }
  int most() const { return most_; }
  int value() const { return value_; }
  // Clamped to the range; raises `change` when the value changes.
  void set_value(int value);

  Event<> change;

 private:
  const int least_, most_;
  int value_;
};

class ProgressBar : public Control {
 public:
  ProgressBar(const Place& place, std::string_view name, int most, std::optional<int> index = {})
      : Control(place, Kind::kProgressBar, name, {}, index), most_(most) {}
  int most() const { return most_; }
  int value() const { return value_; }
  void set_value(int value) { assign(value_, value); }

 private:
  const int most_;
  int value_ = 0;
};

class TextBox : public Control {
 public:
  TextBox(const Place& place, std::string_view name, std::string_view text = {},
          std::optional<int> index = {})
      : TextBox(place, Kind::kTextBox, name, text, index) {}
  const std::string& text() const { return text_; }
  // Raises `change` when the text changes.
  void set_text(std::string_view text);
  // One character from the keyboard, "\b" for backspace, at the end of the text. `key_press` may alter it, or
  // empty it to drop it.
  void press_key(std::string key);
  bool password() const { return password_; }
  void set_password(bool on) { assign(password_, on); }

  Event<> change;
  Event<std::string&> key_press;

 protected:
  TextBox(const Place& place, Kind kind, std::string_view name, std::string_view text,
          std::optional<int> index)
      : Control(place, kind, name, {}, index), text_(text) {}

 private:
  std::string text_;
  bool password_ = false;
};

class MaskedEdit : public TextBox {
 public:
  MaskedEdit(const Place& place, std::string_view name, std::string_view mask, std::optional<int> index = {})
      : TextBox(place, Kind::kMaskedEdit, name, {}, index), mask_(mask) {}
  const std::string& mask() const { return mask_; }

 private:
  const std::string mask_;
};

// Rows with at most one selected; -1 is none.
class RowControl : public Control {
 public:
  int count() const { return static_cast<int>(rows_.size()); }
  const std::vector<std::string>& rows() const { return rows_; }
  // The row, from 0; a fault when there is none.
  const std::string& row(int row) const;
  void add(std::string_view text);
  void insert(int row, std::string_view text);
  void remove(int row);
  void clear();
  int selected() const { return selected_; }
  // Raises the click when the selection changes to another row; -1 takes it off silently. A fault for a wrong
  // row.
  void select(int row);
  // A user's choice raises the click always.
  void pick(int row);

 protected:
  using Control::Control;
  virtual void selection_changed() {}

 private:
  std::vector<std::string> rows_;
  int selected_ = -1;
};

class ListBox : public RowControl {
 public:
  ListBox(const Place& place, std::string_view name, std::optional<int> index = {})
      : RowControl(place, Kind::kListBox, name, "", index) {}
};

// A list with a text of its own: the chosen row's, or one that was set or, where it may be, typed.
class ComboBox : public RowControl {
 public:
  ComboBox(const Place& place, std::string_view name, std::optional<int> index = {})
      : RowControl(place, Kind::kComboBox, name, "", index) {}
  const std::string& text() const { return text_; }
  void set_text(std::string_view text) { assign(text_, text); }

 protected:
  void selection_changed() override;

 private:
  std::string text_;
};

class Grid : public Control {
 public:
  Grid(const Place& place, std::string_view name, int columns, std::optional<int> index = {})
      : Control(place, Kind::kGrid, name, {}, index), widths_(static_cast<std::size_t>(columns)) {}
  int row_count() const { return static_cast<int>(cells_.size()); }
  int column_count() const { return static_cast<int>(widths_.size()); }
  void set_row_count(int rows);
  // Row and column from 0; a fault outside the grid.
  const std::string& cell(int row, int column) const;
  void set_cell(int row, int column, std::string_view text);
  int column_width(int column) const { return widths_.at(static_cast<std::size_t>(column)); }
  void set_column_width(int column, int width);
  // Generic ascending sort by one column: numbers by value before texts by their letters; equal rows keep
  // their order.
  void sort(int column);

 private:
  std::vector<std::vector<std::string>> cells_;
  std::vector<int> widths_;
};

class MonthCalendar : public Control {
 public:
  MonthCalendar(const Place& place, std::string_view name, std::optional<int> index = {})
      : Control(place, Kind::kMonthCalendar, name, {}, index) {}
  Date from() const { return from_; }
  Date to() const { return to_; }
  // Raises `change` when either changes.
  void set_range(Date from, Date to);

  Event<> change;

 private:
  Date from_{}, to_{};
};

class Frame : public Control {
 public:
  Frame(const Place& place, std::string_view name, std::string_view caption = {},
        std::optional<int> index = {})
      : Control(place, Kind::kFrame, name, caption, index), inside_(place.in(*this)) {}
  // Where the controls in this frame are put.
  const Place& inside() const { return inside_; }

 private:
  const Place inside_;
};

class TabStrip : public Control {
 public:
  TabStrip(const Place& place, std::string_view name, std::vector<std::string> tabs)
      : Control(place, Kind::kTabStrip, name), tabs_(std::move(tabs)) {}
  const std::vector<std::string>& tabs() const { return tabs_; }
  int value() const { return value_; }
  // The tab in front, from 0; a fault for a wrong one.
  void set_value(int tab);

 private:
  const std::vector<std::string> tabs_;
  int value_ = 0;
};

// An entry of the menu bar, of a list in it (with `parent`), or of a pop-up menu. Its value is its mark.
class MenuItem : public Control {
 public:
  MenuItem(const Place& place, std::string_view name, std::string_view caption,
           const MenuItem* parent = nullptr)
      : Control(place, Kind::kMenuItem, name, caption), parent_(parent) {}
  MenuItem(const PopupMenu& popup, std::string_view name, std::string_view caption, int index);
  const MenuItem* parent() const { return parent_; }
  const PopupMenu* popup() const { return popup_; }
  bool value() const { return value_; }
  void set_value(bool on) { assign(value_, on); }

 private:
  const MenuItem* parent_ = nullptr;
  const PopupMenu* popup_ = nullptr;
  bool value_ = false;
};

// Comes up at the pointer, takes one click on an entry, and goes with the next user event.
class PopupMenu : public Control {
 public:
  PopupMenu(const Place& place, std::string_view name)
      : Control(place, Kind::kPopupMenu, name), place_(place) {}
  void show();
  const Place& place() const { return place_; }

 private:
  const Place place_;
};

class Timer : public Control {
 public:
  // `interval` in milliseconds; a timer starts disabled.
  Timer(const Place& place, std::string_view name, int interval = 0);
  ~Timer() override;
  int interval() const { return interval_; }
  void set_interval(int interval) { assign(interval_, interval); }
  // The first tick comes one interval after it is enabled; enabling an enabled timer keeps its phase.
  void set_enabled(bool on) override;

  Event<> tick;

 private:
  int interval_;
};

// A control array with the system's own first index.
template <class T>
class ControlArray {
 public:
  // `count` controls that are alike but for their index, which comes last among the arguments.
  template <class... Args>
  ControlArray(const Place& place, std::string_view name, int first, int count, const Args&... args)
      : first_(first) {
    for (int i = first; i < first + count; ++i) items_.emplace_back(place, name, args..., i);
  }
  // One control a caption.
  ControlArray(const Place& place, std::string_view name, int first,
               std::initializer_list<std::string_view> captions)
      : first_(first) {
    int index = first;
    for (auto caption : captions) items_.emplace_back(place, name, caption, index++);
  }
  // Each made by `make(items, index)`, which puts one control at the end.
  template <class Make>
  requires std::invocable < Make, std::deque<T>
  &, int > ControlArray(int first, int count, Make make) : first_(first) {
    for (int i = first; i < first + count; ++i) make(items_, i);
  }

  T& operator[](int index) {
    if (index < first_ || index > last()) bad_subscript();
    return items_[static_cast<std::size_t>(index - first_)];
  }
  const T& operator[](int index) const { return const_cast<ControlArray&>(*this)[index]; }
  int first() const { return first_; }
  int last() const { return first_ + static_cast<int>(items_.size()) - 1; }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }

  // The same handler for the click of each, told the index.
  void on_click(const std::function<void(int)>& handler) {
    for (int i = first(); i <= last(); ++i) (*this)[i].click = [handler, i] { handler(i); };
  }

 private:
  const int first_;
  std::deque<T> items_;
};

class Form {
 public:
  Form(Windows& windows, std::string_view name, std::string_view title);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  const std::string& title() const { return title_; }
  void set_title(std::string_view title);
  bool shown() const { return shown_; }
  bool modal() const { return modal_; }
  // On the screen, in 1/1440 inch; none lets the host choose.
  std::optional<std::pair<int, int>> position;
  Windows& windows() const { return windows_; }
  Place place(const char* section = "") { return {this, section, nullptr}; }

  const std::vector<Control*>& controls() const { return controls_; }
  // The control of that name, or null. A bare name of an array finds nothing, nor does an index of a lone
  // control. A name that stands twice is found in its first section unless `section` says which.
  Control* find(std::string_view name, std::optional<int> index = {}, std::string_view section = {}) const;

  // Raised when the user closes the window; without a handler it is hidden.
  Event<> query_unload;
  // Raised when title or state change, for the host.
  Event<> view_changed;

 private:
  friend class Control;
  friend class Windows;
  Windows& windows_;
  const std::string name_;
  std::string title_;
  std::vector<Control*> controls_;
  bool shown_ = false, modal_ = false;
};

}  // namespace evac

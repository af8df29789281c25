// The widget layer: the kinds of controls, the same for both hosts, and arrays of them. Everything here runs
// on the console's thread.
#pragma once

#include <concepts>
#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/fault.h"
#include "model/time.h"
#include "platform/control.h"
#include "platform/event_loop.h"
#include "platform/pictures.h"

namespace evac {

class PopupMenu;

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
  virtual void set_text(std::string_view text);
  // One character from the keyboard, "\b" for backspace, at the end of the text. `key_press` may alter it, or
  // empty it to drop it.
  virtual void press_key(std::string key);
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

// An input of digits: in the mask "#" is the place of one, all else stands for itself. The text ends with the
// last digit typed.
class MaskedEdit : public TextBox {
 public:
  MaskedEdit(const Place& place, std::string_view name, std::string_view mask, std::optional<int> index = {})
      : TextBox(place, Kind::kMaskedEdit, name, {}, index), mask_(mask) {}
  const std::string& mask() const { return mask_; }
  // Puts the caret before the first digit.
  void set_text(std::string_view text) override;
  // Over the digit at the caret; backspace takes out the one before it.
  void press_key(std::string key) override;
  // Position in the text, from 0, of the digit that the next key gives: never on a character of the mask's
  // own. The length of the mask when there is no place left.
  int caret() const;
  void place_caret(int position);

 private:
  const std::string mask_;
  int digits_before_ = 0;  // the caret
};

// Rows with at most one selected; -1 is none.
class RowControl : public Control {
 public:
  int count() const { return static_cast<int>(rows_.size()); }
  const std::vector<std::string>& rows() const { return rows_; }
  // The row, from 0; a fault when there is none.
  const std::string& row(int row) const;
  void add(std::string_view text);
  // Many rows at the end, as one change.
  void add_all(std::vector<std::string> texts);
  void insert(int row, std::string_view text);
  void remove(int row);
  void clear();
  int selected() const { return selected_; }
  // Raises the click when the selection changes to another row; -1 takes it off silently. A fault for a wrong
  // row.
  void select(int row);
  // The same without a click: the row is shown as the chosen one, and nothing else happens.
  void mark(int row);
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
      : Control(place, Kind::kGrid, name, {}, index), columns_(columns) {}
  int row_count() const { return static_cast<int>(cells_.size()); }
  int column_count() const { return columns_; }
  void set_row_count(int rows);
  // Row and column from 0; a fault outside the grid.
  const std::string& cell(int row, int column) const;
  void set_cell(int row, int column, std::string_view text);
  // Generic ascending sort by one column: numbers by value before texts by their letters; equal rows keep
  // their order.
  void sort(int column);

 private:
  std::vector<std::vector<std::string>> cells_;
  const int columns_;
};

class MonthCalendar : public Control {
 public:
  // `most_days`: the longest range that a user can choose.
  MonthCalendar(const Place& place, std::string_view name, int most_days = 31, std::optional<int> index = {})
      : Control(place, Kind::kMonthCalendar, name, {}, index), most_days_(most_days) {}
  int most_days() const { return most_days_; }
  Date from() const { return from_; }
  Date to() const { return to_; }
  // Raises `change` when either changes.
  void set_range(Date from, Date to);
  // A user's choice: cut to its first `most_days`, and raises `change` always.
  void pick(Date from, Date to);

  Event<> change;

 private:
  const int most_days_;
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
  Timer(const Place& place, std::string_view name, int interval);
  ~Timer() override;
  int interval() const { return interval_; }
  void set_interval(int interval) { assign(interval_, interval); }
  // The first tick comes one interval after it is enabled; enabling an enabled timer keeps its phase.
  void set_enabled(bool on) override;

  Event<> tick;
  // Whether a tick would change nothing as things stand. The loop is not woken for such a tick: it makes up
  // for it, in its phase, before the next event.
  std::function<bool()> rests = [] { return false; };

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
  template <std::invocable<std::deque<T>&, int> Make>
  ControlArray(int first, int count, Make make) : first_(first) {
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

}  // namespace evac

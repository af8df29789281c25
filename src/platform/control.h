// What every control has in common, and the window that it stands in: plain state with events. A setter that
// changes nothing does nothing; one that does tells the view, if there is one. Everything here runs on the
// console's thread.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/color.h"
#include "platform/event.h"

namespace evac {

class Control;
class Form;
class Frame;
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
  const Frame* frame = nullptr;

  Place in(const Frame& inner) const { return {form, section, &inner}; }
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
  const Frame* frame() const { return place_.frame; }

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

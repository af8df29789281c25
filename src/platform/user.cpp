#include "platform/user.h"

#include "model/text.h"
#include "platform/windows.h"

namespace evac::user {
namespace {

// Takes the pop-up menu down, as every act of the user does, and tells whether the control can be acted on.
bool begin(const Control& control) {
  control.form().windows().take_down_popup();
  return reaches(control);
}

}  // namespace

bool reaches(const Control& control) {
  if (const auto* entry = dynamic_cast<const MenuItem*>(&control); entry && entry->popup())
    return entry->enabled() && control.form().windows().popup() == entry->popup();
  return control.usable() && control.form().windows().reachable(control.form());
}

bool click(Control& control) {
  if (auto* entry = dynamic_cast<MenuItem*>(&control); entry && entry->popup()) {
    const bool up = reaches(control);
    control.form().windows().take_down_popup();
    if (up) control.click();
    return up;
  }
  if (!begin(control)) return false;
  if (auto* option = dynamic_cast<OptionButton*>(&control))
    option->press();
  else if (auto* box = dynamic_cast<CheckBox*>(&control))
    box->set_value(!box->value());
  else
    control.click();
  return true;
}

bool right_press(Control& control, bool shift) {
  if (!begin(control)) return false;
  control.mouse_down({.button = 2, .shift = shift});
  return true;
}

bool double_click(Control& control) {
  if (!begin(control)) return false;
  control.double_click();
  return true;
}

bool press(Control& control) {
  if (!begin(control)) return false;
  control.mouse_down({});
  return true;
}

bool release(Control& control) {
  if (!begin(control)) return false;
  control.mouse_up();
  return true;
}

bool set_value(ScrollBar& bar, int value) {
  if (!begin(bar)) return false;
  bar.set_value(value);
  return true;
}

bool set_checked(CheckBox& box, bool on) {
  if (!begin(box)) return false;
  box.set_value(on);
  return true;
}

bool set_text(TextBox& box, std::string_view text) {
  if (!begin(box)) return false;
  auto* masked = dynamic_cast<MaskedEdit*>(&box);
  if (masked) {
    masked->set_text("");
    for (const char key : text) masked->press_key({key});
  }
  // What keys can't make of a mask is put there as it is.
  box.set_text(text);
  if (masked) masked->place_caret(Len(text));
  return true;
}

bool press_key(TextBox& box, const std::string& key) {
  if (!begin(box)) return false;
  box.press_key(key);
  return true;
}

bool place_caret(MaskedEdit& box, int position) {
  if (!begin(box)) return false;
  box.place_caret(position);
  return true;
}

bool pick(RowControl& list, int row) {
  if (!begin(list)) return false;
  list.pick(row);
  return true;
}

bool pick(MonthCalendar& calendar, Date from, Date to) {
  if (!begin(calendar)) return false;
  calendar.pick(from, to);
  return true;
}

bool turn_to(TabStrip& tabs, int tab) {
  if (!begin(tabs)) return false;
  tabs.set_value(tab);
  return true;
}

bool drag(Control& control, int left) {
  if (!begin(control)) return false;
  control.mouse_down({});
  control.mouse_move(left - control.left());
  return true;
}

bool close(Form& form) {
  Windows& windows = form.windows();
  windows.take_down_popup();
  if (!windows.reachable(form)) return false;
  windows.close(form);
  return true;
}

}  // namespace evac::user

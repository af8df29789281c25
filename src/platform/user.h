// A user's hand on a control, the same in both hosts. Each takes a pop-up menu down first, and returns false,
// with nothing done, when the hand does not reach: a disabled or hidden control, one in such a frame, a
// window that is closed or under a modal one.
#pragma once

#include <string>

#include "platform/controls.h"

namespace evac::user {

bool reaches(const Control& control);
bool click(Control& control);
// `shift`: with the shift key held. Inside the control.
bool right_press(Control& control, bool shift = false);
// On a list: of its chosen row.
bool double_click(Control& control);
// The left button of the mouse held down, and let go, also at the end of a drag.
bool press(Control& control);
bool release(Control& control);
bool set_value(ScrollBar& bar, int value);
bool set_checked(CheckBox& box, bool on);
bool set_text(TextBox& box, std::string_view text);
bool press_key(TextBox& box, const std::string& key);
bool place_caret(MaskedEdit& box, int position);
// The row must exist.
bool pick(RowControl& list, int row);
// More days than the calendar lets be chosen are cut to the first ones.
bool pick(MonthCalendar& calendar, Date from, Date to);
bool turn_to(TabStrip& tabs, int tab);
// A button dragged so that its left side comes to `left`.
bool drag(Control& control, int left);
bool close(Form& form);

}  // namespace evac::user

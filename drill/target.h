// Finds the control or window that a command names, and reads its properties as text.
#pragma once

#include <string>
#include <string_view>

#include "drill/words.h"
#include "platform/windows.h"

namespace evac::drill {

// `Name`, `Name(i)` or `Form.Name(i)`; without a form the window on top is asked first (the modal one, else
// Form1), then Form1. A part of Form1, such as `AlarmTab`, may stand for the form. A CommandError when there
// is none.
Control& find_control(Windows& windows, std::string_view name);

// The same for a window alone.
Form& find_form(Windows& windows, std::string_view name);

// `C.prop` or, for `shown` and `title`, `Form.prop`.
std::string read_property(Windows& windows, std::string_view path);

// A row by its number from 0, or by its text in quotes. A CommandError when there is none.
int find_row(const RowControl& list, const Word& word);

}  // namespace evac::drill

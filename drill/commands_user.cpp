// Commands of the user's hands: presses, changes, answers to boxes.
#include "drill/drill.h"
#include "drill/target.h"
#include "model/text.h"
#include "platform/user.h"

namespace evac::drill {

Control& Drill::reachable(const Word& name) {
  Control& control = find_control(windows(), name.text);
  if (machine_.held()) throw CommandError("a box is up");
  if (!user::reaches(control)) {
    windows().take_down_popup();
    const char* why = !control.enabled()        ? " is disabled"
                      : !control.visible()      ? " is hidden"
                      : !control.usable()       ? " is in a frame that is disabled or hidden"
                      : !control.form().shown() ? " is on a window that is not open"
                      : !control.form().windows().reachable(control.form())
                          ? " is on a window under a modal one"
                          : " is not up";
    throw CommandError(control.full_name() + why);
  }
  return control;
}

void Drill::do_click(const Words& words) {
  want(words, 2, "click CONTROL");
  user::click(reachable(words[1]));
}

void Drill::do_rclick(const Words& words) {
  want(words, 2, "rclick CONTROL");
  user::right_press(reachable(words[1]));
}

void Drill::do_shift_rclick(const Words& words) {
  want(words, 2, "shift-rclick CONTROL");
  user::right_press(reachable(words[1]), true);
}

void Drill::do_dblclick(const Words& words) {
  want(words, 2, "dblclick CONTROL");
  user::double_click(reachable(words[1]));
}

void Drill::do_set(const Words& words) {
  if (words.size() != 3 && words.size() != 4) want(words, 3, "set CONTROL VALUE");
  Control& control = reachable(words[1]);
  const Word& value = words[2];
  if (auto* calendar = dynamic_cast<MonthCalendar*>(&control)) {
    want(words, 4, "set CALENDAR FROM TO");
    const Date from = parse_date(words[2]), to = parse_date(words[3]);
    if (to < from) throw CommandError("the range ends before it begins");
    user::pick(*calendar, from, to);
    return;
  }
  want(words, 3, "set CONTROL VALUE");
  if (auto* bar = dynamic_cast<ScrollBar*>(&control)) {
    const int number = parse_int(value, "the value");
    user::set_value(*bar, number);
  } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
    user::set_text(*text, value.text);
  } else if (auto* list = dynamic_cast<RowControl*>(&control)) {
    const int row = find_row(*list, value);
    user::pick(*list, row);
  } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
    user::set_checked(*box, parse_switch(value, "on", "off"));
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    if (!parse_switch(value, "on", "off")) throw CommandError("an option button is only switched on");
    user::click(*option);
  } else if (auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    const auto& captions = tabs->tabs();
    const int tab =
        value.quoted
            ? static_cast<int>(std::find(captions.begin(), captions.end(), value.text) - captions.begin())
            : parse_int(value, "the tab");
    if (tab < 0 || tab >= static_cast<int>(captions.size())) throw CommandError("no tab " + value.text);
    user::turn_to(*tabs, tab);
  } else {
    throw CommandError(control.full_name() + " has nothing to set");
  }
}

void Drill::do_key(const Words& words) {
  want(words, 3, "key CONTROL \"5\"");
  auto* box = dynamic_cast<TextBox*>(&reachable(words[1]));
  if (!box) throw CommandError(words[1].text + " takes no keys");
  const std::string key = words[2].text == "\\b" ? "\b" : words[2].text;
  if (Len(key) != 1) throw CommandError("a key is one character");
  user::press_key(*box, key);
}

void Drill::do_drag(const Words& words) {
  want(words, 3, "drag CONTROL X");
  Control& control = reachable(words[1]);
  const int left = parse_int(words[2], "the position");
  user::drag(control, left);
}

void Drill::do_drop(const Words& words) {
  want(words, 2, "drop CONTROL");
  user::release(reachable(words[1]));
}

void Drill::do_press(const Words& words) {
  want(words, 2, "press CONTROL");
  user::press(reachable(words[1]));
}

void Drill::do_release(const Words& words) {
  want(words, 2, "release CONTROL");
  user::release(reachable(words[1]));
}

void Drill::do_close(const Words& words) {
  want(words, 1, "close");
  if (machine_.held()) throw CommandError("a box is up");
  Form* last = nullptr;
  for (Form* form : windows().open())
    if (form != &console_->form1()) last = form;
  if (!last) last = &console_->form1();
  if (!user::close(*last)) throw CommandError("no window can be closed");
}

void Drill::do_answer(const Words& words) {
  static const std::map<std::string_view, Answer::Kind> kinds = {{"yes", Answer::Kind::kYes},
                                                                 {"no", Answer::Kind::kNo},
                                                                 {"ok", Answer::Kind::kOk},
                                                                 {"text", Answer::Kind::kText},
                                                                 {"cancel", Answer::Kind::kCancel}};
  const auto kind = words.size() < 2 ? kinds.end() : kinds.find(words[1].text);
  if (kind == kinds.end()) throw CommandError("expected: answer yes, no, ok, text \"abc\" or cancel");
  Answer answer{kind->second, {}, {}};
  std::size_t next = 2;
  if (answer.kind == Answer::Kind::kText) {
    if (words.size() < 3) throw CommandError("expected: answer text \"abc\"");
    answer.text = words[next++].text;
  }
  if (next < words.size()) {
    if (words.size() != next + 2 || words[next].text != "after") throw CommandError("expected: after 5s");
    answer.after = parse_duration(words[next + 1].text);
  }
  machine_.queue_answer(answer);
}

}  // namespace evac::drill

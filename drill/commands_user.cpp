// Commands of the user's hands and eyes: presses, changes, answers, and what is expected to be seen.
#include <algorithm>
#include <cstdio>

#include "drill/drill.h"
#include "drill/target.h"
#include "model/text.h"
#include "platform/user.h"

namespace evac::drill {
namespace {

constexpr std::size_t kFrameBytes = 6;  // command and five data bytes

int parse_row(const RowControl& list, const Word& word) {
  if (word.quoted) {
    const auto& rows = list.rows();
    const auto at = std::find(rows.begin(), rows.end(), word.text);
    if (at == rows.end()) throw CommandError("no row " + in_quotes(word.text));
    return static_cast<int>(at - rows.begin());
  }
  const int row = parse_int(word, "the row");
  if (row < 0 || row >= list.count()) throw CommandError(join("no row ", row));
  return row;
}

std::string frame_text(const std::uint8_t* bytes) {
  std::string text;
  for (std::size_t i = 0; i < kFrameBytes; ++i) text += (i ? " " : "") + hex_byte(bytes[i]);
  return text;
}

}  // namespace

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
    user::set_range(*calendar, from, to);
    return;
  }
  want(words, 3, "set CONTROL VALUE");
  if (auto* bar = dynamic_cast<ScrollBar*>(&control)) {
    const int number = parse_int(value, "the value");
    user::set_value(*bar, number);
  } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
    user::set_text(*text, value.text);
  } else if (auto* list = dynamic_cast<RowControl*>(&control)) {
    const int row = parse_row(*list, value);
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
  user::drop(reachable(words[1]));
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

void Drill::do_get(const Words& words) {
  want(words, 2, "get CONTROL.PROPERTY");
  print("= " + read_property(windows(), words[1].text));
}

void Drill::do_items(const Words& words) {
  want(words, 2, "items CONTROL");
  const Control& control = find_control(windows(), words[1].text);
  if (const auto* list = dynamic_cast<const RowControl*>(&control)) {
    for (const auto& row : list->rows()) print("= " + row);
  } else if (const auto* tabs = dynamic_cast<const TabStrip*>(&control)) {
    for (const auto& tab : tabs->tabs()) print("= " + tab);
  } else if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
    for (int r = 0; r < grid->row_count(); ++r) {
      std::string row;
      for (int c = 0; c < grid->column_count(); ++c) row += (c ? "\t" : "") + grid->cell(r, c);
      print("= " + row);
    }
  } else {
    throw CommandError(control.full_name() + " has no rows");
  }
}

void Drill::do_forget(const Words&) {
  machine_.sent().clear();
  machine_.raised().clear();
}

void Drill::do_expect(const Words& words) {
  using Expectation = void (Drill::*)(const Words&);
  static const std::map<std::string_view, Expectation> expectations = {{"tx", &Drill::expect_frames},
                                                                       {"no", &Drill::expect_no},
                                                                       {"box", &Drill::expect_box},
                                                                       {"journal", &Drill::expect_journal},
                                                                       {"row", &Drill::expect_row}};
  if (words.size() < 3) want(words, 3, "expect CONTROL.PROPERTY VALUE");
  if (const auto found = expectations.find(words[1].text); found != expectations.end())
    return (this->*found->second)(words);
  want(words, 3, "expect CONTROL.PROPERTY VALUE");
  const std::string value = read_property(windows(), words[1].text);
  if (value != words[2].text) throw CommandError("it is " + in_quotes(value));
}

void Drill::expect_frames(const Words& words) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 2; i < words.size(); ++i) bytes.push_back(parse_byte(words[i]));
  if (bytes.empty() || bytes.size() % kFrameBytes != 0) throw CommandError("a frame is six bytes here");
  auto& sent = machine_.sent();
  const std::size_t frames = bytes.size() / kFrameBytes;
  for (std::size_t i = 0; i < frames; ++i) {
    if (i == sent.size()) throw CommandError("no frame was sent");
    const auto* wanted = bytes.data() + i * kFrameBytes;
    const auto* found = sent[i].data() + 2;
    if (!std::equal(wanted, wanted + kFrameBytes, found))
      throw CommandError("the frame is " + frame_text(found));
  }
  sent.erase(sent.begin(), sent.begin() + static_cast<std::ptrdiff_t>(frames));
}

void Drill::expect_no(const Words& words) {
  if (words[2].text == "tx") {
    if (!machine_.sent().empty())
      throw CommandError("a frame was sent: " + frame_text(machine_.sent().front().data() + 2));
  } else if (words[2].text == "box") {
    if (!machine_.raised().empty())
      throw CommandError("a box was up: " + in_quotes(machine_.raised().front()));
  } else {
    throw CommandError("expected: expect no tx or expect no box");
  }
}

void Drill::expect_box(const Words& words) {
  want(words, 3, "expect box \"text\"");
  auto& raised = machine_.raised();
  if (raised.empty()) throw CommandError("no box was up");
  if (raised.front() != words[2].text) throw CommandError("the box is " + in_quotes(raised.front()));
  raised.pop_front();
}

void Drill::expect_journal(const Words& words) {
  want(words, 3, "expect journal \"text\"");
  if (last_entry_ != words[2].text) throw CommandError("the last line is " + in_quotes(last_entry_));
}

void Drill::expect_row(const Words& words) {
  want(words, 5, "expect row LIST N \"text\"");
  const auto* list = dynamic_cast<const RowControl*>(&find_control(windows(), words[2].text));
  if (!list) throw CommandError(words[2].text + " has no rows");
  const int row = parse_row(*list, {words[3].text});
  if (list->row(row) != words[4].text) throw CommandError("the row is " + in_quotes(list->row(row)));
}

}  // namespace evac::drill

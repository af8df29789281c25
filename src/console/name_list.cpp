#include "console/name_list.h"

#include <map>

#include "model/text.h"
#include "store/settings_files.h"

namespace evac {
namespace {

constexpr std::string_view kTab = "\t";

double number_of(const std::string& line) {
  return Val(line.substr(0, line.find(kTab)));
}

// What stands behind the first tab; the whole of a line without one.
std::string name_of(const std::string& line) {
  return line.substr(line.find(kTab) + 1);
}

}  // namespace

void NameList::load() {
  window_.List1.clear();
  int record = 0;
  for (const auto& line : read_names(files_, file_(settings_))) {
    ++record;
    if (line.empty()) continue;
    window_.List1.add(line);
    show_name(record, line);
    window_.VS1.set_value(record + 1);
  }
}

void NameList::add() {
  const int number = window_.VS1.value();
  if (window_.Txt1.text().empty()) {
    boxes_.message("Введите наименование");
    window_.Txt1.set_focus();
    return;
  }
  for (const auto& line : window_.List1.rows())
    if (number_of(line) == number) {
      boxes_.message(join("Номер ", number, " уже существует"));
      return;
    }
  if (window_.List1.count() >= kMostLines) return;
  window_.List1.add(join(number, kTab, window_.Txt1.text()));
  sort();
  ready_for_next();
  window_.Txt1.set_focus();
}

void NameList::remove() {
  if (window_.List1.selected() < 0) return;
  window_.List1.remove(window_.List1.selected());
  ready_for_next();
}

void NameList::save() {
  const auto& lines = window_.List1.rows();
  if (write_names(files_, file_(settings_), lines) != kNoError) return;
  int place = 0;
  for (const auto& line : lines) show_name(++place, line);
}

void NameList::sort() {
  std::map<int, std::string> slots;
  for (const auto& line : window_.List1.rows())
    if (const double number = number_of(line); number >= 1 && number <= kMostLines)
      slots[static_cast<int>(number)] = line;
  window_.List1.clear();
  for (const auto& [number, line] : slots) window_.List1.add(line);
}

void NameList::ready_for_next() {
  window_.VS1.set_value(window_.List1.count() + 1);
  window_.Txt1.set_text("");
}

void NameList::show_name(int place, const std::string& line) {
  if (shown_at_ && place <= shown_at_->last()) (*shown_at_)[place].set_tool_tip(name_of(line));
}

}  // namespace evac

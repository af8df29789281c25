#include "console/name_list.h"

#include <map>

#include "model/text.h"
#include "platform/windows.h"
#include "store/settings_files.h"

namespace evac {
namespace {

constexpr std::string_view kTab = "\t";

int number_of(const std::string& line) {
  return Number(line.substr(0, line.find(kTab)));
}

// What stands behind the first tab; the whole of a line without one.
std::string name_of(const std::string& line) {
  return line.substr(line.find(kTab) + 1);
}

}  // namespace

void NameList::open() {
  load();
  doors_.window.windows().show_modal(doors_.window);
}

void NameList::load() {
  doors_.window.List1.clear();
  std::vector<std::string> lines;
  // A file that can't be read ends the load silently.
  (void)read_names(doors_.folder, doors_.file, lines);
  int record = 0;
  for (const auto& line : lines) {
    ++record;
    if (line.empty()) continue;
    doors_.window.List1.add(line);
    show_name(record, line);
    doors_.window.VS1.set_value(record + 1);
  }
  keep();
}

void NameList::add() {
  const int number = doors_.window.VS1.value();
  if (doors_.window.Txt1.text().empty()) {
    doors_.boxes.message("Введите наименование");
    doors_.window.Txt1.set_focus();
    return;
  }
  for (const auto& line : doors_.window.List1.rows())
    if (number_of(line) == number) {
      doors_.boxes.message(join("Номер ", number, " уже существует"));
      return;
    }
  if (doors_.window.List1.count() >= kMostLines) return;
  doors_.window.List1.add(join(number, kTab, doors_.window.Txt1.text()));
  sort();
  ready_for_next();
  doors_.window.Txt1.set_focus();
}

void NameList::remove() {
  if (doors_.window.List1.selected() < 0) return;
  doors_.window.List1.remove(doors_.window.List1.selected());
  ready_for_next();
}

void NameList::save() {
  const auto& lines = doors_.window.List1.rows();
  // A save that fails ends silently; the list keeps its lines.
  if (write_names(doors_.folder, doors_.file, lines) != kNoError) return;
  int place = 0;
  for (const auto& line : lines) show_name(++place, line);
  keep();
}

void NameList::sort() {
  std::map<int, std::string> slots;
  for (const auto& line : doors_.window.List1.rows())
    if (const int number = number_of(line); number >= 1 && number <= kMostLines) slots[number] = line;
  doors_.window.List1.clear();
  for (const auto& [number, line] : slots) doors_.window.List1.add(line);
}

void NameList::ready_for_next() {
  doors_.window.VS1.set_value(doors_.window.List1.count() + 1);
  doors_.window.Txt1.set_text("");
}

void NameList::keep() {
  if (!doors_.kept) return;
  doors_.kept->by_number.clear();
  for (const auto& line : doors_.window.List1.rows())
    if (const double number = number_of(line); number >= 1 && number <= kMostLines)
      doors_.kept->by_number[static_cast<int>(number)] = name_of(line);
  ++doors_.kept->edition;
}

void NameList::show_name(int place, const std::string& line) {
  if (doors_.shown_at && place <= doors_.shown_at->last())
    (*doors_.shown_at)[place].set_tool_tip(name_of(line));
}

}  // namespace evac

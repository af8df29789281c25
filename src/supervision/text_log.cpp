#include "supervision/text_log.h"

#include <algorithm>

namespace evac {
namespace {

constexpr int kMostAdditions = 100;

// True when the text has become a new line of the list.
bool add_new(const TextBox& input, ListBox& list, int& added) {
  if (input.text().empty() || added >= kMostAdditions) return false;
  if (std::ranges::find(list.rows(), input.text()) != list.rows().end()) return false;
  list.add(input.text());
  ++added;
  return true;
}

}  // namespace

void TextLog::tick() {
  PowerTab& tab = doors_.tab;
  if (add_new(tab.Text1, tab.List1, added1_)) tab.List2.add(time_text(second_of_day(doors_.loop.wall())));
  add_new(tab.Text2, tab.List3, added2_);
}

void TextLog::clear() {
  for (ListBox* list : {&doors_.tab.List1, &doors_.tab.List2, &doors_.tab.List3}) list->clear();
}

}  // namespace evac

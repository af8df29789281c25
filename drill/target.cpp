#include "drill/target.h"

#include <algorithm>
#include <map>

#include "model/text.h"

namespace evac::drill {
namespace {

struct Parsed {
  std::string qualifier;  // empty when there is none
  std::string name;
  std::optional<int> index;
};

// Splits at the last point outside brackets; the first part is empty when there is none.
std::pair<std::string_view, std::string_view> split_last(std::string_view path) {
  int depth = 0;
  for (std::size_t i = path.size(); i-- > 0;) {
    depth += (path[i] == ')') - (path[i] == '(');
    if (path[i] == '.' && depth == 0) return {path.substr(0, i), path.substr(i + 1)};
  }
  return {{}, path};
}

Parsed parse(std::string_view path) {
  Parsed parsed;
  const auto [qualifier, rest] = split_last(path);
  parsed.qualifier = qualifier;
  const auto bracket = rest.find('(');
  parsed.name = rest.substr(0, bracket);
  if (bracket != std::string_view::npos) {
    if (!rest.ends_with(')')) throw CommandError(join("a bracket is not closed in ", path));
    parsed.index = parse_int({std::string(rest.substr(bracket + 1, rest.size() - bracket - 2))}, "the index");
  }
  return parsed;
}

std::string flag(bool on) {
  return on ? "on" : "off";
}

std::string value_of(const Control& control) {
  if (const auto* c = dynamic_cast<const ScrollBar*>(&control)) return join(c->value());
  if (const auto* c = dynamic_cast<const ProgressBar*>(&control)) return join(c->value());
  if (const auto* c = dynamic_cast<const TabStrip*>(&control)) return join(c->value());
  if (const auto* c = dynamic_cast<const OptionButton*>(&control)) return flag(c->value());
  if (const auto* c = dynamic_cast<const CheckBox*>(&control)) return flag(c->value());
  if (const auto* c = dynamic_cast<const MenuItem*>(&control)) return flag(c->value());
  throw CommandError(control.full_name() + " has no value");
}

std::string text_of(const Control& control) {
  if (const auto* c = dynamic_cast<const TextBox*>(&control)) return c->text();
  if (const auto* c = dynamic_cast<const ComboBox*>(&control)) return c->text();
  if (const auto* c = dynamic_cast<const RowControl*>(&control))
    return c->selected() < 0 ? "" : c->row(c->selected());
  if (const auto* c = dynamic_cast<const Picture*>(&control)) {
    std::string text;
    for (const auto& line : c->lines()) text += (text.empty() ? "" : " / ") + line;
    return text;
  }
  throw CommandError(control.full_name() + " has no text");
}

template <class T>
const T& as(const Control& control, std::string_view property) {
  const auto* typed = dynamic_cast<const T*>(&control);
  if (!typed) throw CommandError(join(control.full_name(), " has no ", property));
  return *typed;
}

std::string cell_of(const Control& control, std::string_view property) {
  const auto& grid = as<Grid>(control, "cells");
  const auto comma = property.find(',');
  if (comma == std::string_view::npos || !property.ends_with(')'))
    throw CommandError("a cell is cell(row,column)");
  const std::size_t first = std::string_view("cell(").size();
  const int row = parse_int({Trim(property.substr(first, comma - first))}, "the row");
  const int column = parse_int({Trim(property.substr(comma + 1, property.size() - comma - 2))}, "the column");
  if (row < 0 || row >= grid.row_count() || column < 0 || column >= grid.column_count())
    throw CommandError("the grid has no such cell");
  return grid.cell(row, column);
}

using Reader = std::string (*)(const Control&);

const std::map<std::string_view, Reader>& readers() {
  static const std::map<std::string_view, Reader> table = {
      {"caption", [](const Control& c) { return c.caption(); }},
      {"back", [](const Control& c) { return color_literal(c.back_color()); }},
      {"tip", [](const Control& c) { return c.tool_tip(); }},
      {"enabled", [](const Control& c) { return flag(c.enabled()); }},
      {"visible", [](const Control& c) { return flag(c.visible()); }},
      {"picture", [](const Control& c) { return c.picture(); }},
      {"left", [](const Control& c) { return join(c.left()); }},
      {"value", value_of},
      {"password", [](const Control& c) { return flag(as<TextBox>(c, "password").password()); }},
      {"from", [](const Control& c) { return short_date_text(as<MonthCalendar>(c, "from").from()); }},
      {"to", [](const Control& c) { return short_date_text(as<MonthCalendar>(c, "to").to()); }},
      {"text", text_of},
      {"count", [](const Control& c) { return join(as<RowControl>(c, "count").count()); }},
      {"selected", [](const Control& c) { return join(as<RowControl>(c, "selected").selected()); }},
      {"interval", [](const Control& c) { return join(as<Timer>(c, "interval").interval()); }},
      {"rows", [](const Control& c) { return join(as<Grid>(c, "rows").row_count()); }},
  };
  return table;
}

// The window that a bare name means first.
Form* window_on_top(Windows& windows) {
  if (Form* modal = windows.modal()) return modal;
  return windows.find("Form1");
}

}  // namespace

Control& find_control(Windows& windows, std::string_view path) {
  const Parsed parsed = parse(path);
  Form* main = windows.find("Form1");
  Control* control = nullptr;
  if (parsed.qualifier.empty()) {
    control = window_on_top(windows)->find(parsed.name, parsed.index);
    if (!control) control = main->find(parsed.name, parsed.index);
  } else if (Form* form = windows.find(parsed.qualifier)) {
    control = form->find(parsed.name, parsed.index);
  } else {
    control = main->find(parsed.name, parsed.index, parsed.qualifier);
  }
  if (!control) throw CommandError(join("no control ", path));
  return *control;
}

Form& find_form(Windows& windows, std::string_view name) {
  Form* form = windows.find(name);
  if (!form) throw CommandError(join("no window ", name));
  return *form;
}

std::string read_property(Windows& windows, std::string_view path) {
  const auto [target, property] = split_last(path);
  if (target.empty()) throw CommandError(join("no property in ", path));
  if (property == "shown") return flag(find_form(windows, target).shown());
  if (property == "title") return find_form(windows, target).title();
  if (const Form* form = windows.find(target); form && form->position && property == "left")
    return join(form->position->first);
  const Control& control = find_control(windows, target);
  if (property.starts_with("cell(")) return cell_of(control, property);
  const auto reader = readers().find(property);
  if (reader == readers().end()) throw CommandError(join("no property ", property));
  return reader->second(control);
}

int find_row(const RowControl& list, const Word& word) {
  if (word.quoted) {
    const auto& rows = list.rows();
    const auto at = std::ranges::find_if(rows, [&](const std::string& row) { return means(word, row); });
    if (at == rows.end()) throw CommandError("no row " + in_quotes(word.text));
    return static_cast<int>(at - rows.begin());
  }
  const int row = parse_int(word, "the row");
  if (row < 0 || row >= list.count()) throw CommandError(join("no row ", row));
  return row;
}

}  // namespace evac::drill

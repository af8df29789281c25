#include "platform/controls.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "model/text.h"
#include "platform/windows.h"

namespace evac {
namespace {

constexpr char kDigitPlace = '#';

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

std::string digits_of(std::string text) {
  std::erase_if(text, [](char c) { return !is_digit(c); });
  return text;
}

}  // namespace

Control::Control(const Place& place, Kind kind, std::string_view name, std::string_view caption,
                 std::optional<int> index)
    : place_(place), kind_(kind), name_(name), index_(index), caption_(caption) {
  form().controls_.push_back(this);
}

Control::~Control() {
  // Controls end from the last one back: it is found at once.
  auto& all = form().controls_;
  const auto found = std::find(all.rbegin(), all.rend(), this);
  if (found != all.rend()) all.erase(std::next(found).base());
}

std::string Control::full_name() const {
  return index_ ? join(name_, "(", *index_, ")") : name_;
}

bool Control::usable() const {
  for (const Control* control = this; control; control = control->frame())
    if (!control->enabled() || !control->visible()) return false;
  return true;
}

void Picture::print(std::string_view line) {
  lines_.emplace_back(line);
  changed();
}

void Picture::clear() {
  if (lines_.empty()) return;
  lines_.clear();
  changed();
}

OptionButton* OptionGroup::chosen() const {
  const auto on =
      std::find_if(members_.begin(), members_.end(), [](auto* member) { return member->value(); });
  return on == members_.end() ? nullptr : *on;
}

OptionButton::OptionButton(const Place& place, OptionGroup& group, std::string_view name,
                           std::string_view caption, std::optional<int> index)
    : Control(place, Kind::kOptionButton, name, caption, index), group_(group) {
  group_.members_.push_back(this);
}

void OptionButton::set_value(bool on) {
  if (on == value_) return;
  if (!on) {
    assign(value_, false);
    return;
  }
  take_over();
  click();
}

void OptionButton::press() {
  take_over();
  click();
}

void OptionButton::take_over() {
  for (OptionButton* member : group_.members_)
    if (member != this) member->assign(member->value_, false);
  assign(value_, true);
}

void CheckBox::set_value(bool on) {
  if (assign(value_, on)) click();
}

ScrollBar::ScrollBar(const Place& place, std::string_view name, int least, int most, int value,
                     std::optional<int> index)
    : Control(place, Kind::kScrollBar, name, {}, index), least_(least), most_(most), value_(value) {}

void ScrollBar::set_value(int value) {
  if (assign(value_, std::clamp(value, least_, most_))) change();
}

void TextBox::set_text(std::string_view text) {
  if (assign(text_, text)) change();
}

void TextBox::press_key(std::string key) {
  key_press(key);
  if (key.empty()) return;
  set_text(key == "\b" ? Left(text_, Len(text_) - 1) : text_ + key);
}

void MaskedEdit::set_text(std::string_view text) {
  digits_before_ = 0;
  TextBox::set_text(text);
}

void MaskedEdit::press_key(std::string key) {
  key_press(key);
  std::string digits = digits_of(text());
  const auto at = static_cast<std::size_t>(digits_before_);
  if (key == "\b" && at > 0) {
    digits.erase(at - 1, 1);
    --digits_before_;
  } else if (key.size() == 1 && is_digit(key[0]) && caret() < static_cast<int>(mask_.size())) {
    digits.replace(at, 1, key);
    ++digits_before_;
  } else {
    return;
  }
  std::string laid_out;
  std::size_t next = 0;
  for (std::size_t i = 0; i < mask_.size() && next < digits.size(); ++i)
    laid_out += mask_[i] == kDigitPlace ? digits[next++] : mask_[i];
  TextBox::set_text(laid_out);
}

int MaskedEdit::caret() const {
  int places = 0;
  for (std::size_t i = 0; i < mask_.size(); ++i)
    if (mask_[i] == kDigitPlace && places++ == digits_before_) return static_cast<int>(i);
  return static_cast<int>(mask_.size());
}

void MaskedEdit::place_caret(int position) {
  const auto before = std::string_view(mask_).substr(0, static_cast<std::size_t>(std::max(position, 0)));
  digits_before_ = static_cast<int>(std::min<std::size_t>(
      static_cast<std::size_t>(std::ranges::count(before, kDigitPlace)), digits_of(text()).size()));
}

const std::string& RowControl::row(int row) const {
  if (row < 0 || row >= count()) bad_subscript();
  return rows_[static_cast<std::size_t>(row)];
}

void RowControl::add(std::string_view text) {
  insert(count(), text);
}

void RowControl::add_all(std::vector<std::string> texts) {
  if (texts.empty()) return;
  rows_.insert(rows_.end(), std::move_iterator(texts.begin()), std::move_iterator(texts.end()));
  changed();
}

void RowControl::insert(int row, std::string_view text) {
  if (row < 0 || row > count()) bad_subscript();
  rows_.emplace(rows_.begin() + row, text);
  if (selected_ >= row) ++selected_;
  changed();
}

void RowControl::remove(int row) {
  if (row < 0 || row >= count()) bad_subscript();
  rows_.erase(rows_.begin() + row);
  if (selected_ == row)
    selected_ = -1;
  else if (selected_ > row)
    --selected_;
  changed();
}

void RowControl::clear() {
  if (rows_.empty()) return;
  rows_.clear();
  selected_ = -1;
  changed();
}

void RowControl::select(int row) {
  if (row == selected_) return;
  mark(row);
  if (row >= 0) click();
}

void RowControl::mark(int row) {
  if (row < -1 || row >= count()) bad_subscript();
  if (row == selected_) return;
  selected_ = row;
  selection_changed();
  changed();
}

void RowControl::pick(int row) {
  if (row < 0 || row >= count()) bad_subscript();
  selected_ = row;
  selection_changed();
  changed();
  click();
}

void ComboBox::selection_changed() {
  if (selected() >= 0) text_ = row(selected());
}

void Grid::set_row_count(int rows) {
  if (rows == row_count()) return;
  cells_.resize(static_cast<std::size_t>(std::max(rows, 0)),
                std::vector<std::string>(static_cast<std::size_t>(columns_)));
  changed();
}

const std::string& Grid::cell(int row, int column) const {
  if (row < 0 || row >= row_count() || column < 0 || column >= column_count()) bad_subscript();
  return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void Grid::set_cell(int row, int column, std::string_view text) {
  assign(const_cast<std::string&>(cell(row, column)), text);
}

void Grid::sort(int column) {
  if (column < 0 || column >= column_count()) bad_subscript();
  const auto key = [column](const std::vector<std::string>& row) {
    const std::string& text = row[static_cast<std::size_t>(column)];
    double value = 0;
    const auto end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    const bool word = text.empty() || read.ec != std::errc() || read.ptr != end;
    return std::tuple(word, word ? 0 : value, word ? lower_case(text) : std::string());
  };
  std::stable_sort(cells_.begin(), cells_.end(),
                   [&](const auto& a, const auto& b) { return key(a) < key(b); });
  changed();
}

void MonthCalendar::set_range(Date from, Date to) {
  if (from == from_ && to == to_) return;
  from_ = from;
  to_ = to;
  changed();
  change();
}

void MonthCalendar::pick(Date from, Date to) {
  using std::chrono::local_days;
  from_ = from;
  to_ = Date(std::min(local_days(to), local_days(from) + std::chrono::days(most_days_ - 1)));
  changed();
  change();
}

void TabStrip::set_value(int tab) {
  if (tab < 0 || tab >= static_cast<int>(tabs_.size())) bad_subscript();
  if (assign(value_, tab)) click();
}

MenuItem::MenuItem(const PopupMenu& popup, std::string_view name, std::string_view caption, int index)
    : Control(popup.place(), Kind::kMenuItem, name, caption, index), popup_(&popup) {}

void PopupMenu::show() {
  form().windows().show_popup(*this);
}

Timer::Timer(const Place& place, std::string_view name, int interval)
    : Control(place, Kind::kTimer, name), interval_(interval) {
  Control::set_enabled(false);
}

Timer::~Timer() {
  form().windows().loop().disarm(*this);
}

void Timer::set_enabled(bool on) {
  if (on == enabled()) return;
  Control::set_enabled(on);
  EventLoop& loop = form().windows().loop();
  if (on)
    loop.arm(*this);
  else
    loop.disarm(*this);
}

Form::Form(Windows& windows, std::string_view name, std::string_view title)
    : windows_(windows), name_(name), title_(title) {
  windows_.forms_.push_back(this);
}

Form::~Form() {
  std::erase(windows_.forms_, this);
  std::erase(windows_.open_, this);
}

void Form::set_title(std::string_view title) {
  if (title_ == title) return;
  title_ = title;
  view_changed();
}

Control* Form::find(std::string_view name, std::optional<int> index, std::string_view section) const {
  for (Control* control : controls_)
    if (control->name() == name && control->index() == index &&
        (section.empty() || control->section() == section))
      return control;
  return nullptr;
}

}  // namespace evac

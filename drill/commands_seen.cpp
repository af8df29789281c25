// Commands of the user's eyes: what controls show, and what is expected of the window, the line, the boxes
// and the journal. One that fails uses nothing up.
#include <algorithm>

#include "drill/drill.h"
#include "drill/target.h"
#include "model/text.h"

namespace evac::drill {
namespace {

constexpr std::size_t kFrameBytes = 6;  // command and five data bytes

std::string frame_text(const std::uint8_t* bytes) {
  std::string text;
  for (std::size_t i = 0; i < kFrameBytes; ++i) text += (i ? " " : "") + hex_byte(bytes[i]);
  return text;
}

std::string_view rank_word(WatchRank rank) {
  constexpr std::string_view kRanks[] = {"fire", "warning", "note"};
  return kRanks[static_cast<std::size_t>(rank)];
}

// A list's rows, a tab strip's captions, a grid's rows with a tab between the cells.
std::vector<std::string> rows_of(const Control& control) {
  if (const auto* list = dynamic_cast<const RowControl*>(&control)) return list->rows();
  if (const auto* tabs = dynamic_cast<const TabStrip*>(&control)) return tabs->tabs();
  const auto* grid = dynamic_cast<const Grid*>(&control);
  if (!grid) throw CommandError(control.full_name() + " has no rows");
  std::vector<std::string> rows(grid->row_count());
  for (int r = 0; r < grid->row_count(); ++r) {
    for (int c = 0; c < grid->column_count(); ++c) rows[r] += (c ? "\t" : "") + grid->cell(r, c);
  }
  return rows;
}

}  // namespace

void Drill::do_watch(const Words& words) {
  want(words, 1, "watch");
  for (const auto& line : console_->watch().lines()) print(join("= ", rank_word(line.rank), " ", line.text));
}

void Drill::expect_watch(const Words& words) {
  want(words, 4, "expect watch RANK \"text\"");
  for (const auto& line : console_->watch().lines())
    if (line.text == words[3].text && rank_word(line.rank) == words[2].text) return;
  throw CommandError("no such line");
}

void Drill::do_get(const Words& words) {
  want(words, 2, "get CONTROL.PROPERTY");
  print("= " + read_property(windows(), words[1].text));
}

void Drill::do_items(const Words& words) {
  want(words, 2, "items CONTROL");
  for (const auto& row : rows_of(find_control(windows(), words[1].text))) print("= " + row);
}

void Drill::do_forget(const Words& words) {
  want(words, 1, "forget");
  machine_.sent().clear();
  machine_.heard().clear();
  machine_.raised().clear();
}

void Drill::do_expect(const Words& words) {
  using Expectation = void (Drill::*)(const Words&);
  static const std::map<std::string_view, Expectation> expectations = {
      {"tx", &Drill::expect_frames},       {"no", &Drill::expect_no},       {"box", &Drill::expect_box},
      {"journal", &Drill::expect_journal}, {"row", &Drill::expect_row},     {"fault", &Drill::expect_fault},
      {"watch", &Drill::expect_watch},     {"heard", &Drill::expect_frames}};
  // What a process sent, asked and wrote before it ended can still be expected; the rest is seen in one that
  // runs.
  constexpr std::string_view kStays[] = {"fault", "tx", "no", "box", "journal", "heard"};
  const bool stays = words.size() > 1 && std::ranges::find(kStays, words[1].text) != std::end(kStays);
  if (!console_ && !stays) throw CommandError("the console has not been started");
  if (words.size() < 3) want(words, 3, "expect CONTROL.PROPERTY VALUE");
  if (const auto found = expectations.find(words[1].text); found != expectations.end())
    return (this->*found->second)(words);
  want(words, 3, "expect CONTROL.PROPERTY VALUE");
  const std::string value = read_property(windows(), words[1].text);
  if (!means(words[2], value)) throw CommandError("it is " + in_quotes(value));
}

void Drill::expect_frames(const Words& words) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 2; i < words.size(); ++i) bytes.push_back(parse_byte(words[i]));
  if (bytes.empty() || bytes.size() % kFrameBytes != 0) throw CommandError("a frame is six bytes here");
  const bool heard = words[1].text == "heard";
  auto& sent = heard ? machine_.heard() : machine_.sent();
  const std::size_t frames = bytes.size() / kFrameBytes;
  for (std::size_t i = 0; i < frames; ++i) {
    if (i == sent.size()) throw CommandError(heard ? "no frame was heard" : "no frame was sent");
    const auto* wanted = bytes.data() + i * kFrameBytes;
    const auto* found = sent[i].data() + 2;
    if (!std::equal(wanted, wanted + kFrameBytes, found))
      throw CommandError("the frame is " + frame_text(found));
  }
  sent.erase(sent.begin(), sent.begin() + static_cast<std::ptrdiff_t>(frames));
}

void Drill::expect_no(const Words& words) {
  want(words, 3, "expect no tx or expect no box");
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
  if (!means(words[2], raised.front())) throw CommandError("the box is " + in_quotes(raised.front()));
  raised.pop_front();
}

void Drill::expect_journal(const Words& words) {
  want(words, 3, "expect journal \"text\"");
  if (!means(words[2], last_entry_)) throw CommandError("the last line is " + in_quotes(last_entry_));
}

void Drill::expect_row(const Words& words) {
  want(words, 5, "expect row LIST N \"text\"");
  const auto rows = rows_of(find_control(windows(), words[2].text));
  const int row = parse_int(words[3], "the row");
  if (row < 0 || row >= static_cast<int>(rows.size())) throw CommandError(join("no row ", row));
  if (!means(words[4], rows[row])) throw CommandError("the row is " + in_quotes(rows[row]));
}

void Drill::expect_fault(const Words& words) {
  want(words, 3, "expect fault 6");
  const int number = parse_int(words[2], "the fault");
  if (faults_.empty()) throw CommandError("no fault came");
  if (faults_.back() != number) throw CommandError(join("the fault is ", faults_.back()));
  faults_.pop_back();
}

}  // namespace evac::drill

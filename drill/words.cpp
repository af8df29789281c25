#include "drill/words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "model/text.h"

namespace evac::drill {
namespace {

// What an operator does again and again; what is said behind it goes where a command ends in a blank.
struct Deed {
  std::string_view word, of;
  std::array<std::string_view, 4> commands;
};
constexpr Deed kDeeds[] = {
    {"enter", "M_n_z", {"click ", "set FrmPsW.Txt1 x", "set FrmPsW.Txt1 \"\"", "click FrmPsW.CmdVPsW"}},
    {"yes", "click C", {"answer yes", " "}},
    {"no", "click C", {"answer no", " "}},
    {"quiet", "5s", {"wait ", "expect no tx"}},
};

// What may be said several times in one line: behind how many words that stand for all, and how many each.
struct Repeated {
  std::string_view command, what;
  std::size_t head, each;
};
constexpr Repeated kRepeated[] = {
    {"click", "", 1, 1},     {"rclick", "", 1, 1},      {"shift-rclick", "", 1, 1}, {"dblclick", "", 1, 1},
    {"set", "", 1, 2},       {"key", "", 2, 1},         {"frame", "", 1, 6},        {"contact", "", 1, 2},
    {"card", "", 1, 2},      {"sound", "", 1, 2},       {"nosound", "", 1, 1},      {"remove", "", 1, 1},
    {"expect", "box", 2, 1}, {"expect", "row", 4, 1},   {"expect", "tx", 2, 0},     {"expect", "heard", 2, 0},
    {"expect", "no", 3, 0},  {"expect", "watch", 2, 2}, {"expect", "", 1, 2},       {"file", "", 1, 2},
};

// Reads a quoted word from behind its opening quote; leaves `at` behind the closing one.
std::string read_quoted(std::string_view line, std::size_t& at, bool line_ends) {
  std::string text;
  for (; at < line.size(); ++at) {
    const char c = line[at];
    if (c == '"') {
      ++at;
      return text;
    }
    const char next = c == '\\' && at + 1 < line.size() ? line[at + 1] : '\0';
    if (next == '"' || next == '\\')
      text += next;
    else if (next == 't')
      text += '\t';
    else if (next == 'n' && line_ends)
      text += "\r\n";
    else {
      text += c;
      continue;
    }
    ++at;
  }
  throw CommandError("a quote is not closed");
}

}  // namespace

std::vector<Word> split_words(std::string_view line) {
  std::vector<Word> words;
  for (std::size_t at = 0; at < line.size();) {
    if (line[at] == ' ' || line[at] == '\t') {
      ++at;
    } else if (line[at] == '"') {
      const bool line_ends = !words.empty() && words[0].text == "file" && words.size() % 2 == 0;
      words.push_back({read_quoted(line, ++at, line_ends), true});
    } else {
      const auto end = std::min(line.find_first_of(" \t", at), line.size());
      words.push_back({std::string(line.substr(at, end - at)), false});
      at = end;
    }
  }
  return words;
}

std::deque<std::vector<Word>> commands_of(const std::vector<Word>& line) {
  const std::string& command = line[0].text;
  if (const auto deed = std::ranges::find(kDeeds, command, &Deed::word); deed != std::end(kDeeds)) {
    if (line.size() < 2) want(line, 2, join(command, " ", deed->of));
    std::deque<std::vector<Word>> commands;
    for (const std::string_view each : deed->commands) {
      if (each.empty()) continue;
      commands.push_back(split_words(each));
      if (each.ends_with(' ')) std::copy(line.begin() + 1, line.end(), std::back_inserter(commands.back()));
    }
    return commands;
  }
  if (command == "channel" && line.size() > 2 && line.size() % 2 == 1) {
    std::deque<std::vector<Word>> commands;
    for (std::size_t at = 1; at < line.size(); at += 2) {
      commands.push_back({{"dblclick"}, line[at]});
      commands.push_back({{"rclick"}, line[at]});
      commands.push_back({{"click"}, {join("ch(", line[at + 1].text, ")")}});
    }
    return commands;
  }
  if (command == "expect" && line.size() > 3 && line[1].text == "only") {
    std::vector<Word> these = line;
    these.erase(these.begin() + 1);
    auto commands = commands_of(these);
    commands.push_back({line[0], {"no"}, line[2]});
    return commands;
  }
  const auto form = std::ranges::find_if(kRepeated, [&](const Repeated& r) {
    return r.command == command && (r.what.empty() || (line.size() > 1 && r.what == line[1].text));
  });
  if (form == std::end(kRepeated) || form->each == 0 || line.size() <= form->head + form->each ||
      (line.size() - form->head) % form->each != 0)
    return {line};
  std::deque<std::vector<Word>> commands;
  for (std::size_t at = form->head; at < line.size(); at += form->each) {
    commands.emplace_back(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(form->head));
    // A row behind the one that is named.
    if (form->what == "row")
      commands.back()[3].text = join(parse_int(line[3], "the row") + static_cast<int>(at - form->head));
    for (std::size_t i = at; i < at + form->each; ++i) commands.back().push_back(line[i]);
  }
  return commands;
}

std::string path_of(const Word& word) {
  std::string path;
  for (const char c : word.text)
    if (c == '\t')
      path += "\\t";
    else
      path += c;
  return path;
}

bool means(const Word& word, std::string_view text) {
  if (word.text == text || path_of(word) == text) return true;
  // A line end can be said as the trace prints it.
  std::string said;
  for (const char c : text)
    if (c == '\n')
      said += "\\n";
    else
      said += c;
  return word.text == said;
}

std::string in_quotes(std::string_view text) {
  std::string out = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"' || c == '\\')
      out += {'\\', c};
    else if (c == '\t')
      out += "\\t";
    else if (c == '\n')
      out += "\\n";
    else if (c != '\r' || i + 1 == text.size() || text[i + 1] != '\n')
      out += c;
  }
  return out + "\"";
}

int parse_int(const Word& word, std::string_view what) {
  int value = 0;
  const auto end = word.text.data() + word.text.size();
  const auto read = std::from_chars(word.text.data(), end, value);
  if (read.ec != std::errc() || read.ptr != end)
    throw CommandError(join(what, " is no whole number: ", word.text));
  return value;
}

unsigned char parse_byte(const Word& word) {
  unsigned value = 0;
  const auto end = word.text.data() + word.text.size();
  const auto read = std::from_chars(word.text.data(), end, value, 16);
  if (word.text.size() != 2 || read.ec != std::errc() || read.ptr != end)
    throw CommandError("a byte is two hexadecimal digits, not " + word.text);
  return static_cast<unsigned char>(value);
}

double parse_number(const std::string& text) {
  double value = 0;
  const auto end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value) || value < 0)
    throw CommandError("no number: " + text);
  return value;
}

std::chrono::milliseconds parse_duration(const std::string& text) {
  const bool short_unit = text.ends_with("ms");
  if (!text.ends_with('s')) throw CommandError("a duration ends in ms or s: " + text);
  const double value = parse_number(text.substr(0, text.size() - (short_unit ? 2 : 1)));
  return std::chrono::milliseconds(std::llround(short_unit ? value : value * 1000));
}

bool parse_switch(const Word& word, std::string_view first, std::string_view second) {
  if (word.text == first) return true;
  if (word.text == second) return false;
  throw CommandError(join("expected ", first, " or ", second, ", not ", word.text));
}

Date parse_date(const Word& word) {
  int year = 0;
  unsigned month = 0, day = 0;
  char more = 0;
  const bool iso = std::sscanf(word.text.c_str(), "%d-%u-%u%c", &year, &month, &day, &more) == 3;
  const bool local = !iso && std::sscanf(word.text.c_str(), "%u.%u.%d%c", &day, &month, &year, &more) == 3;
  const Date date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
  if ((!iso && !local) || !date.ok()) throw CommandError("no date: " + word.text);
  return date;
}

void want(const std::vector<Word>& words, std::size_t count, std::string_view form) {
  if (words.size() != count) throw CommandError(join("expected: ", form));
}

std::string hex_byte(unsigned char byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  return {digits[byte >> 4], digits[byte & 15]};
}

}  // namespace evac::drill

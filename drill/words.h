// The words of a command line, and the quoting of texts in traces.
#pragma once

#include <chrono>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "model/time.h"

namespace evac::drill {

// Why a command can't be obeyed; printed behind "error: ".
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Word {
  std::string text;
  bool quoted = false;
};

// Words are separated by blanks. In double quotes `\"` is a quote, `\\` a backslash, `\t` a tab, any other
// backslash stands for itself; in the text of a `file` command `\n` is a line end.
std::vector<Word> split_words(std::string_view line);
// The commands that a line stands for: one, or one for each of several controls, values, frames, boxes or
// rows; for what is done again and again, such as `enter ITEM`, those that it consists of.
std::deque<std::vector<Word>> commands_of(const std::vector<Word>& line);
// A path as it was meant: no path holds a tab, so that "C:\\ZEF_DAT\\timer" needs no doubled backslash
// either.
std::string path_of(const Word& word);
// Whether the text is the one that the word means; a path in it need not have its backslashes doubled.
bool means(const Word& word, std::string_view text);
// The text in double quotes, as traces print it.
std::string in_quotes(std::string_view text);

// A whole number; `what` names it in the error.
int parse_int(const Word& word, std::string_view what);
// A number, not below 0, perhaps with a fraction.
double parse_number(const std::string& text);
// "250ms", "5s".
std::chrono::milliseconds parse_duration(const std::string& text);
// One of the two words; true for the first.
bool parse_switch(const Word& word, std::string_view first, std::string_view second);
// "2026-11-22" or "22.11.2026".
Date parse_date(const Word& word);
// An error that shows the command's form, unless there are so many words.
void want(const std::vector<Word>& words, std::size_t count, std::string_view form);
// Two hexadecimal digits.
unsigned char parse_byte(const Word& word);
std::string hex_byte(unsigned char byte);

}  // namespace evac::drill

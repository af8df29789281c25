// The files of saved play-lists: "Play-list" and a number, in the program folder, one path a line, in
// Windows-1251.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace evac {

inline constexpr std::string_view kPlayListName = "Play-list";

// Whether the file of that name counts as a saved list, wherever it stands; its name is told by letters.
bool is_play_list(std::string_view name);
// The number behind the name; 0 when there are no digits.
int play_list_number(std::string_view name);

// Lines end with CR LF; a lone CR or LF ends one too, and the last needs no end.
std::vector<std::string> play_list_lines(std::string_view bytes);
// The tracks of a list file: as many lines as there are without a "#" before them, from the first on. Those
// with a "#" count as tracks where they stand, so that as many are lost at the end.
std::vector<std::string> play_list_tracks(std::string_view bytes);

// No value when the file cannot be read.
std::optional<std::vector<std::string>> read_play_list(Files& files, std::string_view path);
// Returns the error number.
int write_play_list(Files& files, std::string_view path, const std::vector<std::string>& tracks);

}  // namespace evac

// Windows-1251, the code page of every file that the console shares with the rest of the world.
#pragma once

#include <string>
#include <string_view>

namespace evac {

// A character that the code page lacks becomes "?".
std::string to_code_page(std::string_view utf8);
std::string from_code_page(std::string_view bytes);

}  // namespace evac

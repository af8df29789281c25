// The names of the sources that the console drives, as the equipment's settings list them and the channels
// show them.
#pragma once

#include <string_view>

namespace evac::source_name {

inline constexpr std::string_view kComputer = "Компьютер", kCd = "CD/MP3", kMp3 = "mp3", kTuner = "Тюнер";

}  // namespace evac::source_name

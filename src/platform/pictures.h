// The pictures that controls show, by word. Hosts draw them by these names.
#pragma once

#include <string_view>

namespace evac::picture {

inline constexpr std::string_view kNo = "PctD2";            // no, dark, idle
inline constexpr std::string_view kYes = "PctD3";           // yes, lit, running
inline constexpr std::string_view kPause = "PctD4";         // pause, fault, zone of fire
inline constexpr std::string_view kSwitchOn = "Pct_Kon";    // a switch that is on
inline constexpr std::string_view kSwitchOff = "Pct_Koff";  // a switch that is off
inline constexpr std::string_view kEmblem = "Emblem";       // of the about window

}  // namespace evac::picture

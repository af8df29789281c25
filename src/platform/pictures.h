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

// The two faces of a button of the player. Previous has the pictures named "ff", next those named "Rew".
struct Faces {
  std::string_view on, off;
};
inline constexpr Faces kPower{"P_ON", "P_Off"};
inline constexpr Faces kPlay{"Play_ON", "Play_OFF"};
inline constexpr Faces kHold{"Pause_ON", "Pause_OFF"};
inline constexpr Faces kStop{"Stop_ON", "Stop_OFF"};
inline constexpr Faces kPrevious{"ff_On", "ff_Off"};
inline constexpr Faces kNext{"Rew_ON", "Rew_Off"};
inline constexpr Faces kLouder{"Up_ON", "Up_Off"};
inline constexpr Faces kQuieter{"Down_On", "Down_Off"};

}  // namespace evac::picture

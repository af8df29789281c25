// Colours of the system: 0x00BBGGRR, or a system colour with the top bit set. Printed as "&H00FFFF00".
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace evac {

enum class Color : std::uint32_t {
  kChannel1 = 0x008080FF,
  kChannel2 = 0x00FF8080,
  kChannel3 = 0x0080FF80,
  kChannel4 = 0x0080FFFF,
  kChannel5 = 0x00FFFF00,
  kNotChosen = 0x000080FF,   // the legend's sixth sample, "Не выбран"
  kOn = 0x00FFFF00,          // a button in action
  kModeOn = 0x00FFC0C0,      // a button of the player whose panel or mode is on
  kTrial = 0x00FF0000,       // the engineer's trial of a colour
  kFireTest = 0x000000FF,    // the test start of an algorithm while it is set
  kGrey = 0x00C0C0C0,        // a settings cell that is on, with no channel
  kSortedHead = 0x00808080,  // the head of the column by which a grid is sorted
  kWindow = 0x80000005,      // a settings cell that is off
  kButtonFace = 0x8000000F,  // the face of buttons and the background of the main window
};

// Colours of channels 1 to 5 and, sixth, of "Не выбран".
inline constexpr std::array<Color, 6> kLegendColors = {Color::kChannel1, Color::kChannel2, Color::kChannel3,
                                                       Color::kChannel4, Color::kChannel5, Color::kNotChosen};

// "&H00FFFF00".
std::string color_literal(Color color);

}  // namespace evac

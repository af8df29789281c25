// What is looked at before any track is touched: the drive that the operator browses, the drive of the track,
// the track itself. Whatever fails is told in a box and stops the player; a failed drive holds until the next
// power-on.
#pragma once

#include "model/system_model.h"
#include "platform/machine.h"
#include "player/player_tab.h"

namespace evac {

// What a caller of the steps tells of a failure.
struct StepTexts {
  std::string_view drive_end, title;        // behind the drive
  std::string_view missing, missing_title;  // before the path
  bool to_first_tab = false;                // when the browsing drive fails
};
inline constexpr StepTexts kLoadTexts{" not access!", "Сообщение", "Not found ", "Сообщение", true};
inline constexpr StepTexts kSelectTexts{" not access!", "!!!", "not found ", "!"};
inline constexpr StepTexts kEndTexts{" not access!", "!!!", "not found ", "!!!"};
inline constexpr StepTexts kNextTexts = kEndTexts;
inline constexpr StepTexts kLengthTexts = kEndTexts;
inline constexpr StepTexts kPreviousTexts{" not found", "!!!", "not found ", "!!!"};
inline constexpr StepTexts kSearchTexts = kPreviousTexts;
inline constexpr StepTexts kTagTexts{" not access", "!!!", "Track not found ", "!!!"};

class DriveSteps {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    TabStrip& tabs;
    Files& files;
    Boxes& boxes;
  };
  explicit DriveSteps(const Doors& doors) : doors_(doors) {}

  // Whether the drive chosen in Drive1 is ready.
  bool DriveReady();
  // The same with the failure told and the drive set to "C:"; false once any drive has failed.
  bool browsing_drive_ready(const StepTexts& texts);
  // The drive of a path: listed and ready, or told in a box. A blank path leaves the last result.
  bool DriveCheck(std::string_view path);
  // Whether the file is there; told in a box if not.
  bool is_there(std::string_view path, const StepTexts& texts);

  // All of them for the current track; where one fails CmdStopMP is pressed. False, and nothing else, for a
  // number that the list does not have.
  bool track_ready(const StepTexts& texts);

 private:
  const Doors doors_;
};

}  // namespace evac

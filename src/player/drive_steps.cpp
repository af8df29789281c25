#include "player/drive_steps.h"

#include "model/text.h"

namespace evac {
namespace {

constexpr int kDriveLetters = 2;  // "C:"
constexpr std::string_view kNoAccess = " not access!", kTitle = "!!!";

}  // namespace

bool DriveSteps::DriveReady() {
  doors_.player.mp_drv_ok = doors_.files.drive_ready(doors_.tab.Drive1.drive()[0]);
  return doors_.player.mp_drv_ok;
}

bool DriveSteps::browsing_drive_ready(const StepTexts& texts) {
  if (!DriveReady()) {
    doors_.player.mp_drv_bad = true;
    doors_.boxes.message(join("Drive ", doors_.tab.Drive1.drive(), texts.drive_end), texts.title);
    doors_.tab.Drive1.choose('C');
    if (texts.to_first_tab) doors_.tabs.set_value(0);
  }
  return !doors_.player.mp_drv_bad;
}

bool DriveSteps::DriveCheck(std::string_view path) {
  bool& ok = doors_.player.mp_drv_ok;
  const std::string prefix = lower_case(Left(path, kDriveLetters));
  if (Trim(prefix).empty()) return ok;
  ok = false;
  for (const std::string& drive : doors_.tab.Drive1.rows())
    if (lower_case(Left(drive, kDriveLetters)) == prefix) ok = doors_.files.drive_ready(prefix[0]);
  if (!ok) doors_.boxes.message(join("Drive ", prefix, kNoAccess), kTitle);
  return ok;
}

bool DriveSteps::is_there(std::string_view path, const StepTexts& texts) {
  if (doors_.files.is_file(path)) return true;
  doors_.boxes.message(join(texts.missing, path), texts.missing_title);
  return false;
}

bool DriveSteps::track_ready(const StepTexts& texts) {
  const PlayerState& player = doors_.player;
  bool ready = browsing_drive_ready(texts);
  if (ready) {
    if (player.mp_trk < 1 || player.mp_trk > player.mp_cnt()) return false;
    const std::string path = player.track();
    ready = DriveCheck(path) && is_there(path, texts);
  }
  if (!ready) doors_.tab.CmdStopMP.click();
  return ready;
}

}  // namespace evac

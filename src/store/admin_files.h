// The files of administration: F_nastr.dat (the password), F_reset.dat (the times of the forced restart) and
// Tmp.dat (the engineer's trial of a file). A missing file is created empty. What a record can't hold is not
// written: kBadRecordLength.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "model/system_model.h"
#include "store/data_folder.h"

namespace evac {

inline constexpr std::string_view kPasswordFile = "F_nastr.dat", kRestartFile = "F_reset.dat",
                                  kTrialFile = "Tmp.dat";

// The password in its stored form.
FileError read_password(DataFolder& folder, std::string& stored);
FileError write_password(DataFolder& folder, std::string_view stored);

// A slot of the restart: its mark, "1" when it is on, and its time.
struct RestartSlot {
  std::optional<std::string> mark, time;
};
using RestartSlots = std::array<RestartSlot, kRestartSlots>;
// Gives every text, also the time of a slot that is off.
FileError read_restart(DataFolder& folder, RestartSlots& slots);
// Puts the texts that are there over those of the file, which keeps the others.
FileError write_restart(DataFolder& folder, const RestartSlots& slots);

FileError read_trial(DataFolder& folder, std::string& text);
FileError write_trial(DataFolder& folder, std::string_view text);

}  // namespace evac

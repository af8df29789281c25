// The rehearsal: the very program, run for some seconds on its virtual rack as a newcomer would, with what
// passed on the line, the journal and pictures of the windows to show for it.
#pragma once

#include <filesystem>

namespace evac::desktop {

class Desktop;

// Returns the status of the program: 0 when polls were answered and the pictures saved.
int rehearse(Desktop& desktop, const std::filesystem::path& folder, int seconds);

}  // namespace evac::desktop

// The music of the training mode: a few short tracks with their tags, as an operator finds them on a drive of
// its own.
#pragma once

#include <filesystem>

namespace evac::desktop {

// Makes the folder and its tracks; what is there already is left alone. Throws
// std::filesystem::filesystem_error when it can't be made.
void make_training_music(const std::filesystem::path& folder);

}  // namespace evac::desktop

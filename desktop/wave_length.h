// The length of a wave file by its own header: for those that the decoder plays without a sense of time, such
// as files with an odd number of sound bytes.
#pragma once

#include <filesystem>

namespace evac::desktop {

// Seconds; 0 for what is no wave file, or one whose header makes no sense.
double wave_length(const std::filesystem::path& file);

}  // namespace evac::desktop

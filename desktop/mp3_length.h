// The length of an mp3 file, also of one whose bytes a second change and that does not say how long it is:
// the decoders guess there by its beginning, and are wrong by minutes.
#pragma once

#include <filesystem>

namespace evac::desktop {

// Seconds; 0 for what is no mp3. A file without a length of its own is walked frame by frame, for a quarter
// of a second at the most: what is left of it by then counts at the pace so far.
double mp3_length(const std::filesystem::path& file);

}  // namespace evac::desktop

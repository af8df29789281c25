// The length of an mp3 file, also of one whose bytes a second change and that does not say how long it is:
// the decoders guess there by its beginning, and are wrong by minutes.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

namespace evac::desktop {

// What a length stands on: the rates of some places that differ, or agree, or all frames, or the file's word.
enum class Sure { kGuess, kSampled, kExact };
struct SoundLength {
  double seconds = 0;  // 0 for what is no such file
  Sure sure = Sure::kExact;
};

// By a few blocks of the file, whatever its size.
SoundLength quick_mp3_length(const std::filesystem::path& file);

// Seconds of all frames, one after another; none when `goes_on` said no before their end.
std::optional<double> walked_mp3_length(const std::filesystem::path& file,
                                        const std::function<bool()>& goes_on);

}  // namespace evac::desktop

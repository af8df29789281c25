// The version of the program.
#pragma once

namespace evac::desktop {

inline constexpr const char* kVersion = "0.2";

}  // namespace evac::desktop

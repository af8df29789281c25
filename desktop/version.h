// The version of the program, as the build names it.
#pragma once

namespace evac::desktop {

inline constexpr const char* kVersion = EVAC_VERSION;

}  // namespace evac::desktop

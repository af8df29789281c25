// How this machine is heard, and what it lacks to be.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace evac::desktop {

struct SoundSetup {
  // "auto" or nothing lets the system choose; "fake" makes no sound but keeps time; "alsa:DEVICE" is a device
  // of ALSA; anything else is a GStreamer sink with its properties, such as "alsasink device=default".
  std::string sink;
  // Sound font for .mid and .rmi; nothing takes the system's own.
  std::string font;
};

// What this machine lacks to be heard, in the operator's words; nothing when all is there.
std::vector<std::string> missing_sound(const SoundSetup& setup);
// The same where the modules of GStreamer are those that `has` knows.
std::vector<std::string> missing_decoders(const std::function<bool(const char* module)>& has);

}  // namespace evac::desktop

// What the sound is put together from: sinks, players, and what they say.
#pragma once

#include <gst/gst.h>

#include <filesystem>
#include <memory>
#include <string>

#include "desktop/sound_setup.h"

namespace evac::desktop {

void start_gstreamer();

// A sink that makes no sound but keeps time.
GstElement* fake_sink();
// The sink of the setup, floating; null, with the reason, when its description is wrong or its module
// missing.
GstElement* make_sink(const SoundSetup& setup, std::string& why);

// Set to nothing and freed when it goes.
struct Ended {
  void operator()(GstElement* element) const;
};
using PlayBin = std::unique_ptr<GstElement, Ended>;

// Plays the file into that sink, which it takes; null when GStreamer's player is missing.
PlayBin make_player(const std::filesystem::path& file, const SoundSetup& setup, GstElement* sink);
// Paused and ready to sound; false when the file can't be decoded, or not within five seconds.
bool preroll(GstElement* player);
// Waits as long for what a player was told to do.
bool settled(GstElement* player);
// Seconds of what the player is ready to play; 0 when that can't be told.
double length_of(GstElement* player);
GstElement* volume_filter(double linear);
// What the message says of the sound, in the operator's words, or nothing.
std::string trouble_in(GstMessage* message);

}  // namespace evac::desktop

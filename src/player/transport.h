// The transport of the player: play, stop, pause, next, previous, and the end of a track, which is told by
// the clock. Nothing of it acts while the player is off.
#pragma once

#include "console/terminals_tab.h"
#include "player/drive_steps.h"
#include "player/tag_reader.h"
#include "player/track_list.h"

namespace evac {

inline constexpr std::string_view kComputerSource = "Компьютер";

class Transport {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    TerminalsTab& terminals_tab;
    DriveSteps& steps;
    TagReader& tags;
    TrackList& tracks;
    Media& MP;
    EventLoop& loop;
  };
  explicit Transport(const Doors& doors) : doors_(doors) {}

  // The pictures and tips of the buttons before the first power-on.
  void show_off();
  // All buttons but the power's at rest; no track number is asked for.
  void ResetButtons();

  void play();
  void stop();
  void pause();
  void next();
  void previous();
  // Takes the current track's file and holds it; plays on if the player plays. LoadTrack is the timer's,
  // SelectTrack the operator's.
  void LoadTrack();
  void SelectTrack();

  // One tick of Tmr1: at the second of the track's end the next one starts.
  void watch_end();
  // Whole seconds from now to the track's end.
  int left() const;
  // The host found out only now that the file that plays is so many seconds long, or that it was heard so
  // many late: the end moves by what is new in that. Of another file nothing is heard.
  void mend_length(std::string_view file, double seconds, int late);

 private:
  void TrackStart();
  void step(const StepTexts& texts, Button& button, const picture::Faces& faces);
  void take_file();
  void play_on();
  void show_track(std::string_view state);
  void enable_timers(bool on);
  int now() const;

  const Doors doors_;
  std::string followed_;  // the file whose end is watched
};

// A length of a media file to the nearest second, ties up; none for what is no length.
int whole_seconds(double seconds);

}  // namespace evac

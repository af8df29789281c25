// Sound through GStreamer: wave, mp3 and MIDI files, on one player a media control, and the tone.
//
// Whether a file can be decoded and how long it is, is found out without the sound device: so an alert goes
// on by the clock also where the device is gone; what is wrong with it is told by trouble(). The device is
// open only while something plays or is held, and is worked by a thread of its own: one that stalls holds
// nobody up. Where several media are to sound at once, or one while another is held, the sink must be one
// that can be shared (a sound server, or ALSA's "default").
#pragma once

#include "desktop/sound_probe.h"
#include "desktop/voice.h"
#include "desktop/worker.h"
#include "platform/machine.h"

namespace evac::desktop {

class GstMedia : public Media {
 public:
  // `patience` is for files that were not looked at ahead; one that takes longer counts as not ready.
  GstMedia(SoundProbe& probe, const SoundSetup& setup, std::chrono::milliseconds patience);
  ~GstMedia() override { stop(); }
  GstMedia(const GstMedia&) = delete;
  GstMedia& operator=(const GstMedia&) = delete;

  // From here on a file that is set and held without a play, as it is measured, leaves what played before it
  // sounding: no look at the settings cuts the message of an alert.
  void measure_aside() { measures_aside_ = true; }

  // Stops what plays.
  void set_file(std::string_view path) override;
  // Tries the file, once.
  int ready_state() override;
  void play() override;
  void hold() override;
  void stop() override;
  double duration() override;
  double position() override;
  void seek(double seconds) override;
  void set_volume(int hundredths) override;

  // Holds the sound device.
  bool is_open() const { return voice_ || before_; }
  // What went wrong with the sound since the file was set, in the operator's words; empty when nothing did.
  std::string trouble() const;
  // To be called at the end of an event: plays the file that was set in it and that nothing holds.
  void settle();
  // To be called about once a second: gives the device back when a file has ended.
  void release_when_ended();

 private:
  void close(std::shared_ptr<Voice>& voice);

  SoundProbe& probe_;
  const SoundSetup setup_;
  const std::chrono::milliseconds patience_;
  bool measures_aside_ = false;
  std::string path_;                        // empty when there is none
  std::optional<SoundProbe::Found> found_;  // once it was tried
  std::optional<double> length_;            // once it is known
  bool starts_ = false;                     // plays at the end of the event
  bool held_ = false;
  double volume_ = 1;              // linear
  std::shared_ptr<Voice> voice_;   // a new one each time
  std::shared_ptr<Voice> before_;  // what sounds on while files are measured
  double rest_ = 0;                // the position while there is none
  bool ended_ = false;             // the file has been played to its end
  const std::shared_ptr<Trouble> trouble_ = std::make_shared<Trouble>();
  Worker worker_;
};

// A sine of a moment's length, played beside everything else.
class GstTone : public Tone {
 public:
  explicit GstTone(const SoundSetup& setup) : setup_(setup) {}
  ~GstTone() override;
  GstTone(const GstTone&) = delete;
  GstTone& operator=(const GstTone&) = delete;

  // Does not wait for its end.
  void beep(int frequency, int duration) override;

 private:
  const SoundSetup setup_;
  const std::shared_ptr<PlayBin> tone_ = std::make_shared<PlayBin>();  // of the worker
  Worker worker_;
};

}  // namespace evac::desktop

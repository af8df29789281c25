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
  // A file that was not looked at ahead is waited for that long, or for as long as the event has `patience`;
  // one that takes longer counts as not ready.
  GstMedia(SoundProbe& probe, const SoundSetup& setup, std::chrono::milliseconds most,
           Patience* patience = nullptr)
      : probe_(probe), setup_(setup), most_(most), patience_(patience) {}
  ~GstMedia() override { stop(); }
  GstMedia(const GstMedia&) = delete;
  GstMedia& operator=(const GstMedia&) = delete;

  // From here on a file that is set and held without a play, as it is measured, leaves what played before it
  // sounding: no look at the settings cuts the message of an alert.
  void measure_aside() { measures_aside_ = true; }

  // From here on a file that does not answer in time counts as ready, and as all but a day long: it begins
  // when it does answer. Whoever follows its end by the clock hears from playing() what came out since.
  void presume_unknown() { presumes_ = true; }
  struct Playing {
    std::string file;
    double length;  // seconds
    int late;       // whole seconds that it was not heard, told once
    bool operator==(const Playing&) const = default;
  };
  // What is known by now of the file that plays or is held; to be called about once a second. None while
  // there is nothing to tell.
  std::optional<Playing> playing();
  // A play has not come to be heard for a second.
  bool waits_to_be_heard() const;

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
  using Clock = std::chrono::steady_clock;

  void close(std::shared_ptr<Voice>& voice);
  // Asks for the file, where not enough is known of it; of a presumed one only once.
  void find_out(SoundProbe::Want want);
  double length() const;
  // Seconds since the play without the sound of them.
  double unheard() const;
  void listen_from(double position);

  SoundProbe& probe_;
  const SoundSetup setup_;
  const std::chrono::milliseconds most_;
  Patience* const patience_;
  bool measures_aside_ = false, presumes_ = false;
  std::string path_;                                 // empty when there is none
  std::optional<SoundProbe::Found> found_;           // once it is known
  bool asked_length_ = false, asked_trial_ = false;  // of the probe
  bool unanswered_ = false;                          // by it, so far
  std::optional<double> given_;  // the length of this file that was told first, or last mended
  // While a play is not heard yet: since when, from which position, and how long before a hold already.
  bool unheard_ = false;
  Clock::time_point since_{};
  double from_ = 0, waited_ = 0;  // seconds
  bool starts_ = false;           // plays at the end of the event
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

// Sound through GStreamer: wave, mp3 and MIDI files, on one player a media control, and the tone.
//
// How long a file is stands in its own bytes where that can be read quickly. Whether it can be decoded is
// tried without the sound device, when somebody asks for it. So an alert goes on by the clock also where the
// device is gone; what is wrong with the device is told by trouble(). The device is open only while something
// plays or is held. Where several media are to sound at once, or one while another is held, the sink must be
// one that can be shared (a sound server, or ALSA's "default").
#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/machine.h"

typedef struct _GstElement GstElement;
typedef struct _GstMessage GstMessage;

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

class GstMedia : public Media {
 public:
  // Finds the file that a path of the system means; an empty path when there is none.
  using Locate = std::function<std::filesystem::path(std::string_view)>;

  GstMedia(Locate locate, const SoundSetup& setup);
  ~GstMedia() override { stop(); }
  GstMedia(const GstMedia&) = delete;
  GstMedia& operator=(const GstMedia&) = delete;

  // Stops what plays.
  void set_file(std::string_view path) override;
  // Tries the file, once; waits for that, two seconds at the most.
  int ready_state() override;
  void play() override;
  void hold() override;
  void stop() override;
  double duration() override;
  double position() override;
  void seek(double seconds) override;
  void set_volume(int hundredths) override;

  // What went wrong with the sound since the file was set, in the operator's words; empty when nothing did.
  // Holds the sound device.
  bool is_open() const { return player_ != nullptr; }
  std::string trouble() const;
  // To be called at the end of an event: plays the file that was set in it and that nothing holds.
  void settle();
  // To be called about once a second: gives the device back when a file has ended.
  void release_when_ended();

 private:
  struct Ended {
    void operator()(GstElement* element) const;
  };
  // Set to nothing and freed when it goes.
  using Player = std::unique_ptr<GstElement, Ended>;

  // Plays the file into that sink, which it takes; null, with the trouble told, when GStreamer's player is
  // missing.
  Player make_player(GstElement* sink);
  GstElement* real_sink();
  // Tries to decode the file, without a sound: seconds as the decoder tells them, 0 when it can't, none when
  // it can't decode the file.
  std::optional<double> try_file();
  // Takes the length from the file's own bytes; else the one that was told, if one was.
  void take_length(std::optional<double> told);
  void jump(double seconds);
  void take_message(GstMessage* message);
  void tell(const std::string& trouble);

  const Locate locate_;
  const SoundSetup setup_;
  std::filesystem::path file_;      // empty when there is none
  std::optional<double> duration_;  // once it is known
  std::optional<bool> ready_;       // once it was tried
  bool starts_ = false;             // plays at the end of the event
  double volume_ = 1;               // linear
  Player player_;    // holds the device; a new one each time, since one that is used again keeps what it had
  double rest_ = 0;  // the position while there is none
  std::atomic<bool> ended_ = false;
  mutable std::mutex mutex_;
  std::string trouble_;
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
  void end();
  const SoundSetup setup_;
  GstElement* pipeline_ = nullptr;
};

}  // namespace evac::desktop

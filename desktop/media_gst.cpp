#include "desktop/media_gst.h"

#include <algorithm>
#include <cmath>

#include "model/text.h"
#include "model/time.h"

namespace evac::desktop {
namespace {

constexpr int kSilence = -10000;
constexpr std::chrono::seconds kStuck{1};
// A day but a second: an end by the clock that is a second ago, and comes no more.
constexpr double kPresumed = kSecondsPerDay - 1;

}  // namespace

void GstMedia::set_file(std::string_view path) {
  if (measures_aside_ && voice_ && !held_) before_ = std::move(voice_);
  const auto before = std::move(before_);
  stop();
  before_ = before;
  trouble_->tell("");
  if (path_ != path) given_.reset();
  path_ = path;
  found_ = probe_.known(path_);
  asked_length_ = asked_trial_ = unanswered_ = false;
  starts_ = true;
}

void GstMedia::find_out(SoundProbe::Want want) {
  const bool trial = want == SoundProbe::Want::kTried;
  // A file that could not be played may be there again, with its drive.
  const bool plays = found_ && found_->ready;
  if (path_.empty() || (plays && (trial ? found_->tried : found_->sure != Sure::kGuess))) return;
  bool& asked = trial ? asked_trial_ : asked_length_;
  if (asked && presumes_ && (plays || !found_)) return;
  asked = true;
  if (auto found = probe_.look(path_, want, most_, patience_)) found_ = std::move(found);
  unanswered_ = !found_;
}

int GstMedia::ready_state() {
  find_out(SoundProbe::Want::kTried);
  return found_ ? found_->ready : presumes_ && !path_.empty();
}

double GstMedia::length() const {
  if (!found_) return presumes_ && !path_.empty() ? kPresumed : 0;
  return found_->ready ? found_->length : 0;
}

double GstMedia::duration() {
  find_out(SoundProbe::Want::kLength);
  if (!given_) given_ = length();
  return length();
}

std::optional<GstMedia::Playing> GstMedia::playing() {
  const auto known = probe_.known(path_);
  if (known) unanswered_ = false;
  if (!voice_) {
    if (!found_) found_ = known;
    return {};
  }
  if (unheard_ && voice_->wants_look()) worker_.post([voice = voice_] { voice->look(); });
  const bool heard = voice_->began();
  // As long as it is not heard its time has not begun, unless it never will.
  if (!known || (!found_ && known->ready && !heard && trouble_->text().empty())) return {};
  found_ = known;
  const double late = unheard_ && heard ? waited_ + (held_ ? 0 : unheard()) : 0;
  unheard_ = unheard_ && !heard;
  if (!given_ || (*given_ == length() && late < 1)) return {};
  given_ = length();
  return Playing{path_, length(), static_cast<int>(std::max(0.0, late))};
}

bool GstMedia::waits_to_be_heard() const {
  return voice_ && unheard_ && !held_ && !voice_->began() && Clock::now() - since_ > kStuck;
}

double GstMedia::unheard() const {
  const std::chrono::duration<double> passed = Clock::now() - since_;
  return passed.count() - (voice_->position() - from_);
}

void GstMedia::listen_from(double position) {
  since_ = Clock::now();
  from_ = position;
}

void GstMedia::settle() {
  if (starts_) play();
}

void GstMedia::play() {
  starts_ = held_ = false;
  if (ready_state() == 0) return;
  // At its end it starts over, also when the news of the end is still on its way.
  if (position() >= length()) stop();
  close(before_);
  if (!voice_) {
    voice_ = std::make_shared<Voice>(probe_.finder(path_), setup_, volume_, rest_, trouble_);
    unheard_ = true;
    waited_ = 0;
  }
  listen_from(voice_->position());
  worker_.post([voice = voice_] { voice->play(); });
}

void GstMedia::hold() {
  starts_ = false;
  if (!voice_) return;
  if (!held_) waited_ += unheard();
  held_ = true;
  voice_->stand_at(voice_->position());
  worker_.post([voice = voice_] { voice->pause(); });
}

void GstMedia::close(std::shared_ptr<Voice>& voice) {
  if (voice) worker_.post([voice] { voice->close(); });
  voice.reset();
}

void GstMedia::stop() {
  starts_ = held_ = false;
  close(voice_);
  close(before_);
  ended_ = false;
  rest_ = 0;
}

double GstMedia::position() {
  if (voice_ && voice_->ended()) ended_ = true;
  if (ended_) return length();
  if (!voice_) return rest_;
  if (voice_->wants_look()) worker_.post([voice = voice_] { voice->look(); });
  return std::min(voice_->position(), length());
}

void GstMedia::seek(double seconds) {
  if (ended_ || (voice_ && voice_->ended())) stop();
  find_out(SoundProbe::Want::kLength);
  rest_ = std::clamp(seconds, 0.0, length());
  if (!voice_) return;
  voice_->stand_at(rest_);
  listen_from(rest_);
  waited_ = 0;
  worker_.post([voice = voice_, to = rest_] { voice->jump(to); });
}

void GstMedia::set_volume(int hundredths) {
  volume_ = hundredths <= kSilence ? 0 : std::pow(10.0, std::min(hundredths, 0) / 2000.0);
  if (voice_) worker_.post([voice = voice_, volume = volume_] { voice->set_volume(volume); });
}

std::string GstMedia::trouble() const {
  if (unanswered_) return "Звуковой файл не читается: диск не отвечает";
  return worker_.is_stuck_for(kStuck) ? "Сообщение не звучит: звуковое устройство или диск не отвечает"
                                      : trouble_->text();
}

void GstMedia::release_when_ended() {
  if (before_ && before_->ended()) close(before_);
  if (!voice_ || !voice_->ended()) return;
  ended_ = true;
  close(voice_);
}

GstTone::~GstTone() {
  worker_.post([tone = tone_] { tone->reset(); });
}

void GstTone::beep(int frequency, int duration) {
  constexpr int kBuffersPerSecond = 100, kRate = 44100;
  const std::string description =
      join("audiotestsrc freq=", frequency, " num-buffers=", std::max(1, duration * kBuffersPerSecond / 1000),
           " samplesperbuffer=", kRate / kBuffersPerSecond, " volume=0.5 ! audio/x-raw,rate=", kRate,
           " ! audioconvert ! audioresample name=last");
  worker_.post([description, tone = tone_, setup = setup_] {
    start_gstreamer();
    tone->reset(gst_parse_launch(description.c_str(), nullptr));
    if (!*tone) return;
    GstBin* bin = GST_BIN(tone->get());
    std::string why;
    GstElement* sink = make_sink(setup, why);
    GstElement* last = gst_bin_get_by_name(bin, "last");
    const bool linked = sink && last && gst_bin_add(bin, sink) && gst_element_link(last, sink);
    if (last) gst_object_unref(last);
    if (!linked) return tone->reset();
    // The device is given back at the end of the tone, not at the next one.
    GstBus* bus = gst_element_get_bus(tone->get());
    gst_bus_set_sync_handler(
        bus,
        [](GstBus*, GstMessage* message, gpointer self) {
          if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS || GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR)
            gst_element_call_async(
                GST_ELEMENT(self),
                [](GstElement* ended, gpointer) { gst_element_set_state(ended, GST_STATE_NULL); }, nullptr,
                nullptr);
          gst_message_unref(message);
          return GST_BUS_DROP;
        },
        tone->get(), nullptr);
    gst_object_unref(bus);
    gst_element_set_state(tone->get(), GST_STATE_PLAYING);
  });
}

}  // namespace evac::desktop

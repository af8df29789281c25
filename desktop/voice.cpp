#include "desktop/voice.h"

namespace evac::desktop {
namespace {

constexpr double kNanoseconds = 1e9;
constexpr std::chrono::milliseconds kLookEvery{50};

}  // namespace

void Voice::play() {
  if (!player_) {
    std::string why;
    GstElement* sink = make_sink(setup_, why);
    if (!sink) {
      trouble_->tell("Звук не настроен: " + why);
      sink = fake_sink();
    }
    player_ = make_player(find_(), setup_, sink);
    if (!player_) return trouble_->tell("Нет проигрывателя GStreamer: нет модуля playback");
    GstBus* bus = gst_element_get_bus(player_.get());
    gst_bus_set_sync_handler(
        bus,
        [](GstBus*, GstMessage* message, gpointer self) {
          static_cast<Voice*>(self)->take_message(message);
          gst_message_unref(message);
          return GST_BUS_DROP;
        },
        this, nullptr);
    gst_object_unref(bus);
    g_object_set(player_.get(), "audio-filter", volume_filter(volume_), nullptr);
    if (start_ > 0 && preroll(player_.get())) jump(start_);
  }
  gst_element_set_state(player_.get(), GST_STATE_PLAYING);
  stands_ = false;
  look();
}

void Voice::pause() {
  stand_at(position());
  if (player_) gst_element_set_state(player_.get(), GST_STATE_PAUSED);
}

void Voice::jump(double seconds) {
  start_ = seconds;
  // A player that was only just set going takes no seek before it is ready to sound.
  if (!player_ || !settled(player_.get())) return;
  gst_element_seek_simple(player_.get(), GST_FORMAT_TIME,
                          static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_ACCURATE),
                          static_cast<gint64>(seconds * kNanoseconds));
  (void)settled(player_.get());
  GstState state = GST_STATE_NULL;
  gst_element_get_state(player_.get(), &state, nullptr, 0);
  if (state == GST_STATE_PLAYING) stands_ = false;
  look();
}

void Voice::set_volume(double linear) {
  volume_ = linear;
  GstElement* filter = nullptr;
  if (player_) g_object_get(player_.get(), "audio-filter", &filter, nullptr);
  if (!filter) return;
  g_object_set(filter, "volume", linear, nullptr);
  gst_object_unref(filter);
}

void Voice::close() {
  player_.reset();
}

void Voice::look() {
  gint64 position = 0;
  if (!player_ || stands_ || !gst_element_query_position(player_.get(), GST_FORMAT_TIME, &position)) return;
  GstState state = GST_STATE_NULL;
  gst_element_get_state(player_.get(), &state, nullptr, 0);
  note(static_cast<double>(position) / kNanoseconds, state == GST_STATE_PLAYING);
}

void Voice::note(double position, bool moving) {
  const std::lock_guard lock(mutex_);
  at_ = position;
  moving_ = moving;
  if (moving) began_ = true;
  noted_ = Clock::now();
}

double Voice::position() const {
  const std::lock_guard lock(mutex_);
  return moving_ ? at_ + std::chrono::duration<double>(Clock::now() - noted_).count() : at_;
}

void Voice::stand_at(double seconds) {
  stands_ = true;
  note(seconds, false);
}

bool Voice::wants_look() const {
  const std::lock_guard lock(mutex_);
  return Clock::now() - noted_ > kLookEvery;
}

// Runs on GStreamer's own threads.
void Voice::take_message(GstMessage* message) {
  if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS) ended_ = true;
  if (const std::string trouble = trouble_in(message); !trouble.empty()) trouble_->tell(trouble);
}

}  // namespace evac::desktop

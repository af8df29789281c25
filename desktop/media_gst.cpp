#include "desktop/media_gst.h"

#include <gst/gst.h>

#include <algorithm>
#include <cmath>
#include <iterator>

#include "desktop/host_log.h"
#include "desktop/mp3_length.h"
#include "desktop/wave_length.h"
#include "model/text.h"
#include "model/time.h"

namespace evac::desktop {
namespace {

constexpr GstClockTime kPrerollLimit = 2 * GST_SECOND;
constexpr double kNanoseconds = 1e9;
// Of playbin: sound alone. Its own volume is not asked for: each player with one leaves an element behind.
constexpr int kAudioFlag = 0x02;
constexpr std::string_view kAlsaPrefix = "alsa:";
constexpr int kSilence = -10000;
constexpr const char* kFontFolders[] = {"/usr/share/sounds/sf2", "/usr/share/sounds/sf3",
                                        "/usr/share/soundfonts"};

void start_gstreamer() {
  static const bool started = (gst_init(nullptr, nullptr), true);
  (void)started;
}

GstElement* fake_sink() {
  GstElement* sink = gst_element_factory_make("fakesink", nullptr);
  if (sink) g_object_set(sink, "sync", TRUE, nullptr);
  return sink;
}

// The sink of the setup, floating; null, with the reason, when its description is wrong or its module
// missing.
GstElement* make_sink(const SoundSetup& setup, std::string& why) {
  if (setup.sink == "fake") return fake_sink();
  std::string description = setup.sink.empty() || setup.sink == "auto" ? "autoaudiosink" : setup.sink;
  if (description.starts_with(kAlsaPrefix))
    description = "alsasink device=\"" + description.substr(kAlsaPrefix.size()) + "\"";
  GError* error = nullptr;
  GstElement* sink = gst_parse_bin_from_description_full(description.c_str(), TRUE, nullptr,
                                                         GST_PARSE_FLAG_FATAL_ERRORS, &error);
  if (error) {
    host_log(QString::fromUtf8(error->message));
    why = "описание sink в host.ini не понято";
    g_clear_error(&error);
  }
  return sink;
}

// Whether the sink, or one that it has chosen by itself, only swallows the sound.
bool swallows(GstElement* sink) {
  if (GstElementFactory* factory = gst_element_get_factory(sink);
      factory && std::string_view(GST_OBJECT_NAME(factory)) == "fakesink")
    return true;
  if (!GST_IS_BIN(sink)) return false;
  bool found = false;
  GstIterator* children = gst_bin_iterate_sinks(GST_BIN(sink));
  GValue value = G_VALUE_INIT;
  while (gst_iterator_next(children, &value) == GST_ITERATOR_OK) {
    found = swallows(GST_ELEMENT(g_value_get_object(&value))) || found;
    g_value_reset(&value);
  }
  g_value_unset(&value);
  gst_iterator_free(children);
  return found;
}

bool has_font(const SoundSetup& setup) {
  std::error_code error;
  if (!setup.font.empty()) return std::filesystem::is_regular_file(setup.font, error);
  for (const char* folder : kFontFolders)
    if (std::filesystem::is_directory(folder, error) && !std::filesystem::is_empty(folder, error))
      return true;
  return false;
}

// What is wrong with the device, or nothing.
std::string sink_trouble(const SoundSetup& setup) {
  if (setup.sink == "fake") return {};
  std::string why;
  GstElement* sink = make_sink(setup, why);
  if (!sink) return "Звук не настроен: " + why;
  gst_object_ref_sink(sink);
  const bool opened =
      gst_element_set_state(sink, GST_STATE_READY) != GST_STATE_CHANGE_FAILURE &&
      gst_element_get_state(sink, nullptr, nullptr, kPrerollLimit) == GST_STATE_CHANGE_SUCCESS;
  const bool heard = opened && !swallows(sink);
  gst_element_set_state(sink, GST_STATE_NULL);
  gst_object_unref(sink);
  if (heard) return {};
  return opened ? "Нет звукового устройства: сообщения не слышны"
                : "Звуковое устройство не открывается: сообщения не слышны";
}

// Each element that the player makes by itself; those that play MIDI get the sound font.
void element_made(GstElement*, GstElement* element, gpointer font) {
  if (g_object_class_find_property(G_OBJECT_GET_CLASS(element), "soundfont"))
    g_object_set(element, "soundfont", static_cast<const std::string*>(font)->c_str(), nullptr);
}

// Paused and ready to sound; false when the file can't be decoded, or not in time.
bool preroll(GstElement* player) {
  return gst_element_set_state(player, GST_STATE_PAUSED) != GST_STATE_CHANGE_FAILURE &&
         gst_element_get_state(player, nullptr, nullptr, kPrerollLimit) == GST_STATE_CHANGE_SUCCESS;
}

// Seconds of what the player is ready to play; 0 when that can't be told.
double length_of(GstElement* player) {
  gint64 length = 0;
  return gst_element_query_duration(player, GST_FORMAT_TIME, &length) ? length / kNanoseconds : 0;
}

GstElement* volume_filter(double linear) {
  GstElement* filter = gst_element_factory_make("volume", nullptr);
  if (filter) g_object_set(filter, "volume", linear, nullptr);
  return filter;
}

// What the message says of the sound, or nothing. A warning counts where it is about the device.
std::string trouble_in(GstMessage* message) {
  GError* error = nullptr;
  if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR)
    gst_message_parse_error(message, &error, nullptr);
  else if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_WARNING)
    gst_message_parse_warning(message, &error, nullptr);
  if (!error) return {};
  const bool counts = GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR || error->domain == GST_RESOURCE_ERROR;
  std::string text;
  if (counts) {
    host_log(QString::fromUtf8(error->message));
    text = error->domain == GST_RESOURCE_ERROR ? "Сбой звука: устройство или файл не открывается"
                                               : "Сбой звука: файл не воспроизводится";
  }
  g_error_free(error);
  return text;
}

}  // namespace

std::vector<std::string> missing_sound(const SoundSetup& setup) {
  start_gstreamer();
  std::vector<std::string> missing;
  if (std::string trouble = sink_trouble(setup); !trouble.empty()) missing.push_back(std::move(trouble));
  std::ranges::move(missing_decoders([](const char* module) {
                      GstElementFactory* factory = gst_element_factory_find(module);
                      if (factory) gst_object_unref(factory);
                      return factory != nullptr;
                    }),
                    std::back_inserter(missing));
  if (!has_font(setup))
    missing.push_back(
        "Файлы .mid и .rmi не воспроизводятся: нет звукового шрифта (пакет timgm6mb-soundfont)");
  return missing;
}

std::vector<std::string> missing_decoders(const std::function<bool(const char*)>& has) {
  struct Decoder {
    const char *files, *package;
    std::vector<const char*> any_of;
  };
  static const Decoder kDecoders[] = {
      {"Файлы не воспроизводятся", "gstreamer1.0-plugins-base", {"playbin"}},
      {"Файлы .wav не воспроизводятся", "gstreamer1.0-plugins-good", {"wavparse"}},
      {"Файлы .mp3 не воспроизводятся", "gstreamer1.0-plugins-good", {"mpg123audiodec", "avdec_mp3", "mad"}},
      {"Файлы .mid и .rmi не воспроизводятся", "gstreamer1.0-plugins-bad", {"fluiddec"}},
  };
  std::vector<std::string> missing;
  for (const Decoder& decoder : kDecoders)
    if (std::ranges::none_of(decoder.any_of, has))
      missing.push_back(
          join(decoder.files, ": нет модуля ", decoder.any_of.front(), " (пакет ", decoder.package, ")"));
  return missing;
}

void GstMedia::Ended::operator()(GstElement* element) const {
  gst_element_set_state(element, GST_STATE_NULL);
  gst_object_unref(element);
}

GstMedia::GstMedia(Locate locate, const SoundSetup& setup) : locate_(std::move(locate)), setup_(setup) {
  start_gstreamer();
}

void GstMedia::set_file(std::string_view path) {
  stop();
  tell("");
  file_ = locate_(path);
  std::error_code error;
  if (!std::filesystem::is_regular_file(file_, error)) file_.clear();
  duration_.reset();
  ready_.reset();
  starts_ = !file_.empty();
}

int GstMedia::ready_state() {
  if (!ready_) {
    const std::optional<double> told = try_file();
    if (!told)
      duration_ = 0;
    else if (!duration_)
      take_length(*told);
    // What has no length can't be followed by the clock: an alert would start it again every second.
    ready_ = *duration_ > 0;
  }
  return *ready_ ? 1 : 0;
}

double GstMedia::duration() {
  if (!duration_) take_length({});
  if (*duration_ <= 0 && !ready_) {
    duration_.reset();
    (void)ready_state();
  }
  return *duration_;
}

void GstMedia::take_length(std::optional<double> told) {
  double length = file_.empty() ? 0 : wave_length(file_);
  if (length <= 0 && !file_.empty()) length = mp3_length(file_);
  if (length <= 0) length = told.value_or(0);
  duration_ = std::min(length, static_cast<double>(kSecondsPerDay));
}

std::optional<double> GstMedia::try_file() {
  if (file_.empty()) return std::nullopt;
  const Player trial = make_player(fake_sink());
  if (!trial || !preroll(trial.get())) return std::nullopt;
  return length_of(trial.get());
}

void GstMedia::settle() {
  if (starts_) play();
}

void GstMedia::play() {
  starts_ = false;
  if (ready_state() == 0) return;
  // At its end it starts over, also when the news of the end is still on its way.
  if (position() >= duration()) stop();
  if (!player_) {
    player_ = make_player(real_sink());
    if (!player_) return;
    GstBus* bus = gst_element_get_bus(player_.get());
    gst_bus_set_sync_handler(
        bus,
        [](GstBus*, GstMessage* message, gpointer self) {
          static_cast<GstMedia*>(self)->take_message(message);
          gst_message_unref(message);
          return GST_BUS_DROP;
        },
        this, nullptr);
    gst_object_unref(bus);
    g_object_set(player_.get(), "audio-filter", volume_filter(volume_), nullptr);
    if (rest_ > 0 && preroll(player_.get())) jump(rest_);
  }
  gst_element_set_state(player_.get(), GST_STATE_PLAYING);
}

void GstMedia::hold() {
  starts_ = false;
  if (player_) gst_element_set_state(player_.get(), GST_STATE_PAUSED);
}

void GstMedia::stop() {
  starts_ = false;
  player_.reset();
  ended_ = false;
  rest_ = 0;
}

double GstMedia::position() {
  if (ended_) return duration();
  gint64 position = 0;
  if (!player_ || !gst_element_query_position(player_.get(), GST_FORMAT_TIME, &position)) return rest_;
  return static_cast<double>(position) / kNanoseconds;
}

void GstMedia::seek(double seconds) {
  if (ended_) stop();
  rest_ = std::clamp(seconds, 0.0, duration());
  // A player that was only just set going takes no seek before it is ready to sound.
  if (player_ &&
      gst_element_get_state(player_.get(), nullptr, nullptr, kPrerollLimit) != GST_STATE_CHANGE_FAILURE)
    jump(rest_);
}

void GstMedia::set_volume(int hundredths) {
  volume_ = hundredths <= kSilence ? 0 : std::pow(10.0, std::min(hundredths, 0) / 2000.0);
  GstElement* filter = nullptr;
  if (player_) g_object_get(player_.get(), "audio-filter", &filter, nullptr);
  if (!filter) return;
  g_object_set(filter, "volume", volume_, nullptr);
  gst_object_unref(filter);
}

std::string GstMedia::trouble() const {
  const std::lock_guard lock(mutex_);
  return trouble_;
}

void GstMedia::release_when_ended() {
  if (ended_) player_.reset();
}

GstMedia::Player GstMedia::make_player(GstElement* sink) {
  Player player(gst_element_factory_make("playbin", nullptr));
  if (!player) {
    if (sink) gst_object_unref(gst_object_ref_sink(sink));
    tell("Нет проигрывателя GStreamer: нет модуля playback");
    return player;
  }
  const std::unique_ptr<gchar, decltype(&g_free)> uri(gst_filename_to_uri(file_.c_str(), nullptr), g_free);
  g_object_set(player.get(), "uri", uri.get(), "flags", kAudioFlag, "audio-sink", sink, nullptr);
  if (!setup_.font.empty())
    g_signal_connect(player.get(), "element-setup", G_CALLBACK(element_made),
                     const_cast<std::string*>(&setup_.font));
  return player;
}

GstElement* GstMedia::real_sink() {
  std::string why;
  GstElement* sink = make_sink(setup_, why);
  if (sink) return sink;
  tell("Звук не настроен: " + why);
  return fake_sink();
}

void GstMedia::jump(double seconds) {
  gst_element_seek_simple(player_.get(), GST_FORMAT_TIME,
                          static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_ACCURATE),
                          static_cast<gint64>(seconds * kNanoseconds));
}

// Runs on GStreamer's own threads.
void GstMedia::take_message(GstMessage* message) {
  if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS) ended_ = true;
  if (const std::string trouble = trouble_in(message); !trouble.empty()) tell(trouble);
}

void GstMedia::tell(const std::string& trouble) {
  const std::lock_guard lock(mutex_);
  trouble_ = trouble;
}

GstTone::~GstTone() {
  end();
}

void GstTone::beep(int frequency, int duration) {
  constexpr int kBuffersPerSecond = 100, kRate = 44100;
  start_gstreamer();
  end();
  const std::string description =
      join("audiotestsrc freq=", frequency, " num-buffers=", std::max(1, duration * kBuffersPerSecond / 1000),
           " samplesperbuffer=", kRate / kBuffersPerSecond, " volume=0.5 ! audio/x-raw,rate=", kRate,
           " ! audioconvert ! audioresample name=last");
  GstElement* pipeline = gst_parse_launch(description.c_str(), nullptr);
  if (!pipeline) return;
  pipeline_ = pipeline;
  std::string why;
  GstElement* sink = make_sink(setup_, why);
  GstElement* last = gst_bin_get_by_name(GST_BIN(pipeline), "last");
  const bool linked = sink && last && gst_bin_add(GST_BIN(pipeline), sink) && gst_element_link(last, sink);
  if (last) gst_object_unref(last);
  if (!linked) return end();
  // The device is given back at the end of the tone, not at the next one.
  GstBus* bus = gst_element_get_bus(pipeline);
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
      pipeline, nullptr);
  gst_object_unref(bus);
  gst_element_set_state(pipeline, GST_STATE_PLAYING);
}

void GstTone::end() {
  if (!pipeline_) return;
  gst_element_set_state(pipeline_, GST_STATE_NULL);
  gst_object_unref(pipeline_);
  pipeline_ = nullptr;
}

}  // namespace evac::desktop

#include "desktop/gst_parts.h"

#include "desktop/host_log.h"

namespace evac::desktop {
namespace {

constexpr GstClockTime kPrerollLimit = 5 * GST_SECOND;
constexpr double kNanoseconds = 1e9;
// Of playbin: sound alone. Its own volume is not asked for: each player with one leaves an element behind.
constexpr int kAudioFlag = 0x02;
constexpr std::string_view kAlsaPrefix = "alsa:";

// Each element that the player makes by itself; those that play MIDI get the sound font.
void element_made(GstElement*, GstElement* element, gpointer font) {
  if (g_object_class_find_property(G_OBJECT_GET_CLASS(element), "soundfont"))
    g_object_set(element, "soundfont", static_cast<const char*>(font), nullptr);
}

}  // namespace

void start_gstreamer() {
  static const bool started = (gst_init(nullptr, nullptr), true);
  (void)started;
}

GstElement* fake_sink() {
  GstElement* sink = gst_element_factory_make("fakesink", nullptr);
  if (sink) g_object_set(sink, "sync", TRUE, nullptr);
  return sink;
}

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

void Ended::operator()(GstElement* element) const {
  gst_element_set_state(element, GST_STATE_NULL);
  gst_object_unref(element);
}

PlayBin make_player(const std::filesystem::path& file, const SoundSetup& setup, GstElement* sink) {
  PlayBin player(gst_element_factory_make("playbin", nullptr));
  if (!player) {
    if (sink) gst_object_unref(gst_object_ref_sink(sink));
    return player;
  }
  const std::unique_ptr<gchar, decltype(&g_free)> uri(gst_filename_to_uri(file.c_str(), nullptr), g_free);
  g_object_set(player.get(), "uri", uri.get(), "flags", kAudioFlag, "audio-sink", sink, nullptr);
  if (!setup.font.empty())
    g_signal_connect_data(
        player.get(), "element-setup", G_CALLBACK(element_made), g_strdup(setup.font.c_str()),
        [](gpointer font, GClosure*) { g_free(font); }, static_cast<GConnectFlags>(0));
  return player;
}

bool settled(GstElement* player) {
  return gst_element_get_state(player, nullptr, nullptr, kPrerollLimit) == GST_STATE_CHANGE_SUCCESS;
}

bool preroll(GstElement* player) {
  return gst_element_set_state(player, GST_STATE_PAUSED) != GST_STATE_CHANGE_FAILURE && settled(player);
}

double length_of(GstElement* player) {
  gint64 length = 0;
  return gst_element_query_duration(player, GST_FORMAT_TIME, &length) ? length / kNanoseconds : 0;
}

GstElement* volume_filter(double linear) {
  GstElement* filter = gst_element_factory_make("volume", nullptr);
  if (filter) g_object_set(filter, "volume", linear, nullptr);
  return filter;
}

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

}  // namespace evac::desktop

#include "desktop/sound_setup.h"

#include <algorithm>
#include <iterator>

#include "desktop/gst_parts.h"
#include "model/text.h"

namespace evac::desktop {
namespace {

constexpr const char* kFontFolders[] = {"/usr/share/sounds/sf2", "/usr/share/sounds/sf3",
                                        "/usr/share/soundfonts"};

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
      gst_element_set_state(sink, GST_STATE_READY) != GST_STATE_CHANGE_FAILURE && settled(sink);
  const bool heard = opened && !swallows(sink);
  gst_element_set_state(sink, GST_STATE_NULL);
  gst_object_unref(sink);
  if (heard) return {};
  return opened ? "Нет звукового устройства: сообщения не слышны"
                : "Звуковое устройство не открывается: сообщения не слышны";
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

}  // namespace evac::desktop

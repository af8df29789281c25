#include "desktop/training_music.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

#include "store/code_page.h"

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;

constexpr int kRate = 8000;  // samples a second, of one byte

// A tune as steps of a scale above its first note, one letter each; a blank is a rest.
struct Track {
  const char *file, *title, *artist, *album, *year, *comment, *tune;
  int repeats;
  double beat;  // seconds
};

constexpr Track kTracks[] = {
    {"01 Доброе утро.wav", "Доброе утро", "Учебный оркестр", "Музыка для фойе", "2019", "Перед открытием",
     "cegegc dfafd  ecegc", 2, 0.35},
    {"02 Прогулка.wav", "Прогулка", "Учебный оркестр", "Музыка для фойе", "2019", "", "ccggaag ffeeddc ", 3,
     0.3},
    {"03 Антракт.wav", "Антракт", "Дуэт «Пульт»", "Музыка для фойе", "2021", "Между действиями",
     "gec gec afd  fdb c", 3, 0.25},
    {"Вечер/04 Вечерний вальс.wav", "Вечерний вальс", "Дуэт «Пульт»", "Закрытие", "2022",
     "Последняя дорожка дня", "ce ce df df eg eg fa ", 2, 0.4},
    {"Вечер/05 До свидания.wav", "До свидания", "Учебный оркестр", "Закрытие", "2022", "Перед закрытием",
     "gfedc  gfedc  ", 2, 0.45},
};

// Half tones above C of the letters c to b.
int half_tones(char note) {
  constexpr int kOfLetter[] = {9, 11, 0, 2, 4, 5, 7};  // a to g
  return kOfLetter[note - 'a'];
}

std::string tune_samples(const Track& track) {
  constexpr double kLowestC = 261.6, kLoudness = 60, kDecay = 3;
  const int beat = static_cast<int>(track.beat * kRate);
  std::string samples;
  for (int repeat = 0; repeat < track.repeats; ++repeat)
    for (const char note : std::string_view(track.tune))
      for (int i = 0; i < beat; ++i) {
        const double time = double(i) / kRate;
        const double pitch = note == ' ' ? 0 : kLowestC * std::exp2(half_tones(note) / 12.0);
        const double wave = std::sin(2 * std::numbers::pi * pitch * time) * std::exp(-kDecay * time);
        samples += static_cast<char>(128 + static_cast<int>(kLoudness * wave));
      }
  return samples;
}

std::string little_endian(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
  return text;
}

std::string wave_file(const std::string& samples) {
  const auto size = static_cast<std::uint32_t>(samples.size());
  return "RIFF" + little_endian(36 + size, 4) + "WAVEfmt " + little_endian(16, 4) + little_endian(1, 2) +
         little_endian(1, 2) + little_endian(kRate, 4) + little_endian(kRate, 4) + little_endian(1, 2) +
         little_endian(8, 2) + "data" + little_endian(size, 4) + samples;
}

// The 128 bytes behind the sound: fields of fixed widths, and the genre, none.
std::string tag(const Track& track) {
  const auto field = [](const char* text, std::size_t width) {
    std::string bytes = to_code_page(text);
    bytes.resize(width, '\0');
    return bytes;
  };
  return "TAG" + field(track.title, 30) + field(track.artist, 30) + field(track.album, 30) +
         field(track.year, 4) + field(track.comment, 30) + '\xFF';
}

}  // namespace

void make_training_music(const fs::path& folder) {
  for (const Track& track : kTracks) {
    const fs::path file = folder / track.file;
    if (fs::exists(file)) continue;
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << wave_file(tune_samples(track)) << tag(track);
  }
}

}  // namespace evac::desktop

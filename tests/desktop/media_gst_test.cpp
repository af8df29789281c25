// The media on GStreamer with a sink that makes no sound: what can be decoded, how long it is, and how it is
// held.
#include "desktop/media_gst.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#include "tests/scratch.h"

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

std::string number(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
  return text;
}

// Eight thousand samples a second, one channel of 16 bits.
std::string wave(double seconds) {
  const auto size = static_cast<std::uint32_t>(seconds * 8000) * 2;
  return "RIFF" + number(36 + size, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
         number(8000, 4) + number(16000, 4) + number(2, 2) + number(16, 2) + "data" + number(size, 4) +
         std::string(size, '\1');
}

// Two notes: a second and a half.
const std::string kMidi(
    "MThd\0\0\0\6\0\0\0\1\1\xE0"
    "MTrk\0\0\0\x1E\0\xFF\x51\3\7\xA1\x20\0\x90\x3C\x64\x83\x60\x80\x3C\0\0\x90\x40\x64\x87\x40\x80\x40\0\0"
    "\xFF\x2F\0",
    14 + 8 + 30);

class Sound : public testing::Test {
 protected:
  void put(const std::string& name, const std::string& bytes) {
    std::ofstream(scratch.path / name, std::ios::binary) << bytes;
  }
  // Until it is so, for a while.
  template <class Holds>
  bool comes(Holds holds) {
    for (int i = 0; i < 500 && !holds(); ++i) std::this_thread::sleep_for(10ms);
    return holds();
  }
  Scratch scratch;
  GstMedia::Locate locate = [this](std::string_view path) { return scratch.path / path; };
  GstMedia media{locate, {.sink = "fake", .font = {}}};
};

TEST_F(Sound, AFileIsReadyAndHasALengthOnlyWhenItCanBeDecoded) {
  put("Тревога 1.wav", wave(1.5));
  media.set_file("Тревога 1.wav");
  EXPECT_GT(media.ready_state(), 0);
  EXPECT_DOUBLE_EQ(media.duration(), 1.5);
  EXPECT_EQ(media.position(), 0);

  put("noise.wav", std::string(5000, 'x'));
  put("empty.mp3", "");
  put("cut.wav", wave(1).substr(0, 20));
  for (const char* name : {"noise.wav", "empty.mp3", "cut.wav", "gone.wav", ""}) {
    media.set_file(name);
    EXPECT_EQ(media.ready_state(), 0) << name;
    EXPECT_EQ(media.duration(), 0) << name;
    media.play();
    EXPECT_EQ(media.position(), 0) << name;
  }
}

TEST_F(Sound, AWaveWithAnOddNumberOfBytesHasItsLengthToo) {
  const std::uint32_t size = 12001;
  put("odd.wav", "RIFF" + number(36 + size + 1, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) +
                     number(1, 2) + number(8000, 4) + number(8000, 4) + number(1, 2) + number(8, 2) + "data" +
                     number(size, 4) + std::string(size + 1, '\x7F'));
  media.set_file("odd.wav");
  EXPECT_GT(media.ready_state(), 0);
  EXPECT_NEAR(media.duration(), 1.5, 0.001);
}

TEST_F(Sound, NothingIsMissingHereAndMidiIsReadyAlsoInItsWrapping) {
  EXPECT_EQ(missing_sound({.sink = "fake", .font = {}}), std::vector<std::string>{});
  put("a.mid", kMidi);
  put("a.rmi", "RIFF" + number(static_cast<std::uint32_t>(kMidi.size()) + 12, 4) + "RMIDdata" +
                   number(static_cast<std::uint32_t>(kMidi.size()), 4) + kMidi);
  for (const char* name : {"a.mid", "a.rmi"}) {
    media.set_file(name);
    EXPECT_GT(media.ready_state(), 0) << name;
    EXPECT_NEAR(media.duration(), 1.5, 0.2) << name;
  }
}

TEST_F(Sound, HoldKeepsThePositionStopLosesItAndTheEndIsTheLength) {
  put("a.wav", wave(2));
  media.set_file("a.wav");
  media.play();
  ASSERT_TRUE(comes([&] { return media.position() > 0.1; }));
  media.hold();
  const double held = media.position();
  std::this_thread::sleep_for(100ms);
  EXPECT_EQ(media.position(), held);
  EXPECT_LT(held, 2);
  media.play();
  ASSERT_TRUE(comes([&] { return media.position() == media.duration(); }));
  media.release_when_ended();
  EXPECT_EQ(media.position(), media.duration());
  // What has ended starts over.
  media.play();
  EXPECT_LT(media.position(), media.duration());
  media.stop();
  EXPECT_EQ(media.position(), 0);
  EXPECT_EQ(media.trouble(), "");
}

TEST_F(Sound, ASeekHoldsAlsoBeforeThePlay) {
  put("a.wav", wave(5));
  media.set_file("a.wav");
  media.seek(3);
  EXPECT_EQ(media.position(), 3);
  media.play();
  ASSERT_TRUE(comes([&] { return media.position() >= 3; }));
  media.seek(1);
  ASSERT_TRUE(comes([&] { return media.position() >= 1 && media.position() < 3; }));
  media.seek(100);
  EXPECT_TRUE(comes([&] { return media.position() == 5; }));
}

TEST_F(Sound, FourPlayAtATime) {
  put("a.wav", wave(3));
  GstMedia others[3] = {{locate, {"fake", ""}}, {locate, {"fake", ""}}, {locate, {"fake", ""}}};
  for (auto& other : others) {
    other.set_file("a.wav");
    other.set_volume(-600);
    other.play();
  }
  media.set_file("a.wav");
  media.play();
  others[0].stop();
  EXPECT_TRUE(
      comes([&] { return media.position() > 0 && others[1].position() > 0 && others[2].position() > 0; }));
  EXPECT_EQ(others[0].position(), 0);
}

// A device that is not there makes no file unplayable: an alert goes on by the clock, and the trouble is
// told.
TEST_F(Sound, AMissingDeviceIsToldAndTheFileIsReadyAllTheSame) {
  const SoundSetup nowhere{"pulsesink server=/no/such/socket", ""};
  const auto missing = missing_sound(nowhere);
  ASSERT_FALSE(missing.empty());
  EXPECT_EQ(missing.front(), "Звуковое устройство не открывается: сообщения не слышны");
  EXPECT_TRUE(missing_sound({"no such sink at all", ""}).front().starts_with("Звук не настроен: "));
  EXPECT_EQ(missing_sound({"fake", "/no/such/font.sf2"}).back(),
            "Файлы .mid и .rmi не воспроизводятся: нет звукового шрифта");

  put("a.wav", wave(1));
  GstMedia deaf(locate, nowhere);
  deaf.set_file("a.wav");
  EXPECT_GT(deaf.ready_state(), 0);
  EXPECT_EQ(deaf.duration(), 1);
  deaf.play();
  EXPECT_TRUE(comes([&] { return deaf.trouble().starts_with("Сбой звука: "); }));
}

// Sinks that write down what would be heard.
TEST_F(Sound, VolumeIsInHundredthsOfADecibel) {
  put("a.wav", wave(0.5));
  const struct {
    int hundredths, sample;
  } cases[] = {{0, 0x0101}, {-2000, 0x0101 / 10}, {-600, 0x0101 / 2}, {-10000, 0}};
  for (const auto& [hundredths, sample] : cases) {
    const fs::path heard = scratch.path / ("heard" + std::to_string(hundredths));
    GstMedia media(locate,
                   {"audioconvert ! audio/x-raw,format=S16LE ! filesink location=" + heard.string(), ""});
    media.set_file("a.wav");
    media.set_volume(hundredths);
    media.play();
    ASSERT_TRUE(comes([&] { return media.position() == media.duration(); }));
    media.stop();
    std::ifstream in(heard, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    ASSERT_EQ(bytes.size(), 8000u);
    EXPECT_NEAR(static_cast<unsigned char>(bytes[4000]) + 256 * static_cast<unsigned char>(bytes[4001]),
                sample, 2)
        << hundredths;
  }
}

TEST_F(Sound, AToneHasItsPitchAndItsLength) {
  const fs::path heard = scratch.path / "tone";
  GstTone tone(
      {"audioconvert ! audio/x-raw,format=S16LE,channels=1 ! filesink location=" + heard.string(), ""});
  tone.beep(1500, 50);
  // A second one takes the first one's place.
  tone.beep(1500, 100);
  const auto samples = [&] {
    std::error_code error;
    const auto size = fs::file_size(heard, error);
    return error ? 0 : size / 2;
  };
  ASSERT_TRUE(comes([&] { return samples() == 4410; }));
  std::ifstream in(heard, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  int rises = 0;
  for (std::size_t i = 3; i < bytes.size(); i += 2) rises += bytes[i] >= 0 && bytes[i - 2] < 0;
  EXPECT_NEAR(rises, 150, 1);
}

}  // namespace
}  // namespace evac::desktop

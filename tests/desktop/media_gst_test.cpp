// The media on GStreamer with a sink that makes no sound: what can be decoded, how long it is, and how it is
// held.
#include "desktop/media_gst.h"

#include <gst/gst.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <thread>

#include "model/text.h"
#include "model/time.h"
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

// An encoder's bytes of that much sound, with no header of their own: pieces of it one after another are a
// whole file again.
std::string mp3(const fs::path& folder, double seconds, int kilobits) {
  gst_init(nullptr, nullptr);
  const fs::path file = folder / "piece";
  const std::string line =
      join("audiotestsrc wave=white-noise samplesperbuffer=441 num-buffers=", static_cast<int>(seconds * 100),
           " ! audio/x-raw,rate=44100,channels=2 ! lamemp3enc target=bitrate cbr=true bitrate=", kilobits,
           " ! audio/mpeg,rate=44100 ! filesink location=\"", file.string(), "\"");
  GstElement* pipeline = gst_parse_launch(line.c_str(), nullptr);
  GstBus* bus = gst_element_get_bus(pipeline);
  gst_element_set_state(pipeline, GST_STATE_PLAYING);
  gst_message_unref(gst_bus_timed_pop_filtered(
      bus, 20 * GST_SECOND, static_cast<GstMessageType>(GST_MESSAGE_EOS | GST_MESSAGE_ERROR)));
  gst_object_unref(bus);
  gst_element_set_state(pipeline, GST_STATE_NULL);
  gst_object_unref(pipeline);
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

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
  const SoundSetup fake{.sink = "fake", .font = {}};
  std::atomic<bool> disk_hangs = false;
  SoundProbe probe{[this](std::string_view path) {
                     disk_hangs.wait(true);
                     std::string place(path);
                     std::ranges::replace(place, '\\', '/');
                     return scratch.path / place;
                   },
                   fake};
  GstMedia media{probe, fake, 10s};
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

// A quiet beginning of few bytes a second and a rest of many, behind a tag and before another: a guess by the
// beginning would be wrong several times over.
TEST_F(Sound, AnMp3WithoutALengthOfItsOwnHasTheRightOne) {
  const std::string sound = mp3(scratch.path, 4, 64) + mp3(scratch.path, 8, 320);
  const std::string tag_in_front("ID3\3\0\0\0\0\2\0", 10);
  put("a.mp3", tag_in_front + std::string(256, '\0') + sound + "TAG" + std::string(125, ' '));
  media.set_file("a.mp3");
  EXPECT_NEAR(media.duration(), 12, 0.5);
  EXPECT_GT(media.ready_state(), 0);
  EXPECT_NEAR(media.duration(), 12, 0.5) << "whatever the decoder thinks";
  media.seek(6);
  media.play();
  EXPECT_TRUE(comes([&] { return media.position() > 6.1; }));

  // Cut off in the middle of a frame.
  put("cut.mp3", sound.substr(0, sound.size() / 2));
  media.set_file("cut.mp3");
  EXPECT_NEAR(media.duration(), 7.8, 0.5);
  EXPECT_GT(media.ready_state(), 0);
}

// Where the places that are sampled differ, only the walk is right.
TEST_F(Sound, ALargeMp3IsSampledAndThenWalked) {
  std::string constant, changing;
  const std::string few = mp3(scratch.path, 4, 64), many = mp3(scratch.path, 8, 320);
  for (int i = 0; i < 8; ++i) constant += many;
  for (int i = 0; i < 30; ++i) changing += few;
  put("constant.mp3", constant);
  put("changing.mp3", changing + constant);
  const SoundLength sampled = quick_mp3_length(scratch.path / "constant.mp3");
  EXPECT_EQ(sampled.sure, Sure::kSampled);
  EXPECT_NEAR(sampled.seconds, 64, 0.9);
  EXPECT_EQ(quick_mp3_length(scratch.path / "changing.mp3").sure, Sure::kGuess);
  probe.look_soon({"changing.mp3"});
  ASSERT_TRUE(comes([&] {
    const auto found = probe.known("changing.mp3");
    return found && found->tried && found->sure == Sure::kExact;
  }));
  EXPECT_NEAR(probe.known("changing.mp3")->length, 30 * 4.03 + 64, 1.5) << "each piece has half a frame more";
}

TEST_F(Sound, ATrackOnADiskThatHangsBeginsWhenItAnswersAndTellsItsLengthThen) {
  put("a.wav", wave(30));
  disk_hangs = true;
  GstMedia track(probe, fake, 20ms);
  track.presume_unknown();
  track.set_file("a.wav");
  EXPECT_GT(track.ready_state(), 0);
  EXPECT_EQ(track.duration(), kSecondsPerDay - 1) << "no end by the clock comes near";
  track.play();
  std::this_thread::sleep_for(1100ms);
  EXPECT_EQ(track.playing(), std::nullopt);
  EXPECT_EQ(track.trouble(), "Звуковой файл не читается: диск не отвечает");
  disk_hangs = false;
  disk_hangs.notify_all();
  std::optional<GstMedia::Playing> told;
  ASSERT_TRUE(comes([&] { return told || (told = track.playing()); }));
  EXPECT_EQ(*told, (GstMedia::Playing{"a.wav", 30, 1}));
  EXPECT_EQ(track.trouble(), "");
  EXPECT_EQ(track.playing(), std::nullopt) << "told once";
}

TEST_F(Sound, AFileThatComesBackWithItsDriveIsReadyWithoutBeingSetAnew) {
  media.presume_unknown();
  media.set_file("a.wav");
  EXPECT_EQ(media.ready_state(), 0);
  put("a.wav", wave(2));
  EXPECT_GT(media.ready_state(), 0);
  EXPECT_DOUBLE_EQ(media.duration(), 2);
}

TEST_F(Sound, ANewFileTakesThePlaceOfTheOneThatPlaysAndStartsWithTheEndOfTheEvent) {
  put("a.wav", wave(5));
  put("b.wav", wave(3));
  media.set_file("a.wav");
  media.settle();
  ASSERT_TRUE(comes([&] { return media.position() > 0.2; }));
  media.set_file("b.wav");
  EXPECT_EQ(media.position(), 0);
  EXPECT_EQ(media.duration(), 3);
  media.settle();
  ASSERT_TRUE(comes([&] { return media.position() > 0.2; }));
  // A file that is held, or only asked for its length and held, is not heard.
  media.set_file("a.wav");
  media.hold();
  media.settle();
  std::this_thread::sleep_for(150ms);
  EXPECT_EQ(media.position(), 0);
}

TEST_F(Sound, WhatIsMeasuredAsideLeavesTheMessageOfAnAlertSounding) {
  media.measure_aside();
  put("fire.wav", wave(1));
  put("other.wav", wave(3));
  media.set_file("fire.wav");
  media.play();
  for (int list = 0; list < 2; ++list) {
    media.set_file("other.wav");
    EXPECT_EQ(media.duration(), 3);
    media.hold();
    media.settle();
    EXPECT_TRUE(media.is_open());
  }
  EXPECT_TRUE(comes([&] {
    media.release_when_ended();
    return !media.is_open();
  })) << "the message has come to its end, and nothing was begun";
  media.set_file("fire.wav");
  media.play();
  media.set_file("other.wav");
  media.hold();
  media.stop();
  EXPECT_FALSE(media.is_open());
}

TEST_F(Sound, ASeekRightBehindThePlayIsNotLost) {
  put("a.wav", wave(20));
  for (int i = 0; i < 5; ++i) {
    media.set_file("a.wav");
    media.play();
    media.seek(10);
    EXPECT_TRUE(comes([&] { return media.position() >= 10 && media.position() < 12; }));
  }
}

// A header that promises more than there is, and one that knows of less.
TEST_F(Sound, AFileThatEndsEarlyOrGoesOnBehindItsHeaderEndsWithItsSound) {
  put("early.wav", wave(6).substr(0, 44 + 16000));
  const std::string one_second = wave(1);
  put("late.wav", one_second + std::string(60000, '\1'));
  for (const char* name : {"early.wav", "late.wav"}) {
    media.set_file(name);
    EXPECT_EQ(media.duration(), 1) << name;
    media.play();
    EXPECT_TRUE(comes([&] { return media.position() >= 1; })) << name;
  }
  EXPECT_EQ(media.trouble(), "");
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
            "Файлы .mid и .rmi не воспроизводятся: нет звукового шрифта (пакет timgm6mb-soundfont)");

  put("a.wav", wave(1));
  GstMedia deaf(probe, nowhere, 2s);
  deaf.set_file("a.wav");
  EXPECT_GT(deaf.ready_state(), 0);
  EXPECT_EQ(deaf.duration(), 1);
  deaf.play();
  EXPECT_TRUE(comes([&] { return deaf.trouble().starts_with("Сбой звука: "); }));
}

TEST_F(Sound, ADeviceThatStallsHoldsNobodyUpAndIsTold) {
  put("a.wav", wave(0.3));
  const fs::path device = scratch.path / "device";
  ASSERT_EQ(::mkfifo(device.c_str(), 0600), 0);  // opening it waits for a reader
  std::ifstream reader;                          // there until the last byte is written
  GstMedia stalled(probe, {"audioconvert ! filesink location=" + device.string(), ""}, 2s);
  stalled.set_file("a.wav");
  stalled.play();
  stalled.seek(0.1);
  stalled.hold();
  stalled.stop();
  stalled.play();
  EXPECT_TRUE(comes([&] { return stalled.trouble().starts_with("Сообщение не звучит"); }));
  EXPECT_EQ(stalled.duration(), 0.3);
  reader.open(device);
  EXPECT_TRUE(comes([&] { return stalled.trouble().empty(); }));
}

TEST_F(Sound, FilesOfTheFolderAreKnownAheadAndAgainWhenTheyChange) {
  fs::create_directory(scratch.path / "message");
  put("message/a.wav", wave(0.5));
  put("message/b.wav", "no sound");
  probe.look_ahead("message");
  ASSERT_TRUE(comes([&] { return probe.known("message\\a.wav") && probe.known("message\\b.wav"); }));
  EXPECT_TRUE(probe.known("message\\a.wav")->ready);
  EXPECT_FALSE(probe.known("message\\b.wav")->ready);
  put("message/b.wav", wave(1.5));
  fs::remove(scratch.path / "message/a.wav");
  probe.look_ahead("message");
  ASSERT_TRUE(comes([&] { return !probe.known("message\\a.wav"); }));
  EXPECT_EQ(probe.known("message\\b.wav")->length, 1.5);
  // A folder that can't be listed has not lost its files; looks keep their order.
  fs::rename(scratch.path / "message", scratch.path / "away");
  put("message", "no folder");
  put("c.wav", wave(0.5));
  probe.look_ahead("message");
  probe.look_through({"c.wav"});
  ASSERT_TRUE(comes([&] { return probe.known("c.wav").has_value(); }));
  EXPECT_TRUE(probe.known("message\\b.wav"));
}

// Sinks that write down what would be heard.
TEST_F(Sound, VolumeIsInHundredthsOfADecibel) {
  put("a.wav", wave(0.5));
  const struct {
    int hundredths, sample;
  } cases[] = {{0, 0x0101}, {-2000, 0x0101 / 10}, {-600, 0x0101 / 2}, {-10000, 0}};
  for (const auto& [hundredths, sample] : cases) {
    const fs::path heard = scratch.path / ("heard" + std::to_string(hundredths));
    GstMedia media(probe,
                   {"audioconvert ! audio/x-raw,format=S16LE ! filesink location=" + heard.string(), ""}, 2s);
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

// What the player does to the media, and the play-lists that it reads.
#include <gtest/gtest.h>

#include "platform/user.h"
#include "store/play_list_file.h"
#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

class Player : public testing::Test {
 protected:
  Player() {
    machine.mount_drive('D');
    make("C:\\ZEF\\PlayList\\a.wav", 4);
    make("C:\\ZEF\\PlayList\\b.wav", 100);
    make("D:\\c.wav", 20);
    machine.trace = [this](const std::string& line) {
      if (line.starts_with("media MP ") || line.starts_with("box")) log.push_back(line);
    };
    console = std::make_unique<Console>(machine.machine());
    console->load();
  }
  void make(const std::string& path, double seconds) {
    (void)machine.files().make_folder(path.substr(0, path.rfind('\\')));
    EXPECT_EQ(machine.files().replace(path, "sound"), kNoError);
    machine.set_sound(path, seconds);
  }
  Form1& form1() { return console->form1(); }
  Lines logged() { return std::exchange(log, {}); }

  // Whose host may end long work.
  struct Urgent : drill::VirtualMachine {
    using VirtualMachine::VirtualMachine;
    bool busy(std::string_view, int, int) override { return !fire_waits; }
    bool fire_waits = false;
  };

  Scratch scratch;
  Urgent machine{scratch.path};
  std::unique_ptr<Console> console;
  Lines log;
};

const std::string kFileA = R"(media MP file "C:\\ZEF\\PlayList\\a.wav")";
const std::string kFileB = R"(media MP file "C:\\ZEF\\PlayList\\b.wav")";
const std::string kPlay = "media MP play", kHold = "media MP hold";

TEST_F(Player, AFireEndsASearchAndASumOfLengths) {
  form1().CmdPMP.click();
  form1().CmdSeek.click();
  form1().TxtSeek.set_text("nowhere");
  logged();
  form1().CmdSeekOk.click();
  EXPECT_EQ(logged(), Lines{R"(box "Поиск завершен" "!!!" ok -> ok)"});
  machine.fire_waits = true;
  form1().CmdSeekOk.click();
  EXPECT_EQ(logged(), Lines{});
  machine.queue_answer({.kind = drill::Answer::Kind::kYes, .text = {}});
  form1().CmdSVL.click();
  EXPECT_EQ(form1().LblVPL.caption(), "");
}

TEST_F(Player, EachPressDrivesTheMediaInItsOrder) {
  form1().CmdPMP.click();
  EXPECT_EQ(logged(), (Lines{"media MP volume 0", kFileA, kHold}));
  form1().CmdPlayMP.click();
  EXPECT_EQ(logged(), (Lines{kFileA, kPlay}));
  machine.run_for(4s);
  EXPECT_EQ(logged(), Lines{kFileB}) << "a file that is set starts by itself";
  form1().CmdPauseMP.click();
  form1().CmdPlayMP.click();
  EXPECT_EQ(logged(), (Lines{kHold, kPlay}));
  form1().CmdNextMP.click();
  EXPECT_EQ(logged(), (Lines{kFileA, kHold, kFileA, kPlay}));
  user::pick(form1().LstPtreckMP, 1);
  EXPECT_EQ(logged(), (Lines{kFileB, kHold, kFileB, kPlay}));
  user::drag(form1().Ipos, 2760);
  EXPECT_EQ(logged(), Lines{"media MP seek 50"});
  // A second is 55 whole units, so that the far end of the way lies beyond the track's.
  user::drag(form1().Ipos, 5500);
  EXPECT_EQ(logged(), (Lines{"media MP seek 100", kFileA, kHold, kFileA, kPlay}));
  form1().CmdDownMP.click();
  for (int i = 0; i < 9; ++i) form1().CmdDownMP.click();
  EXPECT_EQ(logged().back(), "media MP volume -625");
  for (int i = 0; i < 10; ++i) form1().CmdDownMP.click();
  EXPECT_EQ(logged().back(), "media MP volume -10000");
  form1().CmdDownMP.click();
  EXPECT_EQ(logged(), Lines{});
  EXPECT_EQ(form1().LblMPU.caption(), "0 %");
  form1().CmdStopMP.click();
  EXPECT_EQ(logged(), Lines{kHold});
  form1().CmdPMP.click();
  EXPECT_EQ(logged(), Lines{kHold});
}

TEST_F(Player, ALengthThatIsFoundLateMovesTheEndOfThatTrackAlone) {
  const std::string a = "C:\\ZEF\\PlayList\\a.wav", b = "C:\\ZEF\\PlayList\\b.wav";
  const auto left_by = [this](const std::string& file, double seconds, int late) {
    console->mend_track_length(file, seconds, late);
    return console->model().player.mp_end - second_of_day(machine.wall());
  };
  for (Button* button : {&form1().CmdPMP, &form1().CmdPlayMP, &form1().CmdNextMP}) button->click();
  machine.run_for(10s);
  EXPECT_EQ(left_by(a, 7, 3), 90);
  EXPECT_EQ(left_by(b, 120.4, 0), 110);
  EXPECT_EQ(left_by(b, 120.4, 5), 115);
  // In a pause the file of another row can be taken, but the end is that of the track before.
  form1().CmdPauseMP.click();
  user::pick(form1().LstPtreckMP, 0);
  EXPECT_EQ(left_by(a, 9, 0), 115);
  user::pick(form1().LstPtreckMP, 1);
  form1().CmdPlayMP.click();
  EXPECT_EQ(left_by(b, 3, 0), 1) << "an end that is past comes with the next second, not with the next day";
}

TEST(PlayListFile, LinesEndInAnyWayAndRemarksCostTheLastOnes) {
  EXPECT_EQ(play_list_lines("a\r\n\r\nb\nc\rd"), (Lines{"a", "", "b", "c", "d"}));
  EXPECT_EQ(play_list_tracks("#1\r\na\r\n#2\r\nb\r\n"), (Lines{"#1", "a"}));
  EXPECT_EQ(play_list_tracks("#1\r\n#2"), Lines{});
  EXPECT_EQ(play_list_number("Play-list12.old"), 12);
  EXPECT_EQ(play_list_number("Play-list"), 0);
}

TEST(PlayListFile, ALetterThatTheFileLacksIsSavedAsAQuestionMark) {
  Scratch scratch;
  PosixFiles files({{'C', scratch.path}});
  ASSERT_EQ(write_play_list(files, "C:\\Play-list1", {"C:\\№ 5 — €.mp3", "C:\\ひ.mp3", ""}), kNoError);
  EXPECT_EQ(read_play_list(files, "C:\\Play-list1"), (Lines{"C:\\№ 5 — €.mp3", "C:\\?.mp3", ""}));
  EXPECT_EQ(read_play_list(files, "C:\\Play-list2"), std::nullopt);
}

}  // namespace
}  // namespace evac

// Writing behind the caller's back: order, a disk that hangs, one that is full, and what is told of it.
#include "machine/background_files.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "machine/posix_files.h"
#include "tests/scratch.h"

namespace evac {
namespace {

// A disk that can be made to hang or to refuse.
class Disk : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  FileError append(std::string_view path, std::string_view bytes) override {
    hangs.wait(true);
    std::this_thread::sleep_for(append_takes);
    return error != kNoError ? error : PosixFiles::append(path, bytes);
  }
  FileError read(std::string_view path, std::string& bytes) override {
    const FileError read = PosixFiles::read(path, bytes);
    hangs.wait(true);
    return read;
  }
  bool is_file(std::string_view path) override {
    hangs.wait(true);
    return PosixFiles::is_file(path);
  }
  std::vector<std::string> files(std::string_view path) override {
    hangs.wait(true);
    return PosixFiles::files(path);
  }
  void answer() {
    hangs = false;
    hangs.notify_all();
  }
  std::atomic<bool> hangs = false;
  std::chrono::milliseconds append_takes{0};
  FileError error = kNoError;
};

class Behind : public testing::Test {
 protected:
  std::string text(const char* path) {
    std::string bytes;
    EXPECT_EQ(files.read(path, bytes), kNoError);
    return bytes;
  }

  Scratch scratch;
  Disk disk{{{'C', scratch.path}, {'D', scratch.path}}};
  Patience patience;
  std::vector<std::string> synced;
  BackgroundFiles files{disk, patience, [this](const std::string& path, bool folder) {
                          synced.push_back(path + (folder ? " and its folder" : ""));
                        }};
};

TEST_F(Behind, AHungDiskHoldsOneCallerForAMomentAndGetsAllInOrderWhenItAnswers) {
  disk.hangs = true;
  std::string all;
  for (int line = 0; line < 200; ++line) {
    EXPECT_EQ(files.append("C:\\journal", std::to_string(line) + "\n"), kNoError);
    EXPECT_EQ(files.replace("C:\\status", std::to_string(line)), kNoError);
    all += std::to_string(line) + "\n";
  }
  EXPECT_GE(files.health().waiting, 200);
  EXPECT_EQ(files.append("C:\\journal", std::string(BackgroundFiles::kMostBytes, 'x')), kDeviceError);
  EXPECT_EQ(files.health().failing, "C:\\journal");
  disk.answer();
  while (files.health().waiting > 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  EXPECT_EQ(text("C:\\journal"), all);
  EXPECT_EQ(text("C:\\status"), "199");
  EXPECT_EQ(files.health().failing, "") << "it can be written again";
}

TEST_F(Behind, AWriteThatFailsIsToldToItsCallerAndKeptUntilTheFileCanBeWritten) {
  disk.error = kDiskFull;
  EXPECT_EQ(files.append("C:\\journal", "1"), kDiskFull);
  EXPECT_EQ(files.health().failing, "C:\\journal");
  EXPECT_EQ(files.health().error, kDiskFull);
  EXPECT_EQ(files.replace("C:\\missing\\F_ust.dat", "1"), kPathNotFound) << "told by a box, not kept here";
  EXPECT_EQ(files.health().failing, "C:\\journal");
  disk.error = kNoError;
  EXPECT_EQ(files.append("C:\\journal", "2"), kNoError);
  EXPECT_EQ(files.health().failing, "");
  EXPECT_EQ(text("C:\\journal"), "2");
}

TEST_F(Behind, TheLinesOfOneAlertWaitForASlowDiskNoLongerThanOne) {
  disk.append_takes = BackgroundFiles::kAppendWait / 2;
  for (int line = 0; line < 100; ++line) EXPECT_EQ(files.append("C:\\journal", "x"), kNoError);
  EXPECT_GT(files.health().waiting, 90);
  EXPECT_EQ(text("C:\\journal"), std::string(100, 'x'));
}

// Settings that read as empty while the disk is away would be saved as such, or leave zones unwatched.
TEST_F(Behind, WhileTheDiskDoesNotAnswerItsLastWordHoldsAndWhatWasWrittenSince) {
  ASSERT_EQ(disk.replace("C:\\old.dat", "old"), kNoError);
  ASSERT_EQ(files.replace("C:\\mine.dat", "1"), kNoError);
  ASSERT_EQ(text("C:\\old.dat"), "old");
  ASSERT_EQ(files.files("C:"), (std::vector<std::string>{"mine.dat", "old.dat"}));
  disk.hangs = true;
  EXPECT_EQ(text("C:\\OLD.dat"), "old") << "by any spelling";
  EXPECT_EQ(text("C:\\mine.dat"), "1");
  EXPECT_TRUE(files.is_file("C:\\mine.dat"));
  EXPECT_EQ(files.append("C:\\journal", "line"), kNoError);
  EXPECT_EQ(files.replace("C:\\new.dat", "new"), kNoError);
  EXPECT_EQ(files.replace("C:\\mine.dat", "2"), kNoError);
  EXPECT_EQ(text("C:\\mine.dat"), "2");
  EXPECT_EQ(files.files("C:"), (std::vector<std::string>{"journal", "mine.dat", "new.dat", "old.dat"}));
  // What it never told is waited for while the program starts; later it is an error, and never a guess.
  std::thread away([this] {
    std::this_thread::sleep_for(3 * Patience::kAnEvent);
    disk.answer();
  });
  EXPECT_EQ(text("C:\\journal"), "line");
  away.join();
  ASSERT_EQ(disk.replace("C:\\old.dat", "from outside"), kNoError);
  EXPECT_EQ(text("C:\\old.dat"), "from outside") << "it answers again";
}

TEST_F(Behind, BehindTheStartWhatTheDiskNeverToldIsAnErrorAndOtherDrivesAnswer) {
  for (const char* name : {"C:\\old.dat", "C:\\list", "C:\\tag"})
    ASSERT_EQ(disk.replace(name, "bytes"), kNoError);
  ASSERT_EQ(files.files("C:").size(), 3u);
  ASSERT_EQ(files.remove("C:\\list"), kNoError);
  std::string bytes;
  ASSERT_EQ(files.read("C:\\none", bytes), kFileNotFound);
  patience.end_start();
  disk.hangs = true;
  EXPECT_EQ(files.read("C:\\old.dat", bytes), kDeviceError);
  EXPECT_EQ(files.read("C:\\none", bytes), kFileNotFound) << "it had its word";
  EXPECT_EQ(files.read_end("C:\\tag", 3, bytes), kDeviceError);
  EXPECT_TRUE(files.is_file("C:\\TAG")) << "by the listing";
  EXPECT_FALSE(files.is_file("C:\\list")) << "removed since";
  EXPECT_FALSE(files.drive_ready('C'));
  patience.renew();
  EXPECT_TRUE(files.drive_ready('D'));
  EXPECT_EQ(files.append("C:\\journal", "1"), kNoError);
  EXPECT_EQ(files.copy("C:\\old.dat", "C:\\old.dat.bak"), kDeviceError) << "nobody can say that it is kept";
  EXPECT_EQ(files.remove("C:\\tag"), kDeviceError);
  disk.answer();
  while (files.read("C:\\old.dat", bytes) != kNoError) patience.renew();
  EXPECT_EQ(bytes, "bytes");
  EXPECT_TRUE(files.drive_ready('C'));
  disk.hangs = true;
  EXPECT_FALSE(files.is_file("C:\\new"));
  EXPECT_TRUE(files.drive_ready('C')) << "asleep, and there as before";
  disk.answer();
}

TEST_F(Behind, AQuestionThatHangsIsAskedOnceAndToldAndALateAnswerTakesNoPlaceOfANewerWrite) {
  ASSERT_EQ(files.replace("C:\\a.dat", "1"), kNoError);
  disk.hangs = true;
  EXPECT_EQ(text("C:\\a.dat"), "1");
  std::this_thread::sleep_for(BackgroundFiles::kStuck);
  EXPECT_TRUE(files.health().stuck);
  EXPECT_EQ(files.health().waiting, 0);
  EXPECT_EQ(files.replace("C:\\a.dat", "2"), kNoError) << "this disk still writes";
  disk.answer();
  for (int look = 0; look < 1000 && files.health().stuck; ++look)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  disk.hangs = true;
  EXPECT_EQ(text("C:\\a.dat"), "2");
  disk.answer();
}

TEST_F(Behind, ADriveThatDoesNotAnswerHoldsUpNoEndAndWhatWaitsIsWritten) {
  patience.end_start();
  disk.hangs = true;
  EXPECT_FALSE(files.is_file("D:\\track"));
  EXPECT_EQ(files.replace("C:\\a", "saved"), kNoError);
  EXPECT_FALSE(files.end(std::chrono::milliseconds(20)));
  std::string bytes;
  disk.answer();
  EXPECT_EQ(disk.PosixFiles::read("C:\\a", bytes), kNoError);
  EXPECT_EQ(bytes, "saved");
  EXPECT_TRUE(files.end(std::chrono::seconds(10)));
}

TEST(BehindAtTheEnd, EverythingIsWrittenAndSyncedTheFirstLineOfAFileWithItsFolder) {
  Scratch scratch;
  PosixFiles disk({{'C', scratch.path}});
  std::vector<std::string> synced;
  {
    Patience patience;
    BackgroundFiles files(disk, patience, [&](const std::string& path, bool folder) {
      synced.push_back(path + (folder ? " and its folder" : ""));
    });
    for (int line = 0; line < 3; ++line) (void)files.append("C:\\a", "x");
    (void)files.append("C:\\b", "y");
  }
  std::string bytes;
  EXPECT_EQ(disk.read("C:\\a", bytes), kNoError);
  EXPECT_EQ(bytes, "xxx");
  EXPECT_EQ(std::count(synced.begin(), synced.end(), "C:\\a and its folder"), 1);
  EXPECT_EQ(std::count(synced.begin(), synced.end(), "C:\\b and its folder"), 1);
}

}  // namespace
}  // namespace evac

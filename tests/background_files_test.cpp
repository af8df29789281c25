// Writing behind the caller's back: order, a disk that hangs, one that is full, and what is told of it.
#include "machine/background_files.h"

#include <gtest/gtest.h>

#include <atomic>

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
    return error != kNoError ? error : PosixFiles::append(path, bytes);
  }
  std::atomic<bool> hangs = false;
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
  Disk disk{{{'C', scratch.path}}};
  std::vector<std::string> synced;
  BackgroundFiles files{disk, [this](const std::string& path, bool folder) {
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
  disk.hangs = false;
  disk.hangs.notify_all();
  EXPECT_EQ(text("C:\\journal"), all);
  EXPECT_EQ(text("C:\\status"), "199");
  EXPECT_EQ(files.health().waiting, 0);
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

TEST(BehindAtTheEnd, EverythingIsWrittenAndSyncedTheFirstLineOfAFileWithItsFolder) {
  Scratch scratch;
  PosixFiles disk({{'C', scratch.path}});
  std::vector<std::string> synced;
  {
    BackgroundFiles files(disk, [&](const std::string& path, bool folder) {
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

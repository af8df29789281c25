// Files by the system's paths, and the journal on disks that fail.
#include <gtest/gtest.h>

#include <fstream>

#include "drill/virtual_machine.h"
#include "journal/journal.h"
#include "tests/cut_files.h"
#include "tests/scratch.h"

namespace evac {
namespace {

namespace fs = std::filesystem;

TEST(PosixFiles, PathsWithoutRegardToCase) {
  Scratch scratch;
  PosixFiles files({{'C', scratch.path}});
  EXPECT_EQ(files.make_folder("C:\\ZEF_DAT\\message\\"), kNoError);
  EXPECT_EQ(files.replace("c:\\zef_dat\\Message\\Тревога.WAV", "abc"), kNoError);
  EXPECT_TRUE(fs::exists(scratch.path / "ZEF_DAT/message/Тревога.WAV"));
  std::string bytes;
  EXPECT_EQ(files.read("C:\\ZEF_DAT\\MESSAGE\\тревога.wav", bytes), kNoError);
  EXPECT_EQ(bytes, "abc");
  EXPECT_EQ(files.append("C:\\ZEF_DAT\\message\\ТРЕВОГА.wav", "d"), kNoError);
  EXPECT_EQ(files.files("C:\\zef_dat\\message"), std::vector<std::string>{"Тревога.WAV"});
  EXPECT_EQ(files.folders("C:\\ZEF_DAT"), std::vector<std::string>{"message"});
  EXPECT_EQ(files.read("C:\\нет", bytes), kFileNotFound);
  EXPECT_EQ(files.replace("C:\\нет\\x", ""), kPathNotFound);
  EXPECT_EQ(files.replace("C:\\ZEF_DAT", ""), kPathFileAccess);
  EXPECT_EQ(files.read("D:\\x", bytes), kDriveNotReady);
  EXPECT_FALSE(files.drive_ready('D'));
}

TEST(PosixFiles, TheEndOfAFileIsReadAlone) {
  Scratch scratch;
  PosixFiles files({{'C', scratch.path}});
  ASSERT_EQ(files.replace("C:\\a.mp3", "0123456789"), kNoError);
  std::string bytes;
  EXPECT_EQ(files.read_end("C:\\A.mp3", 4, bytes), kNoError);
  EXPECT_EQ(bytes, "6789");
  EXPECT_EQ(files.read_end("C:\\a.mp3", 128, bytes), kNoError);
  EXPECT_EQ(bytes, "0123456789");
  EXPECT_EQ(files.read_end("C:\\b.mp3", 4, bytes), kFileNotFound);
  EXPECT_EQ(files.read_end("D:\\a.mp3", 4, bytes), kDriveNotReady);
  EXPECT_NE(files.read_end("C:\\", 4, bytes), kNoError);
  EXPECT_EQ(bytes, "");
}

TEST(PosixFiles, ASaveCutOffAtAnyStepLeavesTheOldFileOrTheNewOne) {
  for (int step = 1; step <= CutFiles::kSteps; ++step) {
    Scratch scratch;
    CutFiles files({{'C', scratch.path}});
    ASSERT_EQ(files.replace("C:\\F_ust.dat", "old old"), kNoError);
    files.cut_at = step;
    EXPECT_THROW(files.replace("C:\\F_ust.dat", "new new new"), CutFiles::PowerCut);
    files.cut_at = 0;
    std::string bytes;
    ASSERT_EQ(files.read("C:\\F_ust.dat", bytes), kNoError);
    EXPECT_EQ(bytes, step == CutFiles::kSteps ? "new new new" : "old old") << step;
    // What the cut left behind is never listed, and does not stand in the way of the next save.
    EXPECT_EQ(files.files("C:\\"), std::vector<std::string>{"F_ust.dat"});
    EXPECT_EQ(files.replace("C:\\F_ust.dat", "later"), kNoError);
  }
}

class FullDisk : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  int append(std::string_view, std::string_view) override { return kDiskFull; }
};

TEST(Journal, ADiskErrorLosesTheEntryAndStopsNobody) {
  Scratch scratch;
  drill::VirtualMachine machine(scratch.path);
  FullDisk full({{'C', scratch.path}});
  CalendarState calendar;
  SettingsState settings;
  settings.protocol_base = "C:\\ZEF";
  Journal journal({.calendar = calendar, .settings = settings, .loop = machine.loop(), .files = full});
  int written = 0;
  journal.written = [&](const std::string&) { ++written; };
  journal.JournalLine("Программа загружена");
  EXPECT_EQ(written, 0);
  // So does a folder that is gone; the rest of the day goes on in the file once it is back.
  calendar.journal_day = date_of(machine.wall());
  Journal other(
      {.calendar = calendar, .settings = settings, .loop = machine.loop(), .files = machine.files()});
  other.written = [&](const std::string&) { ++written; };
  other.JournalLine("Один");
  EXPECT_EQ(written, 0);
  machine.files().make_folder("C:\\ZEF\\protocol");
  other.JournalLine("Два");
  EXPECT_EQ(written, 1);
  std::string bytes;
  machine.files().read("C:\\ZEF\\protocol\\П-05-янв-26", bytes);
  EXPECT_EQ(bytes, "8:00:00 \xC4\xE2\xE0\r\n");
}

}  // namespace
}  // namespace evac

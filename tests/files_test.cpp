// Files by the system's paths, on disks whose power goes, and the journal on disks that fail.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "drill/virtual_machine.h"
#include "journal/journal.h"
#include "tests/scratch.h"
#include "tests/stored_data.h"

namespace evac {
namespace {

namespace fs = std::filesystem;

std::string read_whole(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

ino_t number_of(const fs::path& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

// What a power cut would leave of a folder, on a disk that keeps nothing for sure but what was synced.
class PowerCuts {
 public:
  // Bytes by the name of the file.
  using Disk = std::map<std::string, std::string>;

  // All that the folder holds now counts as synced. One at a time.
  explicit PowerCuts(fs::path folder) : folder_(std::move(folder)), synced_names_(names()) {
    for (const auto& [name, number] : synced_names_) synced_bytes_[number] = read_whole(folder_ / name);
    active = this;
  }
  ~PowerCuts() { active = nullptr; }

  // The two disks that a cut right now could leave: the names as they are, or as last synced. Of a file whose
  // bytes are not synced half is there.
  std::array<Disk, 2> now() const {
    auto left = synced_bytes_;
    const Names present = names();
    for (const auto& [name, number] : present)
      if (const std::string bytes = read_whole(folder_ / name); left[number] != bytes)
        left[number] = bytes.substr(0, bytes.size() / 2);
    std::array<Disk, 2> disks;
    for (const auto& [name, number] : present) disks[0][name] = left[number];
    for (const auto& [name, number] : synced_names_) disks[1][name] = left[number];
    return disks;
  }
  // Those that a cut around any sync since the beginning could leave.
  std::vector<Disk> ever;
  // Called before each sync.
  std::function<void()> before_sync = [] {};

  void syncing(int fd) {
    before_sync();
    std::ranges::copy(now(), std::back_inserter(ever));
    const fs::path file = "/proc/self/fd/" + std::to_string(fd);
    if (number_of(file) == number_of(folder_))
      synced_names_ = names();
    else
      synced_bytes_[number_of(file)] = read_whole(file);
    std::ranges::copy(now(), std::back_inserter(ever));
  }

  static inline PowerCuts* active = nullptr;

 private:
  using Names = std::map<std::string, ino_t>;
  Names names() const {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names[entry.path().filename().string()] = number_of(entry.path());
    return names;
  }

  const fs::path folder_;
  Names synced_names_;
  std::map<ino_t, std::string> synced_bytes_;
};

struct Disk : testing::Test {
  Scratch scratch;
  PosixFiles files{{{'C', scratch.path}}};
};

TEST_F(Disk, PathsWithoutRegardToCase) {
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
  // What it remembers of the folders ends with their spelling, and with the drive.
  fs::rename(scratch.path / "ZEF_DAT", scratch.path / "zef_Dat");
  EXPECT_EQ(files.read("C:\\ZEF_DAT\\MESSAGE\\тревога.wav", bytes), kNoError);
  files.mount('D', scratch.path / "zef_Dat");
  EXPECT_TRUE(files.is_file("D:\\MESSAGE\\тревога.wav"));
  files.mount('D', scratch.path);
  EXPECT_FALSE(files.is_file("D:\\MESSAGE\\тревога.wav"));
}

TEST_F(Disk, WhatIsWrittenIsForItsOwnUserAlone) {
  const mode_t mask = ::umask(0);
  const auto mode = [&](const char* path) {
    struct stat status {};
    return ::stat((scratch.path / path).c_str(), &status) == 0 ? status.st_mode & 0777 : 0;
  };
  EXPECT_EQ(files.make_folder("C:\\ZEF_DAT\\alarm\\"), kNoError);
  EXPECT_EQ(mode("ZEF_DAT"), 0700u);
  EXPECT_EQ(mode("ZEF_DAT/alarm"), 0700u);
  for (const char* older : {"replaced", "copied", "appended"}) std::ofstream(scratch.path / older) << "x";
  EXPECT_EQ(mode("replaced"), 0666u);
  EXPECT_EQ(files.replace("C:\\new", "x"), kNoError);
  EXPECT_EQ(files.replace("C:\\replaced", "y"), kNoError);
  EXPECT_EQ(files.copy("C:\\new", "C:\\copied"), kNoError);
  EXPECT_EQ(files.append("C:\\begun", "x"), kNoError);
  EXPECT_EQ(files.append("C:\\appended", "x"), kNoError);
  for (const char* file : {"new", "replaced", "copied", "begun", "appended"})
    EXPECT_EQ(mode(file), 0600u) << file;
  ::umask(mask);
}

TEST(PosixFiles, NothingLeadsOutOfADrive) {
  Scratch scratch;
  fs::create_directories(scratch.path / "c/ZEF");
  std::ofstream(scratch.path / "secret") << "outside";
  PosixFiles files({{'C', scratch.path / "c"}});
  std::string bytes;
  for (const char* path :
       {"C:\\..\\secret", "C:\\ZEF\\..\\..\\secret", "C:\\ZEF/../../secret", "C:\\.\\..\\secret"}) {
    EXPECT_EQ(files.read(path, bytes), kDriveNotReady) << path;
    EXPECT_EQ(files.replace(path, "x"), kDriveNotReady) << path;
    EXPECT_EQ(files.append(path, "x"), kDriveNotReady) << path;
    EXPECT_EQ(files.remove(path), kDriveNotReady) << path;
  }
  EXPECT_TRUE(files.files("C:\\..").empty());
  EXPECT_TRUE(files.is_folder("C:\\."));
  EXPECT_FALSE(files.is_file("C:\\secret"));
  EXPECT_TRUE(fs::exists(scratch.path / "secret"));
}

TEST_F(Disk, WheneverThePowerGoesASaveIsTheOldFileOrTheNewOneAndTheNewOneOnceItReturned) {
  ASSERT_EQ(files.replace("C:\\F_ust.dat", "old old"), kNoError);
  PowerCuts cuts(scratch.path);
  ASSERT_EQ(files.replace("C:\\F_ust.dat", "new new new"), kNoError);
  for (auto disk : cuts.now()) EXPECT_EQ(disk["F_ust.dat"], "new new new");
  for (auto disk : cuts.ever)
    EXPECT_TRUE(disk["F_ust.dat"] == "old old" || disk["F_ust.dat"] == "new new new") << disk["F_ust.dat"];
}

TEST_F(Disk, TwoProgramsSaveOneFileAtATimeAndTheDeadOnesNeighbourGoes) {
  const std::string dead = "F_ust.dat.999999999-1.new~";
  std::ofstream(scratch.path / dead) << "torn";
  EXPECT_TRUE(files.files("C:\\").empty());
  PowerCuts cuts(scratch.path);
  std::optional<int> other;
  // The other program saves while this one is in the middle of it.
  cuts.before_sync = [&] {
    if (other) return;
    other = -1;
    if (const pid_t child = ::fork()) {
      ::waitpid(child, &*other, 0);
      return;
    }
    PosixFiles theirs({{'C', scratch.path}});
    ::_exit(theirs.replace("C:\\F_ust.dat", "theirs"));
  };
  EXPECT_EQ(files.replace("C:\\F_ust.dat", "ours"), kNoError);
  EXPECT_EQ(other, 0);
  std::string bytes;
  EXPECT_EQ(files.read("C:\\F_ust.dat", bytes), kNoError);
  EXPECT_EQ(bytes, "ours");
  EXPECT_FALSE(fs::exists(scratch.path / dead));
  // What takes this one's neighbour away fails the save.
  cuts.before_sync = [&] {
    for (const auto& entry : fs::directory_iterator(scratch.path))
      if (entry.path().extension() == ".new~") fs::remove(entry);
  };
  EXPECT_EQ(files.replace("C:\\F_ust.dat", "lost"), kFileNotFound);
  const fs::directory_iterator left(scratch.path);
  EXPECT_EQ(std::distance(begin(left), end(left)), 1);
}

TEST_F(Disk, WheneverThePowerGoesWhatACutReadingLeftIsThere) {
  StoredData data(files);
  ASSERT_EQ(data.folder.replace("F_ust.dat", "four rows"), kNoError);
  data.folder.reading_ended("F_ust.dat", true);
  PowerCuts cuts(files.locate(data.folder.path("")));
  ASSERT_EQ(data.folder.replace("F_ust.dat", "one"), kNoError);
  for (auto disk : cuts.ever)
    EXPECT_TRUE(disk["F_ust.dat"] == "four rows" || disk["F_ust.dat.bak"] == "four rows");
  for (auto disk : cuts.now()) EXPECT_EQ(disk["F_ust.dat"] + disk["F_ust.dat.bak"], "onefour rows");
}

TEST_F(Disk, WhatIsNoRegularFileIsAnErrorAndNeverWaitedFor) {
  ASSERT_EQ(::mkfifo((scratch.path / "pipe").c_str(), 0600), 0);
  std::string bytes;
  EXPECT_EQ(files.read("C:\\pipe", bytes), kBadFileMode);
  EXPECT_EQ(files.read_end("C:\\pipe", 10, bytes), kBadFileMode);
  EXPECT_NE(files.append("C:\\pipe", "x"), kNoError);
  EXPECT_NE(files.sync("C:\\pipe", false), kNoError);
  std::filesystem::resize_file((std::ofstream(scratch.path / "large"), scratch.path / "large"),
                               (16 << 20) + 1);
  EXPECT_EQ(files.read("C:\\large", bytes), kBadFileMode);
  EXPECT_EQ(files.read_end("C:\\large", 10, bytes), kNoError) << "tracks are larger";
}

TEST_F(Disk, WhatCutOffSavesLeftIsRemovedInAllFolders) {
  ASSERT_EQ(files.make_folder("C:\\ZEF_DAT\\alarm"), kNoError);
  const auto left = scratch.path / "ZEF_DAT/alarm/f_al.dat.999999999-3.new~";
  std::ofstream{left} << "half";
  std::ofstream{scratch.path / "ZEF_DAT/f.new~.txt"} << "whole";
  files.remove_left_over("C:\\ZEF_DAT");
  EXPECT_FALSE(std::filesystem::exists(left));
  EXPECT_TRUE(std::filesystem::exists(scratch.path / "ZEF_DAT/f.new~.txt"));
}

class FullDisk : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  FileError append(std::string_view, std::string_view) override { return kDiskFull; }
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
  Journal other(
      {.calendar = calendar, .settings = settings, .loop = machine.loop(), .files = machine.files()});
  other.written = [&](const std::string&) { ++written; };
  other.JournalLine("Один");
  EXPECT_EQ(written, 0);
  ASSERT_EQ(machine.files().make_folder("C:\\ZEF\\protocol"), kNoError);
  other.JournalLine("Два");
  EXPECT_EQ(written, 1);
  std::string bytes;
  ASSERT_EQ(machine.files().read("C:\\ZEF\\protocol\\П-05-янв-26", bytes), kNoError);
  EXPECT_EQ(bytes, "8:00:00 \xC4\xE2\xE0\r\n");
}

}  // namespace
}  // namespace evac

// In place of the system's own: every sync of this program comes by here.
extern "C" int fsync(int fd) {
  if (evac::PowerCuts::active) evac::PowerCuts::active->syncing(fd);
  return static_cast<int>(::syscall(SYS_fsync, fd));
}

// A disk that fails at every byte: what is saved and what is journalled holds all the same.
#include <gtest/gtest.h>
#include <unistd.h>

#include "machine/faulty_files.h"
#include "machine/posix_files.h"
#include "store/settings_files.h"
#include "tests/scratch.h"
#include "tests/stored_data.h"

namespace evac {
namespace {

class OnAFaultyDisk : public testing::Test {
 protected:
  struct Killed {};
  OnAFaultyDisk() {
    files.set_write(
        [this](int fd, const void* bytes, std::size_t count) { return disk.write(fd, bytes, count); });
  }
  std::string text(const char* path) {
    std::string bytes;
    must(files.read(path, bytes));
    return bytes;
  }

  Scratch scratch;
  FaultyDisk disk;
  PosixFiles files{{{'C', scratch.path}}};
};

TEST_F(OnAFaultyDisk, ALineThatHadNoRoomLeavesNoPieceBeforeTheNextOne) {
  const std::string line = "12:00:00 ПОЖАР\r\n";
  std::string all;
  for (std::size_t room = 0; room < line.size(); ++room) {
    disk.set_room(room);
    EXPECT_EQ(files.append("C:\\journal", line), kDiskFull) << room;
    disk.set_room({});
    EXPECT_EQ(files.append("C:\\journal", line), kNoError);
    all += line;
    ASSERT_EQ(text("C:\\journal"), all) << room;
  }
}

TEST_F(OnAFaultyDisk, ASaveThatIsCutOffAtAnyByteKeepsTheOldFile) {
  const std::string before(600, 'a'), after(700, 'b');
  must(files.replace("C:\\F_ust.dat", before));
  for (std::size_t room = 0; room < after.size(); room += 7) {
    disk.set_room(room);
    disk.out_of_room = [] {};
    ASSERT_EQ(files.replace("C:\\F_ust.dat", after), kDiskFull);
    ASSERT_EQ(text("C:\\F_ust.dat"), before) << room;
    disk.out_of_room = [] { throw Killed{}; };
    ASSERT_THROW((void)files.replace("C:\\F_ust.dat", after), Killed);
    ASSERT_EQ(text("C:\\F_ust.dat"), before) << room;
  }
  // The next process finds no trace of it.
  PosixFiles next({{'C', scratch.path}});
  next.remove_left_over("C:\\");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(scratch.path), {}), 1);
}

// Half a file would count as a whole one, and the next save would lose the rest.
TEST_F(OnAFaultyDisk, AReadThatFailsInTheMidstIsAnErrorAndTheFileStaysAsItWas) {
  StoredData data(files);
  std::vector<std::string> names(700, std::string(100, 'n')), found;
  must(write_names(data.folder, kZoneNamesFile, names));
  int blocks = 0;
  files.set_read([&](int fd, void* bytes, std::size_t count) {
    errno = EIO;
    return ++blocks % 2 == 1 ? ::read(fd, bytes, count) : -1;
  });
  EXPECT_EQ(read_names(data.folder, kZoneNamesFile, found), kDeviceError);
  EXPECT_EQ(blocks, 2);
  EXPECT_EQ(write_names(data.folder, kZoneNamesFile, {"1\tA"}), kDeviceError) << "what can't be kept";
  files.set_read({});
  must(read_names(data.folder, kZoneNamesFile, found));
  EXPECT_EQ(found.size(), names.size());
}

TEST_F(OnAFaultyDisk, ADiskThatTakesLittleAtATimeGetsAll) {
  disk.set_most_at_once(3);
  must(files.replace("C:\\F_ust.dat", "0123456789"));
  must(files.append("C:\\F_ust.dat", "abcdefgh"));
  EXPECT_EQ(text("C:\\F_ust.dat"), "0123456789abcdefgh");
}

}  // namespace
}  // namespace evac

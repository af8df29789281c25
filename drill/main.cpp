// console-drill [--root DIR] [FILE]: a whole console on a virtual clock, worked by a line language.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "drill/drill.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "usage: console-drill [--root DIR] [FILE]\n"
    "  --root DIR  stands for all drives; a temporary one otherwise, removed at the end\n"
    "  FILE        the commands, one a line; standard input otherwise\n"
    "\n"
    "Several of a kind in one line, up to the first that fails, with one result: click, rclick,\n"
    "shift-rclick, dblclick C C; set C VALUE C VALUE; key C KEY KEY; contact 7 on 12 off; card, file, sound, "
    "nosound;\n"
    "remove; frame, of six bytes each; expect C.PROP VALUE C.PROP VALUE; expect box TEXT TEXT; expect watch\n"
    "RANK TEXT RANK TEXT; expect row LIST N TEXT TEXT, from row N on. And what stands for several commands:\n"
    "  enter M_n_z              a click on that entry of the menu, the gate passed without a password\n"
    "  channel Lbl(7) 3 ...     a cell that is off switched on, and put on that channel by its menu\n"
    "  yes click C | no click C a click, rclick or dblclick whose question is answered so\n"
    "  quiet 5s                 wait 5s, and expect no tx behind it\n"
    "  expect only tx | box ... these, and no others behind them\n"
    "\n"
    "Faults, besides port COM1 bad, drive D off, nosound FILE and card 0 fail:\n"
    "  disk full | fail | work  every write is refused as on a full or a broken disk; all faults of the disk "
    "end\n"
    "  disk room 100            so many bytes can still be written, wherever in a file they run out\n"
    "  disk short 7             no write to the disk takes more than so many bytes at once\n"
    "  disk stall 50ms          the next reading or writing takes so long, with nothing else handled\n"
    "  media silent | work      no file can be opened by any of the media\n"
    "  media stall 50ms         the next opening of a file takes so long in each of them\n"
    "  card 0 stall 50ms        the next reading of that card takes so long\n"
    "  line lost | back         the open line goes, with what its device held; it can be opened again\n"
    "  line device 4096         from here on frames wait in an outbox and go through a device with such a "
    "buffer at\n"
    "                           4800 baud; \"heard AA AA ...\" is printed where one has reached the other "
    "end, and\n"
    "                           expect heard takes those in their order, as expect tx does\n"
    "  line stall | work        that device takes no byte (and goes on with those that it has); it works "
    "again\n"
    "  line short 5             that device takes no more than so many bytes with one write\n"
    "  clock steady             from here on the console sees the clock without a second left out or twice\n"
    "  clock on 5s | back 5s    the system's clock is stepped; behind clock steady the console catches up\n"
    "  hold 6s                  the process is stopped: time passes with nothing handled\n"
    "  kill | kill in 100       the process is gone without a word, at once or when it has written so many "
    "bytes\n";

// A fresh directory, removed with all in it.
class TemporaryRoot {
 public:
  TemporaryRoot() {
    std::string name = (fs::temp_directory_path() / "console-drill-XXXXXX").string();
    if (!mkdtemp(name.data()))
      throw fs::filesystem_error("no temporary directory", std::error_code(errno, std::generic_category()));
    path = name;
  }
  ~TemporaryRoot() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  TemporaryRoot(const TemporaryRoot&) = delete;
  TemporaryRoot& operator=(const TemporaryRoot&) = delete;
  fs::path path;
};

// With a file the status tells whether all went as the file expects.
int drill(const fs::path& root, const std::string& file) {
  if (file.empty()) {
    evac::drill::Drill(root, std::cin, std::cout, false).run();
    return 0;
  }
  std::ifstream in(file);
  if (!in) {
    std::cerr << "console-drill: cannot read " << file << '\n';
    return 2;
  }
  evac::drill::Drill drill(root, in, std::cout, true);
  const int failures = drill.run();
  for (const int fault : drill.faults())
    std::cerr << "console-drill: fault " << fault << " came and nothing expected it\n";
  return failures == 0 && drill.faults().empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  fs::path root;
  std::string file;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--help") {
      std::cout << kUsage;
      return 0;
    }
    if (word == "--root" && i + 1 < argc) {
      root = argv[++i];
    } else if (file.empty() && !word.starts_with("--")) {
      file = word;
    } else {
      std::cerr << kUsage;
      return 2;
    }
  }
  try {
    if (!root.empty()) return drill(root, file);
    const TemporaryRoot temporary;
    return drill(temporary.path, file);
  } catch (const fs::filesystem_error& error) {
    std::cerr << "console-drill: " << error.what() << '\n';
    return 2;
  }
}

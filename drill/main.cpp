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
    "  FILE        the commands, one a line; standard input otherwise\n";

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

// A directory of a test's own, gone when the test is over.
#pragma once

#include <stdlib.h>

#include <filesystem>

namespace evac {

class Scratch {
 public:
  Scratch() {
    std::string name = (std::filesystem::temp_directory_path() / "console-test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no scratch directory");
    path = name;
  }
  ~Scratch() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  std::filesystem::path path;
};

}  // namespace evac

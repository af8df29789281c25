// A directory of a test's own, gone when the test is over.
#pragma once

#include <stdlib.h>

#include <filesystem>

namespace evac {

class Scratch {
 public:
  Scratch() {
    // In memory where there is such a place: what is tested is not the disk.
    const std::filesystem::path memory = "/dev/shm";
    const auto place =
        std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    std::string name = (place / "console-test-XXXXXX").string();
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

// Files whose saves stop at one of their steps, as a power cut would stop them.
#pragma once

#include "machine/posix_files.h"

namespace evac {

class CutFiles : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  struct PowerCut {};
  // The last one is behind the renaming: by then the new file stands.
  static constexpr int kSteps = 4;
  int cut_at = 0;

 protected:
  int write_whole(const std::filesystem::path& file, std::string_view bytes) override {
    if (cut_at == 1) throw PowerCut{};
    if (cut_at == 2) bytes = bytes.substr(0, bytes.size() / 2);
    const int error = PosixFiles::write_whole(file, bytes);
    if (cut_at == 2 || cut_at == 3) throw PowerCut{};
    return error;
  }
  int rename_over(const std::filesystem::path& from, const std::filesystem::path& to) override {
    const int error = PosixFiles::rename_over(from, to);
    if (cut_at == kSteps) throw PowerCut{};
    return error;
  }
};

}  // namespace evac

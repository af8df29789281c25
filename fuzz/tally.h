// What every fuzz target does: it counts its bytes and tells them at its end, and stops at what does not
// hold.
#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace evac {

inline void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

class Tally {
 public:
  ~Tally() { std::fprintf(stderr, "%llu bytes in %llu inputs\n", bytes_, inputs_); }
  void take(std::size_t bytes) {
    bytes_ += bytes;
    ++inputs_;
  }

 private:
  unsigned long long bytes_ = 0, inputs_ = 0;
};

}  // namespace evac

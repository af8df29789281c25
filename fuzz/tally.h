// Counts the bytes that a fuzz target was given, and tells them at its end.
#pragma once

#include <cstddef>
#include <cstdio>

namespace evac {

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

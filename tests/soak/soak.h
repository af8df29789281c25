// The frame of every soak: a life in virtual time, all from one seed, that ends at the first thing that is
// wrong. A life has days(), live() for its next stretch, and told() for what it has counted so far.
#pragma once

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>

#include "tests/rack_rig.h"

namespace evac {

struct WentWrong {
  std::string what;
};

inline void want(bool holds, std::string_view what) {
  if (!holds) throw WentWrong{std::string(what)};
}

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}
  int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

 private:
  std::mt19937 random_;
};

inline long resident_kilobytes() {
  long size = 0, pages = 0;
  std::ifstream("/proc/self/statm") >> size >> pages;
  return pages * (sysconf(_SC_PAGESIZE) / 1024);
}

// The address sanitizer keeps what is freed for a while, so that memory tells nothing under it.
#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kMemoryTells = false;
#else
inline constexpr bool kMemoryTells = true;
#endif

// Lives so many days and tells of them every thirty, from where on memory may not grow. The program's status.
template <class Life>
int soak(int days, unsigned seed) {
  constexpr int kStage = 30;
  Life life(seed);
  long settled = 0;
  const auto tell = [&](const std::string& what) {
    std::printf("day %.2f, seed %u: %s, %ld KiB%s\n", static_cast<double>(life.days()), seed,
                life.told().c_str(), resident_kilobytes(), what.c_str());
    std::fflush(stdout);
  };
  try {
    for (int stage = 1; life.days() < days;) {
      life.live();
      if (life.days() < kStage * stage) continue;
      if (stage++ == 1) settled = resident_kilobytes();
      tell("");
      want(!kMemoryTells || resident_kilobytes() < settled + 2048, "memory grows");
    }
  } catch (const WentWrong& wrong) {
    tell(": " + wrong.what);
    return 1;
  } catch (const Fault& fault) {
    tell(join(": fault ", fault.number(), " ", fault.what()));
    return 1;
  }
  tell(": all in order");
  return 0;
}

// NAME [DAYS] [SEED]
template <class Life>
int soak(int argc, char** argv, int days, unsigned seed) {
  return soak<Life>(argc > 1 ? std::atoi(argv[1]) : days,
                    argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : seed);
}

}  // namespace evac

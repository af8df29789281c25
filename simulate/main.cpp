// console-simulate --seed N --days D: the whole system from one seed on a virtual clock. Ends with status 1
// when a rule is broken, and then prints the seed and writes a drill that repeats the day as nearly as it
// can.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "simulate/simulation.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "usage: console-simulate [--seed N] [--seeds COUNT] [--days D] [--minutes M] [--drill FILE]\n"
    "  --seed N       the first seed, 1 if none is named\n"
    "  --seeds COUNT  so many seeds, one behind the other\n"
    "  --days D       virtual days of each, 1 if not said\n"
    "  --minutes M    no new seed is begun after so many minutes\n"
    "  --drill FILE   where the drill of a broken rule goes, simulate-SEED.drill if not said\n";

// A fresh directory, in memory where there is such a place, removed with all in it.
class Scratch {
 public:
  Scratch() {
    const fs::path memory = "/dev/shm";
    std::string name =
        ((fs::is_directory(memory) ? memory : fs::temp_directory_path()) / "simulate-XXXXXX").string();
    if (!mkdtemp(name.data())) std::abort();
    path = name;
  }
  ~Scratch() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  fs::path path;
};

struct Totals {
  double days = 0;
  int seeds = 0;
};

bool live(unsigned seed, double days, const std::string& drill, Totals& totals) {
  const Scratch scratch;
  evac::simulate::Simulation simulation(scratch.path, seed);
  bool whole = true;
  std::string why;
  try {
    simulation.live(days);
  } catch (const evac::simulate::Broken& broken) {
    whole = false;
    why = broken.what();
  }
  totals.days += simulation.days();
  ++totals.seeds;
  const auto& did = simulation.counts();
  const auto& saw = simulation.rules().counts;
  std::printf(
      "seed %u, %.3f days: %ld starts, %ld kills, %ld presses, %ld fires, %ld restarts; faults: %ld line, "
      "%ld disk, %ld "
      "others, %ld steps; %ld polls, %ld zones journalled, %ld saves, %ld seconds of the status file, %ld "
      "contacts (%ld answered, %ld of "
      "them "
      "certain, %ld opened early)",
      seed, simulation.days(), did.starts, did.kills, did.presses, did.fires, did.restarts, did.line_faults,
      did.disk_faults, did.other_faults, did.steps, saw.polls, saw.zones, saw.saves, saw.seconds,
      saw.contacts, saw.answered, saw.certain, saw.opened_early);
  std::printf("; at most %d frames waiting, %td KiB of stack\n", saw.most_frames, saw.deepest / 1024);
  for (const auto& [excuse, times] : saw.excused)
    std::printf("  not answered, and told so, %ld times: %s\n", times, excuse.c_str());
  for (const auto& [fault, times] : did.told_faults)
    std::printf("  fault %s, %ld times\n", fault.c_str(), times);
  if (whole) return true;
  const std::string file = drill.empty() ? "simulate-" + std::to_string(seed) + ".drill" : drill;
  std::ofstream(file) << simulation.as_drill(why);
  std::printf("BROKEN, seed %u, day %.4f: %s\n  told again in %s\n", seed, simulation.days(), why.c_str(),
              file.c_str());
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  unsigned seed = 1;
  int seeds = 1;
  double days = 1, minutes = 1e9;
  std::string drill;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    const bool more = i + 1 < argc;
    if (word == "--help") {
      std::fputs(kUsage, stdout);
      return 0;
    }
    if (word == "--seed" && more) {
      seed = static_cast<unsigned>(std::strtoul(argv[++i], nullptr, 10));
    } else if (word == "--seeds" && more) {
      seeds = std::atoi(argv[++i]);
    } else if (word == "--days" && more) {
      days = std::atof(argv[++i]);
    } else if (word == "--minutes" && more) {
      minutes = std::atof(argv[++i]);
    } else if (word == "--drill" && more) {
      drill = argv[++i];
    } else {
      std::fputs(kUsage, stderr);
      return 2;
    }
  }
  using Clock = std::chrono::steady_clock;
  const auto began = Clock::now();
  const auto seconds = [&] { return std::chrono::duration<double>(Clock::now() - began).count(); };
  Totals totals;
  bool whole = true;
  for (int n = 0; n < seeds && whole && seconds() < minutes * 60; ++n)
    whole = live(seed + static_cast<unsigned>(n), days, drill, totals);
  std::printf("%d seeds, %.2f days in %.1f s: %.2f virtual days a second\n", totals.seeds, totals.days,
              seconds(), totals.days / seconds());
  return whole ? 0 : 1;
}

// desktop-endurance DIR SECONDS POLL_MS: the desktop on its virtual rack, with the training set under DIR.
// Prints its memory and its share of a core, ten times over the time given.
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "desktop/desktop.h"

namespace {

using namespace evac::desktop;
using Clock = std::chrono::steady_clock;

double processor_seconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + time.tv_usec / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

long resident_kib() {
  long pages = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return resident * sysconf(_SC_PAGESIZE) / 1024;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 4) {
    std::fprintf(stderr, "usage: desktop-endurance DIR SECONDS POLL_MS\n");
    return 2;
  }
  const std::chrono::seconds part(std::max(1, std::atoi(argv[2]) / 10));
  const std::chrono::milliseconds poll(std::atoi(argv[3]));
  HostSetup setup = training_setup(argv[1]);
  setup.sound_sink = "fake";
  auto owned = std::make_unique<TrainingLine>(setup.ports.at(1));
  TrainingLine& line = *owned;
  Desktop desktop(setup, std::move(owned));
  desktop.start();
  line.change([poll](evac::rack::Rack& rack) { rack.set_poll_period(poll); });
  for (int i = 1; i <= 10; ++i) {
    const double before = processor_seconds();
    const auto start = Clock::now();
    while (Clock::now() < start + part) desktop.pump();
    const std::chrono::duration<double> taken = Clock::now() - start;
    std::printf("%5lld s: %ld KiB resident, %.2f %% of a core\n", static_cast<long long>(part.count()) * i,
                resident_kib(), 100 * (processor_seconds() - before) / taken.count());
    std::fflush(stdout);
  }
}

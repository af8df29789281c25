// desktop-endurance DIR SECONDS POLL_MS: the desktop with the training set under DIR, its rack beside it.
// Prints its memory and its share of a core without the rack's, ten times over the time given.
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>

#include "measured_desktop.h"
#include "rack_apart.h"

namespace {

using namespace evac::desktop;

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

void endure(const std::filesystem::path& folder, std::chrono::seconds part, std::chrono::milliseconds poll) {
  const HostSetup setup = silent_training(folder);
  RackApart rack(setup.ports.at(1));
  MeasuredDesktop measured(setup, false);
  rack.change([poll](evac::rack::Rack& far) { far.set_poll_period(poll); });
  const auto used = [&rack] { return processor_seconds() - rack.processor_seconds(); };
  for (int i = 1; i <= 10; ++i) {
    const double before = used();
    const auto start = MeasureClock::now();
    measured.pass(part);
    std::printf("%5lld s: %ld KiB resident, %.2f %% of a core\n", static_cast<long long>(part.count()) * i,
                resident_kib(), 100 * (used() - before) / (ms_since(start) / 1000));
  }
}

}  // namespace

int main(int argc, char** argv) {
  return measure(argc, argv, 3, "desktop-endurance DIR SECONDS POLL_MS",
                 [](const std::vector<std::string>& arguments) {
                   endure(arguments[0], std::chrono::seconds(std::max(1, std::stoi(arguments[1]) / 10)),
                          std::chrono::milliseconds(std::stoi(arguments[2])));
                 });
}

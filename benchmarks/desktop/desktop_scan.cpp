// desktop-scan DIR [silent]: one scan of 255 terminals by the desktop, with the training set under DIR, on a
// line of 4800 baud whose rack works beside it. Prints how long it takes and, when the terminals answer, its
// share of what the line itself needs.
#include <cstdio>

#include "measured_desktop.h"
#include "rack_apart.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using std::chrono::milliseconds;

constexpr int kTerminals = 255;
constexpr double kFrame = 9 * 11 / 4800.0;  // seconds of a frame on the line
constexpr int kControlTab = 5;

void scan(const std::filesystem::path& folder, bool silent) {
  const HostSetup setup = silent_training(folder);
  RackApart rack(setup.ports.at(1));
  MeasuredDesktop measured(setup, false);
  rack.change([silent](rack::Rack& far) {
    far.set_paced(true);
    far.set_answer_delay(milliseconds(0));
    for (int t = 1; t <= kTerminals; ++t) far.set_silent(t, silent);
  });
  measured.desktop().console().model().terminals.term_count = kTerminals;
  measured.window().showNormal();
  measured.window().resize(1280, 800);
  measured.form().SSTab1.set_value(kControlTab);
  measured.pass(milliseconds(1500));
  const auto start = MeasureClock::now();
  measured.form().CmdSkan.click();
  while (measured.desktop().console().model().supervision.ScanRunning) measured.desktop().pump();
  const double seconds = ms_since(start) / 1000, limit = kTerminals * 2 * kFrame;
  std::printf("scan of %d terminals: %d rows in %.2f s", kTerminals, measured.form().MSF2.row_count(),
              seconds);
  if (!silent) std::printf(", %.3f of the line's own limit", seconds / limit);
  std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
  return measure(argc, argv, 1, "desktop-scan DIR [silent]", [](const std::vector<std::string>& arguments) {
    scan(arguments[0], arguments.size() > 1 && arguments[1] == "silent");
  });
}

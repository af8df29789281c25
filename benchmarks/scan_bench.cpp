// A pass of the scan over all terminals on a line of 4800 baud, on the virtual clock: how long it takes on
// the line, against what the line itself needs, and what it costs this machine.
#include <benchmark/benchmark.h>

#include "benchmarks/rack_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

// A query and its answer, nine characters of eleven bits each.
constexpr double kLineSeconds = 2 * 9 * 11 / 4800.0;
constexpr double kMostOfLine = 1.05;

void scan(benchmark::State& state, bool silent) {
  RackRig rig;
  rig.logging = false;
  rig.settle_terminals(kTerminals);
  rig.start();
  rig.rack.set_paced(true);
  rig.rack.set_answer_delay(0ms);
  for (int t = 1; t <= kTerminals; ++t) rig.rack.set_silent(t, silent);
  rig.run(1s);
  double seconds = 0;
  for (auto _ : state) seconds = rig.scan();
  const int rows = rig.console->form1().MSF2.row_count();
  state.counters["line_seconds"] = seconds;
  state.counters["of_the_line"] = seconds / (kTerminals * kLineSeconds);
  state.counters["rows"] = rows;
  if (rows != (silent ? 0 : kTerminals)) state.SkipWithError("a terminal was not taken");
  if (!silent && seconds > kMostOfLine * kTerminals * kLineSeconds)
    state.SkipWithError("slower than the line");
}

void BM_ScanOf255AnsweringTerminals(benchmark::State& state) {
  scan(state, false);
}
BENCHMARK(BM_ScanOf255AnsweringTerminals)->Unit(benchmark::kMillisecond);

void BM_ScanOf255SilentTerminals(benchmark::State& state) {
  scan(state, true);
}
BENCHMARK(BM_ScanOf255SilentTerminals)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace evac

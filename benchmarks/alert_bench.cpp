// The alert's tick: with nothing new, also with an algorithm running, and one that starts an algorithm over
// all zones. Counts allocations, frames and appends to files besides the time.
#include <benchmark/benchmark.h>

#include "benchmarks/allocations.h"
#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

// A machine whose trace counts what the alert must not do.
struct BenchRig : AlertRig {
  BenchRig() {
    logging = false;
    sound("fire.wav", 36000);
    settle(controller_settings());
    const std::string all(kZones, '1');
    settle_steps({algorithm_record("1", 1, "fire.wav", "2", all), step_record(33, 1, 1, 1)});
    start();
  }
  void tick() { console->form1().Timer4.tick(); }
  std::uintmax_t journal_bytes() {
    std::string bytes;
    must(machine.files().read("C:\\ZEF\\protocol\\П-" + medium_date_text(date_of(machine.wall())), bytes));
    return bytes.size();
  }
};

void count(benchmark::State& state, BenchRig& rig, long before, std::uintmax_t journal) {
  const auto ticks = static_cast<double>(state.iterations());
  state.counters["allocations"] = static_cast<double>(allocations() - before) / ticks;
  state.counters["frames"] = static_cast<double>(rig.machine.sent().size()) / ticks;
  state.counters["journal_bytes"] = static_cast<double>(rig.journal_bytes() - journal) / ticks;
}

// Argument: 0 watching; 1 an algorithm runs on a contact that stays closed; 2 the block's type, watching.
void BM_AlertTickWithNothingNew(benchmark::State& state) {
  BenchRig rig;
  if (state.range(0) == 1) rig.machine.set_contact(33, true);
  if (state.range(0) == 2) rig.console->model().settings.SettingsLine[kAlertType] = "1";
  rig.run(1s);
  rig.forget();
  const auto journal = rig.journal_bytes();
  const long before = allocations();
  for (auto _ : state) rig.tick();
  count(state, rig, before, journal);
}
BENCHMARK(BM_AlertTickWithNothingNew)->Arg(0)->Arg(1)->Arg(2);

// One look of the watch that finds nothing new. Argument: 0 calm; 1 every contact closed, with an algorithm
// for each, an alert running and the rest waiting; 2 the block's type with every contact closed.
void BM_WatchLookWithNothingNew(benchmark::State& state) {
  BenchRig rig;
  if (state.range(0) == 1) {
    std::vector<std::string> steps;
    for (int zone = 1; zone <= kZones; ++zone) steps.push_back(step_record(zone, 1, 1, zone));
    rig.settle_steps(steps);
    rig.start();
  }
  if (state.range(0) == 2) rig.console->model().settings.SettingsLine[kAlertType] = "1";
  for (int zone = 1; state.range(0) > 0 && zone <= kContacts; ++zone) rig.machine.set_contact(zone, true);
  rig.run(1s);
  long changes = 0;
  rig.console->watch().changed = [&] { ++changes; };
  const long before = allocations();
  for (auto _ : state) rig.console->watch().look();
  state.counters["allocations"] = static_cast<double>(allocations() - before);
  state.counters["changes"] = static_cast<double>(changes);
}
BENCHMARK(BM_WatchLookWithNothingNew)->Arg(0)->Arg(1)->Arg(2);

// The tick that finds the fire: 240 frames and 123 lines of the journal, each on the disk when it is written.
void BM_AlertTickThatStarts120Zones(benchmark::State& state) {
  BenchRig rig;
  rig.machine.set_contact(1, true);
  const long before = allocations();
  const auto journal = rig.journal_bytes();
  for (auto _ : state) {
    rig.tick();
    state.PauseTiming();
    rig.console->form1().Timer7.set_enabled(false);
    rig.alert().al_active = rig.alert().al_bank[1] = false;
    rig.alert().fire_seen[1].fill(0);
    state.ResumeTiming();
  }
  count(state, rig, before, journal);
}
BENCHMARK(BM_AlertTickThatStarts120Zones)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace evac

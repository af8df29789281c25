// The weekly timer with a programme of 10,000 records, far more than an editor makes: its load, the memory
// that it takes, the search for the nearest event, and its way into the editor.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "store/programme_files.h"
#include "store/timer_record.h"
#include "tests/scratch.h"
#include "tests/stored_data.h"
#include "timer/nearest_event.h"
#include "timer/programmes.h"

namespace evac {
namespace {

constexpr int kRecords = 10000;

std::vector<std::string> full_programme() {
  std::vector<std::string> records;
  for (int i = 0; i < kRecords; ++i)
    records.push_back(
        timer_record({std::to_string(i % 1000), std::to_string(i % 24), std::to_string(i % 60),
                      std::to_string(i % 59), "127", "Урок закончен.wav", "1", "250", "Сообщение"}));
  return records;
}

// The rooms of the timer alone, without a console around them.
struct TimerDesk {
  TimerDesk() {
    (void)machine.files().make_folder(data.folder.path("timer"));
    must(write_programme(data.folder, "Школа", full_programme()));
  }

  Scratch scratch;
  drill::VirtualMachine machine{scratch.path};
  StoredData data{machine.files()};
  Windows windows{machine.loop(), machine};
  FrmTm form{windows};
  TimerState timer;
  Programmes programmes{{.timer = timer,
                         .folder = data.folder,
                         .entries = form.Lst1,
                         .loop = machine.loop(),
                         .boxes = machine}};
};

void BM_TimerLoadsProgramme(benchmark::State& state) {
  TimerDesk desk;
  const auto before = mallinfo2().uordblks;
  for (auto _ : state) desk.programmes.ProgLoad("Школа");
  state.counters["kilobytes"] = static_cast<double>(mallinfo2().uordblks - before) / 1024;
}
BENCHMARK(BM_TimerLoadsProgramme)->Unit(benchmark::kMillisecond);

void BM_TimerSearches(benchmark::State& state) {
  TimerDesk desk;
  desk.programmes.ProgLoad("Школа");
  for (auto _ : state) benchmark::DoNotOptimize(NearestEvent(desk.timer.events, 3, 43200));
}
BENCHMARK(BM_TimerSearches)->Unit(benchmark::kMicrosecond);

// The editor, on a programme that is there: every row goes through the controls.
void BM_TimerEditorTakesProgramme(benchmark::State& state) {
  TimerDesk desk;
  Console console(desk.machine.machine());
  console.load();
  ComboBox& names = console.forms().form3.CmbLstProg;
  names.add("Школа");
  for (auto _ : state) names.pick(0);
  if (console.forms().form3.Lst1.count() != kRecords) state.SkipWithError("rows are missing");
}
BENCHMARK(BM_TimerEditorTakesProgramme)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace evac

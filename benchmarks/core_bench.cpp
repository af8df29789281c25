// The receive machine, an idle second of the console, its start, and changes of controls.
#include <benchmark/benchmark.h>

#include <vector>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "tests/scratch.h"

namespace evac {
namespace {

// Bytes a second through the receive machine and the dispatcher: status frames, which are not answered.
void BM_ReceiveMachine(benchmark::State& state) {
  Scratch scratch;
  drill::VirtualMachine machine(scratch.path);
  Console console(machine.machine());
  console.load();
  std::vector<std::uint8_t> bytes;
  for (int i = 0; i < 1000; ++i)
    for (const int byte : {0xAA, 0xAA, 0x30, 0, 0, i & 3, 0, 0, 0})
      bytes.push_back(static_cast<std::uint8_t>(byte));
  for (auto _ : state) {
    machine.receive(bytes);
    machine.run_for(std::chrono::milliseconds(0));
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_ReceiveMachine);

void BM_IdleSecond(benchmark::State& state) {
  Scratch scratch;
  drill::VirtualMachine machine(scratch.path);
  Console console(machine.machine());
  console.load();
  for (auto _ : state) machine.run_for(std::chrono::seconds(1));
}
BENCHMARK(BM_IdleSecond);

void BM_StartUp(benchmark::State& state) {
  Scratch scratch;
  drill::VirtualMachine machine(scratch.path);
  for (auto _ : state) {
    Console console(machine.machine());
    console.load();
    benchmark::DoNotOptimize(console.model());
    state.PauseTiming();
    machine.clear_process();
    machine.sent().clear();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_StartUp)->Unit(benchmark::kMillisecond);

struct CountingView : ControlView {
  void control_changed(Control&) override { ++changes; }
  void focus_wanted(Control&) override {}
  long changes = 0;
};

// Changes of captions and colours of 120 buttons; the argument tells whether a view looks on.
void BM_ControlChanges(benchmark::State& state) {
  Scratch scratch;
  drill::VirtualMachine machine(scratch.path);
  Windows windows(machine.loop(), machine);
  Form form(windows, "Form1", "");
  ControlArray<Button> buttons(form.place(), "CmdAZ", 1, 120, "");
  CountingView view;
  if (state.range(0))
    for (Button& button : buttons) button.attach(&view);
  bool on = false;
  for (auto _ : state) {
    on = !on;
    for (Button& button : buttons) {
      button.set_caption(on ? "1" : "2");
      button.set_back_color(on ? Color::kOn : Color::kButtonFace);
    }
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * 240);
}
BENCHMARK(BM_ControlChanges)->Arg(0)->Arg(1);

}  // namespace
}  // namespace evac

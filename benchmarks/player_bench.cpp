// The player with a list of 10,000 tracks: each press that touches all of it; and a search through 1,000
// files.
#include <benchmark/benchmark.h>

#include <fstream>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "platform/user.h"
#include "store/play_list_file.h"
#include "tests/scratch.h"

namespace evac {
namespace {

constexpr int kTracks = 10000, kSearched = 1000;
const std::string kFolder = "C:\\music";

std::string track(int n) {
  return kFolder + "\\Дорожка номер " + std::to_string(n) + ".mp3";
}

struct PlayerDesk {
  explicit PlayerDesk(int tracks, std::string_view bytes = "x") {
    (void)machine.files().make_folder(kFolder);
    (void)machine.files().make_folder("C:\\ZEF\\PlayList");
    const auto folder = machine.files().locate(kFolder);
    std::vector<std::string> paths;
    for (int n = 1; n <= tracks; ++n) {
      paths.push_back(track(n));
      std::ofstream(machine.files().locate(kFolder) / paths.back().substr(kFolder.size() + 1)) << bytes;
    }
    machine.set_sound(track(1), 100);
    (void)write_play_list(machine.files(), "C:\\ZEF\\Play-list1", paths);
    console.load();
    form1().CmdPMP.click();
  }
  Form1& form1() { return console.form1(); }
  void answer(drill::Answer::Kind kind) { machine.queue_answer({kind, {}, {}}); }
  void load_list() {
    if (!form1().LstPll.visible()) form1().CmdLpl.click();
    user::pick(form1().LstPll, 0);
    answer(drill::Answer::Kind::kYes);
    user::double_click(form1().LstPll);
    if (form1().LstPtreckMP.count() == 0) throw std::runtime_error("nothing was loaded");
  }
  void open_folder() {
    if (!form1().LstAddList.visible()) form1().CmdAddPl.click();
    form1().Dir2.point_at(kFolder);
  }

  Scratch scratch;
  drill::VirtualMachine machine{scratch.path};
  Console console{machine.machine()};
};

void BM_PlayerLoadsList(benchmark::State& state) {
  PlayerDesk desk(kTracks);
  for (auto _ : state) desk.load_list();
}
BENCHMARK(BM_PlayerLoadsList)->Unit(benchmark::kMillisecond);

void BM_PlayerOpensFolder(benchmark::State& state) {
  PlayerDesk desk(kTracks);
  for (auto _ : state) desk.open_folder();
}
BENCHMARK(BM_PlayerOpensFolder)->Unit(benchmark::kMillisecond);

// The whole folder into the list by one press, which begins empty.
void BM_PlayerAddsFolder(benchmark::State& state) {
  PlayerDesk desk(kTracks);
  for (auto _ : state) {
    state.PauseTiming();
    desk.open_folder();
    desk.form1().LstPtreckMP.clear();
    desk.console.model().player.mp_list.clear();
    state.ResumeTiming();
    user::right_press(desk.form1().LstAddList);
  }
}
BENCHMARK(BM_PlayerAddsFolder)->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_PlayerSelectsTrack(benchmark::State& state) {
  PlayerDesk desk(kTracks);
  desk.load_list();
  int row = 0;
  for (auto _ : state) user::pick(desk.form1().LstPtreckMP, row = (row + 4999) % kTracks);
}
BENCHMARK(BM_PlayerSelectsTrack)->Unit(benchmark::kMillisecond);

// Rewrites the list file too, which is on the disk when the press is over.
void BM_PlayerDeletesTrack(benchmark::State& state) {
  PlayerDesk desk(kTracks);
  desk.load_list();
  for (auto _ : state) {
    state.PauseTiming();
    user::pick(desk.form1().LstPtreckMP, 17);
    desk.answer(drill::Answer::Kind::kYes);
    state.ResumeTiming();
    user::right_press(desk.form1().LstPtreckMP);
  }
}
BENCHMARK(BM_PlayerDeletesTrack)->Unit(benchmark::kMillisecond)->Iterations(50);

// The folder PlayList with 10,000 files: read when the player comes on.
void BM_PlayerPowersUp(benchmark::State& state) {
  PlayerDesk desk(kTracks);
  std::filesystem::rename(desk.machine.files().locate(kFolder), desk.scratch.path / "c/ZEF/full");
  std::filesystem::remove(desk.machine.files().locate("C:\\ZEF\\PlayList"));
  std::filesystem::rename(desk.scratch.path / "c/ZEF/full", desk.scratch.path / "c/ZEF/PlayList");
  Button& power = desk.form1().CmdPMP;
  for (auto _ : state) {
    state.PauseTiming();
    power.click();
    state.ResumeTiming();
    power.click();
    if (desk.form1().LstPtreckMP.count() != kTracks) throw std::runtime_error("not all tracks are there");
  }
}
BENCHMARK(BM_PlayerPowersUp)->Unit(benchmark::kMillisecond)->Iterations(20);

// Files of 64 kB, of which a search reads the last 128 bytes.
void BM_PlayerSearches1000Files(benchmark::State& state) {
  PlayerDesk desk(kSearched, std::string(1 << 16, 'x'));
  desk.load_list();
  desk.answer(drill::Answer::Kind::kYes);
  desk.form1().CmdSeek.click();
  desk.form1().TxtSeek.set_text("нет такого");
  for (auto _ : state) desk.form1().CmdSeekOk.click();
}
BENCHMARK(BM_PlayerSearches1000Files)->Unit(benchmark::kMillisecond);

void BM_PlayerMeasures1000Files(benchmark::State& state) {
  PlayerDesk desk(kSearched);
  desk.load_list();
  for (auto _ : state) {
    desk.answer(drill::Answer::Kind::kYes);
    desk.form1().CmdSVL.click();
    desk.form1().CmdSVL.click();
  }
}
BENCHMARK(BM_PlayerMeasures1000Files)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace evac

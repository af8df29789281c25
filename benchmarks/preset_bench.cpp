// A full preset of terminals, 510 records: loaded and saved as the console does it, and the same job in
// SQLite with its default durability. Both are on disk when a save returns.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <stdexcept>

#include "machine/posix_files.h"
#include "store/settings_files.h"
#include "tests/scratch.h"
#include "tests/stored_data.h"

namespace evac {
namespace {

const std::string kPreset = preset_file(1);

std::vector<CellRecord> full_preset() {
  std::vector<CellRecord> cells;
  for (int t = 1; t <= kTerminals; ++t)
    cells.push_back({std::to_string(t), static_cast<std::int16_t>(t % kChannels + 1)});
  return cells;
}

void BM_PresetLoad(benchmark::State& state) {
  Scratch scratch;
  PosixFiles files({{'C', scratch.path}});
  StoredData data(files);
  must(write_cells(data.folder, kPreset, full_preset()));
  std::vector<CellRecord> cells;
  for (auto _ : state) {
    must(read_cells(data.folder, kPreset, kTerminals, cells));
    benchmark::DoNotOptimize(cells);
  }
}
BENCHMARK(BM_PresetLoad)->Unit(benchmark::kMicrosecond);

void BM_PresetSave(benchmark::State& state) {
  Scratch scratch;
  PosixFiles files({{'C', scratch.path}});
  StoredData data(files);
  const auto cells = full_preset();
  for (auto _ : state) must(write_cells(data.folder, kPreset, cells));
}
BENCHMARK(BM_PresetSave)->Unit(benchmark::kMicrosecond);

class Database {
 public:
  explicit Database(const std::filesystem::path& folder) {
    check(sqlite3_open((folder / "preset.db").c_str(), &db_));
    run("CREATE TABLE IF NOT EXISTS cell(number INTEGER PRIMARY KEY, label TEXT, channel INTEGER)");
  }
  ~Database() { sqlite3_close(db_); }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  std::vector<CellRecord> load() {
    std::vector<CellRecord> cells;
    sqlite3_stmt* rows = prepare("SELECT label, channel FROM cell ORDER BY number");
    while (sqlite3_step(rows) == SQLITE_ROW)
      cells.push_back({text(rows, 0), static_cast<std::int16_t>(sqlite3_column_int(rows, 1))});
    check(sqlite3_finalize(rows));
    return cells;
  }

  void save(const std::vector<CellRecord>& cells) {
    run("BEGIN");
    sqlite3_stmt* put = prepare("REPLACE INTO cell VALUES(?, ?, ?)");
    int number = 0;
    for (const auto& cell : cells) {
      sqlite3_bind_int(put, 1, ++number);
      sqlite3_bind_text(put, 2, cell.label.c_str(), -1, SQLITE_STATIC);
      sqlite3_bind_int(put, 3, cell.channel);
      if (sqlite3_step(put) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(db_));
      check(sqlite3_reset(put));
    }
    check(sqlite3_finalize(put));
    run("COMMIT");
  }

 private:
  void check(int result) {
    if (result != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(db_));
  }
  void run(const char* sql) { check(sqlite3_exec(db_, sql, nullptr, nullptr, nullptr)); }
  sqlite3_stmt* prepare(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(db_, sql, -1, &statement, nullptr));
    return statement;
  }
  static std::string text(sqlite3_stmt* row, int column) {
    return reinterpret_cast<const char*>(sqlite3_column_text(row, column));
  }

  sqlite3* db_ = nullptr;
};

// The database stays open over all jobs when the argument is 1; else each job opens it, as the console opens
// its file.
void BM_SqliteLoad(benchmark::State& state) {
  Scratch scratch;
  Database kept(scratch.path);
  kept.save(full_preset());
  for (auto _ : state) benchmark::DoNotOptimize(state.range(0) ? kept.load() : Database(scratch.path).load());
}
BENCHMARK(BM_SqliteLoad)->ArgName("kept_open")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_SqliteSave(benchmark::State& state) {
  Scratch scratch;
  Database kept(scratch.path);
  const auto cells = full_preset();
  for (auto _ : state) {
    if (state.range(0))
      kept.save(cells);
    else
      Database(scratch.path).save(cells);
  }
}
BENCHMARK(BM_SqliteSave)->ArgName("kept_open")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace evac

// The alert's files: their bytes, their faults, and what a thousand ways of damage do to them.
#include <gtest/gtest.h>

#include <random>

#include "tests/alert_rig.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

TEST(AlgorithmRecord, FieldsAreCutOutByTheirOwnEnds) {
  const std::string record = algorithm_record("1207", 12, "сообщение номер двадцать.wav", "1000", "01");
  EXPECT_EQ(record, "120\t|12\t |сообщение номер двад\t  |100\t   |01");
  const std::string_view fields[] = {"", "120\t", "12", "сообщение номер двад", "100", "01", ""};
  for (int n = 0; n <= 6; ++n) EXPECT_EQ(AlgField(record, n), fields[n]) << n;
  EXPECT_EQ(AlgField("", 3), "");
  // Blanks around a field go, those within it stay.
  EXPECT_EQ(AlgField("7\t| 2 \t | a b .wav \t  | 3\t   | 1 ", 3), "a b .wav");
  EXPECT_EQ(AlgField("7\t| 2 \t | a b .wav \t  | 3\t   | 1 ", 5), "1");
  // Ends that are missing stand at the head: nothing fails.
  EXPECT_EQ(AlgField("no ends at all", 1), "");
  EXPECT_EQ(AlgField("7\t|no more ends", 4), "");
}

class AlertFiles : public testing::Test, protected AlertRig {
 protected:
  void SetUp() override { sound("fire.wav", 3); }
  std::string bytes_of(const std::string& path) {
    std::string bytes;
    machine.files().read(path, bytes);
    return bytes;
  }
  const std::string& table(int zone, int step) { return algorithms.AlgZoneTable[zone][step]; }
  std::vector<std::string> boxes() {
    const std::vector<std::string> texts(machine.raised().begin(), machine.raised().end());
    machine.raised().clear();
    return texts;
  }
  using Texts = std::vector<std::string>;

  SettingsState settings;
  AlgorithmState algorithms;
  AlertStore store{
      {.settings = settings, .algorithms = algorithms, .files = machine.files(), .boxes = machine}};
};

TEST_F(AlertFiles, AreLaidOutByteForByteAndReadBackTheSame) {
  for (int i = 0; i < kSettingsLines; ++i) settings.SettingsLine[i] = std::to_string(i);
  settings.SettingsLine[kBlockMessage] = "Пожар.wav";
  store.SaveSettings();
  std::string bytes = bytes_of(kSettingsPath);
  EXPECT_EQ(bytes.size(), 13u * 256);
  EXPECT_EQ(bytes.substr(2 * 256, 11), std::string("\x09\0\xCF\xEE\xE6\xE0\xF0.wav", 11));
  EXPECT_EQ(bytes.substr(12 * 256, 4), std::string("\x02\00012", 4));
  const auto written = settings.SettingsLine;
  settings.SettingsLine.fill("x");
  store.LoadSettings();
  for (int i = 0; i < kSettingsLines; ++i) EXPECT_EQ(settings.SettingsLine[i], written[i]);

  AlertStore::AlgorithmLines lines;
  lines[2] = {step_record(2, 1, 1, 1), step_record(2, 2, 1, 2)};
  lines[120] = {step_record(120, 1, 1, 3)};
  store.SaveAlgorithms(lines);
  bytes = bytes_of(kAlgorithmPath);
  EXPECT_EQ(bytes.size(), 3u * 512);
  EXPECT_EQ(bytes.substr(2 * 512 + 2, 5), "120\t|");
  EXPECT_EQ(static_cast<unsigned char>(bytes[0]), lines[2][0].size());
  algorithms.AlgZoneTable[1][1] = "stale";
  store.LoadAlgorithms();
  EXPECT_EQ(table(1, 1), "");
  EXPECT_EQ(table(2, 2), lines[2][1]);
  EXPECT_EQ(table(120, 1), lines[120][0]);
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(AlertFiles, AMissingFileIsMadeEmptyAndSilent) {
  settings.SettingsLine.fill("x");
  store.LoadSettings();
  store.LoadAlgorithms();
  EXPECT_EQ(settings.SettingsLine[kScanCycles], "");
  EXPECT_TRUE(machine.files().is_file(kSettingsPath));
  EXPECT_TRUE(machine.files().is_file(kAlgorithmPath));
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(AlertFiles, ALowerNumberEndsTheReadingAndOneOutsideTheTableIsAFault) {
  settle_steps({step_record(5, 1, 1, 1), step_record(4, 1, 1, 2), step_record(6, 1, 1, 3)});
  store.LoadAlgorithms();
  EXPECT_NE(table(5, 1), "");
  EXPECT_EQ(table(4, 1) + table(6, 1), "");
  EXPECT_EQ(boxes(), Texts{});

  for (const std::string& number :
       {std::string("121"), std::string("99999999999999"), std::string(400, '9')}) {
    settle_steps({step_record(5, 1, 1, 1), number + "\t|1\t |", step_record(6, 1, 1, 3)});
    store.LoadAlgorithms();
    EXPECT_NE(table(5, 1), "");
    EXPECT_EQ(table(6, 1), "");
    EXPECT_EQ(boxes(), Texts{"Ошибка чтения файла f_al.dat 9"}) << number;
  }
  settle_steps(Texts(121, step_record(120, 1, 1, 1)));
  store.LoadAlgorithms();
  EXPECT_NE(table(120, 120), "");
  EXPECT_EQ(boxes(), Texts{"Ошибка чтения файла f_al.dat 9"});
}

TEST_F(AlertFiles, AFileThatCannotBeReadOrWrittenIsToldAndLosesNothing) {
  machine.files().make_folder(kSettingsPath);
  machine.files().make_folder(kAlgorithmPath);
  settings.SettingsLine.fill("x");
  store.LoadSettings();
  store.LoadAlgorithms();
  EXPECT_EQ(settings.SettingsLine[kAlertType], "x");
  EXPECT_EQ(boxes(), (Texts{"Ошибка чтения файла f_al_str,dat 75", "Ошибка чтения файла f_al.dat 75"}));
  AlertStore::AlgorithmLines lines;
  lines[1] = {step_record(1, 1, 1, 1)};
  store.SaveAlgorithms(lines);
  store.SaveSettings();
  EXPECT_EQ(table(1, 1), "");
  EXPECT_EQ(boxes(), (Texts{"Ошибка записи в файл f_al.dat 75", "Ошибка записи f_al_str.dat 75"}));
}

TEST_F(AlertFiles, MoreStepsThanTheTableHoldsAreRefusedAndTheOldFileStays) {
  AlertStore::AlgorithmLines lines;
  lines[1].assign(120, step_record(1, 1, 1, 1));
  store.SaveAlgorithms(lines);
  EXPECT_EQ(boxes(), Texts{});
  const std::string before = bytes_of(kAlgorithmPath);
  lines[1].push_back(step_record(1, 121, 1, 1));
  store.SaveAlgorithms(lines);
  EXPECT_EQ(boxes(), Texts{"Ошибка записи в файл f_al.dat 9"});
  EXPECT_EQ(bytes_of(kAlgorithmPath), before);
}

// Bytes overwritten, cut off, put in, doubled; numbers blown up.
std::string damaged(std::string bytes, std::mt19937& random) {
  const auto below = [&](std::size_t n) { return n == 0 ? 0 : random() % n; };
  for (std::size_t blows = 1 + below(6); blows > 0; --blows) {
    const std::size_t at = below(bytes.size());
    switch (below(6)) {
      case 0:
        bytes[at] = static_cast<char>(random());
        break;
      case 1:
        bytes.resize(at);
        break;
      case 2:
        bytes.insert(at, 1 + below(40), static_cast<char>(random()));
        break;
      case 3:
        bytes.erase(at, 1 + below(300));
        break;
      case 4: {  // a record's text becomes a long row of digits
        const std::size_t record = at / 256 * 256;
        if (record + 40 > bytes.size()) break;
        bytes.replace(record, 32,
                      "\x1E" + std::string(1, '\0') + (below(2) ? "-" : "9") + std::string(29, '9'));
        break;
      }
      default:
        bytes += bytes.substr(0, 1 + below(2000));
        break;
    }
    if (bytes.empty()) break;
  }
  return bytes;
}

// Whatever a file holds, what comes before the damage is read, and the rest is read, left out or reported.
// With every tenth damage a console starts and lives through a fire, a second one, resets and a manual
// message.
class DamagedAlertFiles : public AlertFiles, public testing::WithParamInterface<std::string> {
 protected:
  void load(const std::string& whole, const std::string& bytes) {
    store.LoadSettings();
    store.LoadAlgorithms();
    for (const auto& text : boxes()) EXPECT_EQ(text, "Ошибка чтения файла f_al.dat 9");
    const auto intact = static_cast<int>(
        std::mismatch(whole.begin(), whole.end(), bytes.begin(), bytes.end()).first - whole.begin());
    for (int i = 0; GetParam() == kSettingsPath && i < intact / 256; ++i)
      EXPECT_EQ(settings.SettingsLine[i], controller_settings()[static_cast<std::size_t>(i)]);
    if (GetParam() == kAlgorithmPath && intact >= 512) {
      EXPECT_EQ(table(1, 1), step_record(1, 1, 2, 1));
    }
  }
  void live() {
    machine.set_contact(1, false);
    machine.set_contact(33, false);
    start();
    machine.set_contact(1, true);
    run(5s);
    machine.set_contact(33, true);
    run(5s);
    auto& form = console->form1();
    for (int i = 0; i < 2; ++i) form.CmdStF.click();
    machine.queue_answer({drill::Answer::Kind::kYes, "", 0ms});
    form.CmdAl.click();
    run(5s);
    form.CmdCan.click();
    run(1s);
    machine.raised().clear();
  }
};

TEST_P(DamagedAlertFiles, LoadOrAreReported) {
  logging = false;
  settle(controller_settings());
  settle_steps({step_record(1, 1, 2, 1), step_record(1, 2, 1, 2), step_record(7, 1, 3, 7),
                step_record(33, 1, 1, 33), step_record(96, 1, 100, 96)});
  const std::string whole = bytes_of(GetParam());
  for (unsigned seed = 0; seed < 1000; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const std::string bytes = damaged(whole, random);
    machine.files().replace(GetParam(), bytes);
    load(whole, bytes);
    if (seed % 10 == 0) {
      EXPECT_NO_THROW(live());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, DamagedAlertFiles, testing::Values(kAlgorithmPath, kSettingsPath),
                         [](const auto& info) { return info.param == kAlgorithmPath ? "f_al" : "f_al_str"; });

}  // namespace
}  // namespace evac

// The alert's files: their bytes and their faults.
#include <gtest/gtest.h>

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
  const std::string& table(int zone, int step) { return algorithms.AlgZoneTable[zone][step]; }
  using Texts = std::vector<std::string>;

  AlgorithmState algorithms;
  AlertStore store{{.settings = data.settings, .algorithms = algorithms, .folder = data.folder}};
  BoundedArray<std::string, 0, kSettingsLines - 1>& line = data.settings.SettingsLine;
};

TEST_F(AlertFiles, AreLaidOutByteForByteAndReadBackTheSame) {
  for (int i = 0; i < kSettingsLines; ++i) line[i] = std::to_string(i);
  line[kBlockMessage] = "Пожар.wav";
  ASSERT_EQ(store.SaveSettings(), kNoError);
  std::string bytes = data.bytes_of(kSettingsFile);
  EXPECT_EQ(bytes.size(), 13u * 256);
  EXPECT_EQ(bytes.substr(2 * 256, 11), std::string("\x09\0\xCF\xEE\xE6\xE0\xF0.wav", 11));
  EXPECT_EQ(bytes.substr(12 * 256, 4), std::string("\x02\00012", 4));
  const auto written = line;
  line.fill("x");
  ASSERT_EQ(store.LoadSettings(), kNoError);
  for (int i = 0; i < kSettingsLines; ++i) EXPECT_EQ(line[i], written[i]);

  AlertStore::AlgorithmLines lines;
  lines[2] = {step_record(2, 1, 1, 1), step_record(2, 2, 1, 2)};
  lines[120].assign(120, step_record(120, 1, 1, 3));
  ASSERT_EQ(store.SaveAlgorithms(lines), kNoError);
  bytes = data.bytes_of(kAlgorithmFile);
  EXPECT_EQ(bytes.size(), 122u * 512);
  EXPECT_EQ(bytes.substr(2 * 512 + 2, 5), "120\t|");
  EXPECT_EQ(static_cast<unsigned char>(bytes[0]), lines[2][0].size());
  algorithms.AlgZoneTable[1][1] = "stale";
  ASSERT_EQ(store.LoadAlgorithms(), kNoError);
  EXPECT_EQ(table(1, 1), "");
  EXPECT_EQ(table(2, 2), lines[2][1]);
  EXPECT_EQ(table(120, 120), lines[120][119]);
  EXPECT_TRUE(data.state.cut_files.empty());

  // More steps than the table holds are refused, and the file stays.
  lines[120].push_back(lines[120][0]);
  EXPECT_EQ(store.SaveAlgorithms(lines), kFileSubscript);
  EXPECT_EQ(data.bytes_of(kAlgorithmFile), bytes);
}

TEST_F(AlertFiles, ALowerNumberEndsTheReadingAndOneOutsideTheTableIsAFault) {
  const std::string good = step_record(5, 1, 1, 1), last = step_record(6, 1, 1, 3);
  struct Reading {
    Texts records;
    FileError error;
    bool cut;
  };
  for (const Reading& reading : {
           Reading{{good, last}, kNoError, false},
           Reading{{good, step_record(4, 1, 1, 2), last}, kNoError, true},
           Reading{{good, "", last}, kNoError, true},
           Reading{{good, "", "", ""}, kNoError, false},
           Reading{{good, "без номера"}, kNoError, true},
           Reading{{good, "121\t|1\t |", last}, kFileSubscript, true},
           Reading{{good, std::string(400, '9') + "\t|1\t |", last}, kFileSubscript, true},
           Reading{Texts(121, good), kFileSubscript, true},
       }) {
    SCOPED_TRACE(reading.records[1]);
    settle_steps(reading.records);
    EXPECT_EQ(store.LoadAlgorithms(), reading.error);
    EXPECT_EQ(table(5, 1), good);
    EXPECT_EQ(table(4, 1), "");
    EXPECT_EQ(table(6, 1) == last, reading.records.back() == last && !reading.cut);
    EXPECT_EQ(data.cut(kAlgorithmFile), reading.cut);
  }
}

}  // namespace
}  // namespace evac

#include "alert/algorithm_editor.h"

#include <algorithm>

#include "model/text.h"
#include "store/algorithm_record.h"

namespace evac {
namespace {

constexpr int kMessageTooLong = 20;

}  // namespace

void AlgorithmEditor::load() {
  for (int n = 1; n <= kZones; ++n) {
    doors_.form5.Lst1[n].clear();
    for (const auto& step : doors_.algorithms.AlgZoneTable[n])
      if (!step.empty()) doors_.form5.Lst1[n].add(step);
  }
  doors_.form5.VS3.set_value(doors_.form5.VS3.least());
  doors_.form5.CmbF3.set_text(kNoMessage);
  doors_.form5.LblL3.set_caption("");
  doors_.form5.VSNA.set_value(1);
  algorithm_changed();
}

void AlgorithmEditor::algorithm_changed() {
  current_ = doors_.form5.VSNA.value();
  const auto& steps = doors_.algorithms.AlgZoneTable[current_];
  alg_zones_.clear();
  alg_order_ = static_cast<int>(
      std::count_if(steps.begin(), steps.end(), [](const auto& step) { return !step.empty(); }));
  if (!steps[1].empty()) take_message_of(steps[1]);
  for (auto& list : doors_.form5.Lst1) list.set_visible(false);
  doors_.form5.LblNa.set_caption(std::to_string(current_));
  current_list().set_visible(true);
}

void AlgorithmEditor::take_message_of(std::string_view record) {
  const std::string file = AlgField(record, kAlgMessage);
  doors_.form5.CmbF3.set_text(file);
  doors_.messages.show_length(file, doors_.form5.LblL3);
  doors_.form5.VS3.set_value(Number(AlgField(record, kAlgPlays)));
}

void AlgorithmEditor::add_step() {
  const std::string& file = doors_.form5.CmbF3.text();
  if (Len(file) >= kMessageTooLong) {
    doors_.boxes.message("Длина сообщения не должна превышать 20 знаков");
    return;
  }
  if (alg_zones_.empty()) {
    doors_.boxes.message("Установите зоны");
    return;
  }
  ++alg_order_;
  current_list().add(algorithm_record(doors_.form5.LblNa.caption(), alg_order_, file,
                                      doors_.form5.LblKl3.caption(), alg_zones_));
}

void AlgorithmEditor::delete_step() {
  ListBox& list = current_list();
  const int selected = list.selected();
  if (selected < 0) return;
  if (selected + 1 < list.count()) {
    doors_.boxes.message("Удалить можно только последнюю запись");
    return;
  }
  list.remove(selected);
  --alg_order_;
}

void AlgorithmEditor::choose_zones() {
  const ListBox& list = current_list();
  alg_zones_ = list.selected() < 0 ? "" : AlgField(list.row(list.selected()), kAlgZones);
  doors_.zone_choice.choose(alg_zones_);
}

void AlgorithmEditor::print() {
  doors_.form5.List1.clear();
  std::vector<std::string> lines;
  const FileError error = doors_.store.PrintAlgorithms(lines);
  for (const auto& line : lines) doors_.form5.List1.add(line);
  doors_.boxes.message(error == kNoError ? join("Информация находится в файле ", doors_.store.print_path())
                                         : write_fault("f_alg", error));
}

AlertStore::AlgorithmLines AlgorithmEditor::lines() const {
  AlertStore::AlgorithmLines lines;
  for (int n = 1; n <= kZones; ++n) lines[n] = doors_.form5.Lst1[n].rows();
  return lines;
}

}  // namespace evac

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
    form5_.Lst1[n].clear();
    for (const auto& step : algorithms_.AlgZoneTable[n])
      if (!step.empty()) form5_.Lst1[n].add(step);
  }
  form5_.VS3.set_value(form5_.VS3.least());
  form5_.CmbF3.set_text(kNoMessage);
  form5_.LblL3.set_caption("");
  form5_.VSNA.set_value(1);
  algorithm_changed();
}

void AlgorithmEditor::algorithm_changed() {
  current_ = form5_.VSNA.value();
  const auto& steps = algorithms_.AlgZoneTable[current_];
  alg_zones_.clear();
  alg_order_ = static_cast<int>(
      std::count_if(steps.begin(), steps.end(), [](const auto& step) { return !step.empty(); }));
  if (!steps[1].empty()) take_message_of(steps[1]);
  for (auto& list : form5_.Lst1) list.set_visible(false);
  form5_.LblNa.set_caption(std::to_string(current_));
  current_list().set_visible(true);
}

void AlgorithmEditor::take_message_of(std::string_view record) {
  const std::string file = AlgField(record, kAlgMessage);
  form5_.CmbF3.set_text(file);
  messages_.show_length(file, form5_.LblL3);
  form5_.VS3.set_value(ClampedNumber(AlgField(record, kAlgPlays)));
}

void AlgorithmEditor::add_step() {
  const std::string& file = form5_.CmbF3.text();
  if (Len(file) >= kMessageTooLong) {
    boxes_.message("Длина сообщения не должна превышать 20 знаков");
    return;
  }
  if (alg_zones_.empty()) {
    boxes_.message("Установите зоны");
    return;
  }
  ++alg_order_;
  current_list().add(
      algorithm_record(form5_.LblNa.caption(), alg_order_, file, form5_.LblKl3.caption(), alg_zones_));
}

void AlgorithmEditor::delete_step() {
  ListBox& list = current_list();
  const int selected = list.selected();
  if (selected < 0) return;
  if (selected + 1 < list.count()) {
    boxes_.message("Удалить можно только последнюю запись");
    return;
  }
  list.remove(selected);
  --alg_order_;
}

void AlgorithmEditor::choose_zones() {
  const ListBox& list = current_list();
  alg_zones_ = list.selected() < 0 ? "" : AlgField(list.row(list.selected()), kAlgZones);
  zone_choice_.choose(alg_zones_);
}

void AlgorithmEditor::print() {
  form5_.List1.clear();
  for (const auto& line : store_.PrintAlgorithms()) form5_.List1.add(line);
  boxes_.message(join("Информация находится в файле ", store_.print_path()));
}

AlertStore::AlgorithmLines AlgorithmEditor::lines() const {
  AlertStore::AlgorithmLines lines;
  for (int n = 1; n <= kZones; ++n) lines[n] = form5_.Lst1[n].rows();
  return lines;
}

}  // namespace evac

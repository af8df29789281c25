#include "console/equipment_settings.h"

#include <algorithm>

#include "console/channel_colors.h"
#include "console/source_names.h"
#include "model/text.h"
#include "platform/windows.h"

namespace evac {
namespace {

void fill(ComboBox& combo, std::string_view text) {
  combo.clear();
  for (const auto source : Form22::kSources) combo.add(source);
  const auto at = std::ranges::find(combo.rows(), text);
  if (at == combo.rows().end())
    combo.set_text(text);
  else
    combo.select(static_cast<int>(at - combo.rows().begin()));
}

}  // namespace

void EquipmentSettings::open() {
  load(Reading::kByWindow);
  show_cards();
  doors_.form.windows().show_modal(doors_.form);
}

void EquipmentSettings::load(Reading reading) {
  std::optional<EquipmentRecords> records;
  const FileError error = read_equipment(doors_.folder, records);
  if (error == kNoError) clear_sources();
  if (!records) {
    for (auto& combo : doors_.form.Combo1)
      if (error == kNoError || combo.rows().empty()) fill(combo, Form22::kSources[0]);
    return;
  }
  for (int i = 0; i < kSourceRows; ++i) show_row(i, records->rows[static_cast<std::size_t>(i)], reading);
  const auto open_port = reading == Reading::kAtStart ? &SerialPort::open : &SerialPort::reopen;
  if (records->port == 1) {
    use_port(1, open_port);
    doors_.form.Opt1.set_value(true);
  } else if (records->port == 2) {
    use_port(2, open_port);
    doors_.form.Opt2.set_value(true);
  }
  for (int n = 1; n <= kSequencers; ++n)
    show_outlets(n, records->outlets[static_cast<std::size_t>(n - 1)].value_or(0));
}

void EquipmentSettings::show_row(int i, const EquipmentRecords::Row& row, Reading reading) {
  fill(doors_.form.Combo1[i], row.source);
  show_source(i);
  if (row.volume) {
    doors_.form.VS_Z[i].set_value(*row.volume);
    show_volume(i);
    if (reading == Reading::kAtStart) set_volume_bar(i);
  }
  if (row.output) doors_.form.VS_N[i].set_value(*row.output);
  take_source(i);
}

void EquipmentSettings::show_outlets(int n, int mask) {
  doors_.power.SeqSavedMask[n] = mask;
  for (int outlet = 0; outlet < kOutlets; ++outlet) doors_.form.Chk(n)[outlet].set_value(mask >> outlet & 1);
}

void EquipmentSettings::save() {
  EquipmentRecords records;
  clear_sources();
  for (int i = 0; i < kSourceRows; ++i) {
    records.rows[static_cast<std::size_t>(i)] = {doors_.form.Combo1[i].text(), doors_.form.VS_Z[i].value(),
                                                 doors_.form.VS_N[i].value()};
    show_source(i);
    show_volume(i);
    set_volume_bar(i);
    take_source(i);
  }
  if (doors_.form.Opt1.value() || doors_.form.Opt2.value()) {
    const int number = doors_.form.Opt1.value() ? 1 : 2;
    use_port(number, &SerialPort::open);
    records.port = number;
  }
  for (int n = 1; n <= kSequencers; ++n) {
    int mask = 0;
    for (int outlet = 0; outlet < kOutlets; ++outlet) mask |= doors_.form.Chk(n)[outlet].value() << outlet;
    records.outlets[static_cast<std::size_t>(n - 1)] = mask;
  }
  if (const FileError error = write_equipment(doors_.folder, records))
    doors_.boxes.message(write_fault(kEquipmentFile, error));
}

void EquipmentSettings::show_cards() {
  doors_.form.PctD1.set_picture(
      (doors_.alert.di_card0 >= 0 ? doors_.form.PctD3 : doors_.form.PctD).picture());
  doors_.form.PctD2.set_picture(
      (doors_.alert.di_card1 >= 0 ? doors_.form.PctD3 : doors_.form.PctD).picture());
}

void EquipmentSettings::show_source(int i) {
  if (!is_channel(i)) return;
  const std::string& source = doors_.form.Combo1[i].text();
  doors_.terminals_tab.Label2[i].set_caption(source);
  for (auto* legend : doors_.legends) legend->Label2[i].set_caption(source);
}

void EquipmentSettings::show_volume(int i) {
  if (!is_channel(i)) return;
  for (auto* legend : doors_.legends) legend->LblZ[i].set_caption(doors_.form.LblZ[i].caption());
}

void EquipmentSettings::set_volume_bar(int i) {
  const std::string& volume = doors_.form.LblZ[i].caption();
  doors_.terminals_tab.VS_Z[i].set_value(Number(volume));
  doors_.terminals_tab.LblZ[i].set_caption(volume);
}

void EquipmentSettings::clear_sources() {
  doors_.sources.ch_computer = doors_.sources.vol_computer = 0;
  doors_.sources.ch_cd = doors_.sources.vol_cd = 0;
  doors_.sources.ch_mp3 = doors_.sources.vol_mp3 = 0;
  doors_.sources.ch_tuner = doors_.sources.vol_tuner = 0;
}

void EquipmentSettings::take_source(int i) {
  struct Source {
    std::string_view name;
    std::int16_t &channel, &volume;
    SourceOutputs* outputs;  // null when it has none to choose from
  };
  const Source known[] = {
      {source_name::kComputer, doors_.sources.ch_computer, doors_.sources.vol_computer, nullptr},
      {source_name::kCd, doors_.sources.ch_cd, doors_.sources.vol_cd, &doors_.sources_tab.Opt_cd},
      {source_name::kMp3, doors_.sources.ch_mp3, doors_.sources.vol_mp3, &doors_.sources_tab.Opt_mp},
      {source_name::kTuner, doors_.sources.ch_tuner, doors_.sources.vol_tuner, &doors_.sources_tab.Opt_t},
  };
  for (const auto& source : known) {
    if (source.name != doors_.form.Combo1[i].text()) continue;
    // The first row with a source wins; row 0 reads as not assigned.
    if (source.channel == 0) {
      source.channel = static_cast<std::int16_t>(i);
      source.volume = static_cast<std::int16_t>(Number(doors_.form.LblZ[i].caption()));
    }
    const int output = Number(doors_.form.LblN[i].caption());
    if (source.outputs && output > 0) (*source.outputs)[output - 1].set_value(true);
  }
}

void EquipmentSettings::use_port(int number, void (SerialPort::*open)()) {
  doors_.port.close();
  doors_.port.set_port(number);
  (doors_.port.*open)();
}

}  // namespace evac

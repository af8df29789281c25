#include "console/equipment_settings.h"

#include <algorithm>

#include "console/channel_colors.h"
#include "model/text.h"
#include "store/record_number.h"

namespace evac {
namespace {

constexpr std::string_view kComputer = "Компьютер", kCd = "CD/MP3", kMp3 = "mp3", kTuner = "Тюнер";

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

void EquipmentSettings::load(Reading reading) {
  clear_sources();
  const auto records = read_equipment(files_, settings_);
  if (!records) {
    for (auto& combo : form_.Combo1) fill(combo, Form22::kSources[0]);
    return;
  }
  for (int i = 0; i < kSourceRows; ++i)
    if (!read_row(i, records->rows[static_cast<std::size_t>(i)])) return;
  const auto open = reading == Reading::kAtStart ? &SerialPort::open : &SerialPort::reopen;
  if (records->port == "1") {
    use_port(1, open);
    form_.Opt1.set_value(true);
  } else if (records->port == "2") {
    use_port(2, open);
    form_.Opt2.set_value(true);
  }
  for (int n = 1; n <= kSequencers; ++n)
    if (!read_outlets(n, records->outlets[static_cast<std::size_t>(n - 1)])) return;
}

bool EquipmentSettings::read_row(int i, const EquipmentRecords::Row& row) {
  fill(form_.Combo1[i], row.source);
  show_source(i);
  if (!row.volume.empty()) {
    const auto volume = record_number16(row.volume);
    if (!volume) return false;
    form_.VS_Z[i].set_value(*volume);
    show_volume(i);
  }
  if (!row.output.empty()) {
    const auto output = record_number16(row.output);
    if (!output) return false;
    form_.VS_N[i].set_value(*output);
  }
  take_source(i);
  return true;
}

bool EquipmentSettings::read_outlets(int n, const std::string& text) {
  const auto mask = record_number32(text);
  if (!mask) return false;
  power_.SeqSavedMask[n] = *mask;
  for (int outlet = 0; outlet < kOutlets; ++outlet) form_.Chk(n)[outlet].set_value(*mask >> outlet & 1);
  return true;
}

void EquipmentSettings::save() {
  EquipmentRecords records;
  clear_sources();
  for (int i = 0; i < kSourceRows; ++i) {
    records.rows[static_cast<std::size_t>(i)] = {form_.Combo1[i].text(), form_.LblZ[i].caption(),
                                                 form_.LblN[i].caption()};
    show_source(i);
    show_volume(i);
    take_source(i);
  }
  if (form_.Opt1.value() || form_.Opt2.value()) {
    const int number = form_.Opt1.value() ? 1 : 2;
    use_port(number, &SerialPort::open);
    records.port = std::to_string(number);
  }
  for (int n = 1; n <= kSequencers; ++n) {
    int mask = 0;
    for (int outlet = 0; outlet < kOutlets; ++outlet) mask |= form_.Chk(n)[outlet].value() << outlet;
    records.outlets[static_cast<std::size_t>(n - 1)] = std::to_string(mask);
  }
  write_equipment(files_, settings_, records);
}

void EquipmentSettings::show_cards(const AlertState& alert) {
  form_.PctD1.set_picture(alert.di_card0 >= 0 ? form_.PctD3 : form_.PctD);
  form_.PctD2.set_picture(alert.di_card1 >= 0 ? form_.PctD3 : form_.PctD);
}

void EquipmentSettings::show_source(int i) {
  if (!is_channel(i)) return;
  const std::string& source = form_.Combo1[i].text();
  terminals_tab_.Label2[i].set_caption(source);
  for (auto* legend : legends_) legend->Label2[i].set_caption(source);
}

void EquipmentSettings::show_volume(int i) {
  const std::string& volume = form_.LblZ[i].caption();
  terminals_tab_.VS_Z[i].set_value(Number(volume));
  terminals_tab_.LblZ[i].set_caption(volume);
  if (!is_channel(i)) return;
  for (auto* legend : legends_) legend->LblZ[i].set_caption(volume);
}

void EquipmentSettings::clear_sources() {
  sources_.ch_computer = sources_.vol_computer = 0;
  sources_.ch_cd = sources_.vol_cd = 0;
  sources_.ch_mp3 = sources_.vol_mp3 = 0;
  sources_.ch_tuner = sources_.vol_tuner = 0;
}

void EquipmentSettings::take_source(int i) {
  struct Source {
    std::string_view name;
    std::int16_t &channel, &volume;
    SourceOutputs* outputs;  // null when it has none to choose from
  };
  const Source known[] = {
      {kComputer, sources_.ch_computer, sources_.vol_computer, nullptr},
      {kCd, sources_.ch_cd, sources_.vol_cd, &sources_tab_.Opt_cd},
      {kMp3, sources_.ch_mp3, sources_.vol_mp3, &sources_tab_.Opt_mp},
      {kTuner, sources_.ch_tuner, sources_.vol_tuner, &sources_tab_.Opt_t},
  };
  for (const auto& source : known) {
    if (source.name != form_.Combo1[i].text()) continue;
    // The first row with a source wins; row 0 reads as not assigned.
    if (source.channel == 0) {
      source.channel = static_cast<std::int16_t>(i);
      source.volume = static_cast<std::int16_t>(Number(form_.LblZ[i].caption()));
    }
    const int output = Number(form_.LblN[i].caption());
    if (source.outputs && output > 0) (*source.outputs)[output - 1].set_value(true);
  }
}

void EquipmentSettings::use_port(int number, void (SerialPort::*open)()) {
  port_.close();
  port_.set_port(number);
  (port_.*open)();
}

}  // namespace evac

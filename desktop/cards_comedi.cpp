#include "desktop/cards_comedi.h"

#include <comedilib.h>

#include "model/text.h"

namespace evac::desktop {

ComediCards::~ComediCards() {
  for (auto& [number, card] : cards_) comedi_close(card.device);
}

std::int16_t ComediCards::register_card(int, int number) {
  const auto handle = static_cast<std::int16_t>(number);
  release_card(handle);
  missing_.erase(number);
  const auto named = devices_.find(number);
  if (named == devices_.end()) return -1;
  Card card;
  card.device = comedi_open(named->second.c_str());
  if (!card.device) {
    missing_[number] =
        join("Плата ", number, " (", named->second, ") не открывается, ошибка ", comedi_errno());
    return -1;
  }
  if (!find_ports(card)) {
    comedi_close(card.device);
    missing_[number] =
        join("Плата ", number, " (", named->second, "): нет двух портов по ", kInputs, " входа");
    return -1;
  }
  cards_[number] = card;
  return handle;
}

bool ComediCards::find_ports(Card& card) {
  std::size_t found = 0;
  const int subdevices = comedi_get_n_subdevices(card.device);
  for (int i = 0; i < subdevices && found < card.ports.size(); ++i) {
    const auto subdevice = static_cast<unsigned>(i);
    if (comedi_get_subdevice_type(card.device, subdevice) == COMEDI_SUBD_DI &&
        comedi_get_n_channels(card.device, subdevice) >= kInputs)
      card.ports[found++].subdevice = subdevice;
  }
  return found == card.ports.size();
}

void ComediCards::release_card(std::int16_t handle) {
  const auto card = cards_.find(handle);
  if (card == cards_.end()) return;
  comedi_close(card->second.device);
  cards_.erase(card);
}

bool ComediCards::read_port(std::int16_t handle, int port, std::int32_t& word) {
  const auto card = cards_.find(handle);
  if (card == cards_.end() || port < 0 || port >= kPorts) return false;
  Port& inputs = card->second.ports[static_cast<std::size_t>(port)];
  unsigned bits = 0;
  const bool read = comedi_dio_bitfield2(card->second.device, inputs.subdevice, 0, &bits, 0) >= 0;
  if (read) {
    inputs.last = static_cast<std::int32_t>(bits);
    inputs.trouble.clear();
  } else if (inputs.trouble.empty()) {
    inputs.trouble = join("Плата ", int{handle}, ", порт ", port, " не читается, ошибка ", comedi_errno());
  }
  word = inputs.last;
  return read;
}

std::string ComediCards::trouble() const {
  std::string all;
  const auto add = [&all](const std::string& text) {
    if (!text.empty()) all += (all.empty() ? "" : "; ") + text;
  };
  for (const auto& [number, text] : missing_) add(text);
  for (const auto& [number, card] : cards_)
    for (const Port& port : card.ports) add(port.trouble);
  return all;
}

}  // namespace evac::desktop

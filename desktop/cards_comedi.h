// The digital-input cards through comedi. A card of 64 inputs is two digital-input subdevices of 32 channels,
// one a port. A read that fails gives the word last read, so that a broken card neither raises nor ends an
// alert.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "platform/machine.h"

typedef struct comedi_t_struct comedi_t;

namespace evac::desktop {

class ComediCards : public Cards {
 public:
  // Device of card 0 and 1, such as "/dev/comedi0"; a card that has none is not there.
  explicit ComediCards(std::map<int, std::string> devices) : devices_(std::move(devices)) {}
  ~ComediCards() override;
  ComediCards(const ComediCards&) = delete;
  ComediCards& operator=(const ComediCards&) = delete;

  // The handle is the card's number; -1 when the device can't be opened or has no two ports of 32 inputs.
  std::int16_t register_card(int type, int number) override;
  void release_card(std::int16_t handle) override;
  bool read_port(std::int16_t handle, int port, std::int32_t& word) override;

  // What is wrong with the cards now, in the operator's words; empty when nothing is.
  std::string trouble() const;

 private:
  static constexpr int kPorts = 2, kInputs = 32;
  struct Port {
    unsigned subdevice = 0;
    std::int32_t last = 0;
    std::string trouble;
  };
  struct Card {
    comedi_t* device = nullptr;
    std::array<Port, kPorts> ports;
  };
  // The digital-input subdevices with enough channels, in their order; fewer than two is no card of ours.
  static bool find_ports(Card& card);

  const std::map<int, std::string> devices_;
  std::map<int, Card> cards_;
  std::map<int, std::string> missing_;  // cards that are named and can't be used
};

}  // namespace evac::desktop

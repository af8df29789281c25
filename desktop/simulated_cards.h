// The two digital-input cards as the training mode has them: their inputs are the contacts of the rack.
#pragma once

#include <functional>

#include "platform/machine.h"

namespace evac::desktop {

class SimulatedCards : public Cards {
 public:
  // The 32 inputs of card 0 or 1, port 0 or 1.
  using Inputs = std::function<std::uint32_t(int card, int port)>;
  explicit SimulatedCards(Inputs inputs) : inputs_(std::move(inputs)) {}

  std::int16_t register_card(int, int number) override { return static_cast<std::int16_t>(number); }
  void release_card(std::int16_t) override {}
  bool read_port(std::int16_t handle, int port, std::int32_t& word) override {
    if (handle < 0) return false;
    word = static_cast<std::int32_t>(inputs_(handle, port));
    return true;
  }

 private:
  const Inputs inputs_;
};

}  // namespace evac::desktop

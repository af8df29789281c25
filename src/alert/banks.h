// The four banks of fire inputs. They were set up at different times, and their texts differ.
#pragma once

#include <array>
#include <string_view>

#include "model/system_model.h"

namespace evac {

struct Bank {
  int first_zone, last_zone;
  int card, port;               // of the digital-input cards
  std::string_view heading;     // of the zones in the journal
  std::string_view no_steps;    // behind the number of an algorithm that has none
  std::string_view open_error;  // before a message's file
};

// The bit of input 0..31 in its bank's word; that of the last one is the sign.
constexpr std::int32_t input_bit(int input) {
  return static_cast<std::int32_t>(std::uint32_t{1} << input);
}

inline constexpr std::array<Bank, kBanks> kBankTable = {
    {{1, 32, 0, 0, "Номера зон:", " не указан", "Ошибка открытия файла "},
     {33, 64, 0, 1, "Включаемые зоны:", " не указан", "Ошибка открытия файла "},
     {65, 96, 1, 0, "Включаемые зоны:", " не прописан", "Ошибка открытия файла "},
     {97, kZones, 1, 1, "Включаемые зоны:", " не указан", "Не удается открыть файл "}}};

}  // namespace evac

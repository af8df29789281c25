// Form22, the equipment: which source feeds each channel, the port, the outlets that come up after a start.
#pragma once

#include "console/source_names.h"
#include "console/sources_tab.h"
#include "store/settings_files.h"

namespace evac {

struct Form22 : Form {
  static constexpr std::string_view kSources[] = {"Дополнительно",   source_name::kCd, source_name::kTuner,
                                                  source_name::kMp3, "Цифровой магн",  source_name::kComputer,
                                                  "Не подключен"};

  explicit Form22(Windows& windows) : Form(windows, "Form22", "Оборудование") {
    // The port that is in use until another is saved.
    Opt1.set_value(true);
  }

  // Row i is channel i; row 0 stands lowest, as channel 6.
  ControlArray<Label> LblC{0, kSourceRows, [this](auto& items, int i) {
                             const int channel = i > 0 ? i : kSourceRows;
                             items.emplace_back(place(), "LblC", std::to_string(channel) + " канал", i);
                           }};
  ControlArray<ComboBox> Combo1{place(), "Combo1", 0, kSourceRows};
  ControlArray<ScrollBar> VS_Z{place(), "VS_Z", 0, kSourceRows, 0, 32, 0};
  ControlArray<Label> LblZ{place(), "LblZ", 0, kSourceRows, "0"};
  // The source's output that feeds the row, column "#".
  ControlArray<ScrollBar> VS_N{place(), "VS_N", 0, kSourceRows, 0, SourceOutputs::kOutputs, 1};
  ControlArray<Label> LblN{place(), "LblN", 0, kSourceRows, "1"};

  Frame Frame1{place(), "Frame1", "Порт"};
  OptionGroup ports;
  OptionButton Opt1{Frame1.inside(), ports, "Opt1", " COM1"};
  OptionButton Opt2{Frame1.inside(), ports, "Opt2", " COM2"};

  Frame Frame2{place(), "Frame2", "Автоматическое включение блок"};
  // A column of outlets for each sequencer.
  ControlArray<Label> LblB{Frame2.inside(), "LblB", 1, {"1", "2", "3", "4", "5", "6", "7", "8"}};
  ControlArray<CheckBox> Chk1 = outlets(1), Chk2 = outlets(2), Chk3 = outlets(3), Chk4 = outlets(4);
  ControlArray<CheckBox> Chk5 = outlets(5), Chk6 = outlets(6), Chk7 = outlets(7), Chk8 = outlets(8);
  // Sequencer 1..8.
  ControlArray<CheckBox>& Chk(int n) {
    const std::array columns = {&Chk1, &Chk2, &Chk3, &Chk4, &Chk5, &Chk6, &Chk7, &Chk8};
    return *columns.at(static_cast<std::size_t>(n - 1));
  }

  // Digital-input cards: an indicator each, and the two pictures that they take.
  Frame Frame3{place(), "Frame3", "Контроллеры"};
  Label LblK1{Frame3.inside(), "LblK1", "с 1 по 64"};
  Picture PctD1{Frame3.inside(), "PctD1", picture::kNo};
  Label LblK2{Frame3.inside(), "LblK2", "с 65 по 120"};
  Picture PctD2{Frame3.inside(), "PctD2", picture::kNo};
  Picture PctD{Frame3.inside(), "PctD", picture::kNo};     // no card
  Picture PctD3{Frame3.inside(), "PctD3", picture::kYes};  // card there

  Button Command1{place(), "Command1", "Сохранить"};
  Button Command2{place(), "Command2", "Выход"};

 private:
  ControlArray<CheckBox> outlets(int block) {
    return {0, kOutlets, [this, block](auto& items, int i) {
              items.emplace_back(Frame2.inside(), "Chk" + std::to_string(block), "CH" + std::to_string(i + 1),
                                 i);
            }};
  }
};

}  // namespace evac

// Tab "Музыкальные источники" of Form1: the two decks, the tuner and the audio matrix.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

// The outputs of a source, numbered from 1 on the screen and from 0 on the line.
class SourceOutputs : public ControlArray<OptionButton> {
 public:
  static constexpr int kOutputs = 8;
  SourceOutputs(const Place& place, OptionGroup& group, const char* name)
      : ControlArray(0, kOutputs, [&](auto& items, int i) {
          items.emplace_back(place, group, name, std::to_string(i + 1), i);
        }) {}
};

struct SourcesTab {
  static constexpr int kMatrixOutputs = 8, kMatrixRows = 8;

  explicit SourcesTab(Form& form) : place{form.place("SourcesTab")} {}
  Place place;

  Frame Frame1{place, "Frame1", "CD/МР3-проигрыватель"};
  ControlArray<Button> CmdCD{Frame1.inside(), "CmdCD", 0, 5, ""};
  OptionGroup cd_outputs;
  SourceOutputs Opt_cd{Frame1.inside(), cd_outputs, "Opt_cd"};
  Label LblCD{Frame1.inside(), "LblCD", "CD-player"};

  Frame Frame2{place, "Frame2", "MP3-проигрыватель", 0};
  ControlArray<Button> CmdMP3{Frame2.inside(), "CmdMP3", 0, 5, ""};
  OptionGroup mp3_outputs;
  SourceOutputs Opt_mp{Frame2.inside(), mp3_outputs, "Opt_mp"};
  Label LblMP3{Frame2.inside(), "LblMP3", "MP3-player"};

  Frame Frame3{place, "Frame3", "Тюнер"};
  ControlArray<Button> CmdT{Frame3.inside(), "CmdT", 0, {"AM", "FM", "", "", ""}};
  OptionGroup tuner_outputs;
  SourceOutputs Opt_t{Frame3.inside(), tuner_outputs, "Opt_t"};
  Label LblT{Frame3.inside(), "LblT", "AM Tuner"};

  Frame Frame4{place, "Frame4", "Аудио-матрица", 1};
  // Eight columns CH1 to CH8, each a group of MUTE and IN1 to IN7.
  std::array<OptionGroup, kMatrixOutputs> matrix_columns;
  ControlArray<OptionButton> Opt1{0, kMatrixOutputs* kMatrixRows, [this](auto& items, int i) {
                                    const int row = i % kMatrixRows;
                                    const auto column = static_cast<std::size_t>(i / kMatrixRows);
                                    items.emplace_back(Frame4.inside(), matrix_columns[column], "Opt1",
                                                       row == 0 ? "MUTE" : "IN" + std::to_string(row), i);
                                  }};
};

}  // namespace evac

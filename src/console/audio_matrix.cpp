#include "console/audio_matrix.h"

namespace evac {
namespace {

constexpr int kDefaultRow = 1;
constexpr std::uint8_t kNoInput = 15;

}  // namespace

void AudioMatrix::choose(int k) {
  auto& outputs = doors_.sources.MatrixSel;
  if (k >= SourcesTab::kMatrixOutputs * SourcesTab::kMatrixRows)
    outputs.fill(kNoInput);
  else
    outputs[k / SourcesTab::kMatrixRows + 1] = static_cast<std::uint8_t>(k % SourcesTab::kMatrixRows);

  std::array<std::uint8_t, 4> pairs{};
  for (int pair = 0; pair < 4; ++pair)
    pairs[static_cast<std::size_t>(pair)] =
        static_cast<std::uint8_t>(outputs[2 * pair + 1] + ((16 * outputs[2 * pair + 2]) & 255));
  doors_.link.SendMatrix(pairs);
}

void AudioMatrix::choose_defaults() {
  for (int output = 0; output < SourcesTab::kMatrixOutputs; ++output)
    doors_.tab.Opt1[SourcesTab::kMatrixRows * output + kDefaultRow].set_value(true);
}

}  // namespace evac

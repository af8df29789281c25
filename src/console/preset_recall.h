// What other rooms may ask of the terminal presets.
#pragma once

namespace evac {

struct PresetRecall {
  virtual ~PresetRecall() = default;
  // Makes preset n (1..100) current: the terminals take the channels of its file, none is picked, and routing
  // is manual. The count of picked terminals keeps its old value.
  virtual void PresetLoad(int n) = 0;
};

}  // namespace evac

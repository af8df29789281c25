// The audio matrix: eight outputs, each on one of seven inputs or muted. The whole matrix goes out on each
// click.
#pragma once

#include "console/sources_tab.h"
#include "link/link.h"
#include "model/system_model.h"

namespace evac {

class AudioMatrix {
 public:
  struct Doors {
    SourceState& sources;
    SourcesTab& tab;
    Link& link;
  };
  explicit AudioMatrix(const Doors& doors) : doors_(doors) {}

  // Click of Opt1(k): output k div 8 takes row k mod 8 of its column.
  void choose(int k);
  // Sets every output to its first input; each is a click, and sends a frame.
  void choose_defaults();

 private:
  const Doors doors_;
};

}  // namespace evac

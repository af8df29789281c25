#include "desktop/layouts/layouts.h"

namespace evac::desktop {

const std::vector<WindowLayout>& all_layouts() {
  static const std::vector<WindowLayout> layouts = {form1_layout(), form2_layout()};
  return layouts;
}

}  // namespace evac::desktop

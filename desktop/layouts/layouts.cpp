#include "desktop/layouts/layouts.h"

namespace evac::desktop {

const std::vector<WindowLayout>& all_layouts() {
  static const std::vector<WindowLayout> layouts = {form1_layout(),  form2_layout(),  form22_layout(),
                                                    form33_layout(), form55_layout(), form6_layout(),
                                                    form4_layout(),  form5_layout(),  form7_layout()};
  return layouts;
}

}  // namespace evac::desktop

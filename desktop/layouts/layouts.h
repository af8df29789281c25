// The layouts of all windows, one function each.
#pragma once

#include "desktop/view/layout.h"

namespace evac::desktop {

WindowLayout form1_layout();
WindowLayout form2_layout();
WindowLayout form22_layout();
WindowLayout form33_layout();
WindowLayout form55_layout();
WindowLayout form6_layout();
WindowLayout form4_layout();
WindowLayout form5_layout();
WindowLayout form7_layout();

}  // namespace evac::desktop

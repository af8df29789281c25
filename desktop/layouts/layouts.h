// The layouts of all windows, one function each.
#pragma once

#include "desktop/view/layout.h"

namespace evac::desktop {

WindowLayout form1_layout();
WindowLayout form2_layout();

}  // namespace evac::desktop

// The layouts of all windows, one function each; those of the main window's tabs stand in form1_tabs.h.
#pragma once

#include "app/forms.h"
#include "desktop/view/layout.h"

namespace evac::desktop {

WindowLayout layout(Form1& form);
WindowLayout layout(Form2& form);
WindowLayout layout(Form22& form);
WindowLayout layout(Form33& form);
WindowLayout layout(Form55& form);
WindowLayout layout(Form6& form);
WindowLayout layout(Form4& form);
WindowLayout layout(Form5& form);
WindowLayout layout(Form7& form);
WindowLayout layout(Form3& form);
WindowLayout layout(FrmTm& form);
WindowLayout layout(Frm8& form);
WindowLayout layout(FrmPsW& form);
WindowLayout layout(FrmPwR& form);
WindowLayout layout(FrmRez& form);
WindowLayout layout(FrmISxodniki& form);

std::vector<WindowLayout> all_layouts(Forms& forms);

}  // namespace evac::desktop

#include "desktop/layouts/layouts.h"

namespace evac::desktop {

std::vector<WindowLayout> all_layouts(Forms& forms) {
  return {layout(forms.form1),         layout(forms.form2),   layout(forms.form22),  layout(forms.form33),
          layout(forms.form55),        layout(forms.form6),   layout(forms.form4),   layout(forms.form5),
          layout(forms.form7),         layout(forms.frm_psw), layout(forms.frm_pwr), layout(forms.frm_rez),
          layout(forms.frm_isxodniki), layout(forms.form3),   layout(forms.frm_tm),  layout(forms.frm8)};
}

}  // namespace evac::desktop

#include "simulate/operator.h"

#include <algorithm>
#include <array>

#include "drill/words.h"
#include "model/text.h"
#include "platform/user.h"

namespace evac::simulate {
namespace {

constexpr int kTries = 40;
constexpr std::array<std::string_view, 6> kTexts = {"", "x", "Зал", "Фойе 1 этажа", "0", "a.wav"};
// The way out, and a change of the password that nobody would remember.
constexpr std::array<std::string_view, 2> kLeftAlone = {"M_ex", "MusPar"};

Form& in_front(Windows& windows) {
  if (Form* modal = windows.modal()) return *modal;
  return *windows.open().back();
}

std::array<const Control*, 5> settings_menu(Form1& form) {
  return {&form.M_n_o, &form.M_n_op, &form.M_n_z, &form.M_n_t, &form.M_perez};
}
std::array<const Control*, 8> alarm_panel(Form1& form) {
  return {&form.CmdAl,   &form.CmdCan, &form.CmdDem, &form.CmdStF,
          &form.CmdAlAl, &form.CmdAG,  &form.CmdTG,  &form.VSFD};
}

std::string named(const Control& control) {
  return join(control.form().name(), ".", control.full_name());
}

}  // namespace

std::string Operator::press(Console& console) {
  Windows& windows = console.windows();
  Form& form = in_front(windows);
  // Nobody has set a password; an emptied box opens the gate.
  FrmPsW& gate = console.forms().frm_psw;
  if (&form == &gate)
    return gate.CmdVPsW.enabled() ? gate.Txt1.text().empty() ? "click FrmPsW.CmdVPsW" : "set FrmPsW.Txt1 \"\""
                                  : "set FrmPsW.Txt1 \"x\"";
  if (windows.popup() && below(2) == 0 && &form != &console.form1()) return join("click ch(", below(6), ")");
  const auto& controls = form.controls();
  // The main window has a thousand controls, and few that lead elsewhere.
  if (Form1& main = console.form1(); &form == &main) {
    const int part = below(6);
    if (part == 0) return act_on(*settings_menu(main)[static_cast<std::size_t>(below(5))]);
    if (part == 1) return act_on(*alarm_panel(main)[static_cast<std::size_t>(below(8))]);
  }
  for (int tries = 0; tries < kTries; ++tries) {
    const Control& control = *controls[static_cast<std::size_t>(below(static_cast<int>(controls.size())))];
    if (std::ranges::find(kLeftAlone, control.name()) != kLeftAlone.end() || !user::reaches(control))
      continue;
    if (const std::string act = act_on(control); !act.empty()) return act;
  }
  return {};
}

std::string Operator::act_on(const Control& control) {
  const std::string name = named(control);
  switch (control.kind()) {
    case Kind::kButton:
      return (below(7) == 0 ? "rclick " : "click ") + name;
    case Kind::kOptionButton:
    case Kind::kCheckBox:
    case Kind::kPicture:
    case Kind::kMenuItem:
      return "click " + name;
    case Kind::kLabel:
      // The cells of the settings windows.
      if (!control.double_click) return {};
      return (below(2) == 0 ? "dblclick " : "rclick ") + name;
    case Kind::kScrollBar: {
      const auto& bar = static_cast<const ScrollBar&>(control);
      return join("set ", name, " ", bar.least() + below(bar.most() - bar.least() + 1));
    }
    case Kind::kTextBox:
      return join("set ", name, " ",
                  drill::in_quotes(kTexts[static_cast<std::size_t>(below(kTexts.size()))]));
    case Kind::kMaskedEdit:
      return join("key ", name, " \"", below(10), "\"");
    case Kind::kComboBox:
    case Kind::kListBox: {
      const auto& list = static_cast<const RowControl&>(control);
      if (list.count() == 0) return {};
      return below(4) == 0 ? "dblclick " + name : join("set ", name, " ", below(list.count()));
    }
    case Kind::kTabStrip:
      return join("set ", name, " ",
                  below(static_cast<int>(static_cast<const TabStrip&>(control).tabs().size())));
    default:
      return {};
  }
}

std::string Operator::leave(Console& console) {
  return console.windows().open().size() > 1 ? "close" : "";
}

std::string Operator::put_right(Console& console) {
  const AlertState& alert = console.model().alert;
  if (alert.fire_stop || alert.fire_sim) return "click Form1.CmdStF";
  if (alert.msg_manual) return "click Form1.CmdCan";
  return {};
}

}  // namespace evac::simulate

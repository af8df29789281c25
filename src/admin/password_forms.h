// FrmPsW, which asks for the password, and FrmPwR, which changes it. What is typed is masked.
#pragma once

#include <array>

#include "platform/controls.h"

namespace evac {

struct FrmPsW : Form {
  explicit FrmPsW(Windows& windows) : Form(windows, "FrmPsW", "Пароль") { Txt1.set_password(true); }

  Label Label2{place(), "Label2", "Введите пароль"};
  TextBox Txt1{place(), "Txt1"};
  Button CmdVPsW{place(), "CmdVPsW", "Применить"};
  Button Cmd2{place(), "Cmd2", "Отмена"};
};

struct FrmPwR : Form {
  explicit FrmPwR(Windows& windows) : Form(windows, "FrmPwR", "Установка/смена пароля") {
    for (TextBox* box : boxes()) box->set_password(true);
  }

  Label Label1{place(), "Label1", "Введите старый пароль"};
  TextBox Txt1{place(), "Txt1"};
  Label Label2{place(), "Label2", "Введите новый пароль"};
  TextBox Txt2{place(), "Txt2"};
  Label Label3{place(), "Label3", "Подтвердите  новый  пароль"};
  TextBox Txt3{place(), "Txt3"};
  Button Cmd1{place(), "Cmd1", "Применить"};
  Button Cmd2{place(), "Cmd2", "Выход"};

  std::array<TextBox*, 3> boxes() { return {&Txt1, &Txt2, &Txt3}; }
};

}  // namespace evac

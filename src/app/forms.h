// All windows of the console, each made once.
#pragma once

#include "admin/password_forms.h"
#include "admin/restart_form.h"
#include "admin/service_form.h"
#include "alert/alert_settings_form.h"
#include "alert/zone_choice_form.h"
#include "app/form1.h"
#include "console/equipment_form.h"
#include "console/terminal_cells_form.h"
#include "console/terminal_names_form.h"
#include "console/zone_cells_form.h"
#include "console/zone_names_form.h"
#include "timer/programme_form.h"
#include "timer/schedule_forms.h"

namespace evac {

// The about window: a picture and two labels.
struct Form2 : Form {
  explicit Form2(Windows& windows) : Form(windows, "Form2", "О программе") {}
  Picture Picture1{place(), "Picture1", picture::kEmblem};
  Label Label1{place(), "Label1", "Пульт зонального оповещения и эвакуации"};
  Label Label2{place(), "Label2", "120 зон, 255 терминалов, 5 звуковых каналов"};
};

struct Forms {
  Forms(Windows& windows, Files& files)
      : form1(windows, files),
        form2(windows),
        form22(windows),
        form33(windows),
        form55(windows),
        form6(windows),
        form4(windows),
        form5(windows),
        form7(windows),
        frm_psw(windows),
        frm_pwr(windows),
        frm_rez(windows),
        frm_isxodniki(windows),
        form3(windows),
        frm_tm(windows),
        frm8(windows) {}

  Form1 form1;
  Form2 form2;                 // about
  Form22 form22;               // equipment
  Form33 form33;               // zones
  Form55 form55;               // terminals
  Form6 form6;                 // names of zones
  Form4 form4;                 // names of terminals
  Form5 form5;                 // alerting
  Form7 form7;                 // zones of a step
  FrmPsW frm_psw;              // the password
  FrmPwR frm_pwr;              // its change
  FrmRez frm_rez;              // the restart
  FrmISxodniki frm_isxodniki;  // the engineer's window
  Form3 form3;                 // programmes of the weekly timer
  FrmTm frm_tm;                // schedule of the programmes
  Frm8 frm8;                   // an entry of the schedule
};

}  // namespace evac

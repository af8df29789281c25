// The strip above the tabs of Form1: clock, state of the link and of the controller's programme; and the
// stores of the pictures that indicators take.
#pragma once

#include "platform/controls.h"

namespace evac {

struct PictureStores {
  explicit PictureStores(Form& form) : place{form.place("PictureStores")} {}
  Place place;
  Picture PctD2{place, "PctD2", picture::kNo};               // no, dark, idle
  Picture PctD3{place, "PctD3", picture::kYes};              // yes, lit
  Picture PctD4{place, "PctD4", picture::kPause};            // pause, fault, zone of fire
  Picture Pct_Kon{place, "Pct_Kon", picture::kSwitchOn};     // a switch that is on
  Picture Pct_Koff{place, "Pct_Koff", picture::kSwitchOff};  // a switch that is off
};

struct HeaderStrip {
  explicit HeaderStrip(Form& form) : place{form.place("HeaderStrip")} {}
  Place place;
  Label LblDate{place, "LblDate"};
  Label LblCon{place, "LblCon"};
  Picture PctD1{place, "PctD1"};  // link
  Label LblSs{place, "LblSs"};
  Picture PctD0{place, "PctD0"};  // programme
  Picture Picture2{place, "Picture2"};
  Label Label1{place, "Label1", "r_buf(0)  - r_buf(6)"};
  Timer Timer1{place, "Timer1", 20};
  Timer Timer3{place, "Timer3", 1000};
};

}  // namespace evac

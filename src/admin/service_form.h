// FrmISxodniki, the engineer's window: a frame with typed values, a file, a box.
#pragma once

#include "platform/controls.h"

namespace evac {

struct FrmISxodniki : Form {
  explicit FrmISxodniki(Windows& windows) : Form(windows, "FrmISxodniki", "Окно инженера") {}

  // Channel, volume and zone of a frame; then those of a terminal's.
  Label Label1{place(), "Label1", "канал громк зон"};
  TextBox T1{place(), "T1"}, T2{place(), "T2"}, T3{place(), "T3"};
  Button Command3{place(), "Command3", "Вкл зоны"};
  Label Label2{place(), "Label2", "канал громк тер"};
  TextBox T4{place(), "T4"}, T5{place(), "T5"}, T6{place(), "T6"};
  Button Command4{place(), "Command4", "Вкл термин"};

  TextBox Text1{place(), "Text1"};
  Button Command1{place(), "Command1", "Запись в файл"};
  Button Command2{place(), "Command2", "Чтение из файла"};
  Label Label3{place(), "Label3"};  // the text that was read

  Label Label4{place(), "Label4"};
  Button Command5{place(), "Command5", "Command5"};
  Button Command6{place(), "Command6", "MsgBox Yes/No"};
};

}  // namespace evac

// "Стенд", the window of the virtual rack: what it has heard, and everything that can happen at its end of
// the line.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QTableView>
#include <QTimer>

#include "desktop/cell_board.h"
#include "desktop/frame_log.h"
#include "desktop/training_line.h"

namespace evac::desktop {

class Stand : public QWidget {
 public:
  static constexpr const char* kName = "Стенд";

  explicit Stand(TrainingLine& line);
  // Shows the window beneath all others.
  void show_behind();
  // Shows the window, on top, also one that was made small.
  void bring_up();
  FrameLog& log() { return log_; }

 private:
  QWidget* line_panel();
  QWidget* contact_panel();
  QWidget* network_panel();
  QWidget* terminal_panel();
  QWidget* log_panel();
  void follow_line();
  void show_changes();
  QString network_words() const;
  void answer_as_chosen(int terminal);

  TrainingLine& line_;
  FrameLog log_;
  QTimer refresh_;
  bool changed_ = true;
  QCheckBox *plugged_ = nullptr, *paced_ = nullptr, *link_ = nullptr, *programme_ = nullptr,
            *polls_in_scan_ = nullptr;
  QSpinBox* period_ = nullptr;
  QLabel *clock_ = nullptr, *polls_ = nullptr, *network_ = nullptr;
  CellBoard *zones_ = nullptr, *terminals_ = nullptr, *contacts_ = nullptr, *outlets_ = nullptr;
  QComboBox* way_ = nullptr;  // in which a terminal that is pressed answers the scan
  QTableView* table_ = nullptr;
};

}  // namespace evac::desktop

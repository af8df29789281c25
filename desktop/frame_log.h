// The frames that passed on the line, as a table: time, direction, hexadecimal, plain words.
#pragma once

#include <QAbstractTableModel>
#include <QTime>
#include <deque>
#include <vector>

#include "rack/rack.h"

namespace evac::desktop {

class FrameLog : public QAbstractTableModel {
 public:
  static constexpr std::size_t kMost = 2000;
  enum Column { kTime, kFrom, kBytes, kWords, kColumns };

  // Kept aside until `show_new`.
  void add(const rack::Passed& frame);
  // A poll, or the steady answer to one: it changes nothing.
  static bool is_poll(const rack::Passed& frame);
  // Polls and their answers are passed over while this is on.
  void hide_polls(bool on) { without_polls_ = on; }
  void show_new();
  void clear();

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : kColumns; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Line {
    QTime time;
    rack::Passed frame;
  };
  std::deque<Line> lines_;
  std::vector<Line> new_;
  bool without_polls_ = true;
};

// "12:00:00.123  пульт →  AA AA ..  words", the same as a line of text.
QString line_of(const QTime& time, const rack::Passed& frame);

}  // namespace evac::desktop

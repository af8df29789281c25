// The alarm bar: the watch's most urgent lines, above the tabs and at the head of every other window. Red
// when something burns, yellow with the sign for a warning, grey for a note and for calm; it never changes
// its size with what it says. A press on a burning bar brings the alarm panel to the front, a press on the
// number of the lines that do not fit, or on a bar that does not burn, opens the list of all.
#pragma once

#include <QWidget>

#include "desktop/watch_feed.h"

namespace evac::desktop {

class WatchBar : public QWidget {
  Q_OBJECT
 public:
  WatchBar(WatchFeed& feed, QWidget* parent);

  // What is read aloud.
  QString spoken() const;
  // Height of capitals of a burning bar, in pixels: more in a large window.
  int capital_height() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  static constexpr int kLeastHeight = 48, kLeastCapitals = 30;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  struct Shown {
    QStringList lines;  // that fit, the most urgent first
    int rest = 0;       // that do not
  };
  Shown shown() const;
  QRect rest_area(int rest) const;
  // What the zone of a fire needs to be read in letters of full size.
  int least_width() const;
  int rest_width(int rest) const;
  QFont text_font() const;
  void show_change();
  void press();
  void open_list();

  WatchFeed& feed_;
  bool was_burning_ = false;
};

}  // namespace evac::desktop

// The watch as the windows show it: its lines, kept for any number of bars, and what a press on a bar does.
#pragma once

#include <QObject>
#include <functional>

#include "alert/watch.h"

namespace evac::desktop {

class WatchFeed : public QObject {
  Q_OBJECT
 public:
  // Follows the watch from here on.
  void follow(Watch& watch) {
    watch_ = &watch;
    watch.changed = [this] { emit changed(); };
  }
  // The watch is gone.
  void let_go() { watch_ = nullptr; }

  // Empty before the first look.
  const std::vector<WatchLine>& lines() const {
    static const std::vector<WatchLine> none;
    return watch_ ? watch_->lines() : none;
  }
  // The console looks: no line is then good news.
  bool looking() const { return watch_ && watch_->looking(); }
  bool burning() const { return !lines().empty() && lines().front().rank == WatchRank::kFire; }
  bool closed(int zone) const { return watch_ && watch_->closed(zone); }
  bool polls_missed() const { return watch_ && watch_->polls_missed(); }

  // Brings the alarm panel to the front.
  std::function<void()> show_alarm_panel = [] {};

 signals:
  void changed();

 private:
  Watch* watch_ = nullptr;
};

}  // namespace evac::desktop

// How far the scan of the terminals is, for any number of windows: the terminal that is asked, how many there
// are, and how long the rest will take at the pace so far.
#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <optional>

namespace evac::desktop {

class ScanFeed : public QObject {
  Q_OBJECT
 public:
  // What the console says of a pass that runs; none runs without it.
  struct Pass {
    int asked = 0, of = 0;
  };
  using Look = std::function<std::optional<Pass>()>;

  void follow(Look look) { look_ = std::move(look); }
  // The console is gone.
  void let_go() { look_ = nullptr; }
  // To be called before each wait: tells of a pass that begins or ends, and a few times a second how far it
  // is.
  void look();

  const std::optional<Pass>& pass() const { return pass_; }
  // Seconds that the pass still takes; none before the pace is known.
  std::optional<int> seconds_left() const;
  // "Опрошено 53 из 255, осталось около 0:01:40"; empty when no pass runs.
  QString text() const;

 signals:
  void changed();

 private:
  using Clock = std::chrono::steady_clock;
  Look look_;
  std::optional<Pass> pass_;
  Clock::time_point begun_{}, now_{};
  int first_ = 0;  // the terminal that was asked when the pass was seen first
};

}  // namespace evac::desktop

// Work that holds the window: the busy pointer, how far it is over the main window, and afterwards in the
// header strip how long it took.
#pragma once

#include <QString>
#include <QTimer>
#include <chrono>
#include <memory>

class QWidget;

namespace evac::desktop {

class Notices;

class BusySign {
 public:
  explicit BusySign(Notices& notices);
  ~BusySign();
  BusySign(const BusySign&) = delete;
  BusySign& operator=(const BusySign&) = delete;

  // `done` of `total` pieces, where the total is known, else 0. The first call begins the work. Paints at
  // once, since nothing else will; what the user does meanwhile waits.
  void show(QWidget& window, const QString& what, int done, int total);
  // A box is up, and the user's time is not the work's; it goes on with the next call of show().
  void hold();
  void over();
  // How long the work at hand has held the window.
  std::chrono::steady_clock::duration lasted() const {
    return pointer_ ? worked_ + (Clock::now() - since_) : worked_;
  }

  // Shorter work is not shown and not spoken of.
  static constexpr std::chrono::milliseconds kUnseen{300};

 private:
  class Card;
  using Clock = std::chrono::steady_clock;

  void paint(QWidget& window);
  void set_pointer(bool busy);

  Notices& notices_;
  std::unique_ptr<Card> card_;  // while it is to be seen
  QString what_;
  int done_ = 0, total_ = 0;
  bool at_work_ = false, pointer_ = false;
  Clock::duration worked_{};
  Clock::time_point since_{}, painted_{};
  QTimer forget_;
};

}  // namespace evac::desktop

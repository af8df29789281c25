// The signals of the system that end the program or call for its window, taken in turn with everything else
// instead of in the midst of it.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

namespace evac::desktop {

class EndSignals : public QObject {
  Q_OBJECT
 public:
  // To be called before any thread is started: they inherit what the program does not take at once.
  static void hold_back();
  EndSignals();
  ~EndSignals() override;

 signals:
  // SIGTERM, SIGINT or SIGHUP came.
  void end_wanted(const QString& name);
  // SIGUSR1: a second start found this program at work.
  void window_wanted();

 private:
  void take();
  int descriptor_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace evac::desktop

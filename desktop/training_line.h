// The virtual rack on a pseudo-terminal: the training mode's other end of the true serial path.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <chrono>
#include <memory>

#include "rack/pty.h"
#include "rack/rack.h"

namespace evac::desktop {

class TrainingLine : public QObject {
  Q_OBJECT
 public:
  // `name` is the path under which the console finds the line.
  explicit TrainingLine(const std::string& name);
  ~TrainingLine() override;

  rack::Rack& rack() { return rack_; }
  const std::string& name() const { return line_.name(); }
  // Throws std::runtime_error when there is no pseudo-terminal.
  void plug();
  // The line is pulled out: its device vanishes.
  void unplug();
  bool plugged() const { return line_.is_open(); }
  // Whoever changes something at the rack brings its time up to date first, and lets it work on after.
  void change(const std::function<void(rack::Rack&)>& what);

 signals:
  // A frame has passed, in either direction.
  void passed(const rack::Passed& frame);

 private:
  void work();
  void read();
  rack::Time now() const;

  const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  rack::PseudoTerminal line_;
  rack::Rack rack_;
  // The toolkit's own timers count whole milliseconds: too coarse for a line of 2.3 ms a byte.
  const int due_;
  QSocketNotifier due_watch_;
  std::unique_ptr<QSocketNotifier> readable_;
};

}  // namespace evac::desktop

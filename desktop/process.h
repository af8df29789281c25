// The process itself: its folder, its end, and the forced restart of the machine.
#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>

#include "desktop/notices.h"
#include "desktop/watch_feed.h"
#include "platform/machine.h"

namespace evac::desktop {

inline constexpr std::string_view kProgramFolder = "C:\\ZEF";

// The console ended the program; unwinds to whoever runs the loop.
struct ProgramEnded {};

class DesktopProcess : public QObject, public Process {
 public:
  // Asks the system to restart the machine; `refused` gets the reason when it does not.
  using Reboot = std::function<void(std::function<void(const QString& reason)> refused)>;
  // How long behind a fire a restart that it held back is made up.
  static constexpr std::chrono::minutes kBehindFire{1};

  DesktopProcess(bool restart_armed, Notices& notices, const WatchFeed& feed, Reboot reboot,
                 std::chrono::milliseconds behind_fire = kBehindFire);
  std::string working_folder() const override { return std::string(kProgramFolder); }
  [[noreturn]] void end() override { throw ProgramEnded(); }
  // Restarts the machine when that is armed, but never while something burns: then a minute behind it. Only
  // says so when it is not armed.
  void restart(int flags) override;

 private:
  // A restart that is held back waits for the end of the fire.
  void look_at_fire();
  void reboot_now();
  // In the header strip; with its moment.
  void tell(const QString& what);
  // And in the journal of the system.
  void report(const QString& what);

  const bool armed_;
  Notices& notices_;
  const WatchFeed& feed_;
  const Reboot reboot_;
  bool held_back_ = false;
  QTimer behind_fire_;
};

}  // namespace evac::desktop

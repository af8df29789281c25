// The process itself: its folder, its end, and the forced restart of the machine.
#pragma once

#include "desktop/notices.h"
#include "platform/machine.h"

namespace evac::desktop {

inline constexpr std::string_view kProgramFolder = "C:\\ZEF";

// The console ended the program; unwinds to whoever runs the loop.
struct ProgramEnded {};

class DesktopProcess : public Process {
 public:
  DesktopProcess(bool restart_armed, Notices& notices) : armed_(restart_armed), notices_(notices) {}
  std::string working_folder() const override { return std::string(kProgramFolder); }
  [[noreturn]] void end() override { throw ProgramEnded(); }
  // Restarts the machine when that is armed; only says so when it is not.
  void restart(int flags) override;

 private:
  const bool armed_;
  Notices& notices_;
};

}  // namespace evac::desktop

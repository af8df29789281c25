#include "desktop/end_signals.h"

#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QString>

namespace evac::desktop {
namespace {

sigset_t taken_signals() {
  sigset_t set;
  sigemptyset(&set);
  for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGUSR1}) sigaddset(&set, number);
  return set;
}

}  // namespace

void EndSignals::hold_back() {
  const sigset_t set = taken_signals();
  ::sigprocmask(SIG_BLOCK, &set, nullptr);
}

EndSignals::EndSignals() {
  const sigset_t set = taken_signals();
  descriptor_ = ::signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC);
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &EndSignals::take);
}

EndSignals::~EndSignals() {
  notifier_.reset();
  ::close(descriptor_);
}

void EndSignals::take() {
  signalfd_siginfo info;
  while (::read(descriptor_, &info, sizeof info) == static_cast<ssize_t>(sizeof info)) {
    const int number = static_cast<int>(info.ssi_signo);
    if (number == SIGUSR1)
      emit window_wanted();
    else
      emit end_wanted(QStringLiteral("SIG") + QString::fromLatin1(::sigabbrev_np(number)));
  }
}

}  // namespace evac::desktop

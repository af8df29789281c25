#include "desktop/process.h"

#include <QTime>

#include "desktop/host_log.h"

namespace evac::desktop {

DesktopProcess::DesktopProcess(bool restart_armed, Notices& notices, const WatchFeed& feed, Reboot reboot,
                               std::chrono::milliseconds behind_fire)
    : armed_(restart_armed), notices_(notices), feed_(feed), reboot_(std::move(reboot)) {
  behind_fire_.setSingleShot(true);
  behind_fire_.setInterval(behind_fire);
  connect(&behind_fire_, &QTimer::timeout, this, [this] { reboot_now(); });
  connect(&feed, &WatchFeed::changed, this, [this] { look_at_fire(); });
}

void DesktopProcess::restart(int) {
  if (!armed_) {
    tell(QStringLiteral("только объявлен"));
  } else if (feed_.burning() || held_back_) {
    held_back_ = true;
    report(QStringLiteral("отложен: пожар"));
    look_at_fire();
  } else {
    reboot_now();
  }
}

void DesktopProcess::look_at_fire() {
  if (!held_back_) return;
  if (feed_.burning())
    behind_fire_.stop();
  else if (!behind_fire_.isActive())
    behind_fire_.start();
}

void DesktopProcess::reboot_now() {
  held_back_ = false;
  report(QStringLiteral("начат"));
  reboot_([this](const QString& reason) { report(QStringLiteral("отклонён системой: %1").arg(reason)); });
}

void DesktopProcess::tell(const QString& what) {
  notices_.tell(Notices::kRestart, QStringLiteral("Перезапуск в %1 %2")
                                       .arg(QTime::currentTime().toString(QStringLiteral("H:mm:ss")), what));
}

void DesktopProcess::report(const QString& what) {
  tell(what);
  host_log(notices_.message(Notices::kRestart));
}

}  // namespace evac::desktop

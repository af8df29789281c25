#include "desktop/process.h"

#include <QDateTime>
#include <QProcess>

namespace evac::desktop {

void DesktopProcess::restart(int flags) {
  if (armed_) {
    // Forced: running programs are not asked.
    QProcess::startDetached(QStringLiteral("systemctl"),
                            {QStringLiteral("reboot"), QStringLiteral("--force")});
    return;
  }
  notices_.tell(Notices::kRestart, QStringLiteral("Перезапуск в %1 (%2) только объявлен")
                                       .arg(QDateTime::currentDateTime().toString(QStringLiteral("H:mm:ss")))
                                       .arg(flags));
}

}  // namespace evac::desktop

#include "desktop/login_manager.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace evac::desktop {

void ask_login_manager(const QDBusConnection& bus, QObject& owner,
                       std::function<void(const QString& reason)> refused) {
  if (!bus.isConnected()) {
    refused(bus.lastError().message());
    return;
  }
  auto call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
      QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Reboot"));
  call << false;  // nobody is there to be asked for a password
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call), &owner);
  QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer,
                   [answer, refused = std::move(refused)] {
                     answer->deleteLater();
                     if (const QDBusPendingReply<> reply = *answer; reply.isError())
                       refused(QStringLiteral("%1 (%2)").arg(reply.error().message(), reply.error().name()));
                   });
}

}  // namespace evac::desktop

// The system's login manager, by which the machine is restarted.
#pragma once

#include <QDBusConnection>
#include <functional>

namespace evac::desktop {

// Asks once for a restart, and waits for nothing. `refused` gets the reason when there is none to come; it is
// called at once or from the toolkit's loop, and no more once `owner` is gone.
void ask_login_manager(const QDBusConnection& bus, QObject& owner,
                       std::function<void(const QString& reason)> refused);

}  // namespace evac::desktop

// The log of the host: what happens to the program itself, for whoever looks after the machine. Goes to the
// system's log and to standard error.
#pragma once

#include <QString>

namespace evac::desktop {

void host_log(const QString& text);

}  // namespace evac::desktop

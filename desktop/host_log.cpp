#include "desktop/host_log.h"

#include <syslog.h>

#include <iostream>

namespace evac::desktop {

void host_log(const QString& text) {
  const std::string line = text.toStdString();
  ::syslog(LOG_USER | LOG_NOTICE, "%s", line.c_str());
  std::cerr << "evac-console: " << line << '\n';
}

}  // namespace evac::desktop

// The connection to the display, where it is one to an X server.
#pragma once

namespace evac::desktop {

// Whether the server has closed it, as it does when it ends. The toolkit, stepped then, ends the process
// where it stands.
bool display_gone();

}  // namespace evac::desktop

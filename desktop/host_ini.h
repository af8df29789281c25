// host.ini: what the machine under the console has, and where. A line that cannot be understood is told with
// its file, its number and what was expected there.
#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>

namespace evac::desktop {

struct HostSetup {
  std::map<char, std::filesystem::path> drives;  // by capital letter
  std::map<int, std::string> ports;              // device of COM1, COM2
  std::map<int, std::string> cards;              // device of card 0, 1; none is a machine without that card
  std::string sound_sink;                        // a GStreamer sink; empty chooses by itself
  std::string sound_font;                        // for .mid and .rmi; empty looks for one
  bool restart_armed = false;
  std::filesystem::path state;  // not told by host.ini: what the program keeps for itself from run to run
};

class HostIniError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws HostIniError: "host.ini:7: expected ..., found ...".
HostSetup read_host_ini(const std::filesystem::path& file);

}  // namespace evac::desktop

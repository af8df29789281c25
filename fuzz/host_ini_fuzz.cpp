// Any bytes as host.ini: it is read, with all that the program can't do without, or refused with the line
// named.
#include <unistd.h>

#include <cstdint>
#include <fstream>

#include "desktop/host_ini.h"
#include "fuzz/tally.h"

namespace {

namespace fs = std::filesystem;
using evac::check;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static evac::Tally tally;
  tally.take(size);
  static const fs::path file =
      (fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) /
      ("fuzz-host-" + std::to_string(::getpid()) + ".ini");
  std::ofstream(file, std::ios::binary | std::ios::trunc)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  try {
    const auto setup = evac::desktop::read_host_ini(file);
    check(setup.drives.contains('C') && setup.ports.contains(1), "a host without drive C or COM1");
    for (const auto& [letter, folder] : setup.drives)
      check(letter >= 'A' && letter <= 'Z' && fs::is_directory(folder), "a drive that is none");
    for (const auto& [number, device] : setup.ports)
      check((number == 1 || number == 2) && device.starts_with('/'), "a port that is none");
    for (const auto& [number, device] : setup.cards)
      check((number == 0 || number == 1) && device.starts_with('/'), "a card that is none");
  } catch (const evac::desktop::HostIniError& error) {
    check(std::string_view(error.what()).starts_with(file.string() + ":"), "a refusal names the file");
  }
  fs::remove(file);
  return 0;
}

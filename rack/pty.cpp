#include "rack/pty.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace evac::rack {

std::string PseudoTerminal::open() {
  close();
  const auto fail = [&](const char* what) {
    const std::string reason = std::string(what) + ": " + std::strerror(errno);
    close();
    return reason;
  };
  end_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
  if (end_ < 0 || ::grantpt(end_) != 0 || ::unlockpt(end_) != 0) return fail("no pseudo-terminal");
  std::array<char, 128> device{};
  if (::ptsname_r(end_, device.data(), device.size()) != 0) return fail("no name of the pseudo-terminal");
  held_ = ::open(device.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  termios raw{};
  if (held_ < 0 || ::tcgetattr(held_, &raw) != 0) return fail(device.data());
  ::cfmakeraw(&raw);
  if (::tcsetattr(held_, TCSANOW, &raw) != 0) return fail(device.data());
  const std::string fresh = name_ + ".new";
  ::unlink(fresh.c_str());
  if (::symlink(device.data(), fresh.c_str()) != 0 || std::rename(fresh.c_str(), name_.c_str()) != 0)
    return fail(name_.c_str());
  return {};
}

void PseudoTerminal::close() {
  if (end_ < 0 && held_ < 0) return;
  ::unlink(name_.c_str());
  if (held_ >= 0) ::close(held_);
  if (end_ >= 0) ::close(end_);
  end_ = held_ = -1;
}

std::vector<std::uint8_t> PseudoTerminal::read() {
  std::vector<std::uint8_t> bytes;
  std::array<std::uint8_t, 4096> block;
  while (end_ >= 0) {
    const ssize_t got = ::read(end_, block.data(), block.size());
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    bytes.insert(bytes.end(), block.begin(), block.begin() + got);
  }
  return bytes;
}

void PseudoTerminal::write(std::span<const std::uint8_t> bytes) {
  while (end_ >= 0 && !bytes.empty()) {
    const ssize_t put = ::write(end_, bytes.data(), bytes.size());
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return;
    bytes = bytes.subspan(static_cast<std::size_t>(put));
  }
}

}  // namespace evac::rack

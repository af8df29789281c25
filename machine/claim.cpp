#include "machine/claim.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <utility>

#include "model/text.h"

namespace evac {
namespace {

namespace fs = std::filesystem;

std::string first_line(const fs::path& file) {
  std::ifstream stream(file);
  std::string line;
  std::getline(stream, line);
  return line;
}

std::string user_of(const fs::path& process) {
  struct stat status {};
  if (::stat(process.c_str(), &status) != 0) return {};
  const passwd* entry = ::getpwuid(status.st_uid);
  return entry ? entry->pw_name : std::to_string(status.st_uid);
}

// A line of the table: "1: FLOCK  ADVISORY  WRITE 4711 fe:00:1234 0 EOF", the device in hexadecimal.
ClaimHolder holder_of(int descriptor) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) return {};
  char device[64];
  std::snprintf(device, sizeof device, "%02x:%02x:%lu", major(status.st_dev), minor(status.st_dev),
                static_cast<unsigned long>(status.st_ino));
  std::ifstream locks("/proc/locks");
  for (std::string line; std::getline(locks, line);) {
    std::istringstream words(line);
    std::string number, kind, strictness, access, where;
    int process = 0;
    if (!(words >> number >> kind >> strictness >> access >> process >> where)) continue;
    if (kind != "FLOCK" || where != device) continue;
    const fs::path folder = fs::path("/proc") / std::to_string(process);
    return {process, first_line(folder / "comm"), user_of(folder)};
  }
  return {};
}

}  // namespace

std::string words_of(const ClaimHolder& holder) {
  if (holder.process == 0) return "другая программа";
  return join(holder.program, " (процесс ", holder.process, ", пользователь ", holder.user, ")");
}

std::optional<ClaimHolder> Claim::take(const fs::path& path, Claim& claim) {
  Claim mine(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (mine.descriptor_ < 0) return ClaimHolder{};
  if (auto holder = take(mine.descriptor_)) return holder;
  claim = std::move(mine);
  return std::nullopt;
}

std::optional<ClaimHolder> Claim::take(int descriptor) {
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) return std::nullopt;
  return holder_of(descriptor);
}

Claim::~Claim() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

Claim& Claim::operator=(Claim&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

}  // namespace evac

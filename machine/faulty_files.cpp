#include "machine/faulty_files.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace evac {

void FaultyFiles::stall() {
  if (const auto time = std::exchange(stall_, {}); time.count() > 0) hold_(time);
}

template <class Write>
FileError FaultyFiles::unless_refused(const Write& write) {
  stall();
  return refusal_ != kNoError ? refusal_ : write();
}

FileError FaultyFiles::read(std::string_view path, std::string& bytes) {
  stall();
  return inner_.read(path, bytes);
}

FileError FaultyFiles::read_end(std::string_view path, std::size_t count, std::string& bytes) {
  stall();
  return inner_.read_end(path, count, bytes);
}

FileError FaultyFiles::replace(std::string_view path, std::string_view bytes) {
  const FileError error =
      unless_refused([&] { return kept_off(path) ? kNoError : inner_.replace(path, bytes); });
  if (error == kNoError) replaced(path, bytes);
  return error;
}

FileError FaultyFiles::append(std::string_view path, std::string_view bytes) {
  const FileError error = unless_refused([&] { return inner_.append(path, bytes); });
  if (error == kNoError) appended(path, bytes);
  return error;
}

FileError FaultyFiles::remove(std::string_view path) {
  const FileError error = unless_refused([&] { return inner_.remove(path); });
  if (error == kNoError) removed(path);
  return error;
}

FileError FaultyFiles::copy(std::string_view from, std::string_view to) {
  return unless_refused([&] { return inner_.copy(from, to); });
}

FileError FaultyFiles::make_folder(std::string_view path) {
  return unless_refused([&] { return inner_.make_folder(path); });
}

ssize_t FaultyDisk::write(int fd, const void* bytes, std::size_t count) {
  if (room_ && *room_ == 0) {
    out_of_room();
    errno = ENOSPC;
    return -1;
  }
  count = std::min({count, most_at_once_, room_.value_or(count)});
  const ssize_t written = ::write(fd, bytes, count);
  if (room_ && written > 0) *room_ -= static_cast<std::size_t>(written);
  return written;
}

}  // namespace evac

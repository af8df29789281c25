#include "machine/posix_files.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <limits>

#include "model/text.h"

namespace evac {
namespace {

namespace fs = std::filesystem;

// A file that is being written is named for the one that it replaces, the process and its count:
// "F_ust.dat.4711-3.new~". A crash may leave one; it is never listed.
constexpr std::string_view kNeighbour = ".new~";

constexpr off_t kLargestFile = 16 << 20;  // that is read whole

// Whether the process that wrote that neighbour is gone. One of this process's number is from an earlier one.
bool is_stale(std::string_view name) {
  name.remove_suffix(kNeighbour.size());
  const int process = Number(name.substr(name.rfind('.') + 1));
  return process <= 0 || process == ::getpid() || (::kill(process, 0) != 0 && errno == ESRCH);
}

// All that is written here is for the console's own user alone.
constexpr mode_t kFileMode = 0600, kFolderMode = 0700;

FileError error_of(int number) {
  switch (number) {
    case 0:
      return kNoError;
    case ENOENT:
      return kFileNotFound;
    case ENOTDIR:
      return kPathNotFound;
    case EEXIST:
      return kFileExists;
    case ENOSPC:
    case EDQUOT:
      return kDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return kPermissionDenied;
    case EISDIR:
    case ENOTEMPTY:
      return kPathFileAccess;
    default:
      return kDeviceError;
  }
}

class Descriptor {
 public:
  Descriptor(const fs::path& path, int flags)
      : fd_(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, kFileMode)) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return fd_; }

 private:
  const int fd_;
};

// What settings and the journal may be: a regular file. A pipe or a device in its place is never waited for.
FileError check_regular(int fd, struct stat& status, off_t most = std::numeric_limits<off_t>::max()) {
  if (::fstat(fd, &status) != 0) return error_of(errno);
  if (S_ISDIR(status.st_mode)) return kPathFileAccess;
  return S_ISREG(status.st_mode) && status.st_size <= most ? kNoError : kBadFileMode;
}

FileError sync_file(int fd) {
  return ::fsync(fd) == 0 ? kNoError : error_of(errno);
}

FileError sync_folder(const fs::path& folder) {
  Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
  return descriptor.get() < 0 ? error_of(errno) : sync_file(descriptor.get());
}

// The folder and those above it that are missing.
FileError make_folders(const fs::path& folder) {
  if (::mkdir(folder.c_str(), kFolderMode) == 0) return kNoError;
  if (errno != ENOENT || !folder.has_relative_path()) return error_of(errno);
  if (const FileError error = make_folders(folder.parent_path())) return error;
  return ::mkdir(folder.c_str(), kFolderMode) == 0 ? kNoError : error_of(errno);
}

// Cut behind the last backslash. No name where it may be more than that of a thing in the folder.
std::pair<std::string_view, std::string_view> folder_and_name(std::string_view path) {
  const auto cut = path.rfind('\\') + 1;
  const std::string_view name = path.substr(cut);
  const bool plain = cut > 0 && !name.starts_with('.') && name.find('/') == std::string_view::npos;
  return {path.substr(0, cut), plain ? name : std::string_view()};
}

}  // namespace

FileError PosixFiles::write_all(int fd, std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t written =
        write_ ? write_(fd, bytes.data(), bytes.size()) : ::write(fd, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return error_of(errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return kNoError;
}

FileError PosixFiles::read_all(int fd, std::string& bytes) const {
  char block[65536];
  while (true) {
    const ssize_t got = read_ ? read_(fd, block, sizeof block) : ::read(fd, block, sizeof block);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return error_of(errno);
    if (got == 0) return kNoError;
    bytes.append(block, static_cast<std::size_t>(got));
  }
}

fs::path PosixFiles::locate(std::string_view path) const {
  if (path.size() < 2 || path[1] != ':') return {};
  const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(path[0])));
  const auto drive = drives_.find(letter);
  if (drive == drives_.end()) return {};
  const std::string_view whole = path;
  if (const auto known = spellings_->place_of(whole)) return *known;
  fs::path place = drive->second;
  path.remove_prefix(2);
  while (!path.empty()) {
    const auto end = path.find('\\');
    const std::string part(path.substr(0, end));
    path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    if (part.empty() || part == ".") continue;
    if (part == ".." || part.find('/') != std::string::npos) return {};  // nothing leads out of a drive
    std::error_code error;
    fs::path next = place / part;
    if (!fs::exists(next, error)) {
      const std::string low = lower_case(part);
      for (fs::directory_iterator at(place, error), last; !error && at != last; at.increment(error))
        if (lower_case(at->path().filename().string()) == low) {
          next = at->path();
          break;
        }
    }
    place = next;
  }
  spellings_->remember(whole, place);
  return place;
}

std::optional<std::string> PosixFiles::Spellings::place_of(std::string_view path) {
  const auto [of, name] = folder_and_name(path);
  if (name.empty()) return std::nullopt;
  std::string place;
  {
    const std::lock_guard lock(mutex_);
    const auto folder = folders_.find(of);
    if (folder == folders_.end()) return std::nullopt;
    place = folder->second;
  }
  place.append(1, '/').append(name);
  struct stat status {};
  if (::stat(place.c_str(), &status) != 0) return std::nullopt;
  return place;
}

void PosixFiles::Spellings::remember(std::string_view path, const fs::path& place) {
  const auto [of, name] = folder_and_name(path);
  if (name.empty()) return;
  const std::lock_guard lock(mutex_);
  folders_[std::string(of)] = place.parent_path().string();
}

void PosixFiles::Spellings::forget() {
  const std::lock_guard lock(mutex_);
  folders_.clear();
}

FileError PosixFiles::read(std::string_view path, std::string& bytes) {
  bytes.clear();
  const fs::path file = locate(path);
  if (file.empty()) return kDriveNotReady;
  Descriptor descriptor(file, O_RDONLY);
  if (descriptor.get() < 0) return error_of(errno);
  struct stat status {};
  if (const FileError error = check_regular(descriptor.get(), status, kLargestFile)) return error;
  bytes.reserve(static_cast<std::size_t>(status.st_size));
  const FileError error = read_all(descriptor.get(), bytes);
  if (error != kNoError) bytes.clear();
  return error;
}

FileError PosixFiles::read_end(std::string_view path, std::size_t count, std::string& bytes) {
  bytes.clear();
  const fs::path file = locate(path);
  if (file.empty()) return kDriveNotReady;
  Descriptor descriptor(file, O_RDONLY);
  if (descriptor.get() < 0) return error_of(errno);
  struct stat status {};
  if (const FileError error = check_regular(descriptor.get(), status)) return error;
  const off_t size = status.st_size;
  bytes.resize(std::min(count, static_cast<std::size_t>(size)));
  const ssize_t got =
      ::pread(descriptor.get(), bytes.data(), bytes.size(), size - static_cast<off_t>(bytes.size()));
  if (got < 0) return error_of(errno);
  bytes.resize(static_cast<std::size_t>(got));
  return kNoError;
}

FileError PosixFiles::replace(std::string_view path, std::string_view bytes) {
  const fs::path file = locate(path);
  if (file.empty()) return kDriveNotReady;
  const fs::path folder = file.parent_path();
  std::error_code ignored;
  if (!fs::is_directory(folder, ignored)) return kPathNotFound;
  if (fs::is_directory(file, ignored)) return kPathFileAccess;
  if (cleared_folders_.insert(folder).second) remove_stale(folder);
  fs::path neighbour;
  FileError error = write_neighbour(file, bytes, neighbour);
  if (error == kNoError && ::rename(neighbour.c_str(), file.c_str()) != 0) error = error_of(errno);
  if (error == kNoError) return sync_folder(folder);
  fs::remove(neighbour, ignored);
  return error;
}

FileError PosixFiles::append(std::string_view path, std::string_view bytes) {
  const fs::path file = locate(path);
  if (file.empty()) return kDriveNotReady;
  Descriptor descriptor(file, O_WRONLY | O_CREAT | O_APPEND);
  if (descriptor.get() < 0) return error_of(errno);
  struct stat status {};
  if (const FileError error = check_regular(descriptor.get(), status)) return error;
  // One that was there before may be open to others. Who can't close it writes all the same.
  if ((status.st_mode & ALLPERMS) != kFileMode) (void)::fchmod(descriptor.get(), kFileMode);
  const FileError error = write_all(descriptor.get(), bytes);
  // Half a line would run into the next one. A disk that can't take it back leaves it.
  if (error != kNoError) (void)!::ftruncate(descriptor.get(), status.st_size);
  return error;
}

FileError PosixFiles::sync(std::string_view path, bool folder) const {
  const fs::path file = locate(path);
  Descriptor descriptor(file, O_RDONLY);
  if (descriptor.get() < 0 || ::fdatasync(descriptor.get()) != 0) return error_of(errno);
  return folder ? sync_folder(file.parent_path()) : kNoError;
}

FileError PosixFiles::remove(std::string_view path) {
  const fs::path file = locate(path);
  if (file.empty()) return kDriveNotReady;
  return ::unlink(file.c_str()) == 0 ? kNoError : error_of(errno);
}

FileError PosixFiles::copy(std::string_view from, std::string_view to) {
  std::string bytes;
  if (const FileError error = read(from, bytes)) return error;
  return replace(to, bytes);
}

FileError PosixFiles::make_folder(std::string_view path) {
  const fs::path folder = locate(path);
  if (folder.empty()) return kDriveNotReady;
  std::error_code error;
  if (fs::is_directory(folder, error)) return kPathFileAccess;
  if (const FileError failed = make_folders(folder)) return failed;
  // The folder stands either way; a disk that can't keep it will say so at the first save.
  (void)sync_folder(folder.parent_path());
  return kNoError;
}

bool PosixFiles::is_file(std::string_view path) {
  std::error_code error;
  return fs::is_regular_file(locate(path), error);
}

bool PosixFiles::is_folder(std::string_view path) {
  std::error_code error;
  return fs::is_directory(locate(path), error);
}

std::vector<std::string> PosixFiles::folders(std::string_view path) {
  return names(path, true);
}
std::vector<std::string> PosixFiles::files(std::string_view path) {
  return names(path, false);
}

std::vector<std::string> PosixFiles::names(std::string_view path, bool folders) const {
  std::vector<std::string> found;
  const fs::path folder = locate(path);
  if (folder.empty()) return found;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), last; !error && at != last; at.increment(error)) {
    std::error_code unknown;
    std::string name = at->path().filename().string();
    if (at->is_directory(unknown) == folders && !name.ends_with(kNeighbour)) found.push_back(std::move(name));
  }
  sort_as_listed(found);
  return found;
}

std::vector<std::string> PosixFiles::drives() {
  std::vector<std::string> found;
  for (const auto& [letter, place] : drives_) found.push_back({letter, ':'});
  return found;
}

bool PosixFiles::drive_ready(char letter) {
  letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  std::error_code error;
  const auto drive = drives_.find(letter);
  return drive != drives_.end() && fs::is_directory(drive->second, error);
}

FileError PosixFiles::write_neighbour(const fs::path& file, std::string_view bytes, fs::path& neighbour) {
  while (true) {
    neighbour = file.string() + join(".", ::getpid(), "-", ++neighbours_, kNeighbour);
    Descriptor descriptor(neighbour, O_WRONLY | O_CREAT | O_EXCL);
    if (descriptor.get() < 0 && errno == EEXIST) continue;
    if (descriptor.get() < 0) return error_of(errno);
    const FileError error = write_all(descriptor.get(), bytes);
    return error == kNoError ? sync_file(descriptor.get()) : error;
  }
}

void PosixFiles::remove_left_over(std::string_view path) {
  const fs::path top = locate(path);
  std::error_code error;
  std::vector<fs::path> all = {top};
  for (fs::recursive_directory_iterator at(top, error), last; !error && at != last; at.increment(error)) {
    std::error_code unknown;
    if (at->is_directory(unknown)) all.push_back(at->path());
  }
  for (const fs::path& folder : all) remove_stale(folder);
}

void PosixFiles::remove_stale(const fs::path& folder) {
  std::vector<fs::path> stale;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), last; !error && at != last; at.increment(error)) {
    const std::string name = at->path().filename().string();
    if (name.ends_with(kNeighbour) && is_stale(name)) stale.push_back(at->path());
  }
  for (const auto& file : stale) fs::remove(file, error);
}

}  // namespace evac

#include "desktop/self_check.h"

#include <sys/statvfs.h>

#include <QFileInfo>
#include <chrono>
#include <fstream>

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kMarkEvery{1};

std::string text_of(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

SelfCheck::SelfCheck(CheckSetup setup) : setup_(std::move(setup)) {
  std::error_code error;
  fs::create_directories(setup_.state, error);
  cut_off_ = QFileInfo(mark()).lastModified();
  std::ofstream(mark()) << "1\n";
  worker_ = std::thread([this] { work(); });
}

SelfCheck::~SelfCheck() {
  {
    const std::lock_guard lock(mutex_);
    done_ = true;
  }
  ended_.notify_one();
  worker_.join();
  std::error_code ignored;
  fs::remove(mark(), ignored);
}

void SelfCheck::work() {
  auto next = std::chrono::steady_clock::now();
  std::unique_lock lock(mutex_);
  do {
    lock.unlock();
    std::error_code ignored;
    fs::last_write_time(mark(), fs::file_time_type::clock::now(), ignored);
    if (std::chrono::steady_clock::now() >= next) {
      next += kEvery;
      emit looked(look_at_data(), setup_.sound());
    }
    lock.lock();
  } while (!ended_.wait_for(lock, kMarkEvery, [this] { return done_; }));
}

QString SelfCheck::look_at_data() {
  QStringList found;
  std::error_code error;
  const auto size = fs::file_size(setup_.settings_file, error);
  if (error || size == 0) found << QStringLiteral("в папке данных нет настроек, подключён ли её диск?");
  struct statvfs disk {};
  if (::statvfs(setup_.settings_file.parent_path().c_str(), &disk) != 0) return found.join("; ");
  const auto room = static_cast<std::uintmax_t>(disk.f_bavail) * disk.f_frsize;
  if (room < kLeastRoom) found << QStringLiteral("на диске данных осталось %1 МБ").arg(room / 1'000'000);
  const fs::path known = setup_.state / "file-system";
  const std::string before = text_of(known), now = std::to_string(disk.f_fsid);
  if (!before.empty() && before != now)
    other_disk_ = QStringLiteral("папка данных лежит не на том диске, что прежде");
  if (before != now) std::ofstream(known) << now;
  if (!other_disk_.isEmpty()) found << other_disk_;
  return found.join("; ");
}

}  // namespace evac::desktop

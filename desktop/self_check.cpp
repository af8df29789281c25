#include "desktop/self_check.h"

#include <sys/statvfs.h>

#include <QFileInfo>
#include <chrono>
#include <fstream>
#include <thread>

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kMarkEvery{1}, kSoundPatience{6}, kLongestEnd{1};

std::string text_of(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

SelfCheck::SelfCheck(CheckSetup setup) : work_(std::make_shared<Work>()) {
  work_->setup = std::move(setup);
  work_->owner = this;
  std::error_code error;
  fs::create_directories(work_->setup.state, error);
  cut_off_ = QFileInfo(work_->mark()).lastModified();
  std::ofstream(work_->mark()) << "1\n";
}

void SelfCheck::start() {
  std::thread([work = work_] { run(work); }).detach();
}

SelfCheck::~SelfCheck() {
  std::unique_lock lock(work_->mutex);
  work_->owner = nullptr;
  work_->changed.notify_all();
  work_->changed.wait_for(lock, kLongestEnd, [this] { return work_->over; });
  std::error_code ignored;
  fs::remove(work_->mark(), ignored);
}

void SelfCheck::run(const std::shared_ptr<Work>& work) {
  auto next = std::chrono::steady_clock::now();
  std::unique_lock lock(work->mutex);
  while (work->owner) {
    lock.unlock();
    std::error_code ignored;
    fs::last_write_time(work->mark(), fs::file_time_type::clock::now(), ignored);
    const bool due = std::chrono::steady_clock::now() >= next;
    const QString data = due ? look_at_data(*work) : QString();
    const QStringList sound = due ? look_at_sound(*work) : QStringList();
    lock.lock();
    if (due && work->owner) emit work->owner->looked(data, sound);
    if (due) next += kEvery;
    work->changed.wait_for(lock, kMarkEvery, [&work] { return !work->owner; });
  }
  work->over = true;
  work->changed.notify_all();
}

QStringList SelfCheck::look_at_sound(Work& work) {
  return work.sound.ask<QStringList>(work.setup.sound, kSoundPatience)
      .value_or(QStringList(QStringLiteral("Звуковое устройство не отвечает")));
}

QString SelfCheck::look_at_data(Work& work) {
  QStringList found;
  std::error_code error;
  const auto size = fs::file_size(work.setup.settings_file, error);
  if (error || size == 0) found << QStringLiteral("в папке данных нет настроек, подключён ли её диск?");
  struct statvfs disk {};
  if (::statvfs(work.setup.settings_file.parent_path().c_str(), &disk) != 0) return found.join("; ");
  const auto room = static_cast<std::uintmax_t>(disk.f_bavail) * disk.f_frsize;
  if (room < kLeastRoom) found << QStringLiteral("на диске данных осталось %1 МБ").arg(room / 1'000'000);
  const fs::path known = work.setup.state / "file-system";
  const std::string before = text_of(known), now = std::to_string(disk.f_fsid);
  if (!before.empty() && before != now)
    work.other_disk = QStringLiteral("папка данных лежит не на том диске, что прежде");
  if (before != now) std::ofstream(known) << now;
  if (!work.other_disk.isEmpty()) found << work.other_disk;
  return found.join("; ");
}

}  // namespace evac::desktop

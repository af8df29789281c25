// What the program looks at by itself, on a thread of its own, at start and every ten minutes: whether the
// data folder is the one that it was, whether there is room, whether sound can be heard. The same thread
// keeps the mark by which the next start knows that this one ended without a word.
#pragma once

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <thread>

namespace evac::desktop {

struct CheckSetup {
  std::filesystem::path settings_file;  // what no data folder in use is without
  std::filesystem::path state;          // folder of what is kept from one run to the next; made as needed
  std::function<QStringList()> sound;   // what is missing to be heard
};

class SelfCheck : public QObject {
  Q_OBJECT
 public:
  static constexpr std::chrono::minutes kEvery{10};
  static constexpr std::uintmax_t kLeastRoom = 100'000'000;  // bytes

  explicit SelfCheck(CheckSetup setup);
  // The run ends in order: the next start is told of nothing.
  ~SelfCheck() override;

  // When the run before this one was cut off; not valid when it ended in order.
  const QDateTime& cut_off() const { return cut_off_; }

 signals:
  // Raised on the thread of this object: what is wrong with the data folder, what with the sound.
  void looked(const QString& data, const QStringList& sound);

 private:
  void work();
  QString look_at_data();
  std::filesystem::path mark() const { return setup_.state / "running"; }

  const CheckSetup setup_;
  QDateTime cut_off_;
  QString other_disk_;  // told for the whole of this run
  std::mutex mutex_;
  std::condition_variable ended_;
  bool done_ = false;
  std::thread worker_;
};

}  // namespace evac::desktop

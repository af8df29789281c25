// What the program looks at by itself, on a thread of its own, at start and every ten minutes: whether the
// data folder is the one that it was, whether there is room, whether sound can be heard. The same thread
// keeps the mark by which the next start knows that this one ended without a word. A look that is stuck holds
// neither the mark up nor the end of the program.
#pragma once

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>

#include "desktop/worker.h"

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
  // Looks from now on.
  void start();
  // The run ends in order: the next start is told of nothing.
  ~SelfCheck() override;

  // When the run before this one was cut off; not valid when it ended in order.
  const QDateTime& cut_off() const { return cut_off_; }

 signals:
  // Raised on the thread of this object: what is wrong with the data folder, what with the sound.
  void looked(const QString& data, const QStringList& sound);

 private:
  // All that the thread uses, also when it is left to itself.
  struct Work {
    CheckSetup setup;
    QString other_disk;  // told for the whole of this run
    Worker sound;
    std::mutex mutex;
    std::condition_variable changed;
    SelfCheck* owner;  // none: nobody listens any longer
    bool over = false;
    std::filesystem::path mark() const { return setup.state / "running"; }
  };
  static void run(const std::shared_ptr<Work>& work);
  static QString look_at_data(Work& work);
  static QStringList look_at_sound(Work& work);

  const std::shared_ptr<Work> work_;
  QDateTime cut_off_;
};

}  // namespace evac::desktop

// What the host has to tell the operator, in Russian. Each subject has a place of its own and one message at
// a time; the texts of boxes that answered themselves are kept until they are dismissed.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTime>
#include <array>

namespace evac::desktop {

class Notices : public QObject {
  Q_OBJECT
 public:
  // In the order of their places. The work that took long and the frames that wait are information; the
  // others are faults.
  enum Subject { kLine, kDisk, kData, kSound, kCards, kRestart, kWork, kBacklog, kSubjects };
  static constexpr bool is_fault(Subject subject) { return subject < kWork; }

  void tell(Subject subject, const QString& message) {
    if (messages_[subject] == message) return;
    messages_[subject] = message;
    emit changed();
  }
  void take_back(Subject subject) { tell(subject, {}); }
  // All that stands, for one line.
  QString text() const {
    QStringList lines = boxes_;
    for (const QString& message : messages_)
      if (!message.isEmpty()) lines << message;
    return lines.join(QStringLiteral("   •   "));
  }
  const QString& message(Subject subject) const { return messages_[subject]; }

  // A box answered itself: its text, with the time.
  void keep_box(const QString& text) {
    boxes_ << QStringLiteral("%1  %2").arg(QTime::currentTime().toString(QStringLiteral("H:mm:ss")), text);
    while (boxes_.size() > kMostBoxes) boxes_.removeFirst();
    emit changed();
  }
  const QStringList& boxes() const { return boxes_; }
  void dismiss_boxes() {
    boxes_.clear();
    emit changed();
  }

 signals:
  void changed();

 private:
  static constexpr qsizetype kMostBoxes = 20;

  std::array<QString, kSubjects> messages_;
  QStringList boxes_;
};

}  // namespace evac::desktop

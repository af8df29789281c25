// What the host has to tell the operator: a line that is lost, frames that wait, a machine with no sound.
// Each subject has one message at a time, and all stand in one line of the header strip.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <map>

namespace evac::desktop {

class Notices : public QObject {
  Q_OBJECT
 public:
  // In the order in which they are shown.
  enum Subject { kLine, kBacklog, kSound, kCards, kRestart };

  void tell(Subject subject, const QString& message) {
    if (messages_[subject] == message) return;
    messages_[subject] = message;
    emit changed();
  }
  void take_back(Subject subject) { tell(subject, {}); }
  QString text() const {
    QStringList lines;
    for (const auto& [subject, message] : messages_)
      if (!message.isEmpty()) lines << message;
    return lines.join(QStringLiteral("   •   "));
  }

 signals:
  void changed();

 private:
  std::map<Subject, QString> messages_;
};

}  // namespace evac::desktop

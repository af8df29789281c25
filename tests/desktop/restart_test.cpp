// The forced restart: what is asked of the system, when a fire holds it back, and what is said when the
// system refuses. The system is a stand-in here, on a bus of the test's own; the real one is never asked.
#include <QDBusContext>
#include <QDBusInterface>
#include <QProcess>
#include <QTest>

#include "desktop/login_manager.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

using namespace std::chrono_literals;

TEST(Restart, IsOnlyAnnouncedWhenItIsNotArmed) {
  Notices notices;
  WatchFeed feed;
  int asked = 0;
  DesktopProcess process(false, notices, feed, [&](auto) { ++asked; });
  process.restart(7);
  EXPECT_TRUE(notices.text().startsWith("Перезапуск в "));
  EXPECT_TRUE(notices.text().endsWith(" только объявлен"));
  EXPECT_EQ(asked, 0);
}

class RestartByFire : public TrainingDesktop {
 protected:
  RestartByFire() {
    desktop->start();
    until([&] { return desktop->feed().looking(); });
  }
  bool says(const char* end) const { return notices_.text().endsWith(QString::fromUtf8(end)); }
  void burn(bool on) {
    line_->change([=](rack::Rack& rack) { rack.set_contact(7, on); });
    ASSERT_TRUE(until([&] { return desktop->feed().burning() == on; }));
  }
  void wait(std::chrono::milliseconds time) {
    const auto end = desktop->loop().now() + time;
    until([&] { return desktop->loop().now() >= end; });
  }

  Notices notices_;
  int asked_ = 0;
  DesktopProcess process_{true, notices_, desktop->feed(),
                          [this](auto refused) {
                            ++asked_;
                            refused(QStringLiteral("нет прав"));
                          },
                          400ms};
};

TEST_F(RestartByFire, ItIsHeldBackWhileItBurnsAndMadeUpOnceBehindIt) {
  burn(true);
  process_.restart(7);
  EXPECT_TRUE(says(" отложен: пожар"));
  wait(600ms);
  EXPECT_EQ(asked_, 0);
  burn(false);
  wait(200ms);
  burn(true);  // again, before the time is up
  wait(600ms);
  EXPECT_EQ(asked_, 0);
  burn(false);
  process_.restart(7);  // another time of the day
  wait(200ms);
  EXPECT_EQ(asked_, 0);
  ASSERT_TRUE(until([&] { return asked_ == 1; }));
  EXPECT_TRUE(says(" отклонён системой: нет прав"));
  wait(600ms);
  burn(true);
  burn(false);
  wait(600ms);
  EXPECT_EQ(asked_, 1);
  process_.restart(7);
  EXPECT_EQ(asked_, 2) << "nothing burns";
}

// Stands in the place of the login manager.
class StandIn : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
 public:
  int calls = 0;
  bool interactive = true, refuses = false;
 public slots:
  void Reboot(bool with_questions) {
    ++calls;
    interactive = with_questions;
    if (refuses)
      sendErrorReply("org.freedesktop.DBus.Error.AccessDenied", "Interactive authentication required");
  }
};

// A bus of the test's own.
class Bus : public ::testing::Test {
 protected:
  Bus() {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!daemon_.waitForStarted() || !daemon_.waitForReadyRead()) return;
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
  }
  ~Bus() override {
    for (const char* name : {"asks", "answers"}) QDBusConnection::disconnectFromBus(name);
    daemon_.kill();
    daemon_.waitForFinished();
  }
  QDBusConnection connection(const char* name) { return QDBusConnection::connectToBus(address_, name); }

  QProcess daemon_;
  QString address_;
};

TEST_F(Bus, TheLoginManagerIsAskedOnceAndItsRefusalIsTold) {
  ASSERT_FALSE(address_.isEmpty());
  QObject owner;
  QStringList reasons;
  const auto ask = [&] {
    ask_login_manager(connection("asks"), owner, [&](const QString& reason) { reasons << reason; });
  };
  ask();
  ASSERT_TRUE(QTest::qWaitFor([&] { return reasons.size() == 1; })) << "nobody is there";
  EXPECT_TRUE(reasons.front().contains("org.freedesktop.DBus.Error.ServiceUnknown"))
      << plain(reasons.front());

  StandIn manager;
  QDBusConnection theirs = connection("answers");
  ASSERT_TRUE(theirs.registerObject("/org/freedesktop/login1", &manager, QDBusConnection::ExportAllSlots));
  ASSERT_TRUE(theirs.registerService("org.freedesktop.login1"));
  ask();
  ASSERT_TRUE(QTest::qWaitFor([&] { return manager.calls == 1; }));
  EXPECT_FALSE(manager.interactive);
  QTest::qWait(100);
  EXPECT_EQ(reasons.size(), 1);
  manager.refuses = true;
  ask();
  ASSERT_TRUE(QTest::qWaitFor([&] { return reasons.size() == 2; }));
  EXPECT_TRUE(reasons.back().startsWith("Interactive authentication required")) << plain(reasons.back());
  // A bus that is not there.
  ask_login_manager(QDBusConnection::connectToBus("unix:path=/no/such/bus", "no bus"), owner,
                    [&](const QString& reason) { reasons << reason; });
  ASSERT_EQ(reasons.size(), 3);
  EXPECT_FALSE(reasons.back().isEmpty());
}

}  // namespace
}  // namespace evac::desktop

#include "restart_test.moc"

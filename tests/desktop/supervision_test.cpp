// What stands around the running desktop: the heartbeat for the service manager, the mark of a run that was
// cut off, the check of the data folder, the signals that end it.
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDialog>
#include <fstream>
#include <thread>

#include "desktop/self_check.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

// A service manager that listens.
class Listener {
 public:
  Listener() : socket_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = (folder_.path() + "/notify").toStdString();
    std::copy(path.begin(), path.end(), address.sun_path);
    EXPECT_EQ(::bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    qputenv("NOTIFY_SOCKET", path.c_str());
  }
  ~Listener() {
    qunsetenv("NOTIFY_SOCKET");
    ::close(socket_);
  }
  // What came since the last call.
  QStringList heard() {
    QStringList lines;
    char text[256];
    for (ssize_t size; (size = ::recv(socket_, text, sizeof text, 0)) > 0;)
      lines << QString::fromUtf8(text, size);
    return lines;
  }

 private:
  QTemporaryDir folder_;
  int socket_;
};

class Supervised : public TrainingDesktop {
 protected:
  Listener manager;
};

TEST_F(Supervised, TheDetectionItselfBeatsAndAlsoABoxThatIsUp) {
  desktop->start();
  EXPECT_EQ(manager.heard(), QStringList("READY=1"));
  QStringList heard;
  ASSERT_TRUE(until([&] { return (heard += manager.heard()).contains("WATCHDOG=1"); }));
  QStringList under_box;
  QTimer::singleShot(2500, [&] {
    under_box = manager.heard();
    dynamic_cast<QDialog&>(*QApplication::activeModalWidget()).accept();
  });
  desktop->boxes().message("Текст", "");
  EXPECT_GE(under_box.count("WATCHDOG=1"), 2);
  form1().Timer4.set_enabled(false);
  settle();
  (void)manager.heard();
  bool later = false;
  desktop->loop().post_after(std::chrono::milliseconds(2500), [&] { later = true; });
  ASSERT_TRUE(until([&] { return later; }));
  EXPECT_TRUE(manager.heard().isEmpty()) << "a console that does not detect does not live";
}

TEST_F(Supervised, ItBeatsInTheMidstOfWorkThatHoldsTheWindowAndAFireEndsThat) {
  desktop->start();
  (void)manager.heard();
  EXPECT_TRUE(desktop->windows().busy("Длительность списка", 1, 3));
  std::this_thread::sleep_for(std::chrono::milliseconds(1100));
  (void)manager.heard();
  EXPECT_TRUE(desktop->windows().busy("Длительность списка", 2, 3));
  EXPECT_EQ(manager.heard(), QStringList("WATCHDOG=1"));
  line_->change([](rack::Rack& rack) { rack.set_contact(7, true); });
  EXPECT_FALSE(desktop->windows().busy("Длительность списка", 3, 3));
  desktop->windows().busy_over();
}

TEST_F(Supervised, ASignalEndsItInOrderFromUnderAWindow) {
  desktop->start();
  QTimer::singleShot(300, [] { ::kill(::getpid(), SIGTERM); });
  EXPECT_THROW(desktop->console().windows().show_modal(forms().form2), ProgramEnded);
  EXPECT_TRUE(QFile::exists(folder_.path() + "/state/running"));
  desktop.reset();
  EXPECT_FALSE(QFile::exists(folder_.path() + "/state/running"));
  EXPECT_TRUE(manager.heard().contains("STOPPING=1"));
}

TEST_F(Supervised, ARunThatWasCutOffIsToldByTheNext) {
  desktop.reset();
  std::ofstream((folder_.path() + "/state/running").toStdString()) << "1\n";
  HostSetup setup = training_setup(folder_.path().toStdString());
  setup.sound_sink = "fake";
  auto line = std::make_unique<TrainingLine>(setup.ports.at(1));
  desktop = std::make_unique<Desktop>(setup, std::move(line));
  desktop->start();
  EXPECT_TRUE(desktop->notices().text().contains(QStringLiteral("Предыдущая работа прервана ")));
}

TEST(DataCheck, TellsOfADataFolderWithoutSettings) {
  QTemporaryDir folder;
  const std::filesystem::path path = folder.path().toStdString();
  const auto look = [&] {
    SelfCheck check({path / "F_ust.dat", path / "state", [] { return QStringList(); }});
    QString told;
    bool came = false;
    QObject::connect(&check, &SelfCheck::looked, &check, [&](const QString& data) {
      told = data;
      came = true;
    });
    check.start();
    while (!came) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return told;
  };
  EXPECT_TRUE(look().contains(QStringLiteral("нет настроек")));
  std::ofstream(path / "F_ust.dat") << "1";
  EXPECT_EQ(look(), "");
  std::ofstream(path / "state/file-system") << "0815";
  EXPECT_TRUE(look().contains(QStringLiteral("не на том диске"))) << "and is the known one from then on";
  EXPECT_EQ(look(), "");
}

}  // namespace
}  // namespace evac::desktop

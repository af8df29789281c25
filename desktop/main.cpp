// evac-console: the operator's program.
//
//   evac-console [--host FILE]
//       on the machine that FILE, or the user's own host.ini, describes
//   evac-console --rehearse DIR [--seconds N]
//       a short run on the virtual rack, with pictures in DIR
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QStandardPaths>
#include <chrono>
#include <iostream>
#include <thread>

#include "desktop/desktop.h"
#include "desktop/host_log.h"
#include "desktop/rehearsal.h"
#include "desktop/stand.h"
#include "desktop/version.h"
#include "desktop/view/dress.h"
#include "machine/claim.h"

namespace {

namespace fs = std::filesystem;
using namespace evac;
using namespace evac::desktop;

constexpr const char* kProgram = "evac-console";
constexpr int kFaultStatus = 1, kUsageStatus = 2;
constexpr int kRehearsalSeconds = 16;
constexpr int kSilentTerminal = 37;  // of the training: one that the scan doesn't find

struct Options {
  QString host, rehearse;
  int seconds = kRehearsalSeconds;
};

Options read_options(const QApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Operator console of a zoned public-address and evacuation network."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption host(QStringLiteral("host"), QStringLiteral("Machine description to use."),
                                QStringLiteral("FILE"));
  const QCommandLineOption rehearse(
      QStringLiteral("rehearse"),
      QStringLiteral("Run some seconds on the virtual rack, print what passed, save pictures in DIR."),
      QStringLiteral("DIR"));
  const QCommandLineOption seconds(QStringLiteral("seconds"), QStringLiteral("Length of the rehearsal."),
                                   QStringLiteral("N"), QString::number(kRehearsalSeconds));
  parser.addOptions({host, rehearse, seconds});
  parser.process(application);
  Options options{parser.value(host), parser.value(rehearse), 0};
  bool number = false;
  options.seconds = parser.value(seconds).toInt(&number);
  if (!number || options.seconds < 1 || !parser.positionalArguments().isEmpty()) {
    std::cerr << plain(parser.helpText());
    std::exit(kUsageStatus);
  }
  return options;
}

// The description of the machine: the one asked for, or the user's own; none means training.
std::optional<fs::path> host_file(const Options& options) {
  if (!options.rehearse.isEmpty()) return std::nullopt;
  if (!options.host.isEmpty()) return fs::path(plain(options.host));
  const fs::path own =
      fs::path(plain(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))) / kProgram /
      "host.ini";
  if (fs::exists(own)) return own;
  return std::nullopt;
}

// What the program keeps for this user.
fs::path own_folder() {
  return fs::path(plain(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))) / kProgram;
}

// At the first start an installed program copies the training set that it came with.
void make_training_set() {
  const fs::path mine = own_folder() / "training";
  const QString installed =
      QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("evac-console/training-set"),
                             QStandardPaths::LocateDirectory);
  if (installed.isEmpty() || fs::exists(mine / "c" / "ZEF_DAT")) return;
  fs::create_directories(mine);
  fs::copy(plain(installed), mine, fs::copy_options::recursive | fs::copy_options::skip_existing);
}

// What keeps the program from starting, on standard error and in a box.
void tell_start_error(const Options& options, const QString& text) {
  std::cerr << "evac-console: " << plain(text) << '\n';
  if (options.rehearse.isEmpty()) show_start_error(text);
}

// The end of what runs from here waits for the disks, but not for one that hangs: who starts the console anew
// must find its data folder free.
int leave(int status) {
  constexpr std::chrono::seconds kLongestEnd{10};
  std::thread([status, kLongestEnd] {
    std::this_thread::sleep_for(kLongestEnd);
    host_log(QStringLiteral("Конец не дождался диска"));
    ::_exit(status);
  }).detach();
  return status;
}

int run(const Options& options) {
  HostSetup setup;
  std::unique_ptr<TrainingLine> training;
  const auto file = host_file(options);
  if (file) {
    setup = read_host_ini(*file);
    setup.state = own_folder() / "state";
  } else {
    make_training_set();
    setup = training_setup(own_folder() / "training");
  }
  Claim claim;
  if (const auto holder = Claim::take(setup.drives.at('C'), claim)) {
    // Its window comes to the front where it may be told to.
    if (holder->process > 0 && holder->program == kProgram) ::kill(holder->process, SIGUSR1);
    tell_start_error(options, QStringLiteral("Папка данных %1 занята: %2")
                                  .arg(qt(setup.drives.at('C').string()), qt(words_of(*holder))));
    return kUsageStatus;
  }
  if (!file) {
    training = std::make_unique<TrainingLine>(setup.ports.at(1));
    training->change([](rack::Rack& rack) {
      rack.set_poll_period(std::chrono::milliseconds(500));
      rack.set_silent(kSilentTerminal, true);
    });
  }
  Desktop desktop(setup, std::move(training));
  try {
    desktop.start();
    if (!options.rehearse.isEmpty()) return rehearse(desktop, plain(options.rehearse), options.seconds);
    if (desktop.stand()) desktop.stand()->show_behind();
    desktop.run();
  } catch (const ProgramEnded&) {
    return leave(0);
  } catch (const Fault& fault) {
    host_log(QStringLiteral("Ошибка %1: %2").arg(fault.number()).arg(qt(fault.what())));
    if (options.rehearse.isEmpty()) show_fault(fault.number(), fault.what());
    return leave(kFaultStatus);
  }
}

}  // namespace

int main(int argc, char** argv) {
  ::umask(S_IRWXG | S_IRWXO);  // what it writes is for its own user alone
  EndSignals::hold_back();
  // What the toolkit has to say, such as a display that is lost under a box, by which it ends the program.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { host_log(text); });
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("evac-console"));
  QApplication::setApplicationVersion(qt(kVersion));
  QApplication::setQuitOnLastWindowClosed(false);
  dress_application();
  const Options options = read_options(application);
  try {
    return run(options);
  } catch (const HostIniError& error) {
    tell_start_error(options,
                     QStringLiteral("Описание машины не читается:\n%1").arg(QString::fromUtf8(error.what())));
    return kUsageStatus;
  } catch (const std::exception& error) {
    tell_start_error(options,
                     QStringLiteral("Программа завершается: %1").arg(QString::fromUtf8(error.what())));
    return kFaultStatus;
  }
}

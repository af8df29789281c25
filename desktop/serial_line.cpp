#include "desktop/serial_line.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "model/system_model.h"

namespace evac::desktop {
namespace {

using namespace std::chrono_literals;

constexpr auto kBacklogShown = 250ms;
constexpr auto kLongBacklog = 1s;

QString plain_reason(const QSerialPort& port) {
  switch (port.error()) {
    case QSerialPort::DeviceNotFoundError:
      return QStringLiteral("такого устройства нет");
    case QSerialPort::PermissionError:
      return QStringLiteral("нет прав на устройство, или им занята другая программа");
    case QSerialPort::OpenError:
      return QStringLiteral("устройство уже открыто");
    case QSerialPort::UnsupportedOperationError:
      return QStringLiteral("это не последовательный порт");
    default:
      return port.errorString();
  }
}

// Such as "4800,o,8,1".
struct Settings {
  int baud = 4800, bits = 8, stop = 1;
  QSerialPort::Parity parity = QSerialPort::NoParity;
};

Settings parse(const std::string& text) {
  const QStringList parts = QString::fromStdString(text).split(',');
  Settings settings;
  if (parts.size() != 4) return settings;
  settings.baud = parts[0].toInt();
  if (parts[1] == QStringLiteral("o")) settings.parity = QSerialPort::OddParity;
  if (parts[1] == QStringLiteral("e")) settings.parity = QSerialPort::EvenParity;
  settings.bits = parts[2].toInt();
  settings.stop = parts[3].toInt();
  return settings;
}

}  // namespace

SerialLine::SerialLine(EventLoop& loop, std::map<int, QString> devices, Notices& notices)
    : SerialPort(loop), devices_(std::move(devices)), notices_(notices) {
  connect(&device_, &QSerialPort::readyRead, this, &SerialLine::take_bytes);
  connect(&device_, &QSerialPort::errorOccurred, this, [this](QSerialPort::SerialPortError error) {
    if (error == QSerialPort::NoError || configuring_ || !device_.isOpen()) return;
    // Behind the signal: the device must not be closed in the midst of its own work.
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (device_.isOpen()) give_up();
        },
        Qt::QueuedConnection);
  });
  backlog_.setInterval(kBacklogShown);
  connect(&backlog_, &QTimer::timeout, this, &SerialLine::show_backlog);
}

SerialLine::~SerialLine() {
  device_.close();
}

QString SerialLine::device() const {
  const auto at = devices_.find(port());
  return at == devices_.end() ? QString() : at->second;
}

std::optional<std::string> SerialLine::open_line(int) {
  const QString name = device();
  if (std::exchange(closing_, false)) {
    if (device_.isOpen() && device_.portName() == name) return std::nullopt;
    device_.close();
  }
  if (name.isEmpty()) return "в host.ini для этого порта не названо устройство";
  device_.setPortName(name);
  // A pseudo-terminal that already stands as it should takes a wish for parity as an error, here and below.
  const QScopedValueRollback configuring(configuring_, true);
  device_.setParity(QSerialPort::NoParity);
  if (!device_.open(QIODevice::ReadWrite)) return (name + ": " + plain_reason(device_)).toStdString();
  apply_settings();
  return std::nullopt;
}

void SerialLine::close_line(int) {
  // The console closes its port only to open one at once. The device is kept until it is known which, so that
  // frames that wait on the same line are not lost.
  closing_ = true;
}

void SerialLine::configure_line(const std::string&) {
  const QScopedValueRollback configuring(configuring_, true);
  if (device_.isOpen()) apply_settings();
}

void SerialLine::apply_settings() {
  if (settings().empty()) return;
  const Settings wanted = parse(settings());
  device_.setBaudRate(wanted.baud);
  device_.setDataBits(static_cast<QSerialPort::DataBits>(wanted.bits));
  device_.setParity(wanted.parity);
  device_.setStopBits(static_cast<QSerialPort::StopBits>(wanted.stop));
  device_.setFlowControl(QSerialPort::NoFlowControl);
  const int bits = 1 + wanted.bits + (wanted.parity == QSerialPort::NoParity ? 0 : 1) + wanted.stop;
  character_ = std::chrono::nanoseconds(std::int64_t{1'000'000'000} * bits / std::max(1, wanted.baud));
}

void SerialLine::write_line(std::span<const std::uint8_t> bytes) {
  if (!device_.isOpen()) return;
  device_.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  // To the system at once, as far as it takes it without waiting: the handler that sends may go on for a
  // while.
  device_.flush();
  free_ = std::max(free_, Clock::now()) + character_ * static_cast<int>(bytes.size());
  if (free_ - Clock::now() > kLongBacklog && !backlog_.isActive()) {
    show_backlog();
    backlog_.start();
  }
}

int SerialLine::frames_waiting() const {
  if (character_ == 0ns) return 0;
  const auto left = std::max<Clock::duration>(free_ - Clock::now(), 0ns);
  return static_cast<int>((left + character_ * kFrameSize - 1ns) / (character_ * kFrameSize));
}

void SerialLine::show_backlog() {
  const auto left = free_ - Clock::now();
  if (left <= kLongBacklog) {
    backlog_.stop();
    notices_.take_back(Notices::kBacklog);
    return;
  }
  notices_.tell(Notices::kBacklog, QStringLiteral("Очередь на линию: %1 кадров, %2 с")
                                       .arg(frames_waiting())
                                       .arg(std::chrono::ceil<std::chrono::seconds>(left).count()));
}

void SerialLine::take_bytes() {
  const QByteArray bytes = device_.readAll();
  deliver({reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())});
}

void SerialLine::give_up() {
  device_.close();
  free_ = {};
  lose();
}

void SerialLine::loss_changed(bool lost) {
  if (lost)
    notices_.tell(
        Notices::kLine,
        QStringLiteral("Линия потеряна: COM%1 (%2)").arg(port()).arg(QFileInfo(device()).fileName()));
  else
    notices_.take_back(Notices::kLine);
}

}  // namespace evac::desktop

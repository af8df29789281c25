#include "desktop/serial_line.h"

#include <unistd.h>

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QStringList>
#include <algorithm>
#include <cerrno>
#include <utility>

#include "machine/claim.h"
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
      return QStringLiteral("устройство не отвечает");
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
        this, [this] { give_up(); }, Qt::QueuedConnection);
  });
  hand_over_.setSingleShot(true);
  hand_over_.setTimerType(Qt::PreciseTimer);
  connect(&hand_over_, &QTimer::timeout, this, &SerialLine::hand_over);
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
    if (device_.isOpen() && opened_ == name) return std::nullopt;
    writable_.reset();
    device_.close();
  }
  if (name.isEmpty()) return "в host.ini для этого порта не названо устройство";
  // By whatever name it is called, so that a second program meets the same claim on it.
  const QString canonical = QFileInfo(name).canonicalFilePath();
  device_.setPortName(canonical.isEmpty() ? name : canonical);
  // A pseudo-terminal that already stands as it should takes a wish for parity as an error, here and below.
  const QScopedValueRollback configuring(configuring_, true);
  device_.setParity(QSerialPort::NoParity);
  if (!device_.open(QIODevice::ReadWrite)) return (name + ": " + plain_reason(device_)).toStdString();
  if (const auto holder = Claim::take(device_.handle())) {
    device_.close();
    return (name + ": ").toStdString() + "устройство занято: " + words_of(*holder);
  }
  opened_ = name;
  writable_ = std::make_unique<QSocketNotifier>(device_.handle(), QSocketNotifier::Write);
  writable_->setEnabled(false);
  connect(writable_.get(), &QSocketNotifier::activated, this, &SerialLine::hand_over);
  apply_settings();
  hand_over_.start(0);
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
  outbox_.set_character(
      std::chrono::nanoseconds(std::int64_t{1'000'000'000} * bits / std::max(1, wanted.baud)));
}

void SerialLine::write_line(std::span<const std::uint8_t> bytes) {
  const auto now = Outbox::Clock::now();
  for (; bytes.size() >= kFrameSize; bytes = bytes.subspan(kFrameSize))
    outbox_.put(bytes.first<kFrameSize>(), now);
  // To the system at once, as far as the line is free: the handler that sends may go on for a while.
  hand_over();
  if (outbox_.backlog(now) > kLongBacklog && !backlog_.isActive()) {
    show_backlog();
    backlog_.start();
  }
}

std::optional<std::size_t> SerialLine::take(std::span<const std::uint8_t> bytes) {
  ssize_t taken = 0;
  do taken = ::write(device_.handle(), bytes.data(), bytes.size());
  while (taken < 0 && errno == EINTR);
  if (taken >= 0) return static_cast<std::size_t>(taken);
  // A full buffer is no lost line.
  if (errno == EAGAIN) return 0;
  return std::nullopt;
}

void SerialLine::hand_over() {
  if (!device_.isOpen()) return;
  const auto now = Outbox::Clock::now();
  const auto handed_over = outbox_.hand_over(*this, now);
  writable_->setEnabled(handed_over == Outbox::HandedOver::kFull);
  if (handed_over == Outbox::HandedOver::kGone)
    QMetaObject::invokeMethod(
        this, [this] { give_up(); }, Qt::QueuedConnection);
  if (handed_over != Outbox::HandedOver::kEnough) return;
  if (const auto next = outbox_.next())
    hand_over_.start(std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(*next - now)));
}

void SerialLine::show_backlog() {
  const auto now = Outbox::Clock::now();
  const auto left = outbox_.backlog(now);
  if (left <= kLongBacklog) {
    backlog_.stop();
    notices_.take_back(Notices::kBacklog);
    return;
  }
  notices_.tell(Notices::kBacklog, QStringLiteral("Очередь на линию: %1 кадров, %2 с")
                                       .arg(outbox_.frames_waiting(now))
                                       .arg(std::chrono::ceil<std::chrono::seconds>(left).count()));
}

void SerialLine::take_bytes() {
  const QByteArray bytes = device_.readAll();
  deliver({reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())});
}

void SerialLine::give_up() {
  if (!device_.isOpen()) return;
  writable_.reset();
  device_.close();
  outbox_.line_lost(Outbox::Clock::now());
  lose();
}

void SerialLine::loss_changed(bool lost) {
  if (lost)
    notices_.tell(Notices::kLine, QStringLiteral("Линия потеряна: COM%1 (%2), с %3")
                                      .arg(port())
                                      .arg(QFileInfo(device()).fileName(),
                                           QTime::currentTime().toString(QStringLiteral("H:mm:ss"))));
  else
    notices_.take_back(Notices::kLine);
}

}  // namespace evac::desktop

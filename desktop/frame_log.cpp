#include "desktop/frame_log.h"

namespace evac::desktop {
namespace {

constexpr const char* kTimeForm = "HH:mm:ss.zzz";

QString direction(const rack::Passed& frame) {
  return frame.from_console ? QStringLiteral("пульт → стойка") : QStringLiteral("стойка → пульт");
}

}  // namespace

QString line_of(const QTime& time, const rack::Passed& frame) {
  return QStringLiteral("%1  %2  %3  %4")
      .arg(time.toString(kTimeForm), direction(frame), QString::fromStdString(rack::hexadecimal(frame.frame)),
           QString::fromStdString(frame.words()));
}

bool FrameLog::is_poll(const rack::Passed& passed) {
  constexpr std::uint8_t kPoll = 0x10;
  if (!passed.from_console) return passed.frame[2] == kPoll;
  return std::holds_alternative<rack::PollAnswer>(rack::order_of(passed.frame));
}

void FrameLog::add(const rack::Passed& frame) {
  if (without_polls_ && is_poll(frame)) return;
  if (new_.size() < kMost) new_.push_back({QTime::currentTime(), frame});
}

void FrameLog::show_new() {
  if (new_.empty()) return;
  const auto all = lines_.size() + new_.size();
  if (all > kMost) {
    const auto gone = std::min(all - kMost, lines_.size());
    beginRemoveRows({}, 0, static_cast<int>(gone) - 1);
    lines_.erase(lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(gone));
    endRemoveRows();
  }
  const int first = static_cast<int>(lines_.size());
  beginInsertRows({}, first, first + static_cast<int>(new_.size()) - 1);
  lines_.insert(lines_.end(), new_.begin(), new_.end());
  endInsertRows();
  new_.clear();
}

void FrameLog::clear() {
  beginResetModel();
  lines_.clear();
  new_.clear();
  endResetModel();
}

int FrameLog::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant FrameLog::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  const Line& line = lines_[static_cast<std::size_t>(index.row())];
  switch (index.column()) {
    case kTime:
      return line.time.toString(kTimeForm);
    case kFrom:
      return direction(line.frame);
    case kBytes:
      return QString::fromStdString(rack::hexadecimal(line.frame.frame));
    default:
      return QString::fromStdString(line.frame.words());
  }
}

QVariant FrameLog::headerData(int section, Qt::Orientation orientation, int role) const {
  static const QStringList kHeads = {QStringLiteral("Время"), QStringLiteral("Откуда"),
                                     QStringLiteral("Кадр"), QStringLiteral("Что это")};
  return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(kHeads[section]) : QVariant();
}

}  // namespace evac::desktop

#include "rack/frame.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <numeric>
#include <string_view>

namespace evac::rack {
namespace {

constexpr std::uint8_t kSync = 0xAA;
constexpr std::uint8_t kToZone = 0xFD, kToTerminal = 0xFC, kMark = 0xEE;
constexpr int kZones = 120, kTerminals = 255;
constexpr Frame kAlertStart[] = {{kSync, kSync, 0x0C, 0x01, 0x00, 0xD2, 0x00, 0xAA, 0x89},
                                 {kSync, kSync, 0x20, 0x01, 0x02, 0xD2, 0x00, 0xAA, 0x9F},
                                 {kSync, kSync, 0x09, 0x00, 0x0F, 0xD2, 0x00, 0xAA, 0x94}};

constexpr std::string_view kWeekdays[] = {"понедельник", "вторник", "среда",      "четверг",
                                          "пятница",     "суббота", "воскресенье"};

bool digits(std::uint8_t byte) {
  return byte / 16 < 10 && byte % 16 < 10;
}
int decimal(std::uint8_t byte) {
  return byte / 16 * 10 + byte % 16;
}

Order address_order(const Frame& f) {
  const int number = f[6] + 256 * f[7];
  if (f[5] == kToZone && number >= 1 && number <= kZones) return ZoneSet{number, f[3], f[4]};
  if (f[5] == kToTerminal && number >= 1 && number <= kTerminals) return TerminalSet{number, f[3], f[4]};
  return Unknown{};
}

Order matrix_order(const Frame& f) {
  if (f[3] != kMark) return Unknown{};
  MatrixSet order{};
  for (std::size_t output = 0; output < order.inputs.size(); ++output) {
    const std::uint8_t pair = f[4 + output / 2];
    order.inputs[output] = output % 2 == 0 ? pair % 16 : pair / 16;
  }
  return order;
}

Order source_order(const Frame& f) {
  if (f[3] < 0x11 || f[3] > 0x13 || !digits(f[4]) || !digits(f[5]) || !digits(f[6])) return Unknown{};
  return SourceSet{f[3], decimal(f[4]), decimal(f[5]), decimal(f[6])};
}

Order calendar_order(const Frame& f) {
  using namespace std::chrono;
  if (f[3] == 5) {
    const DateSet order{2000 + f[4], f[5], f[6], f[7]};
    const year_month_day date{year(order.year), month(f[5]), day(f[6])};
    if (f[4] < 100 && date.ok() && order.weekday >= 1 && order.weekday <= 7) return order;
  } else if (f[3] == 6 && f[4] < 24 && f[5] < 60 && f[6] < 60) {
    return TimeSet{f[4], f[5], f[6]};
  }
  return Unknown{};
}

template <class... Args>
std::string text(const char* format, Args... args) {
  char line[160];
  std::snprintf(line, sizeof line, format, args...);
  return line;
}

struct Words {
  std::string operator()(const ZoneSet& o) const {
    return text("Зона %d: канал %d, громкость %d", o.zone, o.channel, o.volume);
  }
  std::string operator()(const TerminalSet& o) const {
    return text("Терминал %d: канал %d, громкость %d", o.terminal, o.channel, o.volume);
  }
  std::string operator()(const MatrixSet& o) const {
    std::string line = "Матрица:";
    for (std::size_t output = 0; output < o.inputs.size(); ++output) {
      const int input = o.inputs[output];
      line += text(" CH%d-", static_cast<int>(output) + 1);
      line += input == 0 ? "MUTE" : input == 15 ? "нет" : text("IN%d", input);
    }
    return line;
  }
  std::string operator()(const SourceSet& o) const {
    if (o.device == 0x12)
      return text("Тюнер: %s, станция %d, выход %d",
                  o.operation == 1   ? "FM"
                  : o.operation == 2 ? "AM"
                                     : "?",
                  o.value, o.output + 1);
    const char* deck = o.device == 0x11 ? "CD-дека" : "MP3-дека";
    const char* act = o.operation == 4   ? "воспроизведение"
                      : o.operation == 5 ? "стоп"
                      : o.operation == 1 ? "в начало"
                                         : "?";
    return text("%s: %s, дорожка %d, выход %d", deck, act, o.value, o.output + 1);
  }
  std::string operator()(const OutletsSet& o) const {
    std::string line = text("Блок питания %d:", o.block);
    for (int outlet = 1; outlet <= 8; ++outlet)
      if (o.mask & (1 << (8 - outlet))) line += text(" CH%d", outlet);
    return o.mask ? line : line + " всё выключено";
  }
  std::string operator()(const AlarmPower& o) const {
    if (o.channel == 9 && !o.on) return "Стоп всего, аварийный канал 9 выключен";
    return text("Аварийный канал %d %s", o.channel, o.on ? "включён" : "выключен");
  }
  std::string operator()(const AlertStart& o) const {
    return text("Запуск аварийного оповещения, %d из 3", o.part);
  }
  std::string operator()(const TerminalQuery& o) const { return text("Запрос терминала %d", o.terminal); }
  std::string operator()(const PollAnswer&) const { return "Ответ на опрос"; }
  std::string operator()(const DateSet& o) const {
    return text("Дата %02d.%02d.%d, ", o.day, o.month, o.year) +
           std::string(kWeekdays[static_cast<std::size_t>(o.weekday - 1)]);
  }
  std::string operator()(const TimeSet& o) const {
    return text("Время %d:%02d:%02d", o.hour, o.minute, o.second);
  }
  std::string operator()(const Unknown&) const { return "Неизвестный кадр"; }
};

}  // namespace

Frame make_frame(std::uint8_t command, const std::array<std::uint8_t, 5>& data) {
  Frame frame = {kSync, kSync, command, data[0], data[1], data[2], data[3], data[4], 0};
  frame[8] = static_cast<std::uint8_t>(std::accumulate(frame.begin() + 2, frame.end() - 1, 0) & 0xFF);
  return frame;
}

bool is_sound(const Frame& frame) {
  return frame[0] == kSync && frame[1] == kSync &&
         frame[8] == (std::accumulate(frame.begin() + 2, frame.end() - 1, 0) & 0xFF);
}

std::string hexadecimal(const Frame& frame) {
  std::string line;
  for (const std::uint8_t byte : frame) line += text(line.empty() ? "%02X" : " %02X", byte);
  return line;
}

Order order_of(const Frame& f) {
  const auto part = std::find(std::begin(kAlertStart), std::end(kAlertStart), f);
  if (part != std::end(kAlertStart)) return AlertStart{static_cast<int>(part - kAlertStart) + 1};
  const auto power = [](int channel, std::uint8_t byte) -> Order {
    if (byte != 0x00 && byte != 0xFF) return Unknown{};
    return AlarmPower{channel, byte == 0x00};
  };
  switch (f[2]) {
    case 0x01:
      return power(10, f[3]);
    case 0x04:
      return address_order(f);
    case 0x05:
      return matrix_order(f);
    case 0x06:
      return source_order(f);
    case 0x07:
      if (f[5] != kMark || f[3] > 7) return Unknown{};
      return OutletsSet{f[3] + 1, f[4]};
    case 0x09:
      return f[3] == 0 ? power(9, f[4]) : Unknown{};
    case 0x0A:
      // The high byte is rounded up for the upper half of the numbers; the low byte alone names a terminal.
      if (f[3] != 3 || f[4] == 0) return Unknown{};
      return TerminalQuery{f[4]};
    case 0x20:
      return f[3] == 0x11 ? Order{PollAnswer{}} : Unknown{};
    case 0xFA:
      return calendar_order(f);
    default:
      return Unknown{};
  }
}

std::string words(const Order& order) {
  return std::visit(Words{}, order);
}

std::string report_words(const Frame& f) {
  switch (f[2]) {
    case 0x10:
      return text("Опрос: связь %s, программа %s", f[5] & 1 ? "есть" : "потеряна",
                  f[5] & 2 ? "в работе" : "приостановлена");
    case 0x0A:
      if (f[3] == 0xFF) return "Терминала нет";
      return text("Терминал %d: зона %d, канал %d, громкость %d", f[6], f[5], f[3], f[4]);
    case 0x70:
      return text("Тревога в зоне %d", f[5] + 1);
    default:
      return "Кадр стойки";
  }
}

bool FrameReader::take(std::uint8_t byte, Frame& frame) {
  held_.push_back(byte);
  while (!held_.empty()) {
    const bool may_begin = held_[0] == kSync && (held_.size() < 2 || held_[1] == kSync);
    if (may_begin && held_.size() < frame.size()) return false;
    if (may_begin) {
      std::copy(held_.begin(), held_.end(), frame.begin());
      if (is_sound(frame)) {
        held_.clear();
        return true;
      }
    }
    held_.erase(held_.begin());
    ++dropped_;
  }
  return false;
}

}  // namespace evac::rack

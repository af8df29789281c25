// The texts of the watch.
#include "alert/watch.h"
#include "model/text.h"

namespace evac {
namespace {

constexpr std::string_view kCardZones[] = {"зоны 1-64", "зоны 65-128"};

void add_joined(std::string& text, std::string_view part) {
  if (!text.empty()) text += ", ";
  text += part;
}

}  // namespace

std::string Watch::number_text(int zone) const {
  const auto& names = doors_.zones.names.by_number;
  const auto name = names.find(zone);
  return name == names.end() ? std::to_string(zone) : join(zone, " «", name->second, "»");
}

std::string Watch::zone_numbers(const ZoneBits& zones) const {
  std::string text;
  for (int zone = 1; zone <= kContacts; ++zone)
    if (zones[zone_bit(zone)]) add_joined(text, number_text(zone));
  return text;
}

std::string Watch::zones_text(const ZoneBits& zones) const {
  return (zones.count() == 1 ? "зона " : "зоны ") + zone_numbers(zones);
}

std::vector<WatchLine> Watch::told() const {
  const Findings& f = findings_;
  std::vector<WatchLine> lines;
  const auto tell = [&lines](WatchRank rank, bool holds, auto&& text) {
    if (holds) lines.push_back({rank, std::string(text())});
  };
  const auto tell_zones = [this, &tell](WatchRank rank, const ZoneBits& zones, std::string_view what) {
    tell(rank, zones.any(), [&] { return join(what, zones_text(zones)); });
  };
  const auto plainly = [](std::string_view text) { return [text] { return text; }; };

  using enum WatchRank;
  tell_zones(kFire, f.contacts, "ПОЖАР: ");
  tell(kFire, f.block_zone > 0, [&] { return join("ПОЖАР: блок Q-4710, зона ", number_text(f.block_zone)); });
  tell_zones(kFire, f.alerted, "ОПОВЕЩЕНИЕ: ");
  tell(kFire, f.alarm_zones, plainly("АВАРИЙНЫЕ ЗОНЫ ВКЛЮЧЕНЫ"));

  tell(kWarning, f.test_zone > 0, [&] { return join("ПРОВЕРКА: зона ", number_text(f.test_zone)); });
  tell(kWarning, f.manual_message, [&] { return join("РУЧНОЕ СООБЩЕНИЕ: ", manual_file_); });
  tell(kWarning, f.blind != Blind::kNot, [&] {
    constexpr std::string_view kReasons[] = {"",
                                             "нажата «Стоп / сброс»",
                                             "ручное сообщение",
                                             "проверка",
                                             "выбрано ручное оповещение",
                                             "не выбран тип оповещения",
                                             "нет карт ввода"};
    return join("ОБНАРУЖЕНИЕ ПОЖАРА ОТКЛЮЧЕНО: ", kReasons[static_cast<std::size_t>(f.blind)]);
  });
  tell(kWarning, f.contacts_idle, plainly("Контакты не включают оповещение: выбран блок Q-4710"));
  tell_zones(kWarning, f.no_algorithm, "Алгоритм не указан: ");
  tell_zones(kWarning, f.fourth_bank, "Контакт не включает оповещение: ");
  tell_zones(kWarning, f.mute, "Сообщение не звучит: ");
  tell(kWarning, f.block_mute, plainly("Сообщение не звучит: блок Q-4710"));
  tell_zones(kWarning, f.restarting, "Оповещение перезапускается: ");
  tell(kWarning, f.waiting.any(), [&] {
    return join("Ждёт, пока идёт оповещение зоны ", number_text(f.alg_zone), ": ", zones_text(f.waiting));
  });
  tell_zones(kWarning, f.not_until_reset, "Не включится до сброса: ");
  tell_zones(kWarning, f.ended, "Оповещение закончено, контакт замкнут: ");
  tell_zones(kWarning, f.answered, "До сброса не включит оповещение: ");
  tell(kWarning, f.no_sound == NoSound::kNoChannel, plainly("Компьютер без канала: оповещение не звучит"));
  tell(kWarning, f.no_sound == NoSound::kNoVolume, plainly("Громкость компьютера 0: оповещение не звучит"));
  for (std::size_t card = 0; card < f.card_fails.size(); ++card)
    tell(kWarning, f.card_fails[card], [&] { return join("Карта ввода не отвечает: ", kCardZones[card]); });
  for (const CutFile& file : doors_.files.cut_files) {
    tell(kWarning, file.cut, [&] { return join("Файл ", file.name(), " прочитан не до конца"); });
    tell(kWarning, file.kept, [&] {
      return join("Файл ", file.name(), " был прочитан не до конца, прежний: ", file.name(), kKeptEnding);
    });
  }
  tell(kWarning, f.unread_restart > 0,
       [&] { return join("Время перезапуска ", f.unread_restart, " не прочитано"); });
  tell(kWarning, f.silent_seconds > 0,
       [&] { return join("Нет опроса от контроллера: ", time_text(f.silent_seconds)); });
  tell(kWarning, f.no_programme,
       [&] { return join("Недельный таймер: программа «", programme_, "» не найдена"); });
  tell(kWarning, f.event_past >= 0,
       [&] { return join("Недельный таймер: событие ", time_text(f.event_past), " прошло"); });

  tell_zones(kNote, f.no_steps, "Нет алгоритма: ");
  tell(kNote, f.marked.any(),
       [&] { return join("Аварийная отметка у нескольких зон: ", zone_numbers(f.marked)); });
  const bool one_card = f.card_missing[0] != f.card_missing[1];
  for (std::size_t card = 0; card < f.card_missing.size(); ++card)
    tell(kNote, one_card && f.card_missing[card],
         [&] { return join("Нет карты ввода: ", kCardZones[card]); });
  std::string off;
  if (f.timer_off) add_joined(off, "недельный таймер");
  if (f.control_off) add_joined(off, "автоматический контроль");
  if (f.player_off) add_joined(off, "плеер");
  tell(kNote, !off.empty(), [&] { return join("Выключено оповещением: ", off); });
  tell(kNote, f.timer_idle, plainly("Недельный таймер выключен"));
  return lines;
}

}  // namespace evac

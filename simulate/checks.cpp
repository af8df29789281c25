// The rules themselves: what does not hold is thrown.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "alert/alert_type.h"
#include "alert/banks.h"
#include "model/text.h"
#include "simulate/rules.h"

namespace evac::simulate {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr milliseconds kTick{100};             // of the alert engine
constexpr milliseconds kAnswerTicks{10 * 20};  // of the answer to a poll
constexpr milliseconds kFrame{21};             // 99 bits at 4800 baud, rounded up
// Two seconds of frames wait as they are; behind them only the last pair for each zone and terminal, and what
// one frame sets.
constexpr int kMostFrames = 97 + 2 * (rack::Network::kZones + rack::Network::kTerminals) + 60;
constexpr std::ptrdiff_t kMostStack = 256 * 1024;
constexpr int kMostReceived = 1024;

// From the end of a file to its next play, or to the word of the watch: the play takes a second more than its
// length, to the nearest second; two seconds behind its end it is missed, and the watch has its two ticks.
constexpr milliseconds kBetweenPlays{1500 + 2000 + 2 * kTick.count()};
constexpr std::string_view kEventPast = "Недельный таймер: событие";
constexpr int kEveryDay = 127;
constexpr std::string_view kMute = "Сообщение не звучит";

// Lines of the watch that tell why a closed contact starts no alert: for all zones, and before their numbers.
// Alerts with the alarm mark that reset one another leave the later zones of a bank no turn.
constexpr std::string_view kBlind[] = {"ОБНАРУЖЕНИЕ ПОЖАРА ОТКЛЮЧЕНО", "Контакты не включают оповещение",
                                       "Оповещение перезапускается: "};
constexpr std::string_view kReasons[] = {"Алгоритм не указан: ",
                                         "Контакт не включает оповещение: ",
                                         "Ждёт, пока идёт оповещение",
                                         "Не включится до сброса: ",
                                         "Оповещение закончено, контакт замкнут: ",
                                         "До сброса не включит оповещение: "};

// Each event comes again the next day. Of one weekday alone the timer goes on waiting for an event that is
// past.
bool goes_round(const TimerState& timer) {
  return std::ranges::all_of(timer.events, [](const ProgrammeEvent& event) {
    return event.tm_rec.empty() || event.tm_days == kEveryDay;
  });
}

// Whether the number stands in the list behind the last colon, names left out.
bool lists(std::string_view text, int number) {
  text.remove_prefix(std::min(text.size(), text.rfind(": ") + 2));
  const std::string digits = std::to_string(number);
  const auto digit = [&](std::size_t at) { return at < text.size() && text[at] >= '0' && text[at] <= '9'; };
  for (auto at = text.find(digits); at != std::string_view::npos; at = text.find(digits, at + 1))
    if ((at == 0 || !digit(at - 1)) && !digit(at + digits.size())) return true;
  return false;
}

bool same(const rack::Output& a, const rack::Output& b) {
  return a.on == b.on && (!a.on || (a.channel == b.channel && a.volume == b.volume));
}

std::array<int, 8> sources_of(const SourceState& s) {
  return {s.ch_computer, s.vol_computer, s.ch_cd, s.vol_cd, s.ch_mp3, s.vol_mp3, s.ch_tuner, s.vol_tuner};
}

// Of the zones that are in use; 0 for the others and for those without one.
std::vector<int> channels_of(const ZoneState& zones) {
  std::vector<int> channels;
  for (int z = 1; z <= kZones; ++z) {
    const int channel = zones.ZoneChan[z];
    channels.push_back(zones.in_use[z] && channel >= 1 && channel <= 6 ? channel : zones.in_use[z] ? 0 : -1);
  }
  return channels;
}

std::vector<std::string> lines_of(const SettingsState& settings) {
  std::vector<std::string> lines;
  for (int i = 0; i < kSettingsLines; ++i) lines.push_back(settings.SettingsLine[i]);
  return lines;
}

}  // namespace

void Rules::check(Console* console, const rack::Network& heard) {
  check_line(heard);
  if (!console) return;
  note_saved(*console);
  check_contacts();
  check_polls();
  check_sound(*console);
  check_watch(*console);
  check_alert(*console);
  check_bounds();
}

std::string Rules::excuse_of(Console& console, int zone) {
  for (const WatchLine& line : console.watch().lines()) {
    if (line.rank == WatchRank::kFire) continue;
    for (const auto reason : kBlind)
      if (line.text.starts_with(reason)) return std::string(reason);
    for (const auto reason : kReasons)
      if (line.text.starts_with(reason) && lists(line.text, zone)) return std::string(reason);
  }
  return {};
}

void Rules::check_contacts() {
  for (auto at = waited_for_.begin(); at != waited_for_.end();) {
    Contact& contact = at->second;
    const bool answered = contact.took.has_value();
    // The watch needs some restarts to call them so.
    const milliseconds most = (2 + contact.without_algorithm + 2 * std::min(contact.resets, 3)) * kTick;
    const milliseconds took = contact.took.value_or(working_since(contact.closed, contact.held));
    const bool late = took > most;
    if (late && (contact.certain || contact.excuse.empty()))
      throw Broken(join("the contact of zone ", at->first, " has not switched on zone ",
                        contact.zones.front(), " in ", most.count(), " ms, and no line of the watch says why",
                        contact.certain ? ", first fire behind a start" : ""));
    if (answered)
      ++counts.answered;
    else if (late)
      ++counts.excused[contact.excuse];
    if (answered || late)
      at = waited_for_.erase(at);
    else
      ++at;
  }
}

void Rules::check_polls() {
  if (!polls_.empty() && working_since(polls_.front().came, polls_.front().held) > kAnswerTicks)
    throw Broken("a poll is not answered within ten ticks");
  const CarriedLine* line = machine_.carried();
  // It is opened again some time after it is back.
  if (line->lost()) line_disturbed(line_works_);
  if (!line_works_ || machine_.now() - line_disturbed_ < 1s || answers_.empty()) return;
  const Answer& answer = answers_.front();
  // Behind what the device holds; a group of up to three frames goes before it and each answer before it.
  const milliseconds most = Outbox::kAhead + kFrame * 4 * static_cast<int>(answer.before + 1);
  if (working_since(answer.sent, answer.held) > most + 5ms)
    throw Broken(join("an answer is stuck on a working line: ",
                      working_since(answer.sent, answer.held).count(), " ms, with ", answer.before,
                      " before it and ", line->frames_waiting(machine_.now()), " frames waiting"));
}

void Rules::check_sound(Console& console) {
  const AlertState& alert = console.model().alert;
  if (!alert.alg_running || !console.form1().Timer7.enabled()) return;
  if (alert.fire_stop || alert.msg_manual) alert_held_ = machine_.now();
  if (cut_off_ || machine_.now() - alert_held_ <= 2 * kTick) return;
  if (machine_.wall() - sounds_until_ <= kBetweenPlays) return;
  const auto& lines = console.watch().lines();
  if (std::ranges::none_of(lines, [](const auto& line) { return line.text.starts_with(kMute); }))
    throw Broken(join("an algorithm runs and its message is silent since ",
                      (machine_.wall() - sounds_until_).count(), " ms, and the watch does not say so"));
}

void Rules::check_line(const rack::Network& heard) {
  const CarriedLine* line = machine_.carried();
  const int frames = line->frames_waiting(machine_.now());
  counts.most_frames = std::max(counts.most_frames, frames);
  if (frames > kMostFrames) throw Broken(join(frames, " frames wait for the line"));
  if (line->lost() || !line->idle()) return;
  if (!zones_journalled_.empty())
    throw Broken(join("zone ", *zones_journalled_.begin(),
                      " is journalled as switched on; the rack has not heard it, and nothing waits"));
  if (!std::exchange(promise_open_, false)) return;
  for (int z = 1; z <= rack::Network::kZones; ++z)
    if (!same(promised_.zone(z), heard.zone(z))) throw Broken(join("zone ", z, " is not as it was set last"));
  for (int t = 1; t <= rack::Network::kTerminals; ++t)
    if (!same(promised_.terminal(t), heard.terminal(t)))
      throw Broken(join("terminal ", t, " is not as it was set last"));
  for (int block = 1; block <= rack::Network::kBlocks; ++block)
    for (int outlet = 1; outlet <= 8; ++outlet)
      if (promised_.outlet(block, outlet) != heard.outlet(block, outlet))
        throw Broken(join("outlet ", outlet, " of block ", block, " is not as it was set last"));
  for (int output = 1; output <= 8; ++output)
    if (promised_.matrix_input(output) != heard.matrix_input(output))
      throw Broken(join("output ", output, " of the matrix is not as it was set last"));
  if (promised_.alarm9() != heard.alarm9() || promised_.alarm10() != heard.alarm10() ||
      promised_.alert() != heard.alert())
    throw Broken("the alarm channels are not as they were set last");
}

void Rules::check_alert(Console& console) {
  const AlertState& alert = console.model().alert;
  const bool held = alert.fire_stop || alert.fire_sim || alert.msg_manual || failing_[0] || failing_[1] ||
                    alert_type(console.model().settings) != kTypeController;
  bool left = false;
  for (int bank = 1; bank <= kBanks; ++bank) {
    const Bank& zones = kBankTable[static_cast<std::size_t>(bank - 1)];
    const auto closed = closed_.lower_bound(zones.first_zone);
    left |= alert.al_bank[bank] && (closed == closed_.end() || *closed > zones.last_zone);
  }
  if (!left || held) return left_over_.reset();
  if (!left_over_) left_over_ = {machine_.now(), machine_.held_so_far()};
  if (working_since(left_over_->came, left_over_->held) > 3 * kTick)
    throw Broken("an alert outlives the last contact of its bank");
}

void Rules::check_watch(Console& console) {
  if (const int edition = console.model().zones.names.edition;
      std::exchange(names_edition_, edition) != edition)
    settling_since_now();
  if (machine_.now() - std::max(contacts_changed_, started_) <
      2 * kTick + machine_.held_so_far() - held_at_change_)
    return;
  std::string named;
  for (const WatchLine& line : console.watch().lines()) {
    if (line.rank == WatchRank::kFire && line.text.starts_with("ПОЖАР: зон")) named = line.text;
    if (!clock_set_ && line.text.starts_with(kEventPast) && goes_round(console.model().timer))
      throw Broken("no clock was set, and the timer has missed an event: " + line.text);
    if (untouched_ && sound_sure_ && line.text.starts_with(kMute))
      throw Broken("every message can be opened, and the watch says: " + line.text);
  }
  if (failing_[0] || failing_[1]) return;
  std::string expected;
  const auto& names = console.model().zones.names.by_number;
  for (const int zone : closed_) {
    expected += expected.empty() ? closed_.size() == 1 ? "ПОЖАР: зона " : "ПОЖАР: зоны " : ", ";
    const auto name = names.find(zone);
    expected += name == names.end() ? std::to_string(zone) : join(zone, " «", name->second, "»");
  }
  if (named != expected)
    throw Broken(join("the watch says \"", named, "\" where \"", expected, "\" is true"));
}

void Rules::check_bounds() {
  const char here = 0;
  if (!stack_base_) stack_base_ = &here;
  const std::ptrdiff_t deep = std::abs(stack_base_ - &here);
  counts.deepest = std::max(counts.deepest, deep);
  if (deep > kMostStack) throw Broken(join("handlers nest ", deep / 1024, " KiB deep"));
  const int received = machine_.machine().port.in_buffer_count();
  if (received > kMostReceived) throw Broken(join(received, " bytes received wait"));
}

void Rules::note_saved(Console& console) {
  for (const std::string& file : std::exchange(just_saved_, {})) {
    if (file == "f_al_str.dat") settings_lines_ = lines_of(console.model().settings);
    if (file == "F_ust.dat") sources_ = sources_of(console.model().sources);
    if (file == "F_ustZ.dat") zone_channels_ = channels_of(console.model().zones);
  }
}

void Rules::check_loaded(Console& console) const {
  if (settings_lines_ && *settings_lines_ != lines_of(console.model().settings))
    throw Broken("the settings of alerting are not read back as they were saved");
  if (sources_ && *sources_ != sources_of(console.model().sources))
    throw Broken("the equipment is not read back as it was saved");
  if (zone_channels_ && *zone_channels_ != channels_of(console.model().zones))
    throw Broken("the zones are not read back as they were saved");
}

void Rules::check_disk(bool torn_end) {
  // They may have grown larger than what is read whole.
  const auto read_journal = [this](std::string_view path, std::string& bytes) {
    std::ifstream file(machine_.files().locate(path), std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(file), {});
    return file.is_open();
  };
  std::string bytes;
  for (const auto& [path, wanted] : saved_)
    if (machine_.files().read(path, bytes) != kNoError || bytes != wanted)
      throw Broken(path + " does not hold what was saved");
  for (auto& [path, wanted] : written_) {
    const bool read = read_journal(path, bytes);
    // A process that is killed in the midst of a line leaves a piece of it.
    if (!read || !(torn_end ? bytes.starts_with(wanted) : bytes == wanted))
      throw Broken(path + " does not hold the lines that were journalled");
    wanted = bytes;
  }
  // Those of earlier days are not written to again.
  std::erase_if(written_, [&](const auto& each) { return each.first != journal_; });
  // The piece may be of the first line of another day, in a file that is not known yet.
  const std::string folder = journal_.substr(0, journal_.rfind('\\'));
  if (!torn_end || journal_.empty()) return;
  for (const auto& name : machine_.files().files(folder))
    if (const std::string path = join(folder, "\\", name); read_journal(path, bytes))
      written_.try_emplace(path, bytes);
}

}  // namespace evac::simulate

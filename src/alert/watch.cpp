#include "alert/watch.h"

#include "alert/alert_type.h"
#include "store/algorithm_record.h"

namespace evac {
namespace {

constexpr std::chrono::seconds kPollsMissed{5};
constexpr int kEventPast = 2;        // seconds
constexpr int kAlgorithmZones = 96;  // those whose contact starts an algorithm
constexpr std::size_t kInputs = 32;  // of a bank

constexpr std::array<std::int32_t, kContacts> kNoneSeen{};  // of a bank
const ZoneBits kFirstBanks = ~ZoneBits{} >> (kContacts - kAlgorithmZones);
const ZoneBits kBankBits = ~ZoneBits{} >> (kContacts - kInputs);  // of the first

}  // namespace

void Watch::begin() {
  begun_ = doors_.loop.now();
}

bool Watch::Silenced::left_off(int count, bool on) {
  if (count != counted_) off_ = true;
  counted_ = count;
  if (on) off_ = false;
  return off_;
}

void Watch::look() {
  if (edition_ != doors_.algorithms.edition) take_algorithms();
  Findings f;
  f.type = alert_type(doors_.settings);
  read_contacts(f);
  find_alerts(f);
  find_unanswered(f);
  find_gaps(f);
  find_timer(f);
  const bool same_file = !f.manual_message || manual_file_ == doors_.messages.mp1_file;
  const bool same_programme = !f.no_programme || programme_ == doors_.timer.prog_asked;
  const bool first = !looking_;
  looking_ = true;
  if (f == findings_ && same_file && same_programme && !first) return;
  findings_ = f;
  if (!same_file) manual_file_ = doors_.messages.mp1_file;
  if (!same_programme) programme_ = doors_.timer.prog_asked;
  auto lines = told();
  if (lines == lines_ && !first) return;
  lines_ = std::move(lines);
  changed();
}

std::array<bool, 2> Watch::read_words(std::array<std::int32_t, kBanks>& words) const {
  const std::array handles = {doors_.alert.di_card0, doors_.alert.di_card1};
  std::array<bool, 2> read{true, true};
  for (std::size_t bank = 0; bank < kBankTable.size(); ++bank) {
    const auto card = static_cast<std::size_t>(kBankTable[bank].card);
    if (handles[card] < 0)
      words[bank] = 0;
    else
      read[card] &= doors_.cards.read_port(handles[card], kBankTable[bank].port, words[bank]);
  }
  return read;
}

bool Watch::new_contact() const {
  auto words = words_;
  read_words(words);
  for (std::size_t bank = 0; bank < words.size(); ++bank)
    if (words[bank] & ~words_[bank]) return true;
  return false;
}

void Watch::read_contacts(Findings& f) {
  const auto read = read_words(words_);
  f.card_fails = {!read[0], !read[1]};
  for (std::size_t bank = 0; bank < words_.size(); ++bank)
    f.contacts |= ZoneBits(static_cast<std::uint32_t>(words_[bank])) << bank * kInputs;
}

Watch::Blind Watch::blindness(int type) const {
  const AlertState& alert = doors_.alert;
  if (alert.fire_stop) return Blind::kStopped;
  if (alert.msg_manual) return Blind::kManualMessage;
  if (alert.fire_sim && type == kTypeController) return Blind::kTest;
  if (type == kTypeManual) return Blind::kManualType;
  if (type != kTypeBlock && type != kTypeController) return Blind::kNoType;
  if (type == kTypeController && alert.di_card0 < 0 && alert.di_card1 < 0) return Blind::kNoCards;
  return Blind::kNot;
}

void Watch::take_algorithms() {
  edition_ = doors_.algorithms.edition;
  with_steps_.reset();
  several_marks_.reset();
  for (std::size_t bank = 0; bank < kBanks - 1; ++bank) {
    ZoneBits marked;
    for (int zone = kBankTable[bank].first_zone; zone <= kBankTable[bank].last_zone; ++zone) {
      const std::string& step = doors_.algorithms.AlgZoneTable[zone][1];
      with_steps_[zone_bit(zone)] = !step.empty();
      marked[zone_bit(zone)] = has_alarm_mark(step);
    }
    if (marked.count() > 1) several_marks_ |= marked;
  }
}

// What runs, and whether it is heard.
void Watch::find_alerts(Findings& f) {
  const AlertState& alert = doors_.alert;
  f.blind = blindness(f.type);
  f.block_zone = alert.block_zone;
  f.alarm_zones = doors_.link.alarm_zones_on;
  f.manual_message = alert.msg_manual && doors_.tab.Timer6.enabled();
  f.contacts_idle = f.type == kTypeBlock && f.contacts.any();
  if (alert.fire_sim && f.type == kTypeController) f.test_zone = alert.test_zone;
  if (alert.alg_running && !f.contacts[zone_bit(alert.alg_zone)] &&
      (f.test_zone != alert.alg_zone || alert.alg_by_contact))
    f.alerted.set(zone_bit(alert.alg_zone));

  const FollowedMessage& message = alert.alg_running ? doors_.algorithm.message() : doors_.block.message();
  const Timer& timer = alert.alg_running ? doors_.tab.Timer7 : doors_.tab.Timer5;
  const bool runs = alert.alg_running || alert.block_zone > 0;
  if (!runs || followed_ != &message || message.plays() != plays_) mute_ = false;
  if (runs && (!message.opened() || (timer.enabled() && message.overdue()))) mute_ = true;
  followed_ = &message;
  plays_ = message.plays();
  f.block_mute = mute_ && !alert.alg_running;
  if (mute_ && alert.alg_running) f.mute.set(zone_bit(alert.alg_zone));
}

// What becomes of each closed contact. A zone stands only in the first of these that holds.
void Watch::find_unanswered(Findings& f) const {
  const AlertState& alert = doors_.alert;
  const bool controller = f.type == kTypeController;
  if (controller) {
    f.fourth_bank = f.contacts & ~kFirstBanks;
    f.no_algorithm = f.contacts & kFirstBanks & ~with_steps_;
  }
  f.mute &= ~(f.no_algorithm | f.fourth_bank);
  f.restarting = restarting() & ~(f.no_algorithm | f.mute);
  const ZoneBits told = f.no_algorithm | f.mute | f.restarting;
  if (controller && f.blind == Blind::kNot)
    for (int bank = 1; bank < kBanks; ++bank) {
      const ZoneBits zones = kBankBits << (kInputs * static_cast<std::size_t>(bank - 1)) & ~told;
      const ZoneBits seen = seen_in(bank) & zones;
      const bool runs_on = alert.al_active && doors_.tab.Timer7.enabled();
      if (alert.al_bank[bank] && !alert.al_alarm_zones)
        (runs_on ? f.waiting : f.not_until_reset) |= f.contacts & zones & ~seen;
      if (alert.al_active) continue;
      f.ended |= seen & f.contacts;
      f.answered |= seen & ~f.contacts;
    }
  f.alg_zone = f.waiting.any() ? alert.alg_zone : 0;
}

// Zones whose contacts the engine has seen closed.
ZoneBits Watch::seen_in(int bank) const {
  const auto& seen = doors_.alert.fire_seen[bank];
  if (seen == kNoneSeen) return {};
  const std::size_t first = kInputs * static_cast<std::size_t>(bank - 1);
  std::uint32_t inputs = 0;
  for (std::size_t input = 0; input < kInputs; ++input)
    inputs |= std::uint32_t{seen[first + input] != 0} << input;
  return ZoneBits(inputs) << first;
}

ZoneBits Watch::restarting() const {
  const RestartLog& restarts = doors_.engine.restarts();
  const Instant now = doors_.loop.now();
  ZoneBits zones;
  for (int zone = 1; !restarts.quiet(now) && zone <= kAlgorithmZones; ++zone)
    zones[zone_bit(zone)] = restarts.restarting(zone, now);
  return zones;
}

// What is missing, whether or not anything burns.
void Watch::find_gaps(Findings& f) {
  const AlertState& alert = doors_.alert;
  if (f.type == kTypeController) {
    if (doors_.sources.ch_computer == 0)
      f.no_sound = NoSound::kNoChannel;
    else if (doors_.sources.vol_computer == 0)
      f.no_sound = NoSound::kNoVolume;
    f.no_steps = doors_.zones.in_use & ~with_steps_ & kFirstBanks;
    f.marked = several_marks_;
    f.card_missing = {alert.di_card0 < 0, alert.di_card1 < 0};
  }
  const auto silent = doors_.loop.now() - doors_.link.last_poll.value_or(begun_);
  if (silent >= kPollsMissed) f.silent_seconds = static_cast<int>(silent / std::chrono::seconds(1));
  f.timer_off = timer_.left_off(alert.timer_silenced, doors_.timer.tm_on);
  f.control_off = control_.left_off(alert.control_silenced, doors_.supervision.auto_mode);
  f.player_off = player_.left_off(alert.player_silenced, doors_.player.mp_pow);
  f.unread_restart = doors_.restart.unread;
  f.files_edition = doors_.files.edition;
  f.names_edition = doors_.zones.names.edition;
}

// The weekly timer: behind find_gaps, which knows what an alert switched off.
void Watch::find_timer(Findings& f) const {
  const TimerState& timer = doors_.timer;
  f.timer_idle = !timer.tm_on && !f.timer_off;
  f.no_programme = timer.tm_none;
  const WallTime now = doors_.loop.wall();
  const bool waits = timer.tm_on && !timer.tm_scan && timer.tm_next_d == date_of(now);
  if (waits && second_of_day(now) - timer.tm_next_s > kEventPast) f.event_past = timer.tm_next_s;
}

}  // namespace evac

#include "alert/watch.h"

#include "alert/alert_type.h"
#include "store/algorithm_record.h"

namespace evac {
namespace {

constexpr std::chrono::seconds kPollsMissed{5};
constexpr int kEventPast = 2;        // seconds
constexpr int kAlgorithmZones = 96;  // those whose contact starts an algorithm

std::size_t bit_of(int zone) {
  return static_cast<std::size_t>(zone - 1);
}

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
    for (int input = 0; input < 32; ++input)
      if (words_[bank] & input_bit(input)) f.contacts.set(bank * 32 + static_cast<std::size_t>(input));
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
    Zones marked;
    for (int zone = kBankTable[bank].first_zone; zone <= kBankTable[bank].last_zone; ++zone) {
      const std::string& step = doors_.algorithms.AlgZoneTable[zone][1];
      with_steps_[bit_of(zone)] = !step.empty();
      marked[bit_of(zone)] = has_alarm_mark(step);
    }
    if (marked.count() > 1) several_marks_ |= marked;
  }
}

// What runs, and whether it is heard.
void Watch::find_alerts(Findings& f) {
  const AlertState& alert = doors_.alert;
  const int type = alert_type(doors_.settings);
  f.blind = blindness(type);
  f.block_zone = alert.block_zone;
  f.alarm_zones = doors_.link.alarm_zones_on;
  f.manual_message = alert.msg_manual && doors_.tab.Timer6.enabled();
  f.contacts_idle = type == kTypeBlock && f.contacts.any();
  if (alert.fire_sim && type == kTypeController) f.test_zone = alert.test_zone;
  if (alert.alg_running && !f.contacts[bit_of(alert.alg_zone)] &&
      (f.test_zone != alert.alg_zone || alert.alg_by_contact))
    f.alerted.set(bit_of(alert.alg_zone));

  const FollowedMessage& message = alert.alg_running ? doors_.algorithm.message() : doors_.block.message();
  const Timer& timer = alert.alg_running ? doors_.tab.Timer7 : doors_.tab.Timer5;
  const bool runs = alert.alg_running || alert.block_zone > 0;
  if (!runs || followed_ != &message || message.plays() != plays_) mute_ = false;
  if (runs && (!message.opened() || (timer.enabled() && message.overdue()))) mute_ = true;
  followed_ = &message;
  plays_ = message.plays();
  f.block_mute = mute_ && !alert.alg_running;
  if (mute_ && alert.alg_running) f.mute.set(bit_of(alert.alg_zone));
}

// What becomes of each closed contact. A zone stands only in the first of these that holds.
void Watch::find_unanswered(Findings& f) const {
  const AlertState& alert = doors_.alert;
  const bool controller = alert_type(doors_.settings) == kTypeController;
  const bool detects = controller && f.blind == Blind::kNot;
  const Instant now = doors_.loop.now();
  f.alg_zone = 0;
  for (int zone = 1; zone <= kContacts; ++zone) {
    const std::size_t at = bit_of(zone);
    const bool closed = f.contacts[at];
    if (zone > kAlgorithmZones) {
      f.fourth_bank[at] = controller && closed;
      continue;
    }
    const bool mute = f.mute[at];
    f.mute[at] = false;
    const int bank = static_cast<int>(at) / 32 + 1;
    const std::int32_t seen = alert.fire_seen[bank][at];
    const bool answered = seen != 0;
    const bool held_off = closed && !answered && alert.al_bank[bank] && !alert.al_alarm_zones;
    const bool runs_on = alert.al_active && doors_.tab.Timer7.enabled();
    if (controller && closed && !with_steps_[at])
      f.no_algorithm.set(at);
    else if (mute)
      f.mute.set(at);
    else if (doors_.engine.restarts().restarting(zone, now))
      f.restarting.set(at);
    else if (detects && held_off)
      (runs_on ? f.waiting : f.not_until_reset).set(at);
    else if (detects && answered && !alert.al_active)
      (closed ? f.ended : f.answered).set(at);
  }
  if (f.waiting.any()) f.alg_zone = alert.alg_zone;
}

// What is missing, whether or not anything burns.
void Watch::find_gaps(Findings& f) {
  const AlertState& alert = doors_.alert;
  if (alert_type(doors_.settings) == kTypeController) {
    if (doors_.sources.ch_computer == 0)
      f.no_sound = NoSound::kNoChannel;
    else if (doors_.sources.vol_computer == 0)
      f.no_sound = NoSound::kNoVolume;
    for (int zone = 1; zone <= kAlgorithmZones; ++zone)
      f.no_steps[bit_of(zone)] = doors_.zones.in_use[zone] && !with_steps_[bit_of(zone)];
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

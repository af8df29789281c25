#include "simulate/rules.h"

#include <algorithm>

#include "alert/alert_type.h"
#include "drill/words.h"
#include "model/text.h"
#include "store/algorithm_record.h"

namespace evac::simulate {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr int kAlgorithmZones = 96;
constexpr int kStatusCounts = 100;
constexpr std::string_view kZoneEntry = "Зона - ", kPlayEntry = " длина: ";

std::size_t card_of(int zone) {
  return zone <= 64 ? 0 : 1;
}

bool lacks_algorithm(const AlgorithmState& algorithms, int zone) {
  return zone <= kAlgorithmZones && algorithms.AlgZoneTable[zone][1].empty();
}

}  // namespace

void Rules::process_started(Console& console) {
  console_ = &console;
  started_ = machine_.now();
  held_at_change_ = machine_.held_so_far();
  untouched_ = first_fire_ = sound_sure_ = true;
  clock_set_ = false;
  first_answer_ = true;
  check_loaded(console);
  console.watch().changed = [this, &console] { take_excuses(console); };
  const bool lone = closed_.size() == 1;
  for (const int zone : closed_) {
    first_fire_ = lone;
    expect_alert(zone, console);
  }
}

void Rules::settling_since_now() {
  contacts_changed_ = machine_.now();
  held_at_change_ = machine_.held_so_far();
}

void Rules::process_ended(const rack::Network& heard_so_far) {
  console_ = nullptr;
  left_over_.reset();
  status_phase_.reset();
  waited_for_.clear();
  polls_.clear();
  answers_.clear();
  zones_journalled_.clear();
  just_saved_.clear();
  // What waited has gone with the process.
  promised_ = heard_so_far;
  promise_open_ = false;
}

void Rules::wall_set() {
  status_phase_.reset();
  clock_set_ = true;
  sound_sure_ = false;  // the end of a play may have been left out
  sounds_until_ = std::max(sounds_until_, machine_.wall());
}

void Rules::message_driven(std::string_view what) {
  const std::string path = what.starts_with("file ") ? drill::split_words(what).back().text : "";
  if (!path.empty()) message_ = path;
  if (what == "play")
    sounds_until_ =
        machine_.wall() + milliseconds(static_cast<int>(1000 * machine_.sound_length(message_).value_or(0)));
  cut_off_ |= !path.empty();
}

void Rules::contact_set(int zone, bool closed) {
  if (closed == closed_.contains(zone)) return;
  settling_since_now();
  if (!closed) {
    closed_.erase(zone);
    counts.opened_early += static_cast<long>(waited_for_.erase(zone));
    return;
  }
  closed_.insert(zone);
  // In one tick the lower zone of a bank comes first.
  for (auto& [number, contact] : waited_for_) {
    contact.certain = false;
    contact.without_algorithm += console_ && lacks_algorithm(console_->model().algorithms, zone);
  }
  if (console_) expect_alert(zone, *console_);
}

void Rules::card_set_failing(int card, bool failing) {
  failing_[static_cast<std::size_t>(card)] = failing;
  settling_since_now();
  if (failing)
    std::erase_if(waited_for_, [&](auto& each) { return card_of(each.first) == std::size_t(card); });
}

void Rules::expect_alert(int zone, Console& console) {
  const bool first = std::exchange(first_fire_, false);
  if (zone > kAlgorithmZones || failing_[card_of(zone)]) return;
  const auto& model = console.model();
  const std::string& step = model.algorithms.AlgZoneTable[zone][1];
  if (alert_type(model.settings) != kTypeController || step.empty()) return;
  Contact contact{.closed = machine_.now(),
                  .held = machine_.held_so_far(),
                  .certain = first && untouched_,
                  .zones = {},
                  .without_algorithm = 0,
                  .excuse = {},
                  .took = {},
                  .resets = 0};
  const std::string zones = AlgField(step, kAlgZones);
  for (int k = 1; k <= kZones; ++k)
    if (const auto mark = Mid(zones, k, 1); mark == kZoneIn || mark == kAlarmMark) contact.zones.push_back(k);
  if (contact.zones.empty()) return;
  contact.without_algorithm = static_cast<int>(
      std::ranges::count_if(closed_, [&](int other) { return lacks_algorithm(model.algorithms, other); }));
  // While another alert runs the watch keeps to that one.
  const AlertState& alert = model.alert;
  const int bank = (zone - 1) / 32 + 1;
  if (alert.al_active && alert.fire_seen[bank][static_cast<std::size_t>(zone - 1)] != 0)
    contact.excuse = "answered before, and no reset since";
  ++counts.contacts;
  counts.certain += contact.certain;
  waited_for_[zone] = contact;
  take_excuses(console);
}

void Rules::take_excuses(Console& console) {
  for (auto& [zone, contact] : waited_for_)
    if (contact.excuse.empty()) contact.excuse = excuse_of(console, zone);
}

void Rules::poll_arrived() {
  if (uncertain_polls_ > 0) {
    --uncertain_polls_;
    garbled_ = machine_.now();
    return;
  }
  ++counts.polls;
  polls_.push_back({machine_.now(), machine_.held_so_far()});
}

void Rules::line_garbled() {
  uncertain_polls_ = 2;
  garbled_ = machine_.now();
  polls_.clear();
}

void Rules::line_disturbed(bool works) {
  line_works_ = works;
  line_disturbed_ = machine_.now();
  answers_.clear();
}

void Rules::sent(const rack::Frame& frame) {
  const rack::Order order = rack::order_of(frame);
  promised_.obey(order, {});
  promise_open_ = true;
  if (std::holds_alternative<rack::PollAnswer>(order) || std::holds_alternative<rack::DateSet>(order) ||
      std::holds_alternative<rack::TimeSet>(order)) {
    if (!polls_.empty())
      polls_.pop_front();
    else if (!garbled_ || machine_.now() - *garbled_ > 1s)
      throw Broken("an answer to no poll");
    answers_.push_back({machine_.now(), answers_.size(), machine_.held_so_far()});
    const auto* date = std::get_if<rack::DateSet>(&order);
    if (std::exchange(first_answer_, false) && (!date || date->day != day_number(date_of(machine_.wall()))))
      throw Broken("the first answer of a process does not set the day");
  }
  if (const auto* zone = std::get_if<rack::ZoneSet>(&order)) {
    zone_sent_[zone->zone] = machine_.now();
    for (auto& [number, contact] : waited_for_)
      if (contact.zones.front() == zone->zone && !contact.took)
        contact.took = working_since(contact.closed, contact.held);
  }
  if (const auto* power = std::get_if<rack::AlarmPower>(&order); power && power->channel == 9 && !power->on) {
    zones_journalled_.clear();
    for (auto& [number, contact] : waited_for_) ++contact.resets;
  }
}

void Rules::heard(const rack::Frame& frame, Instant when) {
  const rack::Order order = rack::order_of(frame);
  if (!answers_.empty() &&
      (std::holds_alternative<rack::PollAnswer>(order) || std::holds_alternative<rack::DateSet>(order) ||
       std::holds_alternative<rack::TimeSet>(order)))
    answers_.pop_front();
  if (const auto* zone = std::get_if<rack::ZoneSet>(&order)) {
    zone_heard_[zone->zone] = when;
    zones_journalled_.erase(zone->zone);
  }
}

void Rules::journalled(std::string_view line) {
  const auto entry = line.find(' ');
  if (entry == std::string_view::npos) return;
  line.remove_prefix(entry + 1);
  if (line.find(kPlayEntry) != std::string_view::npos) cut_off_ = false;
  if (!line.starts_with(kZoneEntry)) return;
  const int zone = Number(line.substr(kZoneEntry.size()));
  ++counts.zones;
  const auto sent = zone_sent_.find(zone);
  if (sent == zone_sent_.end() || machine_.now() - sent->second > 1s)
    throw Broken(join("zone ", zone, " is journalled and was not sent"));
  const auto heard = zone_heard_.find(zone);
  if (heard == zone_heard_.end() || heard->second < sent->second) zones_journalled_.insert(zone);
}

void Rules::saved(std::string_view path, std::string_view bytes) {
  ++counts.saves;
  if (!machine_.faulty_files().kept_off(path)) saved_[std::string(path)] = bytes;
  if (path.ends_with(kStatusFile)) note_status(bytes);
  just_saved_.insert(std::string(path.substr(path.rfind('\\') + 1)));
}

// The counter moves once in each second of the wall clock, however the system's is stepped and held.
void Rules::note_status(std::string_view line) {
  const auto behind = [&](std::string_view mark) {
    return Number(line.substr(line.find(mark) + mark.size()));
  };
  const auto time = line.substr(line.find(" # ") + 3);
  const auto minutes = time.find(':') + 1, seconds = time.find(':', minutes) + 1;
  const int second = Number(time) * 3600 + Number(time.substr(minutes)) * 60 + Number(time.substr(seconds));
  const int phase = (second + kStatusCounts - behind(" $ ")) % kStatusCounts;
  ++counts.seconds;
  if (status_phase_.value_or(phase) != phase)
    throw Broken(join("the status file has left out seconds or written them twice: at ", time_text(second),
                      " by ", phase - *status_phase_));
  status_phase_ = phase;
}

void Rules::replaced_from_outside(std::string_view path, std::string_view bytes) {
  saved_[std::string(path)] = bytes;
  settings_lines_.reset();
  sources_.reset();
  zone_channels_.reset();
}

}  // namespace evac::simulate

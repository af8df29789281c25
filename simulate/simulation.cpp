#include "simulate/simulation.h"

#include <algorithm>
#include <cstdlib>

#include "model/text.h"
#include "store/algorithm_record.h"
#include "store/programme_files.h"
#include "store/record_file.h"
#include "store/settings_files.h"
#include "store/timer_record.h"

namespace evac::simulate {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr std::string_view kSounds[] = {"sound \"C:\\ZEF_DAT\\message\\fire.wav\" 20",
                                        "sound \"C:\\ZEF_DAT\\message\\short.wav\" 3.5",
                                        "sound \"C:\\ZEF_DAT\\message\\long.wav\" 90"};
constexpr std::string_view kMessageMedia = "media MP2 ";
constexpr int kLastAlgorithm = 96, kTerminalsInUse = 12, kEvents = 60;
constexpr std::string_view kProgramme = "Неделя";

std::string quoted_path(std::string_view path) {
  return join("\"", path, "\"");
}

std::string hex(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) text += " " + drill::hex_byte(static_cast<unsigned char>(byte));
  return text;
}

std::string milliseconds_text(milliseconds time) {
  return join(time.count(), "ms");
}

rack::Frame frame_of(std::string_view text) {
  rack::Frame frame{};
  for (std::size_t i = 0; i < frame.size(); ++i)
    frame[i] =
        static_cast<std::uint8_t>(std::strtoul(std::string(text.substr(3 * i, 2)).c_str(), nullptr, 16));
  return frame;
}

// What stands in quotes, with the escapes taken out.
std::string unquoted(std::string_view line) {
  std::string text;
  for (std::size_t at = line.find('"') + 1; at < line.size() && line[at] != '"'; ++at) {
    if (line[at] == '\\' && at + 1 < line.size()) ++at;
    text += line[at];
  }
  return text;
}

}  // namespace

std::string Simulation::received(std::span<const std::uint8_t> bytes) {
  std::string line = "rx";
  for (const std::uint8_t byte : bytes) line += " " + drill::hex_byte(byte);
  return line;
}

Simulation::Simulation(std::filesystem::path root, unsigned seed)
    : seed_(seed),
      random_(seed),
      drill_(
          std::move(root), [this](std::string& line) { return next_line(line); },
          [this](const std::string& line, bool result) { told(line, result); }, false),
      rules_(drill_.machine()),
      operator_(random_),
      rack_([this](std::span<const std::uint8_t> bytes) {
        if (!line_open_) return;
        lines_.push_back(received(bytes));
        if (bytes.size() == kFrameSize && bytes[2] == 0x10) lines_.push_back("!poll");
      }) {
  drill::VirtualMachine& machine = drill_.machine();
  machine.faulty_files().replaced = [this](auto path, auto bytes) { rules_.saved(path, bytes); };
  machine.faulty_files().appended = [this](auto path, auto bytes) { rules_.appended(path, bytes); };
  // It would take half of all the time, so that one seed in four puts it on the disk.
  if (seed % 4 != 0)
    machine.faulty_files().kept_off = [](std::string_view path) { return path.ends_with(kStatusFile); };
  machine.faulty_files().removed = [this](auto path) { rules_.removed(path); };
  machine.steady_wall().stepped = [this](WallTime, WallTime) { rules_.wall_set(); };
  rack_.passed = [this](const rack::Passed& passed) {
    if (passed.from_console) rules_.heard(passed.frame, Instant(std::chrono::floor<milliseconds>(passed.at)));
  };
  constexpr std::array kBuffers = {64, 256, 4096};
  before_ = {"clock steady", join("line device ", kBuffers[static_cast<std::size_t>(below(3))]), "card 0 on",
             "card 1 on"};
  before_.insert(before_.end(), std::begin(kSounds), std::end(kSounds));
  for (const auto& line : before_) lines_.push_back(line);
  lines_.push_back("!settle");
  rack_.set_poll_period(1s);
}

double Simulation::days() const {
  return std::chrono::duration<double, std::ratio<86400>>(
             const_cast<Simulation*>(this)->now().time_since_epoch())
      .count();
}

void Simulation::live(double days) {
  end_ = Instant(std::chrono::floor<milliseconds>(std::chrono::duration<double, std::ratio<86400>>(days)));
  drill_.run();
  if (broken_) throw Broken(*broken_);
}

void Simulation::settle() {
  Files& files = drill_.machine().files();
  SettingsState settings;
  FilesState known;
  DataFolder folder({.files = files, .settings = settings, .known = known});
  for (const auto name : {"alarm", "message", "timer"}) (void)files.make_folder(folder.path(name));
  const auto write = [&](const char* name, int length, const std::vector<std::string>& texts) {
    RecordFile file(folder, name, length);
    int n = 0;
    for (const auto& text : texts) file.put(++n, text);
    (void)file.save();
  };
  std::mt19937 own(seed_);  // the same each time
  const auto one_of = [&](int n) { return static_cast<int>(own() % static_cast<unsigned>(n)); };

  alert_by_block_ = one_of(6) == 0;
  write("alarm\\f_al_str.dat", 256,
        {alert_by_block_ ? "1" : "3", "1", "fire.wav", "2", "short.wav", "2", one_of(2) ? "1" : "0", "0",
         std::to_string(15 + 15 * one_of(3)), "0", one_of(4) == 0 ? "1" : "0", "3", "1"});
  std::vector<std::string> steps;
  // Two alarm marks reset one another ten times a second for as long as both burn, with a hundred lines of
  // journal each time: one seed in a hundred is enough of that.
  std::vector<int> marked = {1 + one_of(kLastAlgorithm)};
  if (one_of(100) == 0) marked.push_back(1 + one_of(kLastAlgorithm));
  constexpr std::array kFiles = {"fire.wav", "short.wav", "long.wav"};
  for (int zone = 1; zone <= kLastAlgorithm; ++zone) {
    if (one_of(8) == 0) continue;
    for (int step = 1 + one_of(3), n = 1; n <= step; ++n) {
      std::string zones(kZones, '0');
      for (int more = one_of(one_of(10) == 0 ? 100 : 8); more >= 0; --more)
        zones[static_cast<std::size_t>(one_of(kZones))] = '1';
      if (n == 1) zones[static_cast<std::size_t>(zone - 1)] = '1';
      if (n == 1 && std::ranges::count(marked, zone)) zones[0] = '7';
      steps.push_back(algorithm_record(std::to_string(zone), n, kFiles[static_cast<std::size_t>(one_of(3))],
                                       std::to_string(1 + one_of(3)), zones));
    }
  }
  write("alarm\\f_al.dat", 512, steps);
  EquipmentRecords equipment;
  for (auto& row : equipment.rows) row = {"Не подключен", 10, 1};
  equipment.rows[static_cast<std::size_t>(1 + one_of(5))] = {"Компьютер", 20, 1};
  equipment.port = 1;
  for (auto& mask : equipment.outlets) mask = one_of(256);
  (void)write_equipment(folder, equipment);
  std::vector<CellRecord> zones(kZones);
  for (int z = 1; z <= kZones; z += 1 + one_of(2))
    zones[static_cast<std::size_t>(z - 1)] = {std::to_string(z), static_cast<std::int16_t>(1 + one_of(5))};
  (void)write_cells(folder, kZoneFile, zones);
  std::vector<std::string> labels;
  for (int t = 1; t <= kTerminalsInUse; ++t) labels.push_back(std::to_string(t));
  write("F_ustT1.dat", 256, labels);
  std::vector<std::string> events;
  constexpr std::array kFunctions = {"Сообщение",  "Сообщение", "№1CD-play", "№1CD-stop",
                                     "№2MP3-play", "№1FM12",    "№пресета 2"};
  for (int n = 1; n <= kEvents; ++n)
    events.push_back(
        timer_record({std::to_string(n), std::to_string(one_of(24)), std::to_string(one_of(60)),
                      std::to_string(one_of(60)), "127", kFiles[static_cast<std::size_t>(one_of(3))], "1",
                      std::to_string(1 + one_of(kTerminalsInUse)),
                      kFunctions[static_cast<std::size_t>(one_of(kFunctions.size()))]}));
  (void)write_programme(folder, kProgramme, events);
  (void)write_last_programme(folder, kProgramme);
  for (const auto name : {"alarm\\f_al_str.dat", "alarm\\f_al.dat", "F_ust.dat", "F_ustZ.dat", "F_ustT1.dat",
                          "timer\\Name_f.dat", "timer\\Неделя"}) {
    std::string bytes;
    if (files.read(folder.path(name), bytes) == kNoError)
      rules_.replaced_from_outside(folder.path(name), bytes);
  }
}

bool Simulation::next_line(std::string& line) {
  try {
    while (true) {
      if (lines_.empty()) {
        carry();
        if (!drill_.console()) rules_.process_ended(rack_.network());
        rules_.check(drill_.console(), rack_.network());
      }
      if (lines_.empty()) {
        if (drill_.console() && now() >= end_) return false;
        lines_.push_back(next_deed());
      }
      line = std::move(lines_.front());
      lines_.pop_front();
      if (line.empty()) continue;
      if (!line.starts_with("!")) break;
      if (line == "!settle") settle();
      if (line == "!poll") rules_.poll_arrived();
      if (line == "!garbled") rules_.line_garbled();
      if (line == "!started") after_start();
      if (line == "!deed") choose_deed();
      if (line == "!press") operator_at_work();
      if (line == "!polls") poll_otherwise();
      if (line == "!busy over") busy_ = false;
      if (line == "!reboot") lines_.push_back("kill");
    }
  } catch (const Broken& broken) {
    broken_ = broken.what();
    return false;
  }
  record(line);
  return true;
}

// Frames that passed while time went by are with the rack; what it sends becomes lines.
void Simulation::carry() {
  drill::VirtualMachine& machine = drill_.machine();
  machine.sent().clear();
  machine.raised().clear();
  line_open_ = drill_.console() && machine.machine().port.is_open();
  rack_.advance(now().time_since_epoch());
}

// A line that is due, or the wait for the next one.
std::string Simulation::next_deed() {
  if (!drill_.console()) {
    begin_process();
    return {};
  }
  if (!agenda_.empty() && agenda_.begin()->first <= now()) {
    std::string deed = std::move(agenda_.begin()->second);
    agenda_.erase(agenda_.begin());
    return deed;
  }
  milliseconds wait = 1s;
  if (!agenda_.empty()) wait = std::min(wait, agenda_.begin()->first - now());
  if (const auto due = rack_.next_due())
    wait = std::min(wait, std::chrono::ceil<milliseconds>(*due - now().time_since_epoch()));
  return "wait " + milliseconds_text(std::max(wait, 1ms));
}

void Simulation::begin_process() {
  rack_.lose_line();
  rules_.check_disk(std::exchange(killed_in_write_, false));
  std::erase_if(agenda_, [](const auto& item) { return item.second != "!deed" && item.second != "!polls"; });
  busy_ = false;
  // What the fault was, the engineer has mended; and now and then what the operators have set.
  for (const char* line : {"line back", "line work", "disk work", "media work", "card 0 work", "card 1 work"})
    lines_.push_back(line);
  rules_.card_set_failing(0, false);
  rules_.card_set_failing(1, false);
  if (counts_.starts == 0 || chance(50)) lines_.push_back("!settle");
  lines_.push_back("start");
  lines_.push_back("!started");
  ++counts_.starts;
}

void Simulation::after_start() {
  if (!drill_.console()) return;  // it has ended at once
  CarriedLine& line = *drill_.machine().carried();
  line.arrived = [this](std::uint8_t byte, Instant when) {
    rack_.advance(when.time_since_epoch());
    rack_.receive({&byte, 1});
  };
  rules_.process_started(*drill_.console());
  rules_.line_disturbed(!line_stalled_);
  attended_ = chance(60);
  if (agenda_.empty()) {
    later(5s, "!deed");
    later(1h, "!polls");
  }
}

void Simulation::told(const std::string& line, bool result) {
  try {
    if (line.starts_with("tx AA AA")) {
      rules_.sent(frame_of(std::string_view(line).substr(3)));
    } else if (line.starts_with("port open ")) {
      rules_.line_disturbed(!line_stalled_);
    } else if (line.starts_with(kMessageMedia)) {
      rules_.message_driven(std::string_view(line).substr(kMessageMedia.size()));
    } else if (line.starts_with("journal ")) {
      rules_.journalled(unquoted(line));
    } else if (line.starts_with("fault ")) {
      const int number = Number(std::string_view(line).substr(6));
      if (!fault_is_told(number)) throw Broken(join("a ", line, " behind ", last_press_));
      ++counts_.told_faults[join(number, " ", last_press_.substr(0, last_press_.find('(')))];
    } else if (line.starts_with("restart ")) {
      ++counts_.restarts;
      later(30s, "!reboot");
    } else if (result && line.starts_with("error") && !script_.empty()) {
      script_.back() = "# " + script_.back() + "  (" + line + ")";
    }
  } catch (const Broken& broken) {
    if (!broken_) broken_ = broken.what();
  }
}

// The test start of a zone whose input is the sign of its word; a line that is gone where the settings insist
// on it; a file of the password that can be neither read nor made.
bool Simulation::fault_is_told(int number) const {
  if (number == 6) return last_press_ == "click Form1.CmdDem" && (test_zone_ == 64 || test_zone_ == 96);
  if (number == 57) return last_press_ == "click FrmPsW.CmdVPsW";
  return number == 8002 && const_cast<drill::Drill&>(drill_).machine().line_lost();
}

// What stands in the drill, and what the rules are told of it.
void Simulation::record(const std::string& line) {
  const auto words = drill::split_words(line);
  if (words[0].text == "wait") {
    waited_ += drill::parse_duration(words[1].text);
    return;
  }
  if (words[0].text == "start") {
    script_.clear();
    waited_ = {};
    Files& files = drill_.machine().files();
    for (const char* name : {"", "alarm\\", "timer\\"})
      for (const auto& file : files.files(join("C:\\ZEF_DAT\\", name))) {
        std::string bytes;
        const std::string path = join("C:\\ZEF_DAT\\", name, file);
        if (files.read(path, bytes) == kNoError)
          script_.push_back(join("hex ", quoted_path(path), hex(bytes)));
      }
    for (const int zone : rules_.closed()) script_.push_back(join("contact ", zone, " on"));
    const WallTime wall = drill_.machine().wall();
    const Date today = date_of(wall);
    script_.push_back(join("clock ", year_number(today), "-", month_number(today), "-", day_number(today),
                           " ", time_text(second_of_day(wall))));
  }
  if (waited_.count() > 0) script_.push_back("wait " + milliseconds_text(std::exchange(waited_, {})));
  script_.push_back(line);
  const std::string& verb = words[0].text;
  if (verb == "contact") {
    rules_.contact_set(Number(words[1].text), words[2].text == "on");
  } else if (verb == "card" && words[2].text != "stall" && words[2].text != "on") {
    rules_.card_set_failing(Number(words[1].text), words[2].text == "fail");
  } else if (verb == "line") {
    if (words[1].text == "stall" || words[1].text == "work") line_stalled_ = words[1].text == "stall";
    rules_.line_disturbed(!line_stalled_);
    if (words[1].text == "lost") rack_.lose_line();
  } else if (verb == "media") {
    rules_.media_disturbed();
  } else if (verb == "click" || verb == "rclick" || verb == "dblclick" || verb == "set" || verb == "key" ||
             verb == "close") {
    ++counts_.presses;
    rules_.operator_acted();
    last_press_ = line;
    if (line == "click Form1.CmdDem") test_zone_ = drill_.console()->form1().VSFD.value();
  } else if (verb == "kill") {
    ++counts_.kills;
    killed_in_write_ = words.size() > 1;
  }
}

std::string Simulation::as_drill(const std::string& why) const {
  std::string text =
      join("# Seed ", seed_, ": ", why, "\n# The rack itself is not in it, only what it sent.\n");
  for (const auto& line : before_) text += line + "\n";
  for (const auto& line : script_) text += line + "\n";
  return text + "wait 2s\nwatch\n";
}

}  // namespace evac::simulate

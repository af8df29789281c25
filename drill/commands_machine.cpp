// Commands that set the machine: its clock, cards, contacts, files, drives and line, and the time that may
// pass.
#include <algorithm>
#include <cstdio>

#include "drill/drill.h"
#include "model/system_model.h"
#include "model/text.h"
#include "platform/listers.h"
#include "store/code_page.h"

namespace evac::drill {
namespace {

using std::chrono::milliseconds;

constexpr std::size_t kDumpWidth = 16;

milliseconds parse_time_of_day(const std::string& text) {
  int hour = 0, minute = 0, second = 0;
  char more = 0;
  if (std::sscanf(text.c_str(), "%d:%d:%d%c", &hour, &minute, &second, &more) != 3 || hour < 0 || hour > 23 ||
      minute < 0 || minute > 59 || second < 0 || second > 59)
    throw CommandError("a time of day is hh:mm:ss, not " + text);
  return std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second);
}

// The file's bytes; an error when it is not there.
std::string bytes_of(Files& files, const std::string& path) {
  std::string bytes;
  if (!files.is_file(path) || files.read(path, bytes) != kNoError) throw CommandError("no file " + path);
  return bytes;
}

}  // namespace

void Drill::do_clock(const Words& words) {
  if (words.size() == 2 && words[1].text == "steady") return machine_.make_wall_steady();
  if (words.size() == 3 && words[1].text == "on") return machine_.step_wall(parse_duration(words[2].text));
  if (words.size() == 3 && words[1].text == "back") return machine_.step_wall(-parse_duration(words[2].text));
  want(words, 3, "clock 2026-11-22 23:59:50");
  const Date date = parse_date(words[1]);
  machine_.set_wall(std::chrono::local_days(date) + parse_time_of_day(words[2].text));
}

void Drill::do_card(const Words& words) {
  if (words.size() < 3 || words[2].text != "stall")
    want(words, 3, "card 0 on, off, fail, work or stall 50ms");
  const int number = parse_int(words[1], "the card");
  if (number != 0 && number != 1) throw CommandError("the cards are 0 and 1");
  const std::string& state = words[2].text;
  if (state == "stall") {
    want(words, 4, "card 0 stall 50ms");
    machine_.faulty_cards().stall_next(number, parse_duration(words[3].text));
  } else if (state == "fail" || state == "work")
    machine_.faulty_cards().set_failing(number, state == "fail");
  else
    machine_.set_card(number, parse_switch(words[2], "on", "off"));
}

void Drill::do_contact(const Words& words) {
  want(words, 3, "contact 7 on");
  const int zone = parse_int(words[1], "the zone");
  if (zone < 1 || zone > kContacts) throw CommandError(join("contacts are 1 to ", kContacts));
  machine_.set_contact(zone, parse_switch(words[2], "on", "off"));
}

void Drill::make_file(std::string_view path, std::string_view bytes) {
  const auto slash = path.rfind('\\');
  // It may well be there already.
  if (slash != std::string_view::npos && slash > 2) (void)machine_.files().make_folder(path.substr(0, slash));
  if (const FileError error = machine_.files().replace(path, bytes))
    throw CommandError(join("the file can't be written, error ", error));
}

void Drill::do_sound(const Words& words) {
  want(words, 3, "sound \"C:\\...\\a.wav\" 10");
  const std::string path = path_of(words[1]);
  const double seconds = parse_number(words[2].text);
  make_file(path, "sound");
  machine_.set_sound(path, seconds);
}

void Drill::do_nosound(const Words& words) {
  want(words, 2, "nosound \"C:\\...\\b.wav\"");
  const std::string path = path_of(words[1]);
  make_file(path, "no sound");
  machine_.unset_sound(path);
}

void Drill::do_file(const Words& words) {
  want(words, 3, "file \"C:\\...\\x\" \"text\"");
  const std::string path = path_of(words[1]);
  make_file(path, to_code_page(words[2].text));
}

void Drill::do_hex(const Words& words) {
  if (words.size() < 2) want(words, 3, "hex \"C:\\...\\x\" 01 00 31");
  const std::string path = path_of(words[1]);
  std::string bytes;
  for (std::size_t i = 2; i < words.size(); ++i) bytes += static_cast<char>(parse_byte(words[i]));
  make_file(path, bytes);
}

void Drill::do_remove(const Words& words) {
  want(words, 2, "remove \"C:\\...\"");
  const std::string path = path_of(words[1]);
  const auto place = machine_.files().locate(path);
  std::error_code error;
  if (place.empty() || std::filesystem::remove_all(place, error) == 0 || error)
    throw CommandError("nothing to remove at " + path);
}

void Drill::do_drive(const Words& words) {
  want(words, 3, "drive D on");
  const std::string& letter = words[1].text;
  if (letter.size() != 1 || letter[0] < 'A' || letter[0] > 'Z')
    throw CommandError("a drive is one capital letter");
  const bool on = parse_switch(words[2], "on", "off");
  if (letter == "C" && !on) throw CommandError("drive C is always ready");
  if (on)
    machine_.mount_drive(letter[0]);
  else
    machine_.unmount_drive(letter[0]);
  // The system tells whoever lists the drives.
  if (!console_) return;
  for (const Form* form : windows().forms())
    for (Control* control : form->controls())
      if (auto* lister = dynamic_cast<DriveLister*>(control)) lister->refresh();
}

void Drill::do_port(const Words& words) {
  want(words, 3, "port COM1 bad");
  const bool good = parse_switch(words[2], "good", "bad");
  machine_.set_port_good(parse_switch(words[1], "COM1", "COM2") ? 1 : 2, good);
}

void Drill::do_ls(const Words& words) {
  want(words, 2, "ls \"C:\\...\"");
  const std::string path = path_of(words[1]);
  Files& files = machine_.files();
  if (!files.is_folder(path)) throw CommandError("no folder " + path);
  auto names = files.folders(path);
  for (auto& name : files.files(path)) names.push_back(std::move(name));
  std::sort(names.begin(), names.end(), listed_before);
  for (const auto& name : names) print("= " + name);
}

void Drill::do_cat(const Words& words) {
  want(words, 2, "cat \"C:\\...\"");
  const std::string path = path_of(words[1]);
  const std::string text = from_code_page(bytes_of(machine_.files(), path));
  for (std::size_t at = 0; at < text.size();) {
    const auto end = std::min(text.find('\n', at), text.size());
    std::string line = text.substr(at, end - at);
    if (line.ends_with('\r')) line.pop_back();
    print("= " + line);
    at = end + 1;
  }
}

void Drill::do_dump(const Words& words) {
  want(words, 2, "dump \"C:\\...\"");
  const std::string path = path_of(words[1]);
  const std::string bytes = bytes_of(machine_.files(), path);
  for (std::size_t at = 0; at < bytes.size(); at += kDumpWidth) {
    std::string line = "=";
    for (const char byte : bytes.substr(at, kDumpWidth))
      line += " " + hex_byte(static_cast<unsigned char>(byte));
    print(line);
  }
}

void Drill::do_wait(const Words& words) {
  if (words.size() == 3 && words[1].text == "until") {
    const milliseconds now = machine_.wall().time_since_epoch() % std::chrono::days(1);
    const milliseconds until = parse_time_of_day(words[2].text);
    machine_.allow(until >= now ? until - now : until - now + std::chrono::days(1));
    return;
  }
  want(words, 2, "wait 5s, wait 250ms or wait until 23:59:59");
  machine_.allow(parse_duration(words[1].text));
}

void Drill::do_now(const Words& words) {
  want(words, 1, "now");
  const WallTime now = machine_.wall();
  const Date today = date_of(now);
  const int second = second_of_day(now);
  char text[96];
  std::snprintf(text, sizeof text, "= %04d-%02d-%02d %02d:%02d:%02d.%03d", year_number(today),
                month_number(today), day_number(today), second / 3600, second / 60 % 60, second % 60,
                static_cast<int>(now.time_since_epoch().count() % 1000));
  print(text);
}

void Drill::do_rx(const Words& words) {
  if (words.size() < 2) want(words, 2, "rx AA AA 10 00 00 03 00 00 13");
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 1; i < words.size(); ++i) bytes.push_back(parse_byte(words[i]));
  machine_.receive(bytes);
}

void Drill::do_frame(const Words& words) {
  want(words, 7, "frame 10 00 00 03 00 00");
  std::vector<std::uint8_t> bytes = {0xAA, 0xAA};
  int sum = 0;
  for (std::size_t i = 1; i < words.size(); ++i) {
    bytes.push_back(parse_byte(words[i]));
    sum += bytes.back();
  }
  bytes.push_back(static_cast<std::uint8_t>(sum & 0xFF));
  machine_.receive(bytes);
}

}  // namespace evac::drill

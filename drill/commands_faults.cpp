// Commands that put faults into the machine: into its disk, media, line and process.
#include "drill/drill.h"

namespace evac::drill {
namespace {

std::size_t bytes_of(const Word& word) {
  const int bytes = parse_int(word, "the bytes");
  if (bytes < 0) throw CommandError("there are no fewer bytes than 0");
  return static_cast<std::size_t>(bytes);
}

bool is(const std::vector<Word>& words, std::string_view what, std::size_t count) {
  return words.size() == count && words[1].text == what;
}

}  // namespace

void Drill::do_disk(const Words& words) {
  FaultyFiles& files = machine_.faulty_files();
  FaultyDisk& disk = machine_.disk();
  if (is(words, "full", 2)) {
    files.set_refusal(kDiskFull);
  } else if (is(words, "fail", 2)) {
    files.set_refusal(kDeviceError);
  } else if (is(words, "work", 2)) {
    files.set_refusal(kNoError);
    disk.set_room({});
    disk.set_most_at_once(static_cast<std::size_t>(-1));
    disk.out_of_room = [] {};
  } else if (is(words, "room", 3)) {
    disk.set_room(bytes_of(words[2]));
  } else if (is(words, "short", 3)) {
    disk.set_most_at_once(std::max<std::size_t>(1, bytes_of(words[2])));
  } else if (is(words, "stall", 3)) {
    files.stall_next(parse_duration(words[2].text));
  } else {
    throw CommandError("expected: disk full, fail, work, room 100, short 7 or stall 50ms");
  }
}

void Drill::do_media(const Words& words) {
  if (is(words, "silent", 2) || is(words, "work", 2))
    machine_.set_media_silent(words[1].text == "silent");
  else if (is(words, "stall", 3))
    machine_.stall_media(parse_duration(words[2].text));
  else
    throw CommandError("expected: media silent, work or stall 50ms");
}

void Drill::do_line(const Words& words) {
  if (is(words, "device", 3)) return machine_.carry_line(std::max<std::size_t>(1, bytes_of(words[2])));
  if (is(words, "lost", 2)) return machine_.lose_line();
  if (is(words, "back", 2)) return machine_.restore_line();
  CarriedLine* line = machine_.carried();
  if (!line) throw CommandError("no line device is there");
  if (is(words, "stall", 2)) {
    line->faults().set_stalled(true);
  } else if (is(words, "short", 3)) {
    line->faults().set_most_at_once(std::max<std::size_t>(1, bytes_of(words[2])));
  } else if (is(words, "work", 2)) {
    line->faults().set_stalled(false);
    line->faults().set_most_at_once(static_cast<std::size_t>(-1));
  } else {
    throw CommandError("expected: line device 4096, lost, back, stall, short 5 or work");
  }
}

void Drill::do_hold(const Words& words) {
  want(words, 2, "hold 6s");
  machine_.hold(parse_duration(words[1].text));
}

void Drill::do_kill(const Words& words) {
  if (words.size() == 1) throw ProcessEnded{};
  if (!is(words, "in", 3)) throw CommandError("expected: kill, or kill in 100");
  machine_.disk().set_room(bytes_of(words[2]));
  machine_.disk().out_of_room = [this] {
    machine_.disk().set_room({});
    machine_.disk().out_of_room = [] {};
    throw ProcessEnded{};
  };
}

}  // namespace evac::drill

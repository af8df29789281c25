// Any bytes on the line of a whole console, in bursts with time between them: nothing may crash, every poll
// is answered, once and within ten ticks, and the line is drained at the end.
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <memory>

#include "app/console.h"
#include "drill/virtual_machine.h"

namespace {

using namespace evac;

using std::chrono::milliseconds;

constexpr milliseconds kLongestWait{200};

// A second opinion on which bytes are polls.
class PollWatch {
 public:
  bool ends_poll(std::uint8_t byte) {
    if (syncs_ < 2) {
      syncs_ = byte == 0xAA ? syncs_ + 1 : 0;
      return false;
    }
    if (body_ == 0) command_ = byte;
    if (++body_ < 7) return false;
    syncs_ = body_ = 0;
    return command_ == 0x10;
  }

 private:
  int syncs_ = 0, body_ = 0;
  std::uint8_t command_ = 0;
};

bool answers_poll(const Frame9& frame) {
  return (frame[2] == 0x20 && frame[3] == 0x11) || frame[2] == 0xFA;
}

// One console for all inputs, as one runs for months; the disk's files stay as its start left them.
class Desk {
 public:
  Desk() : machine_(scratch()), console_(machine_.machine()) {
    machine_.out_of_time = [] { fail("a handler waits inside"); };
    console_.load();
  }

  ~Desk() {
    std::fprintf(stderr, "%llu bytes and %llu answers went through the line\n", bytes_heard_, answers_);
  }

  void hear(const std::uint8_t* data, std::size_t size) {
    // The first byte of each burst says how long it is and how long the line is silent behind it.
    for (std::size_t at = 0; at < size;) {
      const std::size_t length = std::min<std::size_t>(data[at] & 0x1F, size - at - 1);
      const std::span<const std::uint8_t> burst{data + at + 1, length};
      for (const std::uint8_t byte : burst)
        if (watch_.ends_poll(byte)) polls_.push_back(machine_.now());
      machine_.receive(burst);
      bytes_heard_ += length;
      pass(milliseconds((data[at] >> 5) * 7));
      at += 1 + length;
    }
    pass(milliseconds(40));
    if (!polls_.empty()) fail("a poll is left without an answer");
    const LinkState& link = console_.model().link;
    if (machine_.machine().port.in_buffer_count() != 0 || link.rx_state > 2 || link.rx_count > 6)
      fail("the line is not drained");
  }

 private:
  static std::filesystem::path scratch() {
    std::string name = (std::filesystem::temp_directory_path() / "console-fuzz-XXXXXX").string();
    return mkdtemp(name.data()) ? name : "console-fuzz";
  }
  [[noreturn]] static void fail(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    std::abort();
  }
  void pass(milliseconds time) {
    machine_.run_for(time);
    for (const Frame9& frame : machine_.sent()) {
      if (!answers_poll(frame)) continue;
      if (polls_.empty()) fail("an answer to no poll");
      polls_.pop_front();
      ++answers_;
    }
    machine_.sent().clear();
    if (!polls_.empty() && machine_.now() - polls_.front() > kLongestWait) fail("an answer is late");
  }

  drill::VirtualMachine machine_;
  Console console_;
  PollWatch watch_;
  std::deque<Instant> polls_;  // when those came that wait for their answer
  unsigned long long bytes_heard_ = 0, answers_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Desk desk;
  desk.hear(data, size);
  return 0;
}

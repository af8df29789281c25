// Any bytes on the line of a whole console that takes its fires from the line, in bursts with time between
// them: nothing may crash, every poll is answered, once and within ten ticks, a report of an alarm starts the
// alert, and the line is drained at the end.
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <memory>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "model/fault.h"
#include "store/record_file.h"

namespace {

using namespace evac;

using std::chrono::milliseconds;

constexpr milliseconds kLongestWait{200}, kFireTick{100};
constexpr std::array<std::uint8_t, 2> kSync = {0xAA, 0xAA};

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
  Desk() : machine_(scratch()) {
    machine_.out_of_time = [] { fail("a handler waits inside"); };
    settle();
    begin();
  }

  ~Desk() {
    std::fprintf(stderr, "%llu bytes, %llu answers, %llu alerts, %llu ends for a zone that has no lamp\n",
                 bytes_heard_, answers_, alerts_, ends_);
  }

  void hear(const std::uint8_t* data, std::size_t size) {
    // The first byte of each burst says how long it is and how long the line is silent behind it. One of the
    // longest is a frame: its body follows, without the bytes that begin one.
    for (std::size_t at = 0; at < size;) {
      const bool framed = (data[at] & 0x1F) == 0x1F;
      const std::size_t length =
          std::min<std::size_t>(framed ? kFrameSize - 2 : data[at] & 0x1F, size - at - 1);
      if (framed) take(kSync);
      take({data + at + 1, length});
      bytes_heard_ += length;
      pass(milliseconds((data[at] >> 5) * 7));
      at += 1 + length;
    }
    // Until the last frame has been looked at.
    pass(kFireTick + milliseconds(10));
    if (!polls_.empty()) fail("a poll is left without an answer");
    const LinkState& link = console_->model().link;
    if (machine_.machine().port.in_buffer_count() != 0 || link.rx_state > 2 || link.rx_count > 6)
      fail("the line is not drained");
    rest();
  }

 private:
  // The external block's report is what starts an alert, and the computer plays to it.
  void settle() {
    const std::string message = "C:\\ZEF_DAT\\message\\fire.wav";
    (void)machine_.files().make_folder("C:\\ZEF_DAT\\alarm");
    (void)machine_.files().make_folder("C:\\ZEF_DAT\\message");
    if (machine_.files().replace(message, "sound") != kNoError) fail("no files");
    machine_.set_sound(message, 0.2);
    SettingsState settings;
    FilesState known;
    DataFolder folder({.files = machine_.files(), .settings = settings, .known = known});
    RecordFile file(folder, "alarm\\f_al_str.dat", 256);
    int n = 0;
    for (const char* line : {"1", "1", "fire.wav", "2"}) file.put(++n, line);
    if (file.save() != kNoError) fail("no settings");
  }
  void begin() {
    console_.reset();
    machine_.clear_process();
    console_ = std::make_unique<Console>(machine_.machine());
    console_->load();
    machine_.sent().clear();
    polls_.clear();
    watch_ = {};
  }
  // The operator resets what has come of it; the report in the last frame would raise it again.
  void rest() {
    static constexpr std::array<std::uint8_t, kFrameSize> kQuiet = {0xAA, 0xAA, 2, 0, 0, 0, 0, 0, 2};
    // Twice: the first may end what was begun.
    for (int i = 0; i < 2; ++i) take(kQuiet);
    pass(milliseconds(40));
    if (console_->model().alert.al_active)
      for (int i = 0; i < 2; ++i) console_->form1().CmdStF.click();
  }
  void take(std::span<const std::uint8_t> burst) {
    for (const std::uint8_t byte : burst)
      if (watch_.ends_poll(byte)) polls_.push_back(machine_.now());
    machine_.receive(burst);
  }
  static std::filesystem::path scratch() {
    std::string name = (std::filesystem::temp_directory_path() / "console-fuzz-XXXXXX").string();
    return mkdtemp(name.data()) ? name : "console-fuzz";
  }
  [[noreturn]] static void fail(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    std::abort();
  }
  void pass(milliseconds time) {
    const bool before = console_->model().alert.al_active;
    try {
      machine_.run_for(time);
    } catch (const Fault& fault) {
      // A report may name a zone that has no lamp; anything else is a fault of the console.
      const Frame9& frame = console_->model().link.r_frame;
      if (fault.number() != 9 || frame[4] != 15 || frame[5] < kZones) fail(fault.what());
      ++ends_;
      return begin();
    }
    if (!before && console_->model().alert.al_active) ++alerts_;
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
  std::unique_ptr<Console> console_;
  PollWatch watch_;
  std::deque<Instant> polls_;  // when those came that wait for their answer
  unsigned long long bytes_heard_ = 0, answers_ = 0, alerts_ = 0, ends_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Desk desk;
  desk.hear(data, size);
  return 0;
}

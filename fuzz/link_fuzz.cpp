// Any bytes on the line of a whole console, in bursts with time between them: nothing may crash, every poll
// that was heard is answered, and the line is drained at the end.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "app/console.h"
#include "drill/virtual_machine.h"

namespace {

using namespace evac;

constexpr std::uint8_t kPollAnswer = 0x20, kCalendar = 0xFA;

// One console for all inputs, as one runs for months; the disk's files stay as its start left them.
class Desk {
 public:
  Desk() : machine_(scratch()), console_(machine_.machine()) {
    machine_.out_of_time = [this] { machine_.allow(std::chrono::milliseconds(20)); };
    console_.load();
  }

  ~Desk() { std::fprintf(stderr, "%llu bytes went through the line\n", bytes_heard_); }

  void hear(const std::uint8_t* data, std::size_t size) {
    machine_.sent().clear();
    int polls = 0;
    // The first byte of each burst says how long it is and how long the line is silent behind it.
    for (std::size_t at = 0; at < size;) {
      const std::size_t length = std::min<std::size_t>(data[at] & 0x1F, size - at - 1);
      const auto pause = std::chrono::milliseconds((data[at] >> 5) * 7);
      machine_.receive({data + at + 1, length});
      bytes_heard_ += length;
      at += 1 + length;
      machine_.run_for(pause);
    }
    machine_.run_for(std::chrono::milliseconds(200));
    for (const Frame9& frame : machine_.sent())
      polls += frame[2] == kPollAnswer || frame[2] == kCalendar ? 1 : 0;
    const LinkState& link = console_.model().link;
    if (machine_.machine().port.in_buffer_count() != 0 || link.rx_state > 2 || link.rx_count > 6 ||
        polls > static_cast<int>(size / 7) + 1) {
      std::fprintf(stderr, "the line is not as it should be\n");
      std::abort();
    }
  }

 private:
  static std::filesystem::path scratch() {
    std::string name = (std::filesystem::temp_directory_path() / "console-fuzz-XXXXXX").string();
    return mkdtemp(name.data()) ? name : "console-fuzz";
  }
  drill::VirtualMachine machine_;
  Console console_;
  unsigned long long bytes_heard_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Desk desk;
  desk.hear(data, size);
  return 0;
}

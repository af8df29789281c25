// What the running desktop takes, measured on the training rack over its pseudo-terminal and printed, not
// judged:
//
//   desktop_measure FOLDER contacts [N]         contact to the first frames on the line, at rest and under
//   load desktop_measure FOLDER burst                240 frames at once: how long the window is held, the
//   line is busy desktop_measure FOLDER run SECONDS POLL_MS  memory and processor time
//
// FOLDER is a training set made by scripts/make-training.
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "desktop/desktop.h"
#include "platform/user.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int kZone = 15;
constexpr double kTick = 100;
constexpr milliseconds kFrameOfScreen{16};

double since(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Looks at the rack's end of the line from a thread of its own, since the rack itself shares the thread with
// the console: when more bytes wait there than the answer to a poll, the first frames of an alert have come.
class LineWatch {
 public:
  explicit LineWatch(int descriptor)
      : watcher_([this, descriptor] {
          while (!done_) {
            int waiting = 0;
            if (ioctl(descriptor, FIONREAD, &waiting) == 0 && waiting > kFrameSize && !come_) {
              at_ = Clock::now();
              come_ = true;
            }
            std::this_thread::sleep_for(std::chrono::microseconds(200));
          }
        }) {}
  ~LineWatch() {
    done_ = true;
    watcher_.join();
  }
  bool come() const { return come_; }
  // Valid once it has come.
  Clock::time_point at() const { return at_; }

 private:
  std::atomic<bool> done_ = false, come_ = false;
  Clock::time_point at_;
  std::thread watcher_;
};

class Measure {
 public:
  explicit Measure(const std::string& folder) {
    HostSetup setup = training_setup(folder);
    setup.sound_sink = "fake";
    auto line = std::make_unique<TrainingLine>(setup.ports.at(1));
    line_ = line.get();
    desktop_ = std::make_unique<Desktop>(setup, std::move(line));
    QObject::connect(line_, &TrainingLine::passed, line_, [this](const rack::Passed& frame) {
      if (frame.from_console) heard_.push_back(frame.frame[2]);
    });
    desktop_->start();
    poll_every(500);
    pass(milliseconds(2500));
  }

  void contacts(int count) {
    line_->change([](rack::Rack& rack) { rack.set_paced(false); });
    report("at rest, polls every 500 ms", count, [] {});
    poll_every(100);
    QWidget& window = desktop_->windows().window(desktop_->console().form1());
    int wide = 0;
    auto next = Clock::now();
    report("polls every 100 ms, the window resized 60 times a second", count, [&] {
      if (Clock::now() < next) return;
      next = Clock::now() + kFrameOfScreen;
      window.resize(1280 + 10 * (++wide % 5), 800);
    });
  }

  void burst() {
    pass(milliseconds(500));
    Form1& form = desktop_->console().form1();
    for (int z = 1; z <= kZones; ++z) desktop_->console().model().zones.ZoneChan[z] = 1;
    heard_.clear();
    const auto start = Clock::now();
    form.CmdAG.click();
    const double held = since(start);
    double longest = 0;
    while (std::count(heard_.begin(), heard_.end(), 0x04) < 240) {
      const auto step = Clock::now();
      desktop_->pump();
      longest = std::max(longest, since(step));
    }
    std::printf(
        "240 frames: the click held the window %.2f ms; the longest step afterwards, waiting included, %.2f "
        "ms; "
        "all at the rack after %.2f s\n",
        held, longest, since(start) / 1000);
  }

  void run(int seconds, int poll) {
    poll_every(poll);
    for (int at = 0; at <= seconds; at += std::max(1, seconds / 10)) {
      const double before = processor_seconds();
      const auto start = Clock::now();
      if (at > 0) pass(std::chrono::seconds(std::max(1, seconds / 10)));
      std::printf("%5d s: %ld KiB resident, %.2f %% of a core\n", at, resident(),
                  at > 0 ? (processor_seconds() - before) / since(start) * 1e5 : 0.0);
      std::fflush(stdout);
    }
  }

 private:
  template <class Load>
  void report(const char* what, int count, Load load) {
    std::mt19937 random(1);
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
      const auto wait = Clock::now() + milliseconds(200 + random() % 800);
      while (Clock::now() < wait) {
        load();
        desktop_->pump();
      }
      heard_.clear();
      const LineWatch watch(line_->descriptor());
      const auto start = Clock::now();
      set_contact(true);
      while (std::count(heard_.begin(), heard_.end(), 0x04) == 0) {
        load();
        desktop_->pump();
      }
      // Where the watch was too slow, the rack's own reading counts.
      if (watch.come())
        times.push_back(std::chrono::duration<double, std::milli>(watch.at() - start).count());
      else
        times.push_back(since(start));
      set_contact(false);
      heard_.clear();
      while (std::count(heard_.begin(), heard_.end(), 0x09) == 0) desktop_->pump();
    }
    std::sort(times.begin(), times.end());
    std::printf("%s: %d contacts, median %.1f ms (%.2f ticks), worst %.1f ms (%.2f ticks)\n", what, count,
                times[times.size() / 2], times[times.size() / 2] / kTick, times.back(), times.back() / kTick);
  }

  void set_contact(bool closed) {
    line_->change([closed](rack::Rack& rack) { rack.set_contact(kZone, closed); });
  }
  void poll_every(int period) {
    line_->change([period](rack::Rack& rack) { rack.set_poll_period(milliseconds(period)); });
  }
  void pass(milliseconds time) {
    const auto end = Clock::now() + time;
    while (Clock::now() < end) desktop_->pump();
  }
  static double processor_seconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) { return time.tv_sec + time.tv_usec / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
  }
  static long resident() {
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return resident * sysconf(_SC_PAGESIZE) / 1024;
  }

  std::unique_ptr<Desktop> desktop_;
  TrainingLine* line_ = nullptr;
  std::vector<std::uint8_t> heard_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const std::vector<std::string> words(argv + 1, argv + argc);
  const auto number = [&](std::size_t at, int preset) {
    return at < words.size() ? std::atoi(words[at].c_str()) : preset;
  };
  if (words.size() < 2) {
    std::fprintf(stderr, "usage: desktop_measure FOLDER contacts [N] | burst | run SECONDS POLL_MS\n");
    return 2;
  }
  Measure measure(words[0]);
  if (words[1] == "contacts") measure.contacts(number(2, 100));
  if (words[1] == "burst") measure.burst();
  if (words[1] == "run") measure.run(number(2, 60), number(3, 500));
}

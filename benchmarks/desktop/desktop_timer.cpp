// desktop-timer DIR [EVENTS]: the desktop on its virtual rack, with the training set under DIR. Rings the
// bell every four seconds, at rest and at work, and prints how far into its own second the first frame of
// each event has reached the rack.
#include <QApplication>
#include <QTime>
#include <algorithm>
#include <cstdio>
#include <iostream>

#include "desktop/desktop.h"
#include "desktop/frame_log.h"
#include "desktop/view/dress.h"
#include "store/timer_record.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using std::chrono::milliseconds;

constexpr int kApart = 4;  // seconds
constexpr milliseconds kFrameOfDrag{16};

struct Scene {
  const char* what;
  milliseconds polls;
  bool resizing;
};

class Bells {
 public:
  explicit Bells(const std::filesystem::path& folder) {
    HostSetup setup = training_setup(folder);
    setup.sound_sink = "fake";
    auto line = std::make_unique<TrainingLine>(setup.ports.at(1));
    line_ = line.get();
    desktop_ = std::make_unique<Desktop>(setup, std::move(line));
    desktop_->start();
    QObject::connect(line_, &TrainingLine::passed, line_, [this](const rack::Passed& frame) {
      if (frame.from_console && !FrameLog::is_poll(frame)) heard_.push_back(milliseconds_of_day());
    });
  }

  void ring(const Scene& scene, int events) {
    // Unpaced, the rack hears a frame when it comes, and not when its last bit would have passed.
    line_->change([&scene](rack::Rack& rack) {
      rack.set_paced(false);
      rack.set_poll_period(scene.polls);
    });
    TimerState& timer = desktop_->console().model().timer;
    const int first = milliseconds_of_day() / 1000 + kApart;
    timer.events.clear();
    for (int i = 0; i < events; ++i)
      timer.events.push_back({timer_record({"1", "0", "0", "0", "127", "Звонок.wav", "14", "24",
                                            std::string(timer_function::kMessage)}),
                              first + i * kApart, 127});
    timer.tm_scan = true;
    heard_.clear();
    FormWindow& window = desktop_->windows().window(desktop_->console().form1());
    QTimer drag;
    int wide = 0;
    QObject::connect(&drag, &QTimer::timeout, &drag, [&] {
      wide = (wide + 7) % 140;
      window.resize(1280 + wide, 760 + wide / 3);
    });
    if (scene.resizing) drag.start(kFrameOfDrag);
    while (milliseconds_of_day() < (first + events * kApart) * 1000) desktop_->pump();
    report(scene, first, events);
  }

 private:
  static int milliseconds_of_day() { return QTime::currentTime().msecsSinceStartOfDay(); }

  void report(const Scene& scene, int first, int events) const {
    std::vector<int> behind;  // milliseconds into the event's second
    for (int i = 0; i < events; ++i) {
      const int due = (first + i * kApart) * 1000;
      const auto frame = std::ranges::lower_bound(heard_, due);
      if (frame != heard_.end() && *frame < due + kApart * 1000) behind.push_back(*frame - due);
    }
    std::ranges::sort(behind);
    const auto own = std::ranges::count_if(behind, [](int ms) { return ms < 1000; });
    std::printf("%s: %d events, %d of them left in their own second", scene.what, events,
                static_cast<int>(own));
    if (!behind.empty())
      std::printf("; into it at least %d ms, median %d ms, at most %d ms", behind.front(),
                  behind[behind.size() / 2], behind.back());
    std::printf("\n");
  }

  TrainingLine* line_ = nullptr;
  std::unique_ptr<Desktop> desktop_;
  std::vector<int> heard_;  // when frames of the console came, but for answers to polls
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  dress_application();
  if (argc < 2) {
    std::cerr << "usage: desktop-timer DIR [EVENTS]\n";
    return 2;
  }
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  Bells bells(argv[1]);
  const int events = argc > 2 ? std::atoi(argv[2]) : 20;
  bells.ring({"at rest", milliseconds(500), false}, events);
  bells.ring({"polls every 100 ms, window being resized", milliseconds(100), true}, events);
}

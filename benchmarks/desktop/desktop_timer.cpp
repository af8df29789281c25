// desktop-timer DIR [EVENTS]: the desktop on its virtual rack, with the training set under DIR. Rings the
// bell every four seconds, at rest and at work, and prints how far into its own second the first frame of
// each event has reached the rack.
#include <QTime>
#include <algorithm>
#include <cstdio>

#include "desktop/frame_log.h"
#include "measured_desktop.h"
#include "store/timer_record.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using std::chrono::milliseconds;

constexpr int kApart = 4;  // seconds

struct Scene {
  const char* what;
  milliseconds polls;
  bool resizing;
};

class Bells {
 public:
  explicit Bells(const std::filesystem::path& folder) : measured_(silent_training(folder)) {
    TrainingLine& line = measured_.line();
    QObject::connect(&line, &TrainingLine::passed, &line, [this](const rack::Passed& frame) {
      if (frame.from_console && !FrameLog::is_poll(frame)) heard_.push_back(milliseconds_of_day());
    });
  }

  void ring(const Scene& scene, int events) {
    // Unpaced, the rack hears a frame when it comes, and not when its last bit would have passed.
    measured_.line().change([&scene](rack::Rack& rack) {
      rack.set_paced(false);
      rack.set_poll_period(scene.polls);
    });
    TimerState& timer = measured_.desktop().console().model().timer;
    const int first = milliseconds_of_day() / 1000 + kApart;
    timer.events.clear();
    for (int i = 0; i < events; ++i)
      timer.events.push_back({timer_record({"1", "0", "0", "0", "127", "Звонок.wav", "14", "24",
                                            std::string(timer_function::kMessage)}),
                              first + i * kApart, 127});
    timer.tm_scan = true;
    heard_.clear();
    while (milliseconds_of_day() < (first + events * kApart) * 1000) {
      if (scene.resizing) measured_.drag();
      measured_.desktop().pump();
    }
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

  MeasuredDesktop measured_;
  std::vector<int> heard_;  // when frames of the console came, but for answers to polls
};

}  // namespace

int main(int argc, char** argv) {
  return measure(argc, argv, 1, "desktop-timer DIR [EVENTS]", [](const std::vector<std::string>& arguments) {
    Bells bells(arguments[0]);
    const int events = arguments.size() > 1 ? std::stoi(arguments[1]) : 20;
    bells.ring({"at rest", milliseconds(500), false}, events);
    bells.ring({"polls every 100 ms, window being resized", milliseconds(100), true}, events);
  });
}

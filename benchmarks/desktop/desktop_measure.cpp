// desktop-measure DIR [CONTACTS]: the desktop on its virtual rack and a real pseudo-terminal, with the
// training set under DIR. Prints how long each window takes to be made, how long the window is held at most
// by what an operator does, and how long a fire contact takes from its closing to its first frame on the
// line.
#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <iostream>
#include <random>

#include "desktop/desktop.h"
#include "desktop/view/dress.h"
#include "platform/user.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr double kTick = 100;  // milliseconds of the alert engine
constexpr int kLastAlertedZone = 96;
constexpr milliseconds kFrameOfDrag{16};  // how often a window manager resizes a window that is dragged

double ms_since(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

class Measure {
 public:
  explicit Measure(const std::filesystem::path& folder) {
    const HostSetup setup = training_setup(folder);
    auto line = std::make_unique<TrainingLine>(setup.ports.at(1));
    line_ = line.get();
    desktop_ = std::make_unique<Desktop>(setup, std::move(line));
    const auto start = Clock::now();
    desktop_->start();
    std::printf("start of the program to its window: %.0f ms\n", ms_since(start));
    // A zone is journalled right behind its frames, which are with the system by then; the rack, on this same
    // thread, hears of them only when the handler is through.
    desktop_->console().journal().written = [this](const std::string& line) {
      if (!sent_ && line.find("Зона - ") != std::string::npos) sent_ = Clock::now();
    };
    pass(milliseconds(1500));
  }

  void windows() {
    for (Form* form : desktop_->console().windows().forms()) {
      const auto start = Clock::now();
      desktop_->windows().window(*form);
      std::printf("making %-6s %6.1f ms\n", form->name().c_str(), ms_since(start));
    }
  }

  // The longest that one step of the loop holds the window, for what is done.
  void holds() {
    Form1& form = desktop_->console().form1();
    for (int tab = 0; tab < 7; ++tab) {
      desktop_->screen().act([&form, tab] { user::turn_to(form.SSTab1, tab); });
      report(("turning to tab " + std::to_string(tab + 1)).c_str(), longest_step(milliseconds(400)));
      report("  resizing it", resize_for(milliseconds(1500)));
    }
    desktop_->screen().act([&form] { user::turn_to(form.SSTab1, 1); });
    pass(milliseconds(400));
    desktop_->screen().act([&form] { user::click(form.CmdAG); });
    report("switching all zones", longest_step(milliseconds(500)));
    desktop_->screen().act([&form] { user::click(form.CmdAllZ); });
    report("routing all zones", longest_step(milliseconds(500)));
    desktop_->screen().act([&form] { user::turn_to(form.SSTab1, 2); });
    pass(milliseconds(400));
    desktop_->screen().act([&form] { user::set_value(form.VsUs, 2); });
    report("changing the preset", longest_step(milliseconds(500)));
    // The preset again, back and forth, and all that it changed painted on the two tabs that show it.
    for (const int tab : {1, 2}) {
      desktop_->screen().act([&form, tab] { user::turn_to(form.SSTab1, tab); });
      pass(milliseconds(400));
      std::printf("painting tab %d after a change of preset: %.1f ms\n", tab + 1, paint_presets(form));
    }
    desktop_->screen().act([&form] { user::click(form.CmdAG); });
    pass(milliseconds(6000));
  }

  // What the operator is at while contacts close.
  struct Scene {
    const char* what;
    bool busy = false;  // many polls, and the window being dragged larger
    std::function<void(Desktop&)> open = [](Desktop&) {
    };                                              // a box or a window that comes up before each contact
    std::function<void(Desktop&)> close = nullptr;  // none for a box, which answers itself
  };

  // Contacts that close at random moments, to the first frame that the rack has heard of it.
  void contacts(const Scene& scene, int count) {
    // Unpaced, a frame is heard when its bytes come, not when the last of them would have passed.
    line_->change([&scene](rack::Rack& rack) {
      rack.set_paced(false);
      rack.set_poll_period(milliseconds(scene.busy ? 100 : 500));
    });
    std::mt19937 random(1);
    std::vector<int> zones;  // those with an algorithm, on the banks that start one
    for (int zone = 1; zone <= kLastAlertedZone; ++zone)
      if (!desktop_->console().model().algorithms.AlgZoneTable[zone][1].empty()) zones.push_back(zone);
    if (zones.empty()) {
      std::printf("no algorithms under that folder\n");
      return;
    }
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
      desktop_->screen().act([&] { scene.open(*desktop_); });
      const int zone = zones[random() % zones.size()];
      sent_.reset();
      // By a timer of the toolkit's: a box does not return here before it is answered.
      std::optional<Clock::time_point> closed;
      QTimer::singleShot(milliseconds(400 + random() % 137), [&] {
        closed = Clock::now();
        line_->change([zone](rack::Rack& rack) { rack.set_contact(zone, true); });
      });
      // A modal window holds its opener, so that it too is closed by such a timer.
      if (scene.close)
        QTimer::singleShot(milliseconds(1400),
                           [&] { desktop_->screen().act([&] { scene.close(*desktop_); }); });
      while (!sent_ && (!closed || Clock::now() < *closed + milliseconds(1000))) {
        if (scene.busy) resize_step();
        desktop_->pump();
      }
      if (sent_) times.push_back(std::chrono::duration<double, std::milli>(*sent_ - *closed).count());
      line_->change([zone](rack::Rack& rack) { rack.set_contact(zone, false); });
      pass(milliseconds(300));
    }
    const char* what = scene.what;
    if (times.empty()) {
      std::printf("%s: no contact led to a frame\n", what);
      return;
    }
    std::sort(times.begin(), times.end());
    const double median = times[times.size() / 2], worst = times.back();
    std::printf(
        "contact to wire, %s: %zu of %d contacts, median %.1f ms (%.2f ticks), worst %.1f ms (%.2f ticks)\n",
        what, times.size(), count, median, median / kTick, worst, worst / kTick);
  }

 private:
  void report(const char* what, double longest) {
    std::printf("%-28s longest hold %6.1f ms\n", what, longest);
  }

  // Milliseconds that one change of preset takes with the painting of the whole window behind it.
  double paint_presets(Form1& form) {
    constexpr int kChanges = 50;
    FormWindow& window = desktop_->windows().window(form);
    const auto start = Clock::now();
    for (int i = 0; i < kChanges; ++i) {
      form.VsUs.set_value(1 + i % 2);
      form.Option1.press();
      form.CmdGr2.click();
      desktop_->screen().flush();
      window.repaint();
    }
    return ms_since(start) / kChanges;
  }

  double longest_step(milliseconds time) {
    double longest = 0;
    const auto end = Clock::now() + time;
    while (Clock::now() < end) longest = std::max(longest, step());
    return longest;
  }

  double resize_for(milliseconds time) {
    double longest = 0;
    const auto end = Clock::now() + time;
    while (Clock::now() < end) {
      resize_step();
      longest = std::max(longest, step());
    }
    return longest;
  }

  // One step of the loop, without the time that it has nothing to do: a step that waits is cut by the next
  // tick of 20 ms, so only what lies above counts as a hold.
  double step() {
    const auto start = Clock::now();
    const auto due = desktop_->loop().next_due();
    desktop_->pump();
    const double taken = ms_since(start);
    const double waited =
        due ? std::max(
                  0.0,
                  double(
                      (*due - Instant(std::chrono::floor<milliseconds>(start.time_since_epoch()))).count()))
            : 0;
    return std::max(0.0, taken - waited);
  }

  void resize_step() {
    if (Clock::now() < next_resize_) return;
    next_resize_ = Clock::now() + kFrameOfDrag;
    FormWindow& window = desktop_->windows().window(desktop_->console().form1());
    wide_ = (wide_ + 7) % 140;
    window.resize(1280 + wide_, 760 + wide_ / 3);
  }

  void pass(milliseconds time) {
    const auto end = Clock::now() + time;
    while (Clock::now() < end) desktop_->pump();
  }

  TrainingLine* line_ = nullptr;
  std::unique_ptr<Desktop> desktop_;
  std::optional<Clock::time_point> sent_;
  int wide_ = 0;
  Clock::time_point next_resize_{};
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  dress_application();
  if (argc < 2) {
    std::cerr << "usage: desktop-measure DIR [CONTACTS]\n";
    return 2;
  }
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  Measure measure(argv[1]);
  const int contacts = argc > 2 ? std::atoi(argv[2]) : 100;
  measure.windows();
  measure.holds();
  const auto click = [](Control& control) { user::click(control); };
  measure.contacts({.what = "at rest"}, contacts);
  measure.contacts({.what = "polls every 100 ms, window being resized", .busy = true}, contacts);
  measure.contacts({.what = "a question up", .open = [&](Desktop& d) { click(d.console().form1().CmdDem); }},
                   contacts);
  measure.contacts({.what = "an input box up", .open = [](Desktop& d) { d.boxes().input("Имя", "", ""); }},
                   contacts);
  measure.contacts({.what = "a settings window open",
                    .open = [](Desktop& d) { d.console().windows().show_modal(d.console().forms().form33); },
                    .close = [](Desktop& d) { user::close(d.console().forms().form33); }},
                   contacts);
}

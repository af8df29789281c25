// desktop-contacts DIR CONTACTS SCENE...: how long a fire contact takes from its closing to its first frame
// on the line, on the desktop on its virtual rack with the training set under DIR. Scenes: rest, polls (every
// 100 ms), drag (and the window being resized), question, input, settings (a box or a window up), stalled (a
// sound device that takes nothing). Disturbances from outside begin behind "ready".
#include <sys/stat.h>

#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <map>
#include <random>

#include "measured_desktop.h"
#include "platform/user.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using std::chrono::milliseconds;

constexpr double kTick = 100;  // milliseconds of the alert engine
constexpr double kMost = 1.2;  // ticks
constexpr int kLastAlertedZone = 96;

// What the operator and the machine are at while contacts close.
struct Scene {
  milliseconds polls{500};
  bool drag = false, stalled = false;
  // A box or a window that comes up before each contact.
  std::function<void(Desktop&)> open = nullptr;
  // Puts a window away again; none for a box, which answers itself.
  std::function<void(Desktop&)> close = nullptr;
};

const std::map<std::string, Scene>& scenes() {
  static const std::map<std::string, Scene> all = {
      {"rest", {}},
      {"polls", {.polls = milliseconds(100)}},
      {"drag", {.polls = milliseconds(100), .drag = true}},
      {"stalled", {.stalled = true}},
      {"question", {.open = [](Desktop& d) { user::click(d.console().form1().CmdDem); }}},
      {"input", {.open = [](Desktop& d) { d.boxes().input("Имя", "", ""); }}},
      {"settings",
       {.open = [](Desktop& d) { d.console().windows().show_modal(d.console().forms().form33); },
        .close = [](Desktop& d) { user::close(d.console().forms().form33); }}},
  };
  return all;
}

HostSetup setup_for(const std::filesystem::path& folder, const Scene& scene) {
  HostSetup setup = silent_training(folder);
  if (!scene.stalled) return setup;
  const std::filesystem::path device = folder / "stalled-device";  // opening it waits for a reader
  ::mkfifo(device.c_str(), S_IRUSR | S_IWUSR);
  setup.sound_sink = "audioconvert ! filesink location=" + device.string();
  return setup;
}

class Contacts {
 public:
  Contacts(const std::filesystem::path& folder, const Scene& scene)
      : scene_(scene), measured_(setup_for(folder, scene)) {
    // A zone is journalled right behind its frames, which are with the system by then; the rack, on this same
    // thread, hears of them only when the handler is through.
    desktop().console().journal().written = [this](const std::string& line) {
      if (!sent_ && line.find("Зона - ") != std::string::npos) sent_ = MeasureClock::now();
    };
    // Unpaced, a frame is heard when its bytes come, not when the last of them would have passed.
    measured_.line().change([&scene](rack::Rack& rack) {
      rack.set_paced(false);
      rack.set_poll_period(scene.polls);
    });
    const auto& algorithms = desktop().console().model().algorithms;
    for (int zone = 1; zone <= kLastAlertedZone; ++zone)
      if (!algorithms.AlgZoneTable[zone][1].empty()) zones_.push_back(zone);
    measured_.pass(milliseconds(1500));
  }

  void close(int count) {
    if (zones_.empty()) {
      std::printf("no algorithms under that folder\n");
      return;
    }
    for (int i = 0; i < count; ++i) close_one();
  }

  void report(const std::string& name, int count) {
    std::sort(times_.begin(), times_.end());
    if (times_.empty()) {
      std::printf("%s: no contact led to a frame\n", name.c_str());
      return;
    }
    const auto ticks = [this](double share) {
      return times_[static_cast<std::size_t>(share * static_cast<double>(times_.size() - 1))] / kTick;
    };
    const auto late = std::ranges::count_if(times_, [](double time) { return time > kMost * kTick; });
    std::printf(
        "contact to wire, %s: %zu of %d contacts, median %.2f, 99 of 100 within %.2f, worst %.2f ticks, %d "
        "beyond "
        "%.1f",
        name.c_str(), times_.size(), count, ticks(0.5), ticks(0.99), ticks(1), static_cast<int>(late), kMost);
    if (!scene_.open) std::printf("; longest hold of the window %.0f ms", longest_hold_);
    std::printf("\n");
  }

 private:
  Desktop& desktop() { return measured_.desktop(); }

  void close_one() {
    if (scene_.open) desktop().screen().act([this] { scene_.open(desktop()); });
    const int zone = zones_[random_() % zones_.size()];
    sent_.reset();
    // By a timer of the toolkit's: a box does not return here before it is answered.
    std::optional<MeasureClock::time_point> closed;
    QTimer::singleShot(milliseconds(400 + random_() % 137), [&] {
      closed = MeasureClock::now();
      measured_.line().change([zone](rack::Rack& rack) { rack.set_contact(zone, true); });
    });
    const auto over = [&] {
      return sent_ || (closed && MeasureClock::now() >= *closed + milliseconds(1000));
    };
    // A modal window holds its opener, so that it too is closed by such a timer.
    QTimer put_away;
    QObject::connect(&put_away, &QTimer::timeout, &put_away, [&] {
      if (over()) desktop().screen().act([this] { scene_.close(desktop()); });
    });
    if (scene_.close) put_away.start(milliseconds(20));
    while (!over()) step();
    if (sent_) times_.push_back(std::chrono::duration<double, std::milli>(*sent_ - *closed).count());
    measured_.line().change([zone](rack::Rack& rack) { rack.set_contact(zone, false); });
    const auto end = MeasureClock::now() + milliseconds(300);
    while (MeasureClock::now() < end) step();
  }

  void step() {
    if (scene_.drag) measured_.drag();
    longest_hold_ = std::max(longest_hold_, measured_.step());
  }

  const Scene& scene_;
  MeasuredDesktop measured_;
  std::mt19937 random_{1};
  std::vector<int> zones_;  // those with an algorithm, on the banks that start one
  std::optional<MeasureClock::time_point> sent_;
  std::vector<double> times_;  // milliseconds
  double longest_hold_ = 0;    // milliseconds
};

void measure_scenes(const std::vector<std::string>& arguments) {
  const int count = std::stoi(arguments[1]);
  for (std::size_t i = 2; i < arguments.size(); ++i) {
    const auto scene = scenes().find(arguments[i]);
    if (scene == scenes().end()) {
      std::printf("no scene %s\n", arguments[i].c_str());
      continue;
    }
    Contacts contacts(arguments[0], scene->second);
    std::printf("ready\n");
    contacts.close(count);
    contacts.report(arguments[i], count);
  }
}

}  // namespace

int main(int argc, char** argv) {
  return measure(argc, argv, 3, "desktop-contacts DIR CONTACTS SCENE...", measure_scenes);
}

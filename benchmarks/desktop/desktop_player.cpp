// desktop-player [list|walks|follow|changes]: the player's tab on the desktop, with real files under a sink
// that keeps time, in a folder of its own. Prints how long each press on a list of 10,000 tracks holds the
// window until it is painted, how long a search and the durations of 1,000 files take, the longest silence
// between tracks of two seconds that follow one another for a minute, and the memory over 500 changes of
// track.
#include <QApplication>
#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <fstream>

#include "measured_desktop.h"
#include "model/text.h"
#include "platform/user.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using std::chrono::milliseconds;
namespace fs = std::filesystem;

constexpr int kTracks = 10000, kFiles = 1000, kShort = 20, kChanges = 500;

// One channel of 8 bits, 8000 samples a second.
void write_wave(const fs::path& file, double seconds) {
  const auto size = static_cast<std::uint32_t>(seconds * 8000);
  const auto number = [](std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
    return text;
  };
  std::ofstream(file, std::ios::binary) << "RIFF" + number(36 + size, 4) + "WAVEfmt " + number(16, 4) +
                                               number(1, 2) + number(1, 2) + number(8000, 4) +
                                               number(8000, 4) + number(1, 2) + number(8, 2) + "data" +
                                               number(size, 4) + std::string(size, '\x80');
}

class Player {
 public:
  Player() {
    const fs::path folder = folder_.path().toStdString();
    fs::create_directories(folder / "c/ZEF/PlayList");
    make_lists(folder / "c");
    measured_ = std::make_unique<MeasuredDesktop>(silent_training(folder));
    window().showNormal();
    window().resize(1280, 800);
    form().SSTab1.set_value(3);
    answers_.setInterval(5);
    QObject::connect(&answers_, &QTimer::timeout, &answers_, [] {
      if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) box->accept();
    });
    answers_.start();
    pass(milliseconds(300));
    press("power on", form().CmdPMP);
  }

  void long_list() {
    load(1);
    held("loading a list of 10,000", [this] { user::double_click(form().LstPll); });
    held("selecting one of them", [this] { user::pick(form().LstPtreckMP, kTracks / 2); });
    held("deleting it", [this] { user::right_press(form().LstPtreckMP); });
    press("opening the panel", form().CmdAddPl);
    held("opening their folder", [this] { form().Dir2.point_at("C:\\many"); });
    held("adding them all", [this] { user::right_press(form().LstAddList); });
    press("closing the panel", form().CmdAddPl);
  }

  void walks() {
    load(2);
    user::double_click(form().LstPll);
    press("durations of 1,000 wave files", form().CmdSVL);
    press("opening the search", form().CmdSeek);
    form().TxtSeek.set_text("нет такого");
    press("a search through 1,000 files", form().CmdSeekOk);
    std::printf("  says: %s\n", desktop().notices().message(Notices::kWork).toStdString().c_str());
  }

  // A minute of tracks of two seconds: the longest time in which the position did not move.
  void follow() {
    load(3);
    user::double_click(form().LstPll);
    pass(milliseconds(100));
    user::pick(form().LstPtreckMP, 0);
    user::click(form().CmdPlayMP);
    const auto end = MeasureClock::now() + std::chrono::seconds(60);
    auto moved = MeasureClock::now();
    double last = 0, longest = 0;
    int track = desktop().console().model().player.mp_trk, changes = 0;
    while (MeasureClock::now() < end) {
      desktop().pump();
      const double position = desktop().player_position();
      if (position != last) {
        longest = std::max(longest, ms_since(moved));
        moved = MeasureClock::now();
        last = position;
      }
      if (const int now = desktop().console().model().player.mp_trk; now != track) ++changes, track = now;
    }
    std::printf("%d tracks of 2 s in a minute: longest silence %.0f ms\n", changes + 1, longest);
  }

  void changes() {
    const auto run = [this](int count) {
      for (int i = 0; i < count; ++i) {
        user::click(form().CmdNextMP);
        pass(milliseconds(30));
      }
    };
    run(50);
    const long before = resident_kb();
    run(kChanges);
    std::printf("%d changes of track: %+ld kB\n", kChanges, resident_kb() - before);
    user::click(form().CmdStopMP);
  }

 private:
  void make_lists(const fs::path& drive) {
    for (const auto& [name, files, seconds] :
         {std::tuple("many", kTracks, 0.0), {"files", kFiles, 5.0}, {"short", kShort, 2.0}}) {
      fs::create_directories(drive / name);
      std::string lines;
      for (int i = 1; i <= files; ++i) {
        const std::string file = join("Track number ", i, ".wav");
        write_wave(drive / name / file, seconds);
        lines += join("C:\\", name, "\\", file, "\r\n");
      }
      std::ofstream(drive / "ZEF" / join("Play-list", ++lists_), std::ios::binary) << lines;
    }
  }
  Desktop& desktop() { return measured_->desktop(); }
  Form1& form() { return measured_->form(); }
  FormWindow& window() { return measured_->window(); }
  void pass(milliseconds time) { measured_->pass(time); }
  void load(int list) {
    if (!form().LstPll.visible()) user::click(form().CmdLpl);
    user::pick(form().LstPll, list - 1);
  }
  void press(const char* what, Control& control) {
    held(what, [&control] { user::click(control); });
  }
  // A press with all that it changes painted; the questions are answered within five milliseconds.
  void held(const char* what, const std::function<void()>& deed) {
    pass(milliseconds(50));
    const auto start = MeasureClock::now();
    deed();
    desktop().screen().flush();
    window().repaint();
    std::printf("%-32s %7.1f ms\n", what, ms_since(start));
  }
  static long resident_kb() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
      if (line.starts_with("VmRSS:")) return std::stol(line.substr(6));
    return 0;
  }

  QTemporaryDir folder_;
  int lists_ = 0;
  std::unique_ptr<MeasuredDesktop> measured_;
  QTimer answers_;
};

}  // namespace

int main(int argc, char** argv) {
  return measure(argc, argv, 0, "desktop-player [PART]", [](const std::vector<std::string>& arguments) {
    Player player;
    const std::string only = arguments.empty() ? "" : arguments[0];
    const std::pair<std::string_view, void (Player::*)()> parts[] = {{"list", &Player::long_list},
                                                                     {"walks", &Player::walks},
                                                                     {"follow", &Player::follow},
                                                                     {"changes", &Player::changes}};
    for (const auto& [name, part] : parts)
      if (only.empty() || only == name) (player.*part)();
  });
}

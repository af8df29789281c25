// desktop-player [list|walks|follow|changes|scan]: the player's tab and the scan of the terminals on the
// desktop, with real files under a sink that keeps time, in a folder of its own. Prints how long each press
// on a list of 10,000 tracks holds the window until it is painted, how long a search and the durations of
// 1,000 files take, the longest silence between tracks of two seconds that follow one another for a minute,
// the memory over 500 changes of track, and the pace of a scan of 255 terminals on a line of 4800 baud.
#include <QApplication>
#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <fstream>

#include "desktop/desktop.h"
#include "desktop/view/dress.h"
#include "model/text.h"
#include "platform/user.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
namespace fs = std::filesystem;

constexpr int kTracks = 10000, kFiles = 1000, kShort = 20, kChanges = 500, kTerminals = 255;
constexpr double kFrame = 9 * 11 / 4800.0;  // seconds of a frame on the line

double ms_since(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

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
    HostSetup setup = training_setup(folder);
    setup.sound_sink = "fake";
    fs::create_directories(folder / "c/ZEF/PlayList");
    make_lists(folder / "c");
    auto line = std::make_unique<TrainingLine>(setup.ports.at(1));
    line_ = line.get();
    desktop_ = std::make_unique<Desktop>(setup, std::move(line));
    desktop_->start();
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
    std::printf("  says: %s\n", desktop_->notices().message(Notices::kWork).toStdString().c_str());
  }

  // A minute of tracks of two seconds: the longest time in which the position did not move.
  void follow() {
    load(3);
    user::double_click(form().LstPll);
    pass(milliseconds(100));
    user::pick(form().LstPtreckMP, 0);
    user::click(form().CmdPlayMP);
    const auto end = Clock::now() + std::chrono::seconds(60);
    auto moved = Clock::now();
    double last = 0, longest = 0;
    int track = desktop_->console().model().player.mp_trk, changes = 0;
    while (Clock::now() < end) {
      desktop_->pump();
      const double position = desktop_->player_position();
      if (position != last) {
        longest = std::max(longest, ms_since(moved));
        moved = Clock::now();
        last = position;
      }
      if (const int now = desktop_->console().model().player.mp_trk; now != track) ++changes, track = now;
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

  void scan() {
    desktop_->console().model().terminals.term_count = kTerminals;
    line_->change([](rack::Rack& rack) {
      rack.set_paced(true);
      rack.set_answer_delay(milliseconds(0));
    });
    form().SSTab1.set_value(5);
    pass(milliseconds(300));
    const auto start = Clock::now();
    form().CmdSkan.click();
    const double seconds = ms_since(start) / 1000, limit = kTerminals * 2 * kFrame;
    std::printf("scan of %d terminals: %d rows in %.2f s, %.3f of the line's own limit\n", kTerminals,
                form().MSF2.row_count(), seconds, seconds / limit);
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
  Form1& form() { return desktop_->console().form1(); }
  FormWindow& window() { return desktop_->windows().window(form()); }
  void pass(milliseconds time) {
    const auto end = Clock::now() + time;
    while (Clock::now() < end) desktop_->pump();
  }
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
    const auto start = Clock::now();
    deed();
    desktop_->screen().flush();
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
  TrainingLine* line_ = nullptr;
  std::unique_ptr<Desktop> desktop_;
  QTimer answers_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  dress_application();
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  Player player;
  const std::string_view only = argc > 1 ? argv[1] : "";
  const std::pair<std::string_view, void (Player::*)()> parts[] = {{"list", &Player::long_list},
                                                                   {"walks", &Player::walks},
                                                                   {"follow", &Player::follow},
                                                                   {"changes", &Player::changes},
                                                                   {"scan", &Player::scan}};
  for (const auto& [name, part] : parts)
    if (only.empty() || only == name) (player.*part)();
}

// desktop-measure DIR: the desktop on its virtual rack and a real pseudo-terminal, with the training set
// under DIR. Prints how long each window takes to be made, and how long the window is held at most by what an
// operator does.
#include <algorithm>
#include <cstdio>

#include "measured_desktop.h"
#include "platform/user.h"

namespace {

using namespace evac;
using namespace evac::desktop;
using std::chrono::milliseconds;

class Measure {
 public:
  explicit Measure(const std::filesystem::path& folder) : measured_(silent_training(folder)) {
    std::printf("start of the program to its window: %.0f ms\n", measured_.start_took());
    measured_.pass(milliseconds(1500));
  }

  void windows() {
    for (Form* form : desktop().console().windows().forms()) {
      const auto start = MeasureClock::now();
      desktop().windows().window(*form);
      std::printf("making %-6s %6.1f ms\n", form->name().c_str(), ms_since(start));
    }
  }

  // The longest that one step of the loop holds the window, for what is done.
  void holds() {
    Form1& form = desktop().console().form1();
    for (int tab = 0; tab < 7; ++tab) {
      desktop().screen().act([&form, tab] { user::turn_to(form.SSTab1, tab); });
      report(("turning to tab " + std::to_string(tab + 1)).c_str(), longest_step(milliseconds(400)));
      report("  resizing it", resize_for(milliseconds(1500)));
    }
    desktop().screen().act([&form] { user::turn_to(form.SSTab1, 1); });
    pass(milliseconds(400));
    desktop().screen().act([&form] { user::click(form.CmdAG); });
    report("switching all zones", longest_step(milliseconds(500)));
    desktop().screen().act([&form] { user::click(form.CmdAllZ); });
    report("routing all zones", longest_step(milliseconds(500)));
    desktop().screen().act([&form] { user::turn_to(form.SSTab1, 2); });
    pass(milliseconds(400));
    desktop().screen().act([&form] { user::set_value(form.VsUs, 2); });
    report("changing the preset", longest_step(milliseconds(500)));
    // The preset again, back and forth, and all that it changed painted on the two tabs that show it.
    for (const int tab : {1, 2}) {
      desktop().screen().act([&form, tab] { user::turn_to(form.SSTab1, tab); });
      pass(milliseconds(400));
      std::printf("painting tab %d after a change of preset: %.1f ms\n", tab + 1, paint_presets(form));
    }
    desktop().screen().act([&form] { user::click(form.CmdAG); });
    pass(milliseconds(6000));
  }

 private:
  void report(const char* what, double longest) {
    std::printf("%-28s longest hold %6.1f ms\n", what, longest);
  }

  // Milliseconds that one change of preset takes with the painting of the whole window behind it.
  double paint_presets(Form1& form) {
    constexpr int kChanges = 50;
    FormWindow& window = desktop().windows().window(form);
    const auto start = MeasureClock::now();
    for (int i = 0; i < kChanges; ++i) {
      form.VsUs.set_value(1 + i % 2);
      form.Option1.press();
      form.CmdGr2.click();
      desktop().screen().flush();
      window.repaint();
    }
    return ms_since(start) / kChanges;
  }

  double longest_step(milliseconds time) {
    double longest = 0;
    const auto end = MeasureClock::now() + time;
    while (MeasureClock::now() < end) longest = std::max(longest, measured_.step());
    return longest;
  }

  double resize_for(milliseconds time) {
    double longest = 0;
    const auto end = MeasureClock::now() + time;
    while (MeasureClock::now() < end) {
      measured_.drag();
      longest = std::max(longest, measured_.step());
    }
    return longest;
  }

  Desktop& desktop() { return measured_.desktop(); }
  void pass(milliseconds time) { measured_.pass(time); }

  MeasuredDesktop measured_;
};

}  // namespace

int main(int argc, char** argv) {
  return measure(argc, argv, 1, "desktop-measure DIR", [](const std::vector<std::string>& arguments) {
    Measure measure(arguments[0]);
    measure.windows();
    measure.holds();
  });
}

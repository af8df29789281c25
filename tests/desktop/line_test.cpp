// The desktop on its line: the polls of the rack behind a real pseudo-terminal, a line that comes and goes, a
// port that cannot be opened, frames that wait.
#include <QDialog>

#include "platform/user.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

using namespace std::chrono_literals;
using rack::Rack;

class Line : public TrainingDesktop {
 protected:
  bool says(const char* message) { return desktop->notices().text().contains(QString::fromUtf8(message)); }
  // Polls once and waits for the answer.
  bool poll_is_answered() {
    const int before = rack().polls_answered();
    line_->change([](Rack& rack) { rack.send_poll(); });
    return until([&] { return rack().polls_answered() > before; });
  }
};

TEST_F(Line, APollIsAnsweredUnderAModalWindowButHeldByABox) {
  desktop->start();
  // What goes on while the handler that opened the window, or the box, is still inside.
  int answered_inside = -1;
  bool seen = false, reached_below = true;
  const auto poll_and_look = [&](std::function<void()> close) {
    QTimer::singleShot(100, [this] { line_->change([](Rack& rack) { rack.send_poll(); }); });
    QTimer::singleShot(1500, [this, &answered_inside, close] {
      answered_inside = rack().polls_answered();
      close();
    });
  };
  poll_and_look([&] {
    seen = window(forms().form2).isVisible();
    reached_below = user::reaches(form1().CmdTW1[0]);
    window(forms().form2).close();
  });
  desktop->screen().act([this] { user::click(form1().M_o_p); });
  settle();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(reached_below);
  EXPECT_EQ(answered_inside, 1);
  EXPECT_FALSE(window(forms().form2).isVisible());

  poll_and_look([] { dynamic_cast<QDialog&>(*QApplication::activeModalWidget()).accept(); });
  desktop->screen().act([this] { user::click(form1().M_op); });
  settle();
  EXPECT_EQ(answered_inside, 1) << "a box holds everything";
  EXPECT_TRUE(until([&] { return rack().polls_answered() == 2; })) << "and the answer comes after it";
}

TEST_F(Line, ALineThatComesAndGoesIsTakenUpEachTimeAndBringsWhatWasSentMeanwhile) {
  desktop->start();
  ASSERT_TRUE(poll_is_answered());
  for (int time = 0; time < 3; ++time) {
    line_->unplug();
    ASSERT_TRUE(until([&] { return desktop->line().is_lost(); })) << time;
    EXPECT_TRUE(says("Линия потеряна: COM1")) << time;
    settle();
    EXPECT_EQ(widget(form1().PctD1)->accessibleName(), "Связь, неизвестно") << time;
    desktop->screen().act([&] { user::click(form1().Opt1[time]); });
    settle();
    heard.clear();
    line_->plug();
    ASSERT_TRUE(until([&] { return !desktop->line().is_lost(); })) << time;
    EXPECT_TRUE(until([&] { return !heard.empty() && heard.back().starts_with("Матрица"); })) << time;
    EXPECT_FALSE(says("Линия")) << time;
    ASSERT_TRUE(poll_is_answered()) << time;
    settle();
    EXPECT_EQ(widget(form1().PctD1)->accessibleName(), "Связь, да") << time;
  }
}

TEST_F(Line, APortThatCannotBeOpenedAtStartIsAFaultWithItsNameAndAReason) {
  HostSetup setup = training_setup(folder_.path().toStdString());
  setup.ports = {{1, "/dev/no-such-port"}};
  Desktop lonely(setup, nullptr);
  try {
    lonely.start();
    FAIL() << "started without a port";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number(), 8002);
    EXPECT_STREQ(fault.what(), "Invalid port number: COM1: /dev/no-such-port: такого устройства нет");
  }
}

}  // namespace
}  // namespace evac::desktop

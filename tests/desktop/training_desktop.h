// A whole desktop in training mode on a temporary folder, with its rack on a real pseudo-terminal.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "desktop/desktop.h"
#include "platform/user.h"

namespace evac::desktop {

class TrainingDesktop : public ::testing::Test {
 protected:
  TrainingDesktop() {
    HostSetup setup = training_setup(folder_.path().toStdString());
    setup.sound_sink = "fake";
    auto line = std::make_unique<TrainingLine>(setup.ports.at(1));
    line_ = line.get();
    desktop = std::make_unique<Desktop>(setup, std::move(line));
    QObject::connect(line_, &TrainingLine::passed, line_, [this](const rack::Passed& frame) {
      if (frame.from_console) heard.push_back(frame.words());
    });
  }

  // Pumps until `come`, for at most ten seconds; whether it has come.
  template <class Condition>
  bool until(Condition come) {
    const auto end = desktop->loop().now() + std::chrono::seconds(10);
    while (!come() && desktop->loop().now() < end) desktop->pump();
    return come();
  }
  // Runs what has been posted and shows it.
  void settle() {
    bool reached = false;
    desktop->loop().post([&] { reached = true; });
    until([&] { return reached; });
    desktop->screen().flush();
  }
  // Opens a modal window by `open` and works it from outside the console, one step after another, as a user
  // would; the last step must close it. Returns when the handler that opened it is through.
  void work_modal(std::function<void()> open, std::vector<std::function<void()>> steps) {
    std::size_t next = 0;
    QTimer user;
    user.setInterval(60);
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
      if (next < steps.size()) steps[next++]();
    });
    user.start();
    desktop->screen().act(std::move(open));
    settle();
    EXPECT_EQ(next, steps.size());
  }
  // The same behind the gate: nothing is typed, and Enter passes it.
  void work_settings(MenuItem& item, std::vector<std::function<void()>> steps) {
    steps.insert(steps.begin(), [this] { QTest::keyClick(widget(forms().frm_psw.Txt1), Qt::Key_Return); });
    work_modal([&item] { user::click(item); }, std::move(steps));
  }
  Form1& form1() { return desktop->console().form1(); }
  Forms& forms() { return desktop->console().forms(); }
  FormWindow& window(Form& form) { return desktop->windows().window(form); }
  FormWindow& main_window() { return window(form1()); }
  // The main window at that size, with nothing left to be laid out.
  void resize_main(int width, int height) {
    main_window().showNormal();
    main_window().resize(width, height);
    QApplication::processEvents();
  }
  // What shows the control and no other; of several the first.
  template <class Widget = QWidget>
  Widget* widget(Control& control) {
    window(control.form());
    const QString own_name = qt(control.form().name() + "." + control.full_name());
    for (Face* face : desktop->screen().faces(control))
      if (face->widget().objectName() == own_name) return dynamic_cast<Widget*>(&face->widget());
    return nullptr;
  }
  rack::Rack& rack() { return line_->rack(); }

  QTemporaryDir folder_;
  std::vector<std::string> heard;
  std::unique_ptr<Desktop> desktop;
  TrainingLine* line_ = nullptr;
};

}  // namespace evac::desktop

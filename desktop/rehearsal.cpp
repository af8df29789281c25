#include "desktop/rehearsal.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <iostream>

#include "desktop/desktop.h"
#include "desktop/stand.h"
#include "model/text.h"
#include "platform/user.h"
#include "store/code_page.h"

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

// The training set has an algorithm for it.
constexpr int kZoneOfFire = 15;
constexpr QSize kWindow(1280, 800);  // of the pictures

class Rehearsal {
 public:
  Rehearsal(Desktop& desktop, fs::path folder) : desktop_(desktop), folder_(std::move(folder)) {}

  int run(int seconds) {
    fs::create_directories(folder_);
    desktop_.console().journal().written = [this](const std::string& line) { journal_.push_back(line); };
    QObject::connect(desktop_.training(), &TrainingLine::passed, desktop_.training(),
                     [this](const rack::Passed& frame) {
                       frames_.push_back(line_of(QTime::currentTime(), frame).toStdString());
                     });
    answer_boxes();
    main_window().showNormal();
    main_window().resize(kWindow);
    desktop_.stand()->show();
    const auto end = desktop_.loop().now() + std::chrono::seconds(seconds);
    act();
    scan();
    fire();
    while (desktop_.loop().now() < end) desktop_.pump();
    save(*desktop_.stand(), "stand.png");
    report();
    const auto& rack = desktop_.training()->rack();
    return rack.polls_answered() > 0 && saved_ ? 0 : 1;
  }

 private:
  // What a newcomer does first: looks at each tab.
  void act() {
    pass(milliseconds(1200));
    TabStrip& tabs = desktop_.console().form1().SSTab1;
    for (int tab = 0; tab < static_cast<int>(tabs.tabs().size()); ++tab) {
      desktop_.screen().act([&tabs, tab] { user::turn_to(tabs, tab); });
      pass(milliseconds(250));
      save(main_window(), "tab" + std::to_string(tab + 1) + ".png");
    }
    desktop_.screen().act([&tabs] { user::turn_to(tabs, 0); });
    pass(milliseconds(250));
    save(main_window(), "window.png");
  }

  // The terminals are asked what they do; one of them is silent.
  void scan() {
    constexpr int kControlTab = 5;
    Form1& form = desktop_.console().form1();
    desktop_.screen().act([&form] { user::turn_to(form.SSTab1, kControlTab); });
    desktop_.screen().act([&form] { user::click(form.CmdArm); });
    pass(milliseconds(2500));
    save(main_window(), "scan.png");
    while (desktop_.console().model().supervision.ScanRunning) desktop_.pump();
    pass(milliseconds(500));
    save(main_window(), "scanned.png");
    for (const auto& row : form.List5.rows()) frames_.push_back("          the report of the scan: " + row);
    desktop_.screen().act([&form] { user::turn_to(form.SSTab1, 0); });
  }

  // The console's main job: a contact closes, and opens again after a while.
  void fire() {
    set_contact(true);
    pass(milliseconds(2500));
    save(main_window(), "fire.png");
    save(*desktop_.stand(), "stand_fire.png");
    set_contact(false);
    pass(milliseconds(500));
  }

  void set_contact(bool closed) {
    desktop_.training()->change([closed](rack::Rack& rack) { rack.set_contact(kZoneOfFire, closed); });
    frames_.push_back(join(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz")).toStdString(),
                           "  contact of zone ", kZoneOfFire, closed ? " closes" : " opens"));
  }

  FormWindow& main_window() { return desktop_.windows().window(desktop_.console().form1()); }

  void pass(milliseconds time) {
    const auto end = desktop_.loop().now() + time;
    while (desktop_.loop().now() < end) desktop_.pump();
  }

  // Nobody sits in front of a rehearsal: a box that comes up is told and answered.
  void answer_boxes() {
    box_watch_.setInterval(500);
    QObject::connect(&box_watch_, &QTimer::timeout, &box_watch_, [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      std::cout << "box: " << box->text().toStdString() << '\n';
      box->defaultButton() ? box->defaultButton()->click() : box->accept();
    });
    box_watch_.start();
  }

  void save(QWidget& window, const std::string& name) {
    const fs::path file = folder_ / name;
    saved_ = window.grab().save(QString::fromStdString(file.string())) && saved_;
    pictures_.push_back(file);
  }

  void report() const {
    std::cout << "What passed on the line:\n";
    for (const auto& line : frames_) std::cout << "  " << line << '\n';
    std::cout << "The journal:\n";
    for (const auto& line : journal_lines()) std::cout << "  " << line << '\n';
    std::cout << "Pictures of the windows:\n";
    for (const auto& file : pictures_) std::cout << "  " << file.string() << '\n';
    if (!saved_) std::cout << "  (not all of them could be saved)\n";
  }

  // The day's journal as it stands on the disk, so that what was written before the rehearsal listened is
  // there.
  std::vector<std::string> journal_lines() const {
    Files& files = desktop_.files();
    const std::string folder = join(kProgramFolder, "\\protocol");
    std::vector<std::string> lines;
    for (const auto& name : files.files(folder)) {
      std::string bytes;
      if (files.read(join(folder, "\\", name), bytes) != kNoError) continue;
      lines.push_back(name + ":");
      std::string line;
      for (const char c : from_code_page(bytes)) {
        if (c == '\n') lines.push_back(std::exchange(line, {}));
        if (c != '\n' && c != '\r') line += c;
      }
    }
    return lines;
  }

  Desktop& desktop_;
  const fs::path folder_;
  QTimer box_watch_;
  std::vector<std::string> frames_, journal_;
  std::vector<fs::path> pictures_;
  bool saved_ = true;
};

}  // namespace

int rehearse(Desktop& desktop, const fs::path& folder, int seconds) {
  return Rehearsal(desktop, folder).run(seconds);
}

}  // namespace evac::desktop

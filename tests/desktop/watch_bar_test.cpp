// The alarm bar and the boxes: what burns is seen in every window, and no box holds it back.
#include "desktop/view/watch_bar.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/view/palette.h"
#include "platform/user.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

class Bar : public TrainingDesktop {
 protected:
  Bar() {
    desktop->start();
    until([&] { return desktop->feed().looking(); });
  }
  WatchBar& bar(const char* form) { return *window(form).findChild<WatchBar*>("watch"); }
  void contact(int zone, bool closed) {
    line_->change([=](rack::Rack& rack) { rack.set_contact(zone, closed); });
  }
  static QWidget* box() {
    for (QWidget* top : QApplication::topLevelWidgets())
      if (top->objectName() == "box" && top->isVisible()) return top;
    return nullptr;
  }
};

// Rows of the picture that have a pixel of that colour.
int rows_with(const QImage& picture, const QColor& color) {
  int rows = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixelColor(x, y) == color) {
        ++rows;
        break;
      }
  return rows;
}

TEST_F(Bar, BurnsInEveryWindowHighEnoughAndKeepsItsPlace) {
  FormWindow& main = window("Form1");
  main.resize(1280, 800);
  settle();
  QTest::qWait(20);
  const QRect calm = bar("Form1").geometry();
  EXPECT_GE(calm.height(), 48);
  EXPECT_GE(calm.width(), main.width() - 20) << "over the full width";
  EXPECT_EQ(rows_with(bar("Form1").grab().toImage(), signal::kFire), 0);
  contact(7, true);
  ASSERT_TRUE(until([&] { return desktop->feed().burning(); }));
  settle();
  for (const char* form : {"Form1", "Form22", "Form33", "Form5", "Form2"}) {
    const QImage picture = bar(form).grab().toImage();
    EXPECT_GT(rows_with(picture, signal::kFire), 40) << form;
    EXPECT_GE(rows_with(picture, Qt::white), WatchBar::kLeastCapitals) << form;
  }
  EXPECT_EQ(bar("Form1").geometry(), calm);
  EXPECT_TRUE(bar("Form1").accessibleName().startsWith("ПОЖАР: зона 7"));
  // A press brings the panel to the front.
  form1().SSTab1.set_value(4);
  QTest::mouseClick(&bar("Form1"), Qt::LeftButton, {}, QPoint(30, 20));
  settle();
  EXPECT_EQ(form1().SSTab1.value(), 0);
  contact(7, false);
  ASSERT_TRUE(until([&] { return !desktop->feed().burning(); }));
  EXPECT_EQ(rows_with(bar("Form1").grab().toImage(), signal::kFire), 0);
}

TEST_F(Bar, ABoxAnswersItselfWhenAContactClosesAndItsTextStays) {
  desktop->screen().act([this] { desktop->boxes().ask("Включить?", "Вопрос"); });
  int buttons_high_enough = 0;
  QTimer::singleShot(200, [&] {
    for (auto* button : box()->findChildren<QPushButton*>()) buttons_high_enough += button->height() >= 34;
    contact(9, true);
  });
  settle();
  EXPECT_EQ(buttons_high_enough, 2);
  EXPECT_EQ(box(), nullptr);
  ASSERT_TRUE(until([&] { return desktop->feed().burning(); }));
  ASSERT_EQ(desktop->notices().boxes().size(), 1);
  EXPECT_TRUE(desktop->notices().boxes().front().endsWith("Включить? — Нет"));
  QTest::mouseClick(window("Form1").findChild<QPushButton*>("box note"), Qt::LeftButton);
  EXPECT_TRUE(desktop->notices().boxes().isEmpty());
  // A contact that stays closed holds no later box off: it waits for its operator.
  bool up = false, yes = false;
  QTimer::singleShot(300, [&] {
    up = box() != nullptr;
    if (up) QTest::mouseClick(box()->findChild<QPushButton*>("Да"), Qt::LeftButton);
  });
  desktop->screen().act([&] { yes = desktop->boxes().ask("Ещё раз?", ""); });
  settle();
  EXPECT_TRUE(up);
  EXPECT_TRUE(yes);
}

TEST_F(Bar, TheStopReachesTheAlertFromUnderAWindowAndABox) {
  const auto chord = [this](const char* form) {
    QTest::keyClick(window(form).windowHandle(), Qt::Key_F12, Qt::ControlModifier);
  };
  work_modal([this] { user::click(form1().M_n_z); },
             {[&] { chord("Form33"); },
              [this] {
                EXPECT_TRUE(desktop->console().model().alert.fire_stop);
                user::close(desktop->console().forms().form33);
              }});
  EXPECT_TRUE(desktop->console().model().alert.fire_stop);
  QTimer::singleShot(200, [&] { QTest::keyClick(box()->windowHandle(), Qt::Key_F12, Qt::ControlModifier); });
  desktop->screen().act([this] { EXPECT_FALSE(desktop->boxes().ask("Включить?", "")); });
  settle();
  settle();
  EXPECT_FALSE(desktop->console().model().alert.fire_stop) << "pressed once more";
}

}  // namespace
}  // namespace evac::desktop

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
  WatchBar& bar(Form& form) { return *window(form).findChild<WatchBar*>("watch"); }
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
  resize_main(1280, 800);
  settle();
  until([&] { return bar(form1()).height() == bar(form1()).sizeHint().height(); });
  const QRect calm = bar(form1()).geometry();
  EXPECT_GE(calm.height(), 48);
  EXPECT_GE(calm.width(), main_window().width() - 20) << "over the full width";
  EXPECT_EQ(rows_with(bar(form1()).grab().toImage(), signal::kFire), 0);
  contact(7, true);
  ASSERT_TRUE(until([&] { return desktop->feed().burning(); }));
  settle();
  for (Form* form : desktop->console().windows().forms()) {
    const QImage picture = bar(*form).grab().toImage();
    EXPECT_GT(rows_with(picture, signal::kFire), 40) << form->name();
    EXPECT_GE(rows_with(picture, Qt::white), WatchBar::kLeastCapitals) << form->name();
  }
  EXPECT_EQ(bar(form1()).geometry(), calm);
  EXPECT_TRUE(bar(form1()).accessibleName().startsWith("ПОЖАР: зона 7"));
  form1().PctA[7].set_picture(picture::kYes);
  settle();
  EXPECT_EQ(widget(form1().PctA[7])->accessibleName(), "Зона 7, пожар") << "whatever is painted on it";
  form1().PctA[7].set_picture(picture::kNo);
  // A press brings the panel to the front.
  form1().SSTab1.set_value(4);
  QTest::mouseClick(&bar(form1()), Qt::LeftButton, {}, QPoint(30, 20));
  settle();
  EXPECT_EQ(form1().SSTab1.value(), 0);
  contact(7, false);
  ASSERT_TRUE(until([&] { return !desktop->feed().burning(); }));
  EXPECT_EQ(rows_with(bar(form1()).grab().toImage(), signal::kFire), 0);
  settle();
  EXPECT_EQ(widget(form1().PctA[7])->accessibleName(), "Зона 7, спокойно");
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
  QTest::mouseClick(main_window().findChild<QPushButton*>("box note"), Qt::LeftButton);
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
  const auto chord = [this](Form& form) {
    QTest::keyClick(window(form).windowHandle(), Qt::Key_F12, Qt::ControlModifier);
  };
  work_settings(form1().M_n_z, {[&] { chord(forms().form33); },
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

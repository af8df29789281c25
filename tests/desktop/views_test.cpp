// Controls and their widgets: all are bound, a hand on a widget reaches the control in its turn, and what the
// control says is seen.
#include <QAbstractButton>
#include <QAbstractSlider>
#include <QPointingDevice>
#include <QTabBar>
#include <QTest>

#include "desktop/view/palette.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

class Views : public TrainingDesktop {
 protected:
  Views() { desktop->start(); }
};

bool needs_a_widget(const Control& control, const WindowLayout& layout) {
  if (control.kind() == Kind::kTimer || control.kind() == Kind::kMenuItem ||
      control.kind() == Kind::kPopupMenu)
    return false;
  const Controls& hidden = layout.out_of_sight.controls();
  return std::find(hidden.begin(), hidden.end(), &control) == hidden.end();
}

TEST_F(Views, EveryControlOfEveryWindowIsBoundOrOutOfSightOnPurpose) {
  for (Form* form : desktop->console().windows().forms()) {
    const WindowLayout& layout = desktop->windows().layout_of(*form);
    desktop->windows().window(*form);
    for (const Control* control : form->controls())
      EXPECT_EQ(desktop->screen().is_bound(*control), needs_a_widget(*control, layout))
          << form->name() << "." << control->full_name();
  }
}

TEST_F(Views, EveryWidgetIsNamedAfterItsControl) {
  EXPECT_EQ(widget("Form1", "CmdU")->accessibleName(), "CmdU Установить");
  EXPECT_EQ(widget("Form1", "PctA(7)")->accessibleName(), "PctA(7) Зона 7");
  for (QWidget* each : window("Form1").findChildren<QWidget*>())
    if (each->objectName().startsWith("Form1.") && each->focusPolicy() != Qt::NoFocus) {
      EXPECT_FALSE(each->accessibleName().isEmpty()) << each->objectName().toStdString();
    }
}

TEST_F(Views, APressIsAnEventOfTheConsoleAndNeverRunsInsideTheToolkit) {
  auto* button = widget<QAbstractButton>("Form1", "CmdTW1(0)");
  button->click();
  EXPECT_FALSE(is_signal(form1().CmdTW1[0].back_color())) << "only posted so far";
  int clicks = 0, rights = 0;
  form1().CmdTW2[0].click = [&] { ++clicks; };
  form1().CmdTW2[0].mouse_down = [&](MousePress press) { rights += press.plain_right(); };
  button = widget<QAbstractButton>("Form1", "CmdTW2(0)");
  QTest::mouseClick(button, Qt::LeftButton);
  QTest::keyClick(button, Qt::Key_Return);
  QTest::keyClick(button, Qt::Key_Space);
  QTest::mouseClick(button, Qt::RightButton);
  QTest::keyClick(button, Qt::Key_Minus);
  QTest::keyClick(button, Qt::Key_F10, Qt::ShiftModifier);
  QTest::mouseClick(button, Qt::RightButton, Qt::ShiftModifier);  // not a plain right press
  settle();
  EXPECT_EQ(clicks, 3);
  EXPECT_EQ(rights, 3);

  // A control that is off takes nothing, and its widget shows that.
  form1().CmdTW2[0].set_enabled(false);
  settle();
  EXPECT_FALSE(button->isEnabled());
  QTest::mouseClick(button, Qt::RightButton);
  settle();
  EXPECT_EQ(rights, 3);
}

TEST_F(Views, ALongTouchIsARightPressAndNoClick) {
  int clicks = 0, rights = 0;
  form1().CmdTW2[0].click = [&] { ++clicks; };
  form1().CmdTW2[0].mouse_down = [&](MousePress press) { rights += press.plain_right(); };
  auto* button = widget<QAbstractButton>("Form1", "CmdTW2(0)");
  form1().SSTab1.set_value(6);
  settle();
  std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
  const auto touch = [&](bool long_one) {
    const int rights_before = rights;
    QTest::touchEvent(button, screen.get()).press(0, button->rect().center());
    if (long_one) until([&] { return rights > rights_before; });
    QTest::touchEvent(button, screen.get()).release(0, button->rect().center());
    settle();
  };
  touch(false);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(rights, 0);
  touch(true);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(rights, 1);
}

TEST_F(Views, OneControlShowsOnSeveralWidgetsAndKeepsTheirPlace) {
  form1().SSTab1.set_value(0);
  settle();
  QWidget* lamp = widget("Form1", "PctA(1)");
  const QRect place = lamp->geometry();
  const auto lines = window("Form1").findChildren<QWidget*>("Form1.LblU(5)");
  ASSERT_EQ(lines.size(), 2) << "in the strip and on the tab";
  const QRect line_place = lines[0]->geometry();
  form1().AlarmTab::LblU[5].set_caption(std::string(400, 'W'));
  form1().PctA[1].set_picture(picture::kPause);
  form1().PctA[120].set_picture(picture::kPause);
  settle();
  QTest::qWait(1);
  for (QWidget* line : lines) EXPECT_TRUE(line->accessibleName().contains("WWW"));
  EXPECT_EQ(lines[0]->geometry(), line_place);
  EXPECT_EQ(lamp->geometry(), place);
}

TEST_F(Views, ASliderFollowsTheHandAndTheControl) {
  auto* bar = widget<QAbstractSlider>("Form1", "VS1");
  QTest::keyClick(bar, Qt::Key_Up);
  QTest::keyClick(bar, Qt::Key_Up);
  EXPECT_EQ(bar->value(), 3) << "at once under the hand";
  settle();
  EXPECT_EQ(form1().AlarmTab::VS1.value(), 3);
  form1().AlarmTab::VS1.set_value(99);
  settle();
  EXPECT_EQ(bar->value(), 99);
  // A change that does not reach the control is taken back.
  bar->setValue(5);
  form1().Frm6.set_enabled(false);
  settle();
  EXPECT_EQ(form1().AlarmTab::VS1.value(), 99);
  EXPECT_EQ(bar->value(), 99);
}

TEST_F(Views, TabsAndFramesFollowTheirControls) {
  auto* tabs = window("Form1").findChild<QTabBar*>("Form1.SSTab1.bar");
  tabs->setCurrentIndex(2);
  settle();
  EXPECT_EQ(form1().SSTab1.value(), 2);
  EXPECT_TRUE(widget("Form1", "CmdU")->isVisible());
  form1().SSTab1.set_value(6);
  settle();
  EXPECT_EQ(tabs->currentIndex(), 6);
  form1().Frame5[0].set_enabled(false);
  settle();
  EXPECT_FALSE(widget("Form1", "CmdTW1(0)")->isEnabled());
  EXPECT_TRUE(widget("Form1", "CmdTW2(0)")->isEnabled());
}

TEST_F(Views, ArrowKeysWalkABoard) {
  form1().SSTab1.set_value(6);
  settle();
  window("Form1").activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window("Form1")));
  QWidget* first = widget("Form1", "CmdTW1(0)");
  first->setFocus();
  QTest::keyClick(first, Qt::Key_Right);
  EXPECT_EQ(QApplication::focusWidget(), widget("Form1", "CmdTW1(1)"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), widget("Form1", "CmdTW1(5)"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), widget("Form1", "CmdTW2(0)")) << "Tab leaves the board";
}

TEST(Colors, EveryColourOfTheSystemCarriesReadableText) {
  for (const Color color : {Color::kChannel1, Color::kChannel2, Color::kChannel3, Color::kChannel4,
                            Color::kChannel5, Color::kNotChosen, Color::kFireTest, Color::kGrey,
                            Color::kSortedHead, Color::kWindow, Color::kButtonFace})
    EXPECT_GE(contrast(text_upon(screen_color(color)), screen_color(color)), 4.5) << color_literal(color);
  EXPECT_GE(contrast(grey::kFaint, grey::kWindow), 3.0);
  EXPECT_EQ(screen_color(Color::kChannel1), QColor(0xFF, 0x80, 0x80)) << "red stands in the low byte";
}

}  // namespace
}  // namespace evac::desktop

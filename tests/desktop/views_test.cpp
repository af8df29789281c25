// Controls and their widgets: all are bound, a hand on a widget reaches the control in its turn, and what the
// control says is seen.
#include <QAbstractButton>
#include <QAbstractSlider>
#include <QPointingDevice>
#include <QTest>

#include "training_desktop.h"

namespace evac::desktop {
namespace {

class Views : public TrainingDesktop {
 protected:
  Views() { desktop->start(); }
};

bool needs_a_widget(const Control& control, const WindowLayout& layout) {
  if (control.kind() == Kind::kMenuItem || control.kind() == Kind::kPopupMenu) return false;
  const Controls& hidden = layout.out_of_sight.controls();
  return std::find(hidden.begin(), hidden.end(), &control) == hidden.end();
}

TEST_F(Views, EveryControlOfEveryWindowIsBoundOrOutOfSightOnPurpose) {
  for (Form* form : desktop->console().windows().forms()) {
    const WindowLayout& layout = desktop->windows().layout_of(*form);
    window(*form);
    for (const Control* control : form->controls()) {
      if (control->kind() == Kind::kTimer) continue;
      EXPECT_EQ(desktop->screen().is_bound(*control), needs_a_widget(*control, layout))
          << form->name() << "." << control->full_name();
    }
  }
}

TEST_F(Views, APressIsAnEventOfTheConsoleAndNeverRunsInsideTheToolkit) {
  auto* button = widget<QAbstractButton>(form1().CmdCh[1]);
  button->click();
  EXPECT_EQ(form1().CmdCh[1].caption(), "1") << "only posted so far";
  settle();
  EXPECT_EQ(form1().CmdCh[1].caption(), "2");
  int clicks = 0, rights = 0;
  form1().CmdCh[2].click = [&] { ++clicks; };
  form1().CmdCh[2].mouse_down = [&](MousePress press) { rights += press.plain_right(); };
  button = widget<QAbstractButton>(form1().CmdCh[2]);
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
  form1().CmdCh[2].set_enabled(false);
  settle();
  EXPECT_FALSE(button->isEnabled());
  QTest::mouseClick(button, Qt::RightButton);
  settle();
  EXPECT_EQ(rights, 3);
}

TEST_F(Views, ALongTouchIsARightPressAndNoClick) {
  int clicks = 0, rights = 0;
  form1().CmdCh[2].click = [&] { ++clicks; };
  form1().CmdCh[2].mouse_down = [&](MousePress press) { rights += press.plain_right(); };
  auto* button = widget<QAbstractButton>(form1().CmdCh[2]);
  form1().SSTab1.set_value(1);
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

TEST_F(Views, ASliderFollowsTheHandAndTheControl) {
  auto* bar = widget<QAbstractSlider>(form1().AlarmTab::VS1);
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

}  // namespace
}  // namespace evac::desktop

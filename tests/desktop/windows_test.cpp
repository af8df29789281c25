// The settings windows as an engineer works them, through their real widgets; and what the host does besides.
#include <QAbstractButton>
#include <QMenu>
#include <QTest>

#include "training_desktop.h"

namespace evac::desktop {
namespace {

class SettingsWindows : public TrainingDesktop {
 protected:
  SettingsWindows() { desktop->start(); }
  std::function<void()> press(Control& control) {
    return [this, &control] { widget<QAbstractButton>(control)->click(); };
  }
  std::function<void()> double_press(Control& control) {
    return [this, &control] {
      QTest::mouseClick(widget(control), Qt::LeftButton);
      QTest::mouseDClick(widget(control), Qt::LeftButton);
    };
  }
  QMenu* popup() { return dynamic_cast<QMenu*>(QApplication::activePopupWidget()); }
};

TEST_F(SettingsWindows, AZoneIsSwitchedOnAndPutOnAChannelByThePopUpMenu) {
  QString tip_off, tip_on;
  bool menu_on_dark_cell = true;
  int entries = 0;
  work_settings(form1().M_n_z,
                {[&] {
                   tip_off = widget(forms().form33.Lbl[7])->toolTip();
                   QTest::mouseClick(widget(forms().form33.Lbl[7]), Qt::RightButton);
                 },
                 [&] { menu_on_dark_cell = popup() != nullptr; }, double_press(forms().form33.Lbl[7]),
                 [&] {
                   tip_on = widget(forms().form33.Lbl[7])->toolTip();
                   QTest::mouseClick(widget(forms().form33.Lbl[7]), Qt::RightButton);
                 },
                 [&] {
                   entries = static_cast<int>(popup()->actions().size());
                   popup()->actions().at(2)->trigger();
                 },
                 press(forms().form33.Command1), press(forms().form33.Command3)});
  EXPECT_EQ(tip_off, "ВЫКЛ");
  EXPECT_FALSE(menu_on_dark_cell);
  EXPECT_EQ(tip_on, "ВКЛ");
  EXPECT_EQ(entries, 5);
  EXPECT_EQ(desktop->console().model().zones.ZoneChan[7], 3);
  EXPECT_FALSE(widget(form1().CmdAZ[8])->isEnabled()) << "a zone that is off";
  EXPECT_TRUE(widget(form1().CmdAZ[7])->isEnabled());
}

TEST_F(SettingsWindows, ClosingTheMainWindowEndsTheProgram) {
  main_window().close();
  EXPECT_THROW(until([] { return false; }), ProgramEnded);
}

}  // namespace
}  // namespace evac::desktop

// Sources, power and supervision on the desktop: what plays and what is on can be told without colours, and a
// pass of the terminals leaves the window in the operator's hands.
#include <QAbstractButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "training_desktop.h"

namespace evac::desktop {
namespace {

class SupervisionDesktop : public TrainingDesktop {
 protected:
  SupervisionDesktop() {
    desktop->start();
    resize_main(1260, 650);
  }
  // The widget as it is painted, without its colours.
  QImage grey_picture(Control& control) {
    settle();
    return widget(control)->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
  }
  void press(Control& control) { QTest::mouseClick(widget(control), Qt::LeftButton); }
  const QWidget* progress() { return main_window().findChild<QWidget*>("scan progress"); }
};

TEST_F(SupervisionDesktop, WhatIsOnHasAnotherShape) {
  constexpr int kPowerTab = 6;
  form1().SSTab1.set_value(kPowerTab);
  const QImage dark = grey_picture(form1().CmdTW3[2]);
  // The switch itself, left of the caption, and not only its ground.
  const QRect sign(dark.width() / 16, dark.height() / 3, dark.width() / 8, dark.height() / 3);
  press(form1().CmdTW3[2]);
  EXPECT_NE(grey_picture(form1().CmdTW3[2]).copy(sign), dark.copy(sign));
  EXPECT_TRUE(until([&] { return rack().network().outlet(3, 3); }));
  EXPECT_EQ(widget(form1().CmdTW3[2])->accessibleName(), "Блок 3 выход 3, CH3, включен");
}

TEST_F(SupervisionDesktop, APassTellsHowFarItIsAndLeavesTheWindowUsable) {
  constexpr int kControlTab = 5, kTerminals = 20;
  desktop->console().model().terminals.term_count = kTerminals;
  line_->change([](rack::Rack& rack) {
    for (int t = 1; t <= kTerminals; ++t) rack.set_answer(t, rack::Rack::Answer{1, 9, 40, 1});
    rack.set_answer(2, rack::Rack::Answer{3, 7, 40, 2});
    rack.set_silent(9, true);
  });
  form1().SSTab1.set_value(kControlTab);
  settle();
  EXPECT_EQ(progress()->accessibleName(), "");
  press(form1().CmdSkan);
  EXPECT_TRUE(until([&] { return progress()->accessibleName().contains("из 20, осталось около 0:00:0"); }));

  // In the middle of it the heads sort, and a second press ends it at once.
  auto* grid = widget<QTableView>(form1().MSF2);
  EXPECT_TRUE(until([&] { return form1().MSF2.row_count() >= 5; }));
  EXPECT_TRUE(until([&] { return grid->model()->index(1, 1).data() == "3"; }));
  press(form1().Cd1[2]);
  EXPECT_TRUE(until([&] { return grid->model()->index(1, 1).data() == "1"; })) << "the highest goes down";
  press(form1().CmdSkan);
  settle();
  EXPECT_EQ(form1().CmdSkan.caption(), "ВЫКЛ");
  EXPECT_TRUE(until([&] { return progress()->accessibleName().isEmpty(); }));
}

TEST_F(SupervisionDesktop, TheGridFollowsItsLastRowUnlessTheUserLooksElsewhere) {
  form1().SSTab1.set_value(5);
  settle();
  auto* bar = widget<QTableView>(form1().MSF2)->verticalScrollBar();
  form1().MSF2.set_row_count(100);
  settle();
  EXPECT_EQ(bar->value(), bar->maximum());
  bar->setValue(3);
  form1().MSF2.set_row_count(150);
  settle();
  EXPECT_EQ(bar->value(), 3);
}

TEST_F(SupervisionDesktop, TheResetIsShownAsHeldWhileTheMouseHoldsIt) {
  form1().SSTab1.set_value(5);
  QWidget* reset = widget(form1().CmdSb);
  QTest::mousePress(reset, Qt::LeftButton);
  settle();
  EXPECT_EQ(form1().CmdSb.picture(), picture::kSwitchOn);
  QTest::mouseRelease(reset, Qt::LeftButton);
  settle();
  EXPECT_EQ(form1().CmdSb.picture(), picture::kSwitchOff);
}

}  // namespace
}  // namespace evac::desktop

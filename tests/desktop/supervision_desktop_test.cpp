// Supervision on the desktop: a pass of the terminals leaves the window in the operator's hands.
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
  void press(Control& control) { QTest::mouseClick(widget(control), Qt::LeftButton); }
  const QWidget* progress() { return main_window().findChild<QWidget*>("scan progress"); }
};

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

}  // namespace
}  // namespace evac::desktop

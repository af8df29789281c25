// The player on the desktop, with the training mode's own tracks under a sink that only keeps time: what the
// hands do to the position and the lists, and what is heard of it.
#include <QAbstractScrollArea>
#include <QPushButton>
#include <QTest>

#include "platform/user.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

class PlayerDesktop : public TrainingDesktop {
 protected:
  PlayerDesktop() {
    desktop->start();
    form1().SSTab1.set_value(3);
    resize_main(1260, 650);
    form1().CmdPMP.click();
    settle();
  }
  PlayerState& player() { return desktop->console().model().player; }
  int seconds_left() { return player().mp_end - second_of_day(desktop->loop().wall()); }
  // The widget of a place on the way of the position button, as a share of it.
  QPoint on_track(double share) {
    const QRect area = widget(form1().Ipos)->rect();
    return {static_cast<int>(area.width() * share), area.center().y()};
  }
  // Answers the box that comes next.
  void answer(const char* button) {
    QTimer::singleShot(100, [button] {
      auto* box = QApplication::activeModalWidget();
      ASSERT_TRUE(box);
      QTest::mouseClick(box->findChild<QPushButton*>(button), Qt::LeftButton);
    });
  }
  void press(Control& control) {
    QTest::mouseClick(widget(control), Qt::LeftButton);
    settle();
  }
};

TEST_F(PlayerDesktop, ThePositionIsDraggedAndSteppedWhateverTheStateOfThePlayer) {
  press(form1().CmdPlayMP);
  const int length = static_cast<int>(player().mp_dur);
  ASSERT_GE(length, 13);
  QWidget* track = widget(form1().Ipos);
  QTest::mousePress(track, Qt::LeftButton, {}, on_track(0.2));
  settle();
  EXPECT_FALSE(form1().Tmr2.enabled()) << "time stands still under the hand";
  QTest::mouseMove(track, on_track(0.5));
  settle();
  EXPECT_NEAR(seconds_left(), length / 2.0, 2);
  QTest::mouseRelease(track, Qt::LeftButton, {}, on_track(0.5));
  settle();
  EXPECT_TRUE(form1().Tmr2.enabled());
  const int left = form1().Ipos.left();
  EXPECT_TRUE(until([&] { return form1().Ipos.left() > left; })) << "it goes on by itself";

  const int before = seconds_left();
  QTest::keyClick(track, Qt::Key_Left);
  settle();
  EXPECT_GE(seconds_left(), std::min(before + 9, length - 1));

  // In a pause the place is another one when the play goes on.
  press(form1().CmdPauseMP);
  QTest::mouseClick(track, Qt::LeftButton, {}, on_track(0.75));
  settle();
  EXPECT_FALSE(form1().Tmr2.enabled());
  press(form1().CmdPlayMP);
  EXPECT_TRUE(until([&] { return form1().LblTMP.caption() != ""; }));
  EXPECT_LE(seconds_left(), length / 2);

  // After a stop the button goes where the hand puts it, and nothing starts.
  press(form1().CmdStopMP);
  QTest::mouseClick(track, Qt::LeftButton, {}, on_track(0.5));
  settle();
  EXPECT_NEAR(form1().Ipos.left(), kPositionEnd / 2, kPositionEnd / 20);
  EXPECT_FALSE(form1().Tmr1.enabled() || form1().Tmr2.enabled());
}

TEST_F(PlayerDesktop, TheNextTrackIsHeardByItself) {
  press(form1().CmdPlayMP);
  EXPECT_TRUE(until([&] { return desktop->player_position() > 0; }));
  // The clock comes to the end.
  player().mp_end = later_in_day(second_of_day(desktop->loop().wall()), 1);
  EXPECT_TRUE(until([&] { return player().mp_trk == 2; }));
  EXPECT_EQ(form1().LblTitle.caption().substr(0, std::string("Прогулка").size()), "Прогулка");
  EXPECT_LT(desktop->player_position(), 0.6);
  EXPECT_TRUE(until([&] { return desktop->player_position() > 0.6; }));
}

TEST_F(PlayerDesktop, ARightPressInAListAsksAndTheWayOutOfAFolderIsThere) {
  form1().CmdListMP.click();
  settle();
  user::pick(form1().LstPtreckMP, 1);
  settle();
  const int tracks = player().mp_cnt();
  answer("Да");
  auto* list = widget<QAbstractScrollArea>(form1().LstPtreckMP);
  QTest::mouseClick(list->viewport(), Qt::RightButton, {}, QPoint(20, 10));
  settle();
  EXPECT_EQ(player().mp_cnt(), tracks - 1);

  press(form1().CmdAddPl);
  user::pick(form1().Drive1, 1);
  settle();
  EXPECT_EQ(form1().Dir2.path(), "D:\\");
  auto* up = main_window().findChild<QPushButton*>("Dir2.up");
  EXPECT_FALSE(up->isEnabled());
  user::pick(form1().Dir2, 0);
  user::double_click(form1().Dir2);
  settle();
  EXPECT_EQ(form1().Dir2.path(), "D:\\Вечер");
  EXPECT_EQ(form1().LstAddList.count(), 2);
  QTest::mouseClick(up, Qt::LeftButton);
  settle();
  EXPECT_EQ(form1().Dir2.path(), "D:\\");
  EXPECT_EQ(form1().LstAddList.count(), 3);
}

}  // namespace
}  // namespace evac::desktop

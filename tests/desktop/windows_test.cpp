// The settings windows as an engineer works them, through their real widgets; and what the host does besides.
#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QTest>

#include "platform/user.h"
#include "store/algorithm_record.h"
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

TEST_F(SettingsWindows, NamesAreTypedAndAListIsNotChosenFromByAMereFocus) {
  NameWindow* names = &forms().form6;
  int picks = 0;
  names->List1.click = [&] { ++picks; };
  const auto type = [&](const char* name) {
    return [this, name] { QTest::keyClicks(widget<QLineEdit>(forms().form6.Txt1), QString::fromUtf8(name)); };
  };
  const auto list = [&] { return widget<QListView>(forms().form6.List1); };
  int picks_by_focus = -1, picked_row = -1;
  QString typed_left = "?";
  work_modal([&] { desktop->console().windows().show_modal(*names); },
             {type("Lobby"), press(forms().form6.CmdAdd), type("Hall"), press(forms().form6.CmdAdd),
              [&] {
                typed_left = widget<QLineEdit>(forms().form6.Txt1)->text();
                list()->setFocus();
              },
              [&] {
                picks_by_focus = picks;
                list()->setCurrentIndex(list()->model()->index(0, 0));  // the toolkit's own doing
                QTest::keyClick(list(), Qt::Key_Down);
              },
              [&] {
                picked_row = names->List1.selected();
                window(forms().form6).close();
              }});
  EXPECT_EQ(names->List1.rows(), (std::vector<std::string>{"1\tLobby", "2\tHall"}));
  EXPECT_EQ(typed_left, "") << "emptied by the console";
  EXPECT_EQ(picks_by_focus, 0);
  EXPECT_EQ(picks, 1);
  EXPECT_EQ(picked_row, 1);
}

TEST_F(SettingsWindows, TheStepsOfAnAlgorithmTellTheirZonesByNumberAndKeepTheirRows) {
  std::string zones(kZones, '0');
  for (const std::size_t zone : {1u, 4u, 40u, 41u, 50u, 51u, 52u, 120u}) zones[zone - 1] = '1';
  const std::string row = algorithm_record("1", 1, "Тревога.wav", "2", zones);
  const std::string all = algorithm_record("1", 2, "Отбой.wav", "1", '7' + std::string(kZones - 1, '1'));
  QStringList shown;
  QWidget* focus = nullptr;
  work_settings(form1().M_n_op, {[&] {
                                   for (const auto& each : {row, all}) forms().form5.Lst1[1].add(each);
                                   forms().form5.Opt1[2].set_value(true);
                                   window(forms().form5).hide();
                                   window(forms().form5).show();
                                 },
                                 [&] {
                                   const auto* steps = widget<QListView>(forms().form5.Lst1[1])->model();
                                   for (int i = 0; i < 2; ++i) shown << steps->index(i, 0).data().toString();
                                   focus = window(forms().form5).focusWidget();
                                   window(forms().form5).close();
                                 }});
  ASSERT_EQ(shown.size(), 2);
  EXPECT_TRUE(shown[0].endsWith("1, 4, 40, 41, 50–52, 120")) << shown[0].toStdString();
  EXPECT_TRUE(shown[0].contains("Тревога.wav"));
  EXPECT_TRUE(shown[1].endsWith("все зоны и аварийные каналы"));
  EXPECT_EQ(forms().form5.Lst1[1].row(0), row);
  EXPECT_EQ(focus, widget(forms().form5.Opt1[2])) << "on what is chosen";
}

TEST_F(SettingsWindows, AKeyThatTheControlDropsIsNotTyped) {
  NameWindow* names = &forms().form6;
  names->Txt1.key_press = [](std::string& key) {
    if (key < "0" || key > "9") key = key == "\b" ? key : "";
  };
  desktop->console().windows().show(*names);
  auto* line = widget<QLineEdit>(forms().form6.Txt1);
  QTest::keyClicks(line, "4x27");
  QTest::keyClick(line, Qt::Key_Backspace);
  settle();
  EXPECT_EQ(names->Txt1.text(), "42");
  EXPECT_EQ(line->text(), "42");
}

TEST_F(SettingsWindows, AComboShowsATextThatIsNoneOfItsRows) {
  form1().CmbF.set_text("Нет такого.wav");
  form1().CmbF.add("a.wav");
  settle();
  auto* combo = widget<QComboBox>(form1().CmbF);
  EXPECT_EQ(combo->currentIndex(), -1);
  EXPECT_EQ(combo->accessibleName(), "Сообщение, Нет такого.wav");
}

TEST_F(SettingsWindows, ClosingTheMainWindowEndsTheProgram) {
  main_window().close();
  EXPECT_THROW(until([] { return false; }), ProgramEnded);
}

}  // namespace
}  // namespace evac::desktop

// The settings windows as an engineer works them, through their real widgets; and what the host does besides.
#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QTest>

#include "platform/user.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

class SettingsWindows : public TrainingDesktop {
 protected:
  SettingsWindows() { desktop->start(); }
  std::function<void()> menu(MenuItem& item) {
    return [&item] { user::click(item); };
  }
  std::function<void()> press(const char* form, const char* name) {
    return [this, form, name] { widget<QAbstractButton>(form, name)->click(); };
  }
  std::function<void()> double_press(const char* form, const char* name) {
    return [this, form, name] {
      QTest::mouseClick(widget(form, name), Qt::LeftButton);
      QTest::mouseDClick(widget(form, name), Qt::LeftButton);
    };
  }
  QMenu* popup() { return dynamic_cast<QMenu*>(QApplication::activePopupWidget()); }
};

TEST_F(SettingsWindows, AZoneIsSwitchedOnAndPutOnAChannelByThePopUpMenu) {
  QString tip_off, tip_on;
  bool menu_on_dark_cell = true;
  int entries = 0;
  work_modal(menu(form1().M_n_z),
             {[&] {
                tip_off = widget("Form33", "Lbl(7)")->toolTip();
                QTest::mouseClick(widget("Form33", "Lbl(7)"), Qt::RightButton);
              },
              [&] { menu_on_dark_cell = popup() != nullptr; }, double_press("Form33", "Lbl(7)"),
              [&] {
                tip_on = widget("Form33", "Lbl(7)")->toolTip();
                QTest::mouseClick(widget("Form33", "Lbl(7)"), Qt::RightButton);
              },
              [&] {
                entries = static_cast<int>(popup()->actions().size());
                popup()->actions().at(2)->trigger();
              },
              press("Form33", "Command1"), press("Form33", "Command3")});
  EXPECT_EQ(tip_off, "ВЫКЛ");
  EXPECT_FALSE(menu_on_dark_cell);
  EXPECT_EQ(tip_on, "ВКЛ");
  EXPECT_EQ(entries, 5);
  EXPECT_EQ(desktop->console().model().zones.ZoneChan[7], 3);
  EXPECT_FALSE(widget("Form1", "CmdAZ(8)")->isEnabled()) << "a zone that is off";
  EXPECT_TRUE(widget("Form1", "CmdAZ(7)")->isEnabled());
}

TEST_F(SettingsWindows, SourcesAreChosenAndTheLegendFollows) {
  work_modal(menu(form1().M_n_o), {[&] {
                                     auto* combo = widget<QComboBox>("Form22", "Combo1(2)");
                                     combo->setCurrentIndex(combo->findText("Компьютер"));
                                     emit combo->activated(combo->currentIndex());
                                     widget<QAbstractSlider>("Form22", "VS_Z(2)")->setValue(21);
                                   },
                                   press("Form22", "Command1"), [&] { window("Form22").close(); }});
  EXPECT_EQ(desktop->console().model().sources.ch_computer, 2);
  EXPECT_EQ(form1().Label2[2].caption(), "Компьютер");
  EXPECT_EQ(widget("Form1", "LblZ(2)")->accessibleName(), "LblZ(2) Громкость канала");
  EXPECT_EQ(form1().LblZ[2].caption(), "21");
}

TEST_F(SettingsWindows, NamesAreTypedAndAListIsNotChosenFromByAMereFocus) {
  auto* names = dynamic_cast<NameWindow*>(desktop->console().windows().find("Form6"));
  int picks = 0;
  names->List1.click = [&] { ++picks; };
  const auto type = [&](const char* name) {
    return [this, name] { QTest::keyClicks(widget<QLineEdit>("Form6", "Txt1"), QString::fromUtf8(name)); };
  };
  const auto list = [&] { return widget<QListView>("Form6", "List1"); };
  int picks_by_focus = -1, picked_row = -1;
  QString typed_left = "?";
  work_modal([&] { desktop->console().windows().show_modal(*names); },
             {type("Lobby"), press("Form6", "CmdAdd"), type("Hall"), press("Form6", "CmdAdd"),
              [&] {
                typed_left = widget<QLineEdit>("Form6", "Txt1")->text();
                list()->setFocus();
              },
              [&] {
                picks_by_focus = picks;
                list()->setCurrentIndex(list()->model()->index(0, 0));  // the toolkit's own doing
                QTest::keyClick(list(), Qt::Key_Down);
              },
              [&] {
                picked_row = names->List1.selected();
                window("Form6").close();
              }});
  EXPECT_EQ(names->List1.rows(), (std::vector<std::string>{"1\tLobby", "2\tHall"}));
  EXPECT_EQ(typed_left, "") << "emptied by the console";
  EXPECT_EQ(picks_by_focus, 0);
  EXPECT_EQ(picks, 1);
  EXPECT_EQ(picked_row, 1);
}

TEST_F(SettingsWindows, AKeyThatTheControlDropsIsNotTyped) {
  auto* names = dynamic_cast<NameWindow*>(desktop->console().windows().find("Form6"));
  names->Txt1.key_press = [](std::string& key) {
    if (key < "0" || key > "9") key = key == "\b" ? key : "";
  };
  desktop->console().windows().show(*names);
  auto* line = widget<QLineEdit>("Form6", "Txt1");
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
  auto* combo = widget<QComboBox>("Form1", "CmbF");
  EXPECT_EQ(combo->currentIndex(), -1);
  EXPECT_EQ(combo->accessibleDescription(), "Нет такого.wav");
}

TEST_F(SettingsWindows, ClosingTheMainWindowEndsTheProgram) {
  window("Form1").close();
  EXPECT_THROW(until([] { return false; }), ProgramEnded);
}

TEST(Restart, IsOnlyAnnouncedWhenItIsNotArmed) {
  Notices notices;
  DesktopProcess process(false, notices);
  process.restart(7);
  EXPECT_TRUE(notices.text().startsWith("Перезапуск в "));
  EXPECT_TRUE(notices.text().endsWith("(7) только объявлен"));
}

}  // namespace
}  // namespace evac::desktop

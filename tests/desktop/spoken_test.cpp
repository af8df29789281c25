// The desktop without eyes and without a mouse: what assistive technology is told, and what the keys do.
#include <QAccessible>
#include <QMenuBar>
#include <QTest>

#include "training_desktop.h"

namespace evac::desktop {
namespace {

class SpokenDesktop : public TrainingDesktop {
 protected:
  SpokenDesktop() {
    desktop->start();
    resize_main(1260, 650);
  }
  QAccessibleInterface& told(QWidget* widget) { return *QAccessible::queryAccessibleInterface(widget); }
  QAccessibleInterface& told(Control& control) { return told(widget(control)); }
  QString name(Control& control) { return told(control).text(QAccessible::Name); }
};

// Kinds that say something by themselves; frames and the strip of tabs hold others.
bool speaks(const Control& control) {
  return control.kind() != Kind::kFrame && control.kind() != Kind::kTabStrip &&
         control.kind() != Kind::kTimer;
}

TEST_F(SpokenDesktop, EveryControlIsToldByANameOfItsOwnAndARoleThatFits) {
  const std::map<Kind, QAccessible::Role> roles = {{Kind::kButton, QAccessible::Button},
                                                   {Kind::kOptionButton, QAccessible::RadioButton},
                                                   {Kind::kCheckBox, QAccessible::CheckBox},
                                                   {Kind::kScrollBar, QAccessible::Slider},
                                                   {Kind::kProgressBar, QAccessible::ProgressBar},
                                                   {Kind::kPicture, QAccessible::StatusBar},
                                                   {Kind::kListBox, QAccessible::List},
                                                   {Kind::kGrid, QAccessible::Table},
                                                   {Kind::kComboBox, QAccessible::ComboBox},
                                                   {Kind::kTextBox, QAccessible::EditableText}};
  for (Form* form : desktop->console().windows().forms()) {
    std::map<QString, std::string> names;
    for (Control* control : form->controls()) {
      if (!widget(*control) || !speaks(*control)) continue;
      QWidget* shown = widget(*control);
      const std::string what = form->name() + "." + control->full_name();
      const QString told_name = told(shown).text(QAccessible::Name);
      if (control == &form1().Ipos) {
        EXPECT_EQ(told(shown).role(), QAccessible::Slider) << "a button that is dragged";
      } else if (const auto role = roles.find(control->kind()); role != roles.end()) {
        EXPECT_EQ(told(shown).role(), role->second) << what;
      }
      // A text that is empty for now has nothing to tell.
      if (control->kind() == Kind::kLabel && shown->focusPolicy() == Qt::NoFocus) continue;
      EXPECT_FALSE(told_name.isEmpty()) << what;
      // The engineer's window has a button that is captioned so.
      EXPECT_TRUE(!told_name.contains(qt(control->name())) || control->caption() == control->name())
          << what << ": the name of the programmer";
      if (shown->focusPolicy() == Qt::NoFocus) continue;
      const auto [at, own] = names.emplace(told_name, what);
      EXPECT_TRUE(own) << what << " and " << at->second << " are both " << told_name.toStdString();
    }
  }
}

TEST_F(SpokenDesktop, TheNameTellsTheValueAndTheRoleTheState) {
  form1().CmdAZ[7].set_back_color(Color::kChannel3);
  form1().PctA[7].set_picture(picture::kYes);
  form1().PB2.set_value(3);
  forms().form33.Lbl[9].set_back_color(Color::kChannel2);
  settle();
  EXPECT_EQ(name(form1().CmdAZ[7]), "Зона 7, включена, канал 3");
  EXPECT_TRUE(told(form1().CmdAZ[7]).state().checked);
  EXPECT_EQ(name(form1().CmdAZ[8]), "Зона 8, выключена");
  EXPECT_FALSE(told(form1().CmdAZ[8]).state().checked);
  EXPECT_EQ(name(form1().PctA[7]), "Зона 7, оповещается");
  EXPECT_EQ(name(form1().PB2), "Ход считывания, 3 из 10");
  EXPECT_EQ(told(form1().PB2).valueInterface()->currentValue(), 3);
  EXPECT_EQ(name(forms().form33.Lbl[9]), "Зона 9, включена, канал 2");

  // A cell is pressed by the same interface.
  int presses = 0;
  forms().form33.Lbl[9].double_click = [&] { ++presses; };
  desktop->console().windows().show(forms().form33);
  auto& cell = told(forms().form33.Lbl[9]);
  cell.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(presses, 1);
}

TEST_F(SpokenDesktop, KeysReachTabsMenusAndChiefButtons) {
  main_window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main_window()));
  const auto press = [&](int key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    const QString text = key < Qt::Key_Escape ? QString(QChar(key)) : QString();
    QTest::sendKeyEvent(QTest::Click, &main_window(), Qt::Key(key), text, with);
    settle();
    return form1().SSTab1.value();
  };
  EXPECT_EQ(press(Qt::Key_F3), 2);
  EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), 3);
  EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier), 2);
  EXPECT_EQ(press(Qt::Key_F1), 0);
  EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier), 6) << "round";
  press(Qt::Key_F1);
  int stops = 0;
  form1().CmdStF.click = [&] { ++stops; };
  press(0x0421, Qt::AltModifier);  // С
  EXPECT_TRUE(until([&] { return stops == 1; }));
  auto* bar = main_window().findChild<QMenuBar*>();
  press(Qt::Key_F10);
  ASSERT_TRUE(bar->activeAction());
  EXPECT_EQ(bar->activeAction()->text(), "&Настройка");
}

}  // namespace
}  // namespace evac::desktop

// The rules of the widget layer: which settings raise events, what a pop-up menu takes, where the caret of a
// masked input goes.
#include <gtest/gtest.h>

#include "drill/virtual_machine.h"
#include "platform/user.h"
#include "tests/scratch.h"

namespace evac {
namespace {

class Controls : public testing::Test {
 protected:
  Controls() : machine(scratch.path), windows(machine.loop(), machine), form(windows, "Form1", "") {
    windows.show(form);
  }

  Scratch scratch;
  drill::VirtualMachine machine;
  Windows windows;
  Form form;
};

TEST_F(Controls, EventsOfValuesComeOnChangeOnly) {
  ScrollBar bar(form.place(), "Bar", 1, 100, 1);
  CheckBox box(form.place(), "Box");
  ListBox list(form.place(), "List");
  ComboBox combo(form.place(), "Combo");
  OptionGroup group;
  OptionButton option(form.place(), group, "A");
  int changes = 0;
  bar.change = box.click = list.click = combo.click = option.click = [&] { ++changes; };
  bar.set_value(1);
  bar.set_value(-5);
  EXPECT_EQ(changes, 0);
  bar.set_value(1000);
  EXPECT_EQ(bar.value(), 100);
  bar.set_value(5000);
  EXPECT_EQ(changes, 1);
  box.set_value(true);
  box.set_value(true);
  EXPECT_EQ(changes, 2);
  user::click(box);
  EXPECT_FALSE(box.value());
  EXPECT_EQ(changes, 3);
  list.add("один");
  list.add("два");
  list.select(1);
  list.select(1);
  EXPECT_EQ(changes, 4);
  user::pick(list, 1);
  EXPECT_EQ(changes, 5);
  list.remove(0);
  EXPECT_EQ(list.selected(), 0);
  list.add_all({"три", "пять"});
  list.mark(2);
  EXPECT_EQ(list.selected(), 2);
  EXPECT_EQ(changes, 5);
  EXPECT_THROW(list.select(7), Fault);
  combo.add("a.wav");
  combo.set_text("другое");
  combo.select(0);
  EXPECT_EQ(combo.text(), "a.wav");
  EXPECT_EQ(changes, 6);
  option.set_value(true);
  option.set_value(true);
  EXPECT_EQ(changes, 7);
}

TEST_F(Controls, AHandReachesNothingDisabledHiddenOrInSuchAFrameButCodeDoes) {
  Frame outer(form.place(), "Outer"), inner(outer.inside(), "Inner");
  Button button(inner.inside(), "Cmd");
  int clicks = 0;
  button.click = [&] { ++clicks; };
  EXPECT_TRUE(user::click(button));
  outer.set_enabled(false);
  EXPECT_FALSE(user::click(button));
  outer.set_enabled(true);
  inner.set_visible(false);
  EXPECT_FALSE(user::right_press(button));
  inner.set_visible(true);
  button.set_enabled(false);
  EXPECT_FALSE(user::click(button));
  button.click();
  EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, APopupTakesOneClickAndGoesWithTheNextUserEvent) {
  PopupMenu menu(form.place(), "MnuSet");
  MenuItem entry(menu, "ch", "Канал 1", 1);
  Button elsewhere(form.place(), "Cmd");
  int clicks = 0;
  entry.click = [&] { ++clicks; };
  EXPECT_FALSE(user::click(entry));
  menu.show();
  EXPECT_TRUE(user::click(entry));
  EXPECT_FALSE(user::click(entry));
  menu.show();
  user::click(elsewhere);
  EXPECT_FALSE(user::click(entry));
  // It can be used over a modal window too, whose caller brought it up.
  Form dialog(windows, "Form33", "");
  machine.out_of_time = [&] {
    menu.show();
    EXPECT_TRUE(user::click(entry));
    windows.hide(dialog);
  };
  windows.show_modal(dialog);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, TheCaretOfAMaskedInputJumpsTheMasksOwnCharacters) {
  MaskedEdit time(form.place(), "TxtTper", "##:##:##");
  std::string carets;
  time.key_press = [&](std::string&) { carets += std::to_string(time.caret()); };
  for (const char key : std::string("12345679x")) user::press_key(time, {key});
  EXPECT_EQ(time.text(), "12:34:56");
  EXPECT_EQ(carets, "013467888");
  for (int i = 0; i < 3; ++i) user::press_key(time, "\b");
  EXPECT_EQ(time.text(), "12:3");
  user::press_key(time, "0");
  EXPECT_EQ(time.text(), "12:30");
  // What the program shows is typed over; what the user has put in is typed on.
  time.set_text("08:00:00");
  user::press_key(time, "\b");
  for (const char key : std::string("234")) user::press_key(time, {key});
  EXPECT_EQ(time.text(), "23:40:00");
  user::press_key(time, "\b");
  EXPECT_EQ(time.text(), "23:00:0");
  user::set_text(time, "1");
  user::press_key(time, "9");
  EXPECT_EQ(time.text(), "19");
}

}  // namespace
}  // namespace evac

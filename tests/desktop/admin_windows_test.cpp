// The windows of administration under an operator's hands: Enter and Esc, the masked time.
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "model/text.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

class AdminWindows : public TrainingDesktop {
 protected:
  AdminWindows() { desktop->start(); }
  QLineEdit* line(TextBox& box) { return widget<QLineEdit>(box); }
  std::function<void()> key(TextBox& box, Qt::Key key, Qt::KeyboardModifiers with = {}) {
    return [this, &box, key, with] { QTest::keyClick(line(box), key, with); };
  }
  std::function<void()> type(TextBox& box, const char* text) {
    return [this, &box, text] { QTest::keyClicks(line(box), QString::fromUtf8(text)); };
  }
  std::function<void()> open(MenuItem& item) {
    return [&item] { user::click(item); };
  }
};

TEST_F(AdminWindows, EnterAppliesEscLeavesAndNothingTypedIsShown) {
  FrmPsW& gate = forms().frm_psw;
  FrmPwR& change = forms().frm_pwr;
  QWidget* first = nullptr;
  QString seen;
  QList<QWidget*> way;
  const auto note_focus = [&] { way << window(change).focusWidget(); };
  work_modal(open(form1().MusPar),
             {note_focus, key(change.Txt1, Qt::Key_Return), note_focus, type(change.Txt2, "duck"),
              key(change.Txt2, Qt::Key_Enter), note_focus, type(change.Txt3, "duck"),
              [&] { seen = line(change.Txt3)->displayText(); }, key(change.Txt3, Qt::Key_Return),
              key(change.Txt3, Qt::Key_Escape)});
  EXPECT_EQ(way, (QList<QWidget*>{line(change.Txt1), line(change.Txt2), line(change.Txt3)}));
  EXPECT_FALSE(seen.contains('d'));
  EXPECT_EQ(seen.size(), 4);
  // No empty entry passes it any more; Esc leaves without the settings.
  bool refused = false;
  work_modal(open(form1().M_n_z), {[&] {
                                     first = window(gate).focusWidget();
                                     QTimer::singleShot(300, [&] {
                                       QWidget* box = QApplication::activeModalWidget();
                                       refused = box && box->objectName() == "box";
                                       if (refused) QTest::keyClick(box, Qt::Key_Return);
                                     });
                                     QTest::keyClick(line(gate.Txt1), Qt::Key_Return);
                                   },
                                   [] {}, key(gate.Txt1, Qt::Key_Escape)});
  EXPECT_EQ(first, line(gate.Txt1));
  EXPECT_TRUE(refused);
  EXPECT_FALSE(forms().form33.shown());
  // On a button, Enter is the button's.
  work_modal(open(form1().M_n_z),
             {type(gate.Txt1, "duck"), [&] { QTest::keyClick(widget(gate.Cmd2), Qt::Key_Return); }});
  EXPECT_FALSE(forms().form33.shown());
  bool opened = false;
  work_modal(open(form1().M_n_z), {type(gate.Txt1, "duck"), key(gate.Txt1, Qt::Key_Return), [&] {
                                     opened = forms().form33.shown();
                                     user::close(forms().form33);
                                   }});
  EXPECT_TRUE(opened);
}

TEST_F(AdminWindows, ATimeIsTypedStraightOnAndMendedAtTheCursor) {
  FrmRez& form = forms().frm_rez;
  std::vector<std::string> seen;
  std::vector<std::function<void()>> steps = {[] {}, [] {}, [&] { user::click(form.Chk1[1]); }};
  const auto step = [&](std::vector<std::function<void()>> deeds) {
    for (auto& deed : deeds) steps.push_back(std::move(deed));
    steps.push_back([&] {
      QLineEdit* time = line(form.TxtTper[1]);
      seen.push_back(join(plain(time->text()), " ", time->cursorPosition(), " ", form.TxtTper[1].text()));
    });
  };
  MaskedEdit& time = form.TxtTper[1];
  step({});
  steps.push_back([&] { EXPECT_EQ(window(form).focusWidget(), line(time)) << "behind its mark"; });
  step({type(time, "9123x456")});
  step({key(time, Qt::Key_Home), type(time, "07")});
  step({key(time, Qt::Key_Left), key(time, Qt::Key_Left), type(time, "1")});
  step({key(time, Qt::Key_End), key(time, Qt::Key_Backspace)});
  step({key(time, Qt::Key_Home), key(time, Qt::Key_Delete)});
  step({key(time, Qt::Key_A, Qt::ControlModifier), type(time, "2")});
  step({[] { QApplication::clipboard()->setText(" 3:59:58."); }, key(time, Qt::Key_V, Qt::ControlModifier)});
  step({key(time, Qt::Key_Z, Qt::ControlModifier), key(time, Qt::Key_A, Qt::ControlModifier),
        key(time, Qt::Key_X, Qt::ControlModifier), key(time, Qt::Key_Delete)});
  steps.push_back([&] { QTest::mouseClick(line(time), Qt::LeftButton, {}, line(time)->rect().center()); });
  step({type(time, "0605"), key(time, Qt::Key_Return)});
  steps.push_back(key(time, Qt::Key_Escape));
  work_modal(open(form1().M_perez), steps);
  EXPECT_EQ(seen, (std::vector<std::string>{"__:__:__ 0 ", "12:34:56 8 12:34:56", "07:34:56 3 07:34:56",
                                            "17:34:56 1 17:34:56", "17:34:5_ 7 17:34:5", "73:45:__ 0 73:45",
                                            "2_:__:__ 1 2", "23:59:58 8 23:59:58", "__:__:__ 0 ",
                                            "06:05:__ 6 06:05"}));
  EXPECT_EQ(desktop->console().model().restart.ResetTime[1], 6 * 3600 + 5 * 60);
  EXPECT_TRUE(desktop->console().model().restart.ResetAny);
}

}  // namespace
}  // namespace evac::desktop

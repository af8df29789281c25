// The drill language itself: what each command prints, and in which order when handlers wait inside.
#include "drill/drill.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/scratch.h"

namespace evac {
namespace {

class Drills : public testing::Test {
 protected:
  // The trace behind the start's, with the drill's own lines; each command on a line of its own.
  std::string run(const std::string& commands, bool number_lines = false) {
    std::istringstream in(commands);
    std::ostringstream out;
    drill::Drill drill(scratch.path, in, out, number_lines);
    failures = drill.run();
    faults = drill.faults();
    std::string trace = out.str();
    const std::string started = "show Form1\nok\n";
    line_was_set = trace.find("port settings 4800,o,8,1\n") != std::string::npos;
    if (const auto at = trace.rfind(started); at != std::string::npos) trace.erase(0, at + started.size());
    return trace;
  }

  Scratch scratch;
  int failures = 0;
  bool line_was_set = false;
  std::vector<int> faults;
};

TEST_F(Drills, AModalWindowLetsTheNextCommandsInAndItsCallerGoesOnUnderTheLineThatClosedIt) {
  EXPECT_EQ(run("start\nclick M_o_p\nget Form2.shown\nclick CmdAG\nclose\nget Form2.shown\n"),
            "show Form2 modal\nok\n"
            "= on\nok\n"
            "error: CmdAG is on a window under a modal one\n"
            "hide Form2\nok\n"
            "= off\nok\n");
  EXPECT_EQ(failures, 1);
  EXPECT_TRUE(line_was_set);
}

TEST_F(Drills, ABoxHeldUpPassesTimeUnderItWithNothingHandled) {
  EXPECT_EQ(run("start\nanswer ok after 5s\nclick M_op\nwait 2s\nframe 10 00 00 03 00 00\nclick M_ex\nget "
                "LblCon.caption\n"
                "wait 4s\nget LblCon.caption\nexpect box \"Описание содерфится в файле: "
                "ZEF-Soft.pdf\"\nexpect no box\n"),
            "ok\nok\nok\nok\nerror: a box is up\n= \nok\n"
            "box \"Описание содерфится в файле: ZEF-Soft.pdf\" \"Info\" ok -> ok\n"
            "tx AA AA FA 05 1A 01 05 01 20\nok\n"
            "= Соединение установленно\nok\nok\nok\n");
}

TEST_F(Drills, TheEndOfTheProcessUnwindsEverythingAndAFaultDoesToo) {
  EXPECT_EQ(
      run("start\nclick M_o_p\nclose\nframe 10 00 00 03 00 00\nclick M_ex\nwait 1s\nget LblCon.caption\nls "
          "\"C:\\ZEF\"\n"),
      "show Form2 modal\nok\nhide Form2\nok\nok\nend\nok\n"
      "error: the console has not been started\nerror: the console has not been started\n= protocol\nok\n");
  EXPECT_EQ(run("port COM1 bad\nstart\nstart\nport COM1 good\n"),
            "ok\nfault 8002 \"Invalid port number: COM1: the port does not answer\"\nok\n"
            "fault 8002 \"Invalid port number: COM1: the port does not answer\"\nok\nok\n");
  // A file stands where the data folder should be.
  EXPECT_EQ(run("remove \"C:\\ZEF_DAT\"\nfile \"C:\\ZEF_DAT\" \"x\"\nstart\n"),
            "ok\nok\nfault 76 \"Path not found: C:\\\\ZEF_DAT\"\nok\n");
}

TEST_F(Drills, ClockJumpsAndTimersGoOnByElapsedTime) {
  EXPECT_EQ(run("start\nwait 250ms\nnow\nclock 2026-11-22 23:59:59\nnow\nwait 0.75s\nget LblDate.caption\n"
                "wait until 00:00:00\nnow\n"),
            "ok\n= 2026-01-05 08:00:00.250\nok\nok\n= 2026-11-22 23:59:59.000\nok\nok\n"
            "= 23:59:59     ВОСКРЕСЕНЬЕ 22 Ноября 2026 года \nok\nok\n= 2026-11-23 00:00:00.000\nok\n");
}

TEST_F(Drills, AFaultThatNothingExpectedIsLeftOver) {
  run("port COM1 bad\nstart\nexpect fault 6\nexpect tx 00\nexpect fault 8002\nexpect fault 8002\nstart\n");
  EXPECT_EQ(failures, 3);
  EXPECT_EQ(faults, (std::vector<int>{8002})) << "that of the last command";
}

TEST_F(Drills, WordsQuotesAndNumbersOfLines) {
  EXPECT_EQ(
      run("# a comment\n\nfile \"C:\\ZEF\\a\" \"раз\\nдва \\\"три\\\" \\\\ \\t.\\n\"\ncat \"C:\\ZEF\\a\"\n"
          "hex \"C:\\ZEF\\b\" 01 00 31\ndump \"C:\\ZEF\\b\"\nls \"C:\\ZEF\"\nremove \"C:\\ZEF\\a\"\ncat "
          "\"C:\\ZEF\\a\"\n",
          true),
      "ok\n= раз\n= два \"три\" \\ \t.\nok\nok\n= 01 00 31\nok\n= a\n= b\nok\nok\n"
      "error: no file C:\\ZEF\\a (line 9)\n");
  EXPECT_EQ(run("contact 129 on\nrx 00\nfly\ncard 0 maybe\ncat \"C:\n"),
            "error: contacts are 1 to 128\nerror: the console has not been started\nerror: no command fly\n"
            "error: expected on or off, not maybe\nerror: a quote is not closed\n");
}

TEST_F(Drills, ALineWithSeveralControlsValuesOrDeedsHasOneResultAndUsesNothingUpWhereItFails) {
  EXPECT_EQ(
      run("start\nforget\nclick CmdAZ(1) M_o_p CmdAZ(2)\nclose\nset VS_Z(1) 7 VS_Z(2) 8\nquiet 1s\n"
          "expect VS_Z(1).value 7 VS_Z(2).value 9\nclick CmdAZ(2)\nexpect only tx 04 01 20 FD 01 00\n"
          "expect only tx 04 01 20 FD 01 00 04 01 20 FD 02 00\n"
          "no click CmdTW9\nexpect only box \"x\"\nenter M_n_z\nexpect Form33.shown on Lbl(1).tip ВКЛ\n"),
      "ok\ntx AA AA 04 01 20 FD 01 00 23\nshow Form2 modal\n"
      "error: CmdAZ(2) is on a window under a modal one\nhide Form2\nok\n"
      "ok\nerror: a frame was sent: 04 01 20 FD 01 00\nerror: it is \"8\"\n"
      "tx AA AA 04 01 20 FD 02 00 24\nok\nerror: a frame was sent: 04 01 20 FD 02 00\nok\n"
      "box \"Включить аварийные каналы 9 и 10\" \"Power ON\" yesno -> no\nok\n"
      "error: the box is \"Включить аварийные каналы 9 и 10\"\n"
      "show FrmPsW modal\nhide FrmPsW\nshow Form33 modal\nok\nerror: it is \"ВЫКЛ\"\n");
}

TEST_F(Drills, AnExpectThatFailsUsesNothingUp) {
  EXPECT_EQ(
      run("start\nexpect tx 05 EE 01 00 00 00 05 EE FF 00 00 00\nexpect tx 05 EE 01 00 00 00\nexpect no "
          "tx\nforget\n"
          "expect no tx\nexpect SSTab1.value 1\nset SSTab1 6\nexpect SSTab1.value 6\nexpect LblT.caption x\n"
          "get Opt1(64).value\nget Timer13.interval\nclick Form1.M_ex\nport COM1 bad\nstart\n"
          "expect fault 8002 fault 6\nexpect fault 8002\n"),
      "error: the frame is 05 EE 11 00 00 00\nok\nerror: a frame was sent: 05 EE 11 00 00 00\nok\nok\n"
      "error: it is \"0\"\nok\nok\nerror: it is \"\"\nerror: no control Opt1(64)\n= 500\nok\n"
      "end\nok\nok\nfault 8002 \"Invalid port number: COM1: the port does not answer\"\nok\n"
      "error: no fault came\nok\n");
}

}  // namespace
}  // namespace evac

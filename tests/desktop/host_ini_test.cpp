// host.ini: what is read from it, and how a line that cannot be understood is told.
#include "desktop/host_ini.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>

namespace evac::desktop {
namespace {

class HostIni : public ::testing::Test {
 protected:
  std::string path(const char* name) const { return folder_.filePath(name).toStdString(); }
  HostSetup read(const std::string& text) const {
    std::ofstream(path("host.ini")) << text;
    return read_host_ini(path("host.ini"));
  }
  // What is said of a file that begins with a good drive in line 2 and a good port in line 4.
  std::string complaint(const std::string& rest) const {
    try {
      read(good() + rest);
    } catch (const HostIniError& error) {
      const std::string text = error.what(), name = path("host.ini");
      return text.starts_with(name) ? text.substr(name.size()) : text;
    }
    return "no complaint";
  }
  std::string good() const {
    return "[drives]\nC = " + folder_.path().toStdString() + "\n[ports]\nCOM1 = /dev/ttyS0\n";
  }
  QTemporaryDir folder_;
};

TEST_F(HostIni, IsReadWhole) {
  const HostSetup setup = read("# a comment\n; another\n\n" + good() +
                               "COM2=/dev/serial/by-id/x\n[cards]\n 0 = /dev/comedi0 \n1=/dev/comedi1\r\n"
                               "[sound]\nsink = alsasink device=hw:0\nfont = /f.sf2\n[restart]\narmed = yes\n"
                               "[drives]\nd = /\n");
  EXPECT_EQ(setup.drives.at('C'), folder_.path().toStdString());
  EXPECT_EQ(setup.drives.at('D'), "/");
  EXPECT_EQ(setup.ports.at(2), "/dev/serial/by-id/x");
  EXPECT_EQ(setup.cards.at(0), "/dev/comedi0");
  EXPECT_EQ(setup.cards.at(1), "/dev/comedi1");
  EXPECT_EQ(setup.sound_sink, "alsasink device=hw:0");
  EXPECT_EQ(setup.sound_font, "/f.sf2");
  EXPECT_TRUE(setup.restart_armed);
  EXPECT_FALSE(read(good()).restart_armed);
}

TEST_F(HostIni, ABrokenLineIsToldWithItsNumberAndWhatWasExpected) {
  EXPECT_EQ(complaint("nonsense\n"), ":5: expected NAME = VALUE, found \"nonsense\"");
  EXPECT_EQ(complaint("\n[port]\n"),
            ":6: expected [drives], [ports], [cards], [sound] or [restart], found \"[port]\"");
  EXPECT_EQ(complaint("COM3 = /dev/x\n"), ":5: expected COM1 or COM2, found \"COM3\"");
  EXPECT_EQ(complaint("COM2 = ttyS1\n"), ":5: expected a device such as /dev/ttyS0, found \"ttyS1\"");
  EXPECT_EQ(complaint("COM1 = /dev/x\n"), ":5: expected each port once, found \"COM1\"");
  EXPECT_EQ(complaint("COM2 =\n"), ":5: expected a value behind \"COM2 =\", found \"COM2 =\"");
  EXPECT_EQ(complaint("[cards]\n2 = /dev/comedi2\n"), ":6: expected card 0 or 1, found \"2\"");
  EXPECT_EQ(complaint("[restart]\narmed = maybe\n"), ":6: expected yes or no, found \"maybe\"");
  EXPECT_EQ(complaint("[sound]\nvolume = 3\n"), ":6: expected sink or font, found \"volume\"");
  EXPECT_EQ(complaint("[drives]\nDD = /tmp\n"), ":6: expected a drive letter from A to Z, found \"DD\"");
  EXPECT_EQ(complaint("[drives]\nD = /no/such\n"),
            ":6: expected a directory that exists, found \"/no/such\"");
  EXPECT_EQ(complaint("[drives]\nc = /tmp\n"), ":6: expected each drive once, found \"c\"");
  EXPECT_THROW(read("C = /tmp\n"), HostIniError) << "before any section";
  EXPECT_THROW(read("[ports]\nCOM1 = /dev/x\n"), HostIniError) << "no drive C";
  EXPECT_THROW(read("[drives]\nC = /tmp\n"), HostIniError) << "no COM1";
  EXPECT_THROW(read_host_ini(path("absent.ini")), HostIniError);
  EXPECT_THROW(read_host_ini(folder_.path().toStdString()), HostIniError);
}

}  // namespace
}  // namespace evac::desktop

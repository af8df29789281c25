#include "desktop/host_ini.h"

#include <cctype>
#include <fstream>
#include <string_view>

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;

std::string trimmed(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r";
  const auto first = text.find_first_not_of(kBlank);
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(kBlank) - first + 1));
}

// One that can't be looked at is none.
bool is_folder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

class Reader {
 public:
  explicit Reader(const fs::path& file) : file_(file) {}

  HostSetup read() {
    std::ifstream in(file_);
    if (!in || is_folder(file_)) throw HostIniError(file_.string() + ": the file cannot be read");
    for (std::string line; std::getline(in, line);) {
      ++line_;
      take(trimmed(line));
    }
    if (!setup_.drives.contains('C'))
      throw HostIniError(file_.string() + ": expected a drive C in [drives], found none");
    if (!setup_.ports.contains(1))
      throw HostIniError(file_.string() + ": expected a device for COM1 in [ports], found none");
    return setup_;
  }

 private:
  [[noreturn]] void fail(const std::string& expected, const std::string& found) const {
    throw HostIniError(file_.string() + ":" + std::to_string(line_) + ": expected " + expected +
                       ", found \"" + found + "\"");
  }

  void take(const std::string& line) {
    if (line.empty() || line[0] == '#' || line[0] == ';') return;
    if (line[0] == '[') {
      constexpr std::string_view kSections[] = {"[drives]", "[ports]", "[cards]", "[sound]", "[restart]"};
      for (const auto section : kSections)
        if (line == section) {
          section_ = section;
          return;
        }
      fail("[drives], [ports], [cards], [sound] or [restart]", line);
    }
    const auto equals = line.find('=');
    if (equals == std::string::npos) fail("NAME = VALUE", line);
    const std::string name = trimmed(line.substr(0, equals)), value = trimmed(line.substr(equals + 1));
    if (section_.empty()) fail("a section such as [drives] before the first setting", line);
    if (value.empty()) fail("a value behind \"" + name + " =\"", line);
    if (section_ == "[drives]") take_drive(name, value);
    if (section_ == "[ports]") take_port(name, value);
    if (section_ == "[cards]") take_card(name, value);
    if (section_ == "[sound]") take_sound(name, value);
    if (section_ == "[restart]") take_restart(name, value);
  }

  void take_drive(const std::string& name, const std::string& value) {
    if (name.size() != 1 || !std::isalpha(static_cast<unsigned char>(name[0])))
      fail("a drive letter from A to Z", name);
    if (!is_folder(value)) fail("a directory that exists", value);
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    if (!setup_.drives.emplace(letter, value).second) fail("each drive once", name);
  }

  void take_port(const std::string& name, const std::string& value) {
    if (name != "COM1" && name != "COM2") fail("COM1 or COM2", name);
    // Whether the device is there is seen when the console opens it: an adapter may be plugged in later.
    if (!value.starts_with('/')) fail("a device such as /dev/ttyS0", value);
    if (!setup_.ports.emplace(name == "COM1" ? 1 : 2, value).second) fail("each port once", name);
  }

  void take_card(const std::string& name, const std::string& value) {
    if (name != "0" && name != "1") fail("card 0 or 1", name);
    if (!value.starts_with('/')) fail("a device such as /dev/comedi0", value);
    if (!setup_.cards.emplace(name == "0" ? 0 : 1, value).second) fail("each card once", name);
  }

  void take_sound(const std::string& name, const std::string& value) {
    if (name == "sink")
      setup_.sound_sink = value;
    else if (name == "font")
      setup_.sound_font = value;
    else
      fail("sink or font", name);
  }

  void take_restart(const std::string& name, const std::string& value) {
    if (name != "armed") fail("armed", name);
    if (value != "yes" && value != "no") fail("yes or no", value);
    setup_.restart_armed = value == "yes";
  }

  const fs::path file_;
  int line_ = 0;
  std::string_view section_;
  HostSetup setup_;
};

}  // namespace

HostSetup read_host_ini(const fs::path& file) {
  return Reader(file).read();
}

}  // namespace evac::desktop

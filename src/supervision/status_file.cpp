#include "supervision/status_file.h"

#include "model/text.h"
#include "store/code_page.h"

namespace evac {
namespace {

constexpr int kMostCount = 100;

}  // namespace

void StatusFile::tick() {
  NetKntrlCount = NetKntrlCount % kMostCount + 1;
  const WallTime now = doors_.loop.wall();
  const std::string line = join(medium_date_text(date_of(now)), " # ", time_text(second_of_day(now)), " $ ",
                                NetKntrlCount, " % ", doors_.alert.al_active ? "1" : "0", " = 0\r\n");
  (void)doors_.files.replace(doors_.settings.protocol_base + "\\FNetKntrl", to_code_page(line));
}

}  // namespace evac

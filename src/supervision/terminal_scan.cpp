#include "supervision/terminal_scan.h"

#include "console/channel_colors.h"
#include "model/text.h"
#include "platform/switch_look.h"

namespace evac {
namespace {

constexpr int kNumberHead = 1;  // the column by which a pass fills the grid
constexpr int kAsked = 4;       // Lbl_A that shows the terminal being asked
constexpr int kBarSteps = 10;

// An answer as it lies in the last frame.
constexpr std::size_t kChannelByte = 3, kVolumeByte = 4, kZoneByte = 5, kTerminalByte = 6;
constexpr int kNoTerminal = 255;  // as a channel: the controller answers for a terminal that is not there

}  // namespace

void TerminalScan::start() {
  show_switch(doors_.panel.CmdSkan, false);
}

void TerminalScan::toggle() {
  mark_head(kNumberHead);
  if (doors_.supervision.ScanRunning) {
    doors_.wait.stop();
    show_over();
    return;
  }
  // One that was stopped in this very event sends the rest of its queries first.
  go_on();
  doors_.supervision.ScanRunning = true;
  show_switch(doors_.panel.CmdSkan, true);
  pass_ = {.last = doors_.terminals.term_count};
  if (ask_next()) return;
  pass_.reset();
  show_over();
}

void TerminalScan::when_over(std::function<void()> then) {
  if (doors_.supervision.ScanRunning)
    pass_->then = std::move(then);
  else
    then();
}

void TerminalScan::go_on() {
  while (pass_) {
    const ReplyWait::Scan wait = doors_.wait.scan();
    if (doors_.supervision.ScanRunning && wait == ReplyWait::Scan::kWaiting) return;
    doors_.wait.stop();
    if (wait == ReplyWait::Scan::kData) take_answer(pass_->terminal);
    if (ask_next()) continue;
    const auto then = std::move(pass_->then);
    pass_.reset();
    show_over();
    then();
  }
}

bool TerminalScan::ask_next() {
  if (pass_->terminal >= pass_->last) return false;
  const int terminal = ++pass_->terminal;
  pass_->step = pass_->step % kBarSteps + 1;
  show_progress(join("Идет сканирование... ", terminal, " из ", doors_.terminals.term_count), pass_->step);
  doors_.supervision.TermAddrOk[terminal] = doors_.supervision.TermZoneOk[terminal] = false;
  doors_.panel.Lbl_A[kAsked].set_caption(std::to_string(terminal));
  doors_.link.SendScanQuery(terminal);
  doors_.wait.begin_scan();
  return true;
}

void TerminalScan::take_answer(int terminal) {
  const Frame9& frame = doors_.received.r_frame;
  const int channel = frame[kChannelByte], volume = frame[kVolumeByte];
  const int zone = frame[kZoneByte], number = frame[kTerminalByte];
  if (channel == kNoTerminal) return;

  Grid& grid = doors_.panel.MSF2;
  grid.set_row_count(terminal);
  int column = 0;
  for (const int value : {terminal, channel, volume, zone, number})
    grid.set_cell(terminal - 1, column++, std::to_string(value));

  auto& supervision = doors_.supervision;
  if (zone >= 1 && zone <= kZones) {
    doors_.zones.ZoneChanScan[zone] = static_cast<std::int16_t>(channel);
    doors_.zones.ZoneVolScan[zone] = static_cast<std::int16_t>(volume);
    supervision.TermZoneOk[terminal] = true;
    supervision.TermMissCount[terminal] = 0;
  }
  if (number > 0) {
    supervision.TermAddrOk[terminal] = true;
    supervision.TermMissCount[terminal] = 0;
  }
}

void TerminalScan::sort_by(int i) {
  doors_.panel.MSF2.sort(i - 1);
  mark_head(i);
}

void TerminalScan::mark_head(int i) {
  for (auto& head : doors_.panel.Cd1) head.set_back_color(kMainBackground);
  doors_.panel.Cd1[i].set_back_color(Color::kSortedHead);
}

void TerminalScan::show_progress(std::string_view text, int step) {
  doors_.panel.LbPrB.set_caption(text);
  doors_.panel.Lbpr.set_caption(text);
  doors_.panel.PB1.set_value(step);
  doors_.panel.PB2.set_value(step);
}

void TerminalScan::show_over() {
  doors_.supervision.ScanRunning = false;
  show_progress("", 0);
  show_switch(doors_.panel.CmdSkan, false);
}

}  // namespace evac

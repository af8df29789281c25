#include "link/dispatcher.h"

namespace evac {
namespace {

// First bytes of the frames that the controller sends; any other is a data reply.
enum Report : std::uint8_t {
  kRepLink = 0x01,
  kRepIgnored1 = 0x02,
  kRepIgnored2 = 0x03,
  kRepPoll = 0x10,
  kRepStatusA = 0x20,
  kRepStatusB1 = 0x30,
  kRepStatusB2 = 0x60,
  kRepStatusC = 0x40,
  kRepLinkLoss = 0x50
};
constexpr std::uint8_t kLinkBit = 0x01, kProgrammeBit = 0x02;
constexpr std::uint8_t kNoLink = 0xFF, kLinkLost = 0x01, kStatusCMark = 0x69;

constexpr int kLineLife = 30;  // frames after which the line of polling text is cleared

enum LinkReport : std::uint8_t { kLinkDown = 1, kLinkUp = 2 };
enum ProgrammeReport : std::uint8_t { kSuspended = 1, kRunning = 2 };
enum PollAnswer : std::uint8_t { kDateNext = 0, kTimeNext = 1, kSteady = 2 };

}  // namespace

void Dispatcher::dispatch() {
  const auto& frame = doors_.state.r_buf;
  switch (frame[0]) {
    case kRepLink:
      show_link(frame[1] != kNoLink);
      break;
    case kRepIgnored1:
    case kRepIgnored2:
      break;
    case kRepPoll:
      report_status(frame[3]);
      if (frame[3] & kProgrammeBit) doors_.strip.Picture2.print("Опрос оборудования");
      doors_.state.last_poll = doors_.loop.now();
      doors_.wait.poll_came();
      return;  // it is over when it is answered
    case kRepStatusA:
      if (frame[3] == kLinkBit && frame[4] == 0) report_status(kLinkBit);
      break;
    case kRepStatusB1:
    case kRepStatusB2:
      report_status(frame[3]);
      break;
    case kRepStatusC:
      if (frame[3] == kStatusCMark) report_status(kStatusCMark);
      break;
    case kRepLinkLoss:
      if (frame[2] == kLinkLost)
        report_link(false);
      else
        show_link(true);
      break;
    default:
      doors_.wait.data_came();
      if (doors_.wait.scan() == ReplyWait::Scan::kData) doors_.link.leave_rest();
  }
  count_frame();
}

void Dispatcher::count_frame() {
  if (++doors_.state.status_line_count < kLineLife) return;
  doors_.strip.Picture2.clear();
  doors_.state.status_line_count = 0;
}

void Dispatcher::show_link(bool up) {
  doors_.strip.LblCon.set_caption(up ? "Соединение установленно" : "Соединение не установленно");
  doors_.strip.PctD1.set_picture(up ? picture::kYes : picture::kNo);
}

void Dispatcher::report_link(bool up) {
  show_link(up);
  doors_.state.link_state = up ? kLinkUp : kLinkDown;
}

void Dispatcher::report_programme(bool running) {
  doors_.strip.LblSs.set_caption(running ? "Программа в работе" : "Программа приостановленна");
  doors_.strip.PctD0.set_picture(running ? picture::kYes : picture::kPause);
  doors_.state.prog_state = running ? kRunning : kSuspended;
}

void Dispatcher::report_status(std::uint8_t bits) {
  report_link(bits & kLinkBit);
  report_programme(bits & kProgrammeBit);
}

void Dispatcher::answer_poll() {
  switch (doors_.state.poll_answer_state) {
    case kDateNext:
      doors_.state.poll_answer_state = kTimeNext;
      doors_.link.SendDate(date_of(doors_.loop.wall()));
      break;
    case kTimeNext:
      doors_.state.poll_answer_state = kSteady;
      doors_.link.SendTime(second_of_day(doors_.loop.wall()));
      break;
    default:
      doors_.link.SendPollAnswer();
  }
  count_frame();
}

}  // namespace evac

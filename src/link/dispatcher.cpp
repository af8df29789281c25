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

// Values of reply_wait.
constexpr std::int16_t kPollWait = 243, kWaitOver = 245, kDataCame = 249, kIdle = 255;

constexpr int kLineLife = 30;  // frames after which the line of polling text is cleared
constexpr std::string_view kChannelData = "Данные каналов";

enum LinkReport : std::uint8_t { kLinkDown = 1, kLinkUp = 2 };
enum ProgrammeReport : std::uint8_t { kSuspended = 1, kRunning = 2 };
enum PollAnswer : std::uint8_t { kDateNext = 0, kTimeNext = 1, kSteady = 2 };

}  // namespace

void Dispatcher::tick() {
  if (state_.reply_wait < kWaitOver) ++state_.reply_wait;
}

void Dispatcher::dispatch() {
  const auto& frame = state_.r_buf;
  switch (frame[0]) {
    case kRepLink:
      show_link(frame[1] != kNoLink);
      break;
    case kRepIgnored1:
    case kRepIgnored2:
      break;
    case kRepPoll:
      report_status(frame[3]);
      if (frame[3] & kProgrammeBit) strip_.Picture2.print("Опрос оборудования");
      answer_poll();
      break;
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
      if (state_.reply_wait != kIdle) state_.reply_wait = kDataCame;
  }
  if (state_.link_mode_text == kChannelData && ++state_.status_line_count >= kLineLife) {
    strip_.Picture2.clear();
    state_.status_line_count = 0;
  }
}

void Dispatcher::show_link(bool up) {
  strip_.LblCon.set_caption(up ? "Соединение установленно" : "Соединение не установленно");
  strip_.PctD1.set_picture(up ? picture::kYes : picture::kNo);
}

void Dispatcher::report_link(bool up) {
  show_link(up);
  state_.link_state = up ? kLinkUp : kLinkDown;
}

void Dispatcher::report_programme(bool running) {
  strip_.LblSs.set_caption(running ? "Программа в работе" : "Программа приостановленна");
  strip_.PctD0.set_picture(running ? picture::kYes : picture::kPause);
  state_.prog_state = running ? kRunning : kSuspended;
}

void Dispatcher::report_status(std::uint8_t bits) {
  report_link(bits & kLinkBit);
  report_programme(bits & kProgrammeBit);
}

void Dispatcher::answer_poll() {
  // Two ticks give the controller time to turn the line round. A reply or a stop that comes meanwhile sets
  // the word past its end, and must not hold the answer back.
  state_.reply_wait = kPollWait;
  while (state_.reply_wait < kWaitOver) loop_.pump();
  switch (state_.poll_answer_state) {
    case kDateNext:
      state_.poll_answer_state = kTimeNext;
      link_.SendDate(date_of(loop_.wall()));
      break;
    case kTimeNext:
      state_.poll_answer_state = kSteady;
      link_.SendTime(second_of_day(loop_.wall()));
      break;
    default:
      link_.SendPollAnswer();
  }
}

}  // namespace evac

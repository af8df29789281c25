#include "link/reply_wait.h"

namespace evac {
namespace {

// Values of reply_wait. A scan waits from 0 up, at a step a tick.
constexpr std::int16_t kScanBegins = 0, kScanTimeOut = 31;
constexpr std::int16_t kAnswerWaits = 243;  // and 244
constexpr std::int16_t kOver = 245;         // where the count stops
constexpr std::int16_t kDataCame = 249;
constexpr std::int16_t kIdle = 255;

constexpr int kTurnRound = kOver - kAnswerWaits;  // ticks in which the controller turns the line round
constexpr int kLongestWait = 10;                  // ticks, under polls that never pause

}  // namespace

void ReplyWait::poll_came() {
  reply_wait_ = kAnswerWaits;
  since_last_ = 0;
  if (due_++ == 0) since_first_ = 0;
}

void ReplyWait::data_came() {
  if (reply_wait_ == kIdle) return;
  reply_wait_ = kDataCame;
  send_answers();
}

void ReplyWait::tick() {
  if (reply_wait_ < kOver) ++reply_wait_;
  if (due_ == 0) return;
  ++since_first_;
  ++since_last_;
  if (since_last_ < kTurnRound && since_first_ < kLongestWait) return;
  // A scan that began meanwhile counts on.
  if (reply_wait_ >= kAnswerWaits) reply_wait_ = kOver;
  send_answers();
}

bool ReplyWait::rests() const {
  return reply_wait_ >= kOver && due_ == 0;
}

void ReplyWait::begin_scan() {
  reply_wait_ = kScanBegins;
}

ReplyWait::Scan ReplyWait::scan() const {
  if (reply_wait_ == kIdle) return Scan::kStopped;
  if (reply_wait_ == kDataCame) return Scan::kData;
  return reply_wait_ >= kScanTimeOut && due_ == 0 ? Scan::kTimedOut : Scan::kWaiting;
}

void ReplyWait::stop() {
  reply_wait_ = kIdle;
  send_answers();
}

void ReplyWait::send_answers() {
  for (; due_ > 0; --due_) answer();
}

}  // namespace evac

// The waits on the line: for the moment to answer the controller's polls, and for a terminal's reply to the
// scan. Both share one word, reply_wait; what its values mean is known here alone. The stopwatch is Timer1.
#pragma once

#include <cstdint>

#include "platform/event.h"

namespace evac {

class ReplyWait {
 public:
  // Raised once for each answer that is due, from whatever ends its wait; never from a nested wait.
  Event<> answer;

  // A poll came. Its answer leaves two ticks behind the last poll, and ten behind its own at the latest; at
  // once when data or a stop ends the wait. All answers that are due leave together.
  void poll_came();
  // A frame came that reports nothing of its own: the reply to whoever waits. Nothing while no one does.
  void data_came();
  // One tick of Timer1: 20 ms.
  void tick();
  // Nobody waits, so that a tick counts nothing.
  bool rests() const;

  // The scan's wait, of 31 ticks. Answers that are due go out at their own time.
  enum class Scan { kWaiting, kData, kTimedOut, kStopped };
  void begin_scan();
  // A poll in the wait ends it as a time-out, but only when the answer has left.
  Scan scan() const;
  // No one waits any longer: the operator has stopped the scan, or the scan has what it waited for.
  void stop();

 private:
  void send_answers();

  std::int16_t reply_wait_ = 255;
  int due_ = 0;                           // answers that wait
  int since_first_ = 0, since_last_ = 0;  // ticks behind the first and the last of their polls
};

}  // namespace evac

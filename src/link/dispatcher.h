// What each frame from the controller does: keeps the indicators, answers the status poll, tells a waiting
// scan that data came. The checksum is not looked at.
#pragma once

#include "link/header_strip.h"
#include "link/link.h"
#include "link/reply_wait.h"
#include "model/system_model.h"
#include "platform/event_loop.h"

namespace evac {

class Dispatcher {
 public:
  struct Doors {
    LinkState& state;
    ReplyWait& wait;
    Link& link;
    const EventLoop& loop;
    HeaderStrip& strip;
  };
  explicit Dispatcher(const Doors& doors) : doors_(doors) {}

  // The frame in `r_buf`.
  void dispatch();
  // Sends the answer to one poll: the first two set the controller's calendar and clock.
  void answer_poll();

 private:
  // One more is done with, of any kind.
  void count_frame();
  void show_link(bool up);
  void report_link(bool up);
  void report_programme(bool running);
  void report_status(std::uint8_t bits);

  const Doors doors_;
};

}  // namespace evac

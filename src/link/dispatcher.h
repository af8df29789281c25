// What each frame from the controller does: keeps the indicators, answers the status poll, tells a waiting
// scan that data came. The checksum is not looked at.
#pragma once

#include "link/header_strip.h"
#include "link/link.h"
#include "model/system_model.h"
#include "platform/event_loop.h"

namespace evac {

class Dispatcher {
 public:
  Dispatcher(LinkState& state, Link& link, EventLoop& loop, HeaderStrip& strip)
      : state_(state), link_(link), loop_(loop), strip_(strip) {}

  // The frame in `r_buf`. A poll's answer waits inside for two ticks of Timer1, with the event pump running.
  void dispatch();
  // One tick of Timer1: the stopwatch of waits, in units of 20 ms.
  void tick();

 private:
  void show_link(bool up);
  void report_link(bool up);
  void report_programme(bool running);
  void report_status(std::uint8_t bits);
  void answer_poll();

  LinkState& state_;
  Link& link_;
  EventLoop& loop_;
  HeaderStrip& strip_;
};

}  // namespace evac

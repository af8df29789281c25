// The windows of the console: which are open, which one holds the others, and what a user's hand can reach.
#pragma once

#include <string_view>
#include <vector>

#include "platform/controls.h"

namespace evac {

// Puts windows on the screen.
class WindowHost {
 public:
  virtual ~WindowHost() = default;
  virtual void form_shown(Form& form, bool modal) = 0;
  virtual void form_hidden(Form& form) = 0;
  virtual void popup_shown(PopupMenu& menu) = 0;
  virtual void popup_hidden(PopupMenu& menu) = 0;
  // Work that holds everything goes on: what it is, in the operator's words, and `done` of `total` pieces of
  // it, where total is known, else 0. False: it is to end here, as something more urgent waits.
  virtual bool busy(std::string_view /*what*/, int /*done*/, int /*total*/) { return true; }
  virtual void busy_over() {}
};

class Windows {
 public:
  Windows(EventLoop& loop, WindowHost& host) : loop_(loop), host_(host) {}

  EventLoop& loop() const { return loop_; }
  // Nothing happens to a window that is open already.
  void show(Form& form);
  // Returns when the window is hidden again; timers and bytes go on meanwhile.
  void show_modal(Form& form);
  void hide(Form& form);
  // What the user's closing of the window does.
  void close(Form& form);

  const std::vector<Form*>& forms() const { return forms_; }
  Form* find(std::string_view name) const;
  // Open windows, the last shown last.
  const std::vector<Form*>& open() const { return open_; }
  // The modal window that holds the others, or null.
  Form* modal() const;
  // Open and not under a modal window.
  bool reachable(const Form& form) const;

  void show_popup(PopupMenu& menu);
  PopupMenu* popup() const { return popup_; }
  void take_down_popup();

  WindowHost& host() const { return host_; }

 private:
  friend class Form;
  EventLoop& loop_;
  WindowHost& host_;
  std::vector<Form*> forms_, open_;
  PopupMenu* popup_ = nullptr;
};

// The busy pointer, for as long as this lives.
class BusyPointer {
 public:
  // `what` must last.
  BusyPointer(Windows& windows, std::string_view what, int total = 0)
      : host_(windows.host()), what_(what), total_(total) {
    (void)host_.busy(what_, 0, total_);
  }
  ~BusyPointer() { host_.busy_over(); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

  // False: the work is to end here, unfinished.
  [[nodiscard]] bool show(int done) { return host_.busy(what_, done, total_); }

 private:
  WindowHost& host_;
  const std::string_view what_;
  const int total_;
};

}  // namespace evac

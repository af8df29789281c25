// Message and input boxes. They are run to their end inside the handler that raises them, so that everything
// of the console holds until they are answered; and so none may stay for long. A box answers itself with its
// safe answer (ok, no, nothing typed): one raised by a tick or a received frame after 10 s, one raised by a
// user's press after 60 s, and any at once when a fire comes in. What it said then stays in the header strip.
#pragma once

#include <functional>

#include "desktop/notices.h"
#include "desktop/watch_feed.h"
#include "platform/machine.h"

class QDialog;

namespace evac::desktop {

class QtBoxes : public Boxes {
 public:
  QtBoxes(WatchFeed& feed, Notices& notices) : feed_(feed), notices_(notices) {}

  void message(std::string_view text, std::string_view title) override;
  bool ask(std::string_view text, std::string_view title) override;
  std::string input(std::string_view prompt, std::string_view title, std::string_view preset) override;

  // Answers the box that is up, if there is one, with its safe answer.
  void answer_safely();

  // Called before a box comes up: shows what has changed so far.
  std::function<void()> before_box = [] {};
  // Whether the handler that raises the box was set off by a user's press.
  std::function<bool()> raised_by_user = [] { return false; };
  // Whether a fire has come in that the box holds up.
  std::function<bool()> fire_waits = [] { return false; };

  // Called again and again while a box is up, for as long as one may hold the console.
  std::function<void()> while_up = [] {};

  static constexpr std::chrono::seconds kForTicks{10}, kForPresses{60};

 private:
  // Runs the dialog, its text told by `what`; true when the user accepted it.
  bool run(QDialog& dialog, const QString& what, const QString& safe_answer);

  WatchFeed& feed_;
  Notices& notices_;
  QDialog* up_ = nullptr;
};

// A question of the host's own; the safe answer, no, is in front.
bool ask_host(WatchFeed& feed, QWidget* owner, const QString& text);

// The platform's error message for a fault that nothing caught; goes by itself after ten seconds.
void show_fault(int number, const std::string& text);
// What keeps the program from starting at all.
void show_start_error(const QString& text);

}  // namespace evac::desktop

// The meeting place of controls and widgets. A control has one view here, which any number of widgets share;
// changes are gathered and shown before the program next waits. What a user does to a widget becomes an event
// of the console's loop: no handler of the console runs inside the toolkit.
#pragma once

#include <QPoint>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/controls.h"

class QWidget;

namespace evac::desktop {

inline QString qt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string plain(const QString& text) {
  return text.toStdString();
}

// A widget's side of a control.
class Face {
 public:
  virtual ~Face() = default;
  // Shows the control's present state; repaints this widget alone.
  virtual void refresh() = 0;
  virtual QWidget& widget() = 0;
};

class Screen {
 public:
  explicit Screen(EventLoop& loop) : loop_(loop) {}
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  void bind(Control& control, Face& face);
  void unbind(Control& control, Face& face);
  bool is_bound(const Control& control) const { return views_.contains(&control); }
  // Faces of the control; the first one is the one that takes the focus.
  std::vector<Face*> faces(const Control& control) const;
  // Shows all changes since the last time.
  void flush();
  // Runs as an event of the console's loop, in its turn.
  void act(std::function<void()> deed);
  // Whether the innermost event that runs is such a deed.
  bool in_act() const { return loop_.running() != 0 && loop_.running() == act_; }

  // What the host knows better: the control is shown with that picture whatever its own is; an empty word
  // lets it show its own again. The word must last.
  void set_sign(Picture& control, std::string_view word);
  // The picture to be shown.
  std::string_view picture_of(const Picture& control) const;

  // Where a pop-up menu comes up: the place of the last right press.
  void set_popup_place(QPoint place) { popup_place_ = place; }
  QPoint popup_place() const { return popup_place_; }

 private:
  class View : public ControlView {
   public:
    View(Screen& screen, Control& control) : screen_(screen), control_(control) { control.attach(this); }
    ~View() override { control_.attach(nullptr); }
    void control_changed(Control& control) override;
    void focus_wanted(Control& control) override;
    void refresh();
    std::vector<Face*> faces;

   private:
    Screen& screen_;
    Control& control_;
    bool waiting_ = false;
  };

  EventLoop& loop_;
  std::uint64_t act_ = 0;  // the innermost deed, as the loop numbers its events
  std::map<const Control*, std::unique_ptr<View>> views_;
  std::vector<View*> changed_;
  std::map<const Picture*, std::string_view> signs_;
  QPoint popup_place_;
};

// Counts a widget's own deeds that are still on their way to the control; until the last one has run, what
// the control says must not overwrite what the user is doing.
class Deeds {
 public:
  explicit Deeds(Screen& screen, Face& face) : screen_(screen), face_(face) {}
  void post(std::function<void()> deed);
  bool under_way() const { return *count_ > 0; }

 private:
  Screen& screen_;
  Face& face_;
  std::shared_ptr<int> count_ = std::make_shared<int>(0);
};

}  // namespace evac::desktop

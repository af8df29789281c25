// The windows of the console on the screen. Each is made from its layout at its first showing and kept. A
// modal window is a window with modality: the console's own loop goes on beneath it.
#pragma once

#include <QMenu>
#include <QWidget>
#include <map>
#include <memory>

#include "desktop/busy_sign.h"
#include "desktop/view/layout_builder.h"
#include "platform/windows.h"

namespace evac::desktop {

class FormWindow : public QWidget {
 public:
  FormWindow(const WindowLayout& layout, Screen& screen, const HostParts& host, const QString& title_suffix,
             QWidget* owner);
  ~FormWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void make_menu(const WindowLayout& layout, QLayout& place);
  // While something burns, the main window asks once before the program ends.
  bool may_close();
  void show_title();

  Form& form_;
  Screen& screen_;
  // True when the key led somewhere.
  bool press_enter();

  const std::vector<OptionButton*> opens_on_;
  const std::vector<EnterKey> on_enter_;
  WatchFeed& feed_;
  const QString title_suffix_;
};

class FormWindows : public WindowHost {
 public:
  // `title_suffix` stands behind the main window's title.
  FormWindows(Screen& screen, HostParts host, QString title_suffix)
      : screen_(screen),
        host_(std::move(host)),
        title_suffix_(std::move(title_suffix)),
        busy_(host_.notices) {}
  ~FormWindows() override;

  void form_shown(Form& form, bool modal) override;
  void form_hidden(Form& form) override;
  void popup_shown(PopupMenu& menu) override;
  void popup_hidden(PopupMenu& menu) override;
  bool busy(std::string_view what, int done, int total) override;
  void busy_over() override { busy_.over(); }

  // How each window is laid out; told before the first one is shown.
  void set_layouts(std::vector<WindowLayout> layouts) { layouts_ = std::move(layouts); }
  const WindowLayout& layout_of(const Form& form) const;
  // The window of the form, made now if it was not before.
  FormWindow& window(Form& form);
  // Called again and again while work holds the window, for as long as it may hold the console.
  std::function<void()> while_busy = [] {};
  // Whether it is to end here, unfinished.
  std::function<bool()> work_must_end = [] { return false; };
  // Called between its pieces, however long it takes.
  std::function<void()> work_goes_on = [] {};
  // A box comes up in the middle of work.
  void hold_busy() { busy_.hold(); }
  // Gone before the controls are.
  void destroy();

 private:
  Screen& screen_;
  const HostParts host_;
  const QString title_suffix_;
  std::vector<WindowLayout> layouts_;
  std::map<Form*, std::unique_ptr<FormWindow>> windows_;
  std::unique_ptr<QMenu> popup_;
  Form* main_ = nullptr;
  BusySign busy_;
};

}  // namespace evac::desktop

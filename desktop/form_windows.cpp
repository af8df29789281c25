#include "desktop/form_windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>

#include "desktop/boxes.h"
#include "desktop/view/spoken.h"
#include "desktop/view/watch_bar.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

constexpr QSize kLeastSize(1260, 650);         // of the main window, with all of it to be seen
constexpr std::chrono::seconds kMostWork{60};  // that may hold the console, as long as a box
constexpr double kTwipsPerInch = 1440;
constexpr double kPixelsPerInch = 96;  // of the system's own screen, which the positions are meant for

// The text with the mark of its key before the first letter that no other of `taken` has.
QString with_own_letter(const QString& text, QString& taken) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar letter = text[i].toUpper();
    if (!letter.isLetter() || taken.contains(letter)) continue;
    taken += letter;
    return text.left(i) + '&' + text.mid(i);
  }
  return text;
}

// An entry of the menu bar as an action. Its caption does not change.
class MenuAction : public QAction {
 public:
  MenuAction(MenuItem& item, const QString& text, Screen& screen, QObject* parent)
      : QAction(text, parent), item_(item) {
    setObjectName(qt(item.form().name() + "." + item.full_name()));
    connect(this, &QAction::triggered, this,
            [&item, &screen] { screen.act([&item] { user::click(item); }); });
    show_state();
  }
  void show_state() {
    const bool connected = is_connected(item_);
    setEnabled(item_.enabled() && connected);
    setToolTip(connected ? QString() : qt(kNotConnected));
  }

 private:
  MenuItem& item_;
};

}  // namespace

FormWindow::FormWindow(const WindowLayout& layout, Screen& screen, const HostParts& host,
                       const QString& title_suffix, QWidget* owner)
    : QWidget(owner, owner ? Qt::Dialog : Qt::Window),
      form_(layout.form),
      screen_(screen),
      opens_on_(layout.opens_on),
      on_enter_(layout.on_enter),
      feed_(host.feed),
      title_suffix_(title_suffix) {
  setObjectName(qt(form_.name()));
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(6, 4, 6, 4);
  box->setSpacing(4);
  make_menu(layout, *box);
  if (owner) box->addWidget(new WatchBar(host.feed, this));
  box->addWidget(LayoutBuilder(screen, host).build(layout.content, this), 1);
  form_.view_changed = [this] { show_title(); };
  show_title();
}

bool FormWindow::may_close() {
  if (parentWidget() || !feed_.burning()) return true;
  return ask_host(feed_, this, QStringLiteral("%1\n\nЗакрыть пульт?").arg(qt(feed_.lines().front().text)));
}

FormWindow::~FormWindow() {
  form_.view_changed = nullptr;
}

void FormWindow::show_title() {
  setWindowTitle(qt(form_.title()) + title_suffix_);
}

void FormWindow::make_menu(const WindowLayout& layout, QLayout& place) {
  QMenuBar* bar = nullptr;
  std::map<const MenuItem*, QMenu*> menus;
  std::map<const MenuItem*, QString> letters;  // taken in each menu; null is the bar
  for (Control* control : form_.controls()) {
    auto* item = dynamic_cast<MenuItem*>(control);
    if (!item || item->popup()) continue;
    if (!bar) bar = new QMenuBar(this);
    const QString text = with_own_letter(qt(item->caption()), letters[item->parent()]);
    if (!item->parent()) {
      QMenu* menu = menus[item] = bar->addMenu(text);
      menu->setToolTipsVisible(true);
      connect(menu, &QMenu::aboutToShow, menu, [menu] {
        for (QAction* action : menu->actions())
          if (auto* entry = dynamic_cast<MenuAction*>(action)) entry->show_state();
      });
      continue;
    }
    QMenu* menu = menus.at(item->parent());
    if (std::find(layout.set_apart.begin(), layout.set_apart.end(), item) != layout.set_apart.end())
      menu->addSeparator();
    menu->addAction(new MenuAction(*item, text, screen_, this));
  }
  if (!bar) return;
  place.setMenuBar(bar);
  connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, bar, [bar] {
    bar->setFocus(Qt::MenuBarFocusReason);
    bar->setActiveAction(bar->actions().front());
  });
}

void FormWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  QWidget* first = nullptr;
  for (OptionButton* option : opens_on_)
    if (const auto faces = screen_.faces(*option); option->value() && !faces.empty())
      first = &faces.front()->widget();
  // Else the first control, not the bar above it.
  for (QWidget* next = nextInFocusChain(); !first && parentWidget() && next != this;
       next = next->nextInFocusChain())
    if (next->focusPolicy() & Qt::TabFocus && next->isEnabled() && next->isVisible() &&
        !qobject_cast<WatchBar*>(next))
      first = next;
  if (first) first->setFocus(Qt::ActiveWindowFocusReason);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The console decides what closing means.
  event->ignore();
  screen_.act([this] {
    if (may_close()) user::close(form_);
  });
}

bool FormWindow::press_enter() {
  const auto has_focus = [this](const Control* control) {
    const auto faces = screen_.faces(*control);
    return std::ranges::any_of(faces, [this](Face* face) { return &face->widget() == focusWidget(); });
  };
  const auto fits = [&](const EnterKey& key) {
    return key.from.empty() || std::ranges::any_of(key.from, has_focus);
  };
  const auto key = std::ranges::find_if(on_enter_, fits);
  if (key == on_enter_.end()) return false;
  screen_.act([key = *key] {
    if (key.to.kind() != Kind::kButton) {
      key.to.set_focus();
      return;
    }
    if (key.wakes && !key.to.enabled() && key.wakes->text().empty())
      for (const char* text : {"x", ""}) user::set_text(*key.wakes, text);
    user::click(key.to);
  });
  return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  // All but the main window.
  if (event->key() == Qt::Key_Escape && parentWidget())
    close();
  else if (!enter || event->isAutoRepeat() || !press_enter())
    QWidget::keyPressEvent(event);
}

FormWindows::~FormWindows() {
  destroy();
}

void FormWindows::destroy() {
  popup_.reset();
  // Dialogs belong to the main window: they go first.
  while (!windows_.empty()) {
    auto last = windows_.begin();
    for (auto at = windows_.begin(); at != windows_.end(); ++at)
      if (at->first != main_) last = at;
    windows_.erase(last);
  }
}

const WindowLayout& FormWindows::layout_of(const Form& form) const {
  const auto at = std::find_if(layouts_.begin(), layouts_.end(),
                               [&](const WindowLayout& layout) { return &layout.form == &form; });
  if (at == layouts_.end()) throw std::logic_error("no layout for the window " + form.name());
  return *at;
}

FormWindow& FormWindows::window(Form& form) {
  if (!main_) main_ = &form;
  auto& window = windows_[&form];
  if (!window) {
    const bool first = &form == main_;
    window = std::make_unique<FormWindow>(layout_of(form), screen_, host_, first ? title_suffix_ : QString(),
                                          first ? nullptr : windows_.at(main_).get());
  }
  return *window;
}

void FormWindows::form_shown(Form& form, bool modal) {
  FormWindow& shown = window(form);
  shown.setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  if (form.position) {
    const auto pixels = [](int twips) { return static_cast<int>(twips / kTwipsPerInch * kPixelsPerInch); };
    shown.move(pixels(form.position->first), pixels(form.position->second));
  }
  screen_.flush();
  if (&form == main_ && !shown.isVisible()) {
    // What it comes back to from the full screen.
    shown.resize(kLeastSize.expandedTo(shown.minimumSizeHint()));
    shown.showMaximized();
  }
  shown.show();
  shown.raise();
  shown.activateWindow();
}

void FormWindows::form_hidden(Form& form) {
  if (const auto at = windows_.find(&form); at != windows_.end()) at->second->hide();
}

void FormWindows::popup_shown(PopupMenu& menu) {
  popup_ = std::make_unique<QMenu>(QApplication::activeWindow());
  popup_->setObjectName(qt(menu.name()));
  for (Control* control : menu.form().controls()) {
    auto* item = dynamic_cast<MenuItem*>(control);
    if (!item || item->popup() != &menu) continue;
    auto* action = new MenuAction(*item, qt(item->caption()), screen_, popup_.get());
    action->setCheckable(true);
    action->setChecked(item->value());
    popup_->addAction(action);
  }
  popup_->popup(screen_.popup_place());
}

bool FormWindows::busy(std::string_view what, int done, int total) {
  work_goes_on();
  if (main_) busy_.show(window(*main_), qt(what), done, total);
  if (busy_.lasted() < kMostWork) while_busy();
  return !work_must_end();
}

void FormWindows::popup_hidden(PopupMenu&) {
  if (popup_) popup_->hide();
}

}  // namespace evac::desktop

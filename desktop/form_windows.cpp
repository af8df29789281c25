#include "desktop/form_windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>

#include "desktop/boxes.h"
#include "desktop/view/watch_bar.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kPixelsPerInch = 96;  // of the system's own screen, which the positions are meant for

// An entry of the menu bar as an action. Its caption does not change.
class MenuAction : public QAction {
 public:
  MenuAction(MenuItem& item, Screen& screen, QObject* parent) : QAction(qt(item.caption()), parent) {
    setObjectName(qt(item.form().name() + "." + item.full_name()));
    connect(this, &QAction::triggered, this,
            [&item, &screen] { screen.act([&item] { user::click(item); }); });
  }
};

}  // namespace

FormWindow::FormWindow(const WindowLayout& layout, Screen& screen, const HostParts& host,
                       const QString& title_suffix, QWidget* owner)
    : QWidget(owner, owner ? Qt::Dialog : Qt::Window),
      form_(layout.form),
      screen_(screen),
      feed_(host.feed),
      title_suffix_(title_suffix) {
  setObjectName(qt(form_.name()));
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(6, 6, 6, 6);
  box->setSpacing(4);
  make_menu(*box);
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

void FormWindow::make_menu(QLayout& layout) {
  QMenuBar* bar = nullptr;
  std::map<const MenuItem*, QMenu*> menus;
  for (Control* control : form_.controls()) {
    auto* item = dynamic_cast<MenuItem*>(control);
    if (!item || item->popup()) continue;
    if (!bar) bar = new QMenuBar(this);
    if (!item->parent())
      menus[item] = bar->addMenu(qt(item->caption()));
    else
      menus.at(item->parent())->addAction(new MenuAction(*item, screen_, this));
  }
  if (bar) layout.setMenuBar(bar);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The console decides what closing means.
  event->ignore();
  screen_.act([this] {
    if (may_close()) user::close(form_);
  });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && windowModality() != Qt::NonModal)
    close();
  else
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
    auto* action = new MenuAction(*item, screen_, popup_.get());
    action->setCheckable(true);
    action->setChecked(item->value());
    action->setEnabled(item->enabled());
    popup_->addAction(action);
  }
  popup_->popup(screen_.popup_place());
}

void FormWindows::popup_hidden(PopupMenu&) {
  if (popup_) popup_->hide();
}

}  // namespace evac::desktop

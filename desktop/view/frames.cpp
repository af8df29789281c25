#include "desktop/view/frames.h"

#include <QVBoxLayout>

#include "platform/user.h"

namespace evac::desktop {

FrameView::FrameView(Frame& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {}

namespace {

// Tabs that a finger can hit.
class WideTabs : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  QSize tabSizeHint(int index) const override {
    const int line = fontMetrics().height();
    return {QTabBar::tabSizeHint(index).width() + line / 2, line * 2};
  }
};

}  // namespace

TabsView::TabsView(TabStrip& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), bar_(new WideTabs(this)), pages_(new QStackedWidget(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(bar_);
  layout->addWidget(pages_, 1);
  bar_->setExpanding(false);
  bar_->setUsesScrollButtons(false);
  bar_->setDrawBase(true);
  bar_->setObjectName(objectName() + ".bar");
  bar_->setAccessibleName(qt(control.full_name()));
  for (const auto& tab : control.tabs()) bar_->addTab(qt(tab));
  connect(bar_, &QTabBar::currentChanged, this, [this](int tab) {
    if (showing_) return;
    screen_.act([this, tab] {
      user::turn_to(control_, tab);
      // What did not reach the control is taken back.
      refresh();
    });
  });
}

void TabsView::show_state() {
  showing_ = true;
  bar_->setCurrentIndex(control_.value());
  pages_->setCurrentIndex(control_.value());
  showing_ = false;
}

}  // namespace evac::desktop

// Frames and the tab strip: widgets around other widgets.
#pragma once

#include <QGroupBox>
#include <QStackedWidget>
#include <QTabBar>

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

class FrameView : public BoundWidget<QGroupBox, Frame> {
 public:
  FrameView(Frame& control, Screen& screen, const Node& node, QWidget* parent);

 private:
  void show_state() override { setTitle(qt(control_.caption())); }
};

class TabsView : public BoundWidget<QWidget, TabStrip> {
 public:
  TabsView(TabStrip& control, Screen& screen, const Node& node, QWidget* parent);
  // The pages in their order.
  void add_page(QWidget* page) { pages_->addWidget(page); }

 private:
  void show_state() override;
  QTabBar* bar_;
  QStackedWidget* pages_;
  bool showing_ = false;
};

}  // namespace evac::desktop

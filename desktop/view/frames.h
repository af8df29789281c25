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
  // The pages in their order. One that has not room enough scrolls.
  void add_page(QWidget* page);

 private:
  void show_state() override;
  void turn(int by);
  QTabBar* bar_;
  QStackedWidget* pages_;
  bool showing_ = false;
};

}  // namespace evac::desktop

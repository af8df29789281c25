// What the window shows besides the controls: the zones of fire, and what the host has to say.
#pragma once

#include <QLabel>

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

class Notices;

// The zones of fire by their lamps, white on red; empty and quiet without one. A lamp that has shown the
// fire's picture counts until it is dark: the next step of an alert lights the zone of fire like its
// neighbours.
class FiresView : public QLabel, public Face {
 public:
  FiresView(std::vector<Picture*> lamps, Screen& screen, const Node& node, QWidget* parent);
  ~FiresView() override;
  void refresh() override;
  QWidget& widget() override { return *this; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Picture*> lamps_;
  Screen& screen_;
  std::vector<bool> burning_;
  QString shown_;
};

class NoticesView : public QLabel {
 public:
  NoticesView(Notices& notices, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_notices();
  Notices& notices_;
};

}  // namespace evac::desktop

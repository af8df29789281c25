// The position button of the player on its way: dragged by the mouse, moved by the arrow keys ten seconds at
// a time.
#pragma once

#include <functional>
#include <optional>

#include "desktop/view/bound_widget.h"

namespace evac::desktop {

// What plays, as the console knows it.
struct TrackSource {
  std::function<bool()> on = [] { return false; };  // the player has power
  // Seconds.
  std::function<double()> length = [] { return 0.0; }, position = length;
};

class TrackView : public BoundWidget<QWidget, Button>, public Spoken {
 public:
  TrackView(Button& control, Screen& screen, const Node& node, QWidget* parent, TrackSource source);
  QAccessible::Role role() const override { return QAccessible::Slider; }
  std::optional<std::pair<int, int>> progress() const override;

  static constexpr int kStep = 10;  // seconds

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void show_state() override {}
  QStringList values() const override { return {}; }
  // The way of the button's middle.
  QRectF groove() const;
  void drag_to(double x);
  void step(int seconds);

  const TrackSource source_;
  // While the mouse holds the button: where it is. The console gets the last place alone of those that come
  // while it is busy with one.
  std::optional<int> held_;
  bool under_way_ = false;
};

}  // namespace evac::desktop

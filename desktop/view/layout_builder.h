// Makes the widgets of a window from its layout. A name that the form does not have is a fault of the
// program.
#pragma once

#include <functional>

#include "desktop/view/layout.h"
#include "desktop/view/screen.h"

class QLayout;

namespace evac::desktop {

class Notices;

// What layouts can show of the host.
struct HostParts {
  Notices& notices;
  // Makes the host's own button of that name, or null when this host has none.
  std::function<QWidget*(const std::string& name, QWidget* parent)> extra;
};

class LayoutBuilder {
 public:
  LayoutBuilder(const Form& form, Screen& screen, const HostParts& host)
      : form_(form), screen_(screen), host_(host) {}

  QWidget* build(const Node& node, QWidget* parent);

 private:
  Control& control(const std::string& name, std::optional<int> index, const std::string& section) const;
  QWidget* make(const Node& node, QWidget* parent);
  QWidget* make_control(Control& control, const Node& node, QWidget* parent);
  QWidget* make_box(const Node& node, QWidget* parent);
  QWidget* make_grid(const Node& node, QWidget* parent);
  QWidget* make_frame(const Node& node, QWidget* parent);
  QWidget* make_tabs(const Node& node, QWidget* parent);
  QWidget* make_board(const Node& node, QWidget* parent);
  QWidget* make_pile(const Node& node, QWidget* parent);
  QWidget* make_text(const Node& node, QWidget* parent);
  QWidget* make_fires(const Node& node, QWidget* parent);

  const Form& form_;
  Screen& screen_;
  const HostParts& host_;
};

}  // namespace evac::desktop

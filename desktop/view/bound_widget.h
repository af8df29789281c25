// What all widgets of controls have in common: the binding, the size that does not follow the text, and what
// every control has: enabled, visible, a tool tip, and a name for assistive technology.
#pragma once

#include <QApplication>
#include <QWidget>

#include "desktop/view/layout.h"
#include "desktop/view/screen.h"
#include "desktop/view/spoken.h"

namespace evac::desktop {

// The font of a look, made from the widget's own.
QFont font_of(Look look, QFont font);

template <class Widget, class ControlType>
class BoundWidget : public Widget, public Face {
 public:
  ~BoundWidget() override { screen_.unbind(control_, *this); }
  void refresh() final {
    const bool connected = is_connected(control_);
    this->setEnabled(control_.enabled() && connected);
    if (this->isHidden() == control_.visible()) this->setVisible(control_.visible());
    const QString tip = !connected                    ? qt(kNotConnected)
                        : control_.tool_tip().empty() ? tip_
                                                      : qt(control_.tool_tip());
    if (tip != this->toolTip()) this->setToolTip(tip);
    show_state();
    const QString name = spoken_name(words_, values());
    if (name != this->accessibleName()) this->setAccessibleName(name);
    this->update();
  }
  QWidget& widget() final { return *this; }
  QSize sizeHint() const override { return hint_.isValid() ? hint_ : Widget::sizeHint(); }
  QSize minimumSizeHint() const override { return hint_.isValid() ? hint_ : Widget::minimumSizeHint(); }

 protected:
  BoundWidget(ControlType& control, Screen& screen, const Node& node, QWidget* parent)
      : Widget(parent),
        control_(control),
        screen_(screen),
        words_(qt(node.words)),
        tip_(qt(node.tip)),
        look_(node.look) {
    this->setObjectName(qt(control.form().name() + "." + control.full_name()));
    this->setFont(font_of(look_, this->font()));
    line_ = this->fontMetrics().height();
    QSizePolicy policy = this->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    this->setSizePolicy(policy);
    screen.bind(control, *this);
  }
  // The size that the widget keeps; what the layout says goes before what its own text asks for.
  void keep_size(const Node& node, int width, int height) {
    const int base = QFontMetrics(QApplication::font()).height();
    hint_ = {node.width > 0 ? static_cast<int>(node.width * base) : width,
             node.height > 0 ? static_cast<int>(node.height * base) : height};
  }
  // Takes over what is particular to the kind.
  virtual void show_state() = 0;
  // What stands behind its words when it is spoken of.
  virtual QStringList values() const { return {qt(control_.caption())}; }

  ControlType& control_;
  Screen& screen_;
  const QString words_, tip_;
  const Look look_;
  int line_ = 0;  // height of a line of text

 private:
  QSize hint_;
};

}  // namespace evac::desktop

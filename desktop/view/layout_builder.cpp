#include "desktop/view/layout_builder.h"

#include <QGridLayout>
#include <QLabel>
#include <stdexcept>

#include "desktop/view/bars.h"
#include "desktop/view/buttons.h"
#include "desktop/view/frames.h"
#include "desktop/view/host_widgets.h"
#include "desktop/view/labels.h"
#include "desktop/view/lists.h"
#include "desktop/view/palette.h"
#include "desktop/view/press.h"
#include "desktop/view/texts.h"

namespace evac::desktop {
namespace {

constexpr int kGap = 6, kTightGap = 1;
constexpr double kHeadSize = 0.85;  // of the heads over a board

template <class View, class ControlType>
QWidget* make_view(Control& control, Screen& screen, const Node& node, QWidget* parent) {
  auto* view = new View(dynamic_cast<ControlType&>(control), screen, node, parent);
  view->refresh();
  return view;
}

// A light field with a thin edge.
QWidget* make_ground(QWidget* parent) {
  auto* ground = new QFrame(parent);
  ground->setFrameShape(QFrame::StyledPanel);
  ground->setAutoFillBackground(true);
  QPalette palette = ground->palette();
  palette.setColor(QPalette::Window, grey::kField);
  ground->setPalette(palette);
  return ground;
}

}  // namespace

const WindowLayout& layout_of(const std::string& form) {
  for (const auto& layout : all_layouts())
    if (layout.form == form) return layout;
  throw std::logic_error("no layout for the window " + form);
}

Control& LayoutBuilder::control(const std::string& name, std::optional<int> index,
                                const std::string& section) const {
  if (Control* found = form_.find(name, index, section)) return *found;
  throw std::logic_error(form_.name() + " has no control " + name +
                         (index ? "(" + std::to_string(*index) + ")" : ""));
}

QWidget* LayoutBuilder::build(const Node& node, QWidget* parent) {
  return make(node, parent);
}

QWidget* LayoutBuilder::make(const Node& node, QWidget* parent) {
  switch (node.what) {
    case Node::What::kControl:
      return make_control(control(node.name, node.index, node.section), node, parent);
    case Node::What::kText:
      return make_text(node, parent);
    case Node::What::kRow:
    case Node::What::kColumn:
      return make_box(node, parent);
    case Node::What::kGrid:
      return make_grid(node, parent);
    case Node::What::kFrame:
      return make_frame(node, parent);
    case Node::What::kTabs:
      return make_tabs(node, parent);
    case Node::What::kBoard:
      return make_board(node, parent);
    case Node::What::kPile:
      return make_pile(node, parent);
    case Node::What::kFires:
      return make_fires(node, parent);
    case Node::What::kNotices:
      return new NoticesView(host_.notices, parent);
    case Node::What::kExtra:
      return host_.extra(node.name, parent);
    case Node::What::kSpace: {
      auto* nothing = new QWidget(parent);
      nothing->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
      return nothing;
    }
  }
  return nullptr;
}

QWidget* LayoutBuilder::make_control(Control& control, const Node& node, QWidget* parent) {
  switch (control.kind()) {
    case Kind::kButton:
      return make_view<ButtonView, Control>(control, screen_, node, parent);
    case Kind::kLabel:
      return make_view<LabelView, Control>(control, screen_, node, parent);
    case Kind::kOptionButton:
      return make_view<OptionView, OptionButton>(control, screen_, node, parent);
    case Kind::kCheckBox:
      return make_view<CheckView, CheckBox>(control, screen_, node, parent);
    case Kind::kScrollBar:
      return make_view<BarView, ScrollBar>(control, screen_, node, parent);
    case Kind::kTextBox:
    case Kind::kMaskedEdit:
      return make_view<TextView, TextBox>(control, screen_, node, parent);
    case Kind::kComboBox:
      return make_view<ComboView, ComboBox>(control, screen_, node, parent);
    case Kind::kListBox:
    case Kind::kLister:
      return make_view<ListView, RowControl>(control, screen_, node, parent);
    case Kind::kPicture:
      return make_view<PictureView, Picture>(control, screen_, node, parent);
    case Kind::kProgressBar:
      return make_view<ProgressView, ProgressBar>(control, screen_, node, parent);
    case Kind::kGrid:
      return make_view<GridView, Grid>(control, screen_, node, parent);
    default:
      throw std::logic_error("no widget shows " + control.full_name());
  }
}

QWidget* LayoutBuilder::make_box(const Node& node, QWidget* parent) {
  QWidget* box = node.look == Look::kValue ? make_ground(parent) : new QWidget(parent);
  const bool lying = node.what == Node::What::kRow;
  auto* layout = new QBoxLayout(lying ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, box);
  const int margin = node.look == Look::kValue ? kGap : 0;
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(node.tight ? kTightGap : kGap);
  for (const Node& child : node.children)
    if (QWidget* widget = make(child, box)) layout->addWidget(widget, child.stretch);
  return box;
}

QWidget* LayoutBuilder::make_grid(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(node.tight ? kTightGap : kGap);
  int at = 0;
  for (const Node& child : node.children) {
    layout->addWidget(make(child, box), at / node.columns, at % node.columns);
    if (child.stretch > 0) layout->setColumnStretch(at % node.columns, child.stretch);
    ++at;
  }
  return box;
}

QWidget* LayoutBuilder::make_frame(const Node& node, QWidget* parent) {
  auto& frame = dynamic_cast<Frame&>(control(node.name, node.index, node.section));
  auto* view = new FrameView(frame, screen_, node, parent);
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(kGap, kGap, kGap, kGap);
  layout->addWidget(make(node.children.front(), view));
  view->refresh();
  return view;
}

QWidget* LayoutBuilder::make_tabs(const Node& node, QWidget* parent) {
  auto& strip = dynamic_cast<TabStrip&>(control(node.name, node.index, node.section));
  auto* view = new TabsView(strip, screen_, node, parent);
  for (const Node& page : node.children) {
    auto* sheet = new QWidget(view);
    auto* layout = new QVBoxLayout(sheet);
    layout->setContentsMargins(kGap, kGap, kGap, kGap);
    layout->addWidget(make(page, sheet));
    view->add_page(sheet);
  }
  view->refresh();
  return view;
}

QWidget* LayoutBuilder::make_board(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* keys = new FocusBoard(box);
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kTightGap);
  const int arrays = static_cast<int>(node.names.size());
  const bool by_columns = !node.heads.empty();
  const int rows = (node.count + node.columns - 1) / node.columns;
  Node leaf = make_node(Node::What::kControl);
  leaf.look = node.look;
  leaf.width = node.width;
  leaf.height = node.height;
  leaf.tight = true;
  for (int i = 0; i < node.count; ++i) {
    const int down = by_columns ? i % rows + 1 : i / node.columns;
    const int across = by_columns ? i / rows : i % node.columns;
    for (int k = 0; k < arrays; ++k) {
      const auto at = static_cast<std::size_t>(k);
      leaf.words = node.words.empty() ? "" : node.words + " " + std::to_string(node.first + i);
      QWidget* widget = make_control(control(node.names[at], node.first + i, node.section), leaf, box);
      layout->addWidget(widget, down, across * (arrays + 1) + k);
      layout->setColumnStretch(across * (arrays + 1) + k, 1);
      layout->setRowStretch(down, 1);
      if (widget->focusPolicy() != Qt::NoFocus) keys->add(*widget);
    }
  }
  for (int across = 0; by_columns && across < node.columns; ++across) {
    for (int k = 0; k < arrays; ++k) {
      auto* head = new QLabel(qt(node.heads[static_cast<std::size_t>(k)]), box);
      QFont small = head->font();
      small.setPointSizeF(small.pointSizeF() * kHeadSize);
      head->setFont(small);
      head->setAlignment(Qt::AlignCenter);
      layout->addWidget(head, 0, across * (arrays + 1) + k);
    }
    if (across > 0) layout->setColumnMinimumWidth(across * (arrays + 1) - 1, 2 * kGap);
  }
  return box;
}

QWidget* LayoutBuilder::make_pile(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  Node leaf = node;
  for (int i = node.first; i < node.first + node.count; ++i)
    layout->addWidget(make_control(control(node.names.front(), i, node.section), leaf, box), 0, 0);
  return box;
}

QWidget* LayoutBuilder::make_text(const Node& node, QWidget* parent) {
  auto* label = new QLabel(qt(node.text), parent);
  label->setFont(font_of(node.look, label->font()));
  label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  if (node.width > 0) {
    label->setFixedWidth(static_cast<int>(node.width * label->fontMetrics().height()));
    label->setWordWrap(true);
  }
  return label;
}

QWidget* LayoutBuilder::make_fires(const Node& node, QWidget* parent) {
  std::vector<Picture*> lamps;
  for (Control* control : form_.controls())
    if (control->name() == node.name) lamps.push_back(dynamic_cast<Picture*>(control));
  if (lamps.empty()) throw std::logic_error(form_.name() + " has no control " + node.name);
  auto* view = new FiresView(std::move(lamps), screen_, node, parent);
  view->refresh();
  return view;
}

}  // namespace evac::desktop

#include "desktop/view/layout_builder.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <stdexcept>

#include "desktop/view/bars.h"
#include "desktop/view/buttons.h"
#include "desktop/view/frames.h"
#include "desktop/view/host_widgets.h"
#include "desktop/view/labels.h"
#include "desktop/view/lists.h"
#include "desktop/view/months.h"
#include "desktop/view/palette.h"
#include "desktop/view/press.h"
#include "desktop/view/texts.h"
#include "desktop/view/watch_bar.h"

namespace evac::desktop {
namespace {

constexpr int kGap = 6, kTightGap = 1;

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

QGridLayout* make_close_grid(QWidget* box) {
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kTightGap);
  return layout;
}

// One of many like it, of the size that the board says.
Node cell_of(const Node& board, const Controls& controls, int at) {
  return use(*controls.at(static_cast<std::size_t>(at))).wide(board.width).high(board.height).packed();
}

QLabel* make_head(const std::string& text, QWidget* parent) {
  auto* head = new QLabel(qt(text), parent);
  head->setFont(font_of(Look::kHead, head->font()));
  head->setAlignment(Qt::AlignCenter);
  return head;
}

}  // namespace

QWidget* LayoutBuilder::build(const Node& node, QWidget* parent) {
  switch (node.what) {
    case Node::What::kControl:
      return make_control(*node.controls.front(), node, parent);
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
    case Node::What::kRows:
      return make_rows(node, parent);
    case Node::What::kPile:
      return make_pile(node, parent);
    case Node::What::kShared:
      return make_shared_place(node, parent);
    case Node::What::kTrack: {
      auto* view =
          new TrackView(dynamic_cast<Button&>(*node.controls.front()), screen_, node, parent, host_.track);
      view->refresh();
      return view;
    }
    case Node::What::kFolderUp:
      return new FolderUpView(dynamic_cast<FolderLister&>(*node.controls.front()), screen_, parent);
    case Node::What::kWatch:
      return new WatchBar(host_.feed, parent);
    case Node::What::kScan:
      return new ScanProgressView(host_.scan, parent);
    case Node::What::kTimerAhead:
      return new TimerAheadView(host_.timer_ahead, parent);
    case Node::What::kBoxNote:
      return new BoxNoteView(host_.notices, parent);
    case Node::What::kNotices:
      return new NoticesView(host_.notices, parent);
    case Node::What::kKeyboardNote:
      return new KeyboardNote(host_.keyboard, parent);
    case Node::What::kStandButton:
      return host_.stand_button(parent);
    case Node::What::kCloseButton: {
      auto* button = new QPushButton(QStringLiteral("&Закрыть"), parent);
      button->setMinimumHeight(button->fontMetrics().height() * 2);
      QObject::connect(button, &QPushButton::clicked, button, [button] { button->window()->close(); });
      return button;
    }
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
      return make_view<TextView, TextBox>(control, screen_, node, parent);
    case Kind::kMaskedEdit:
      return make_view<MaskedView, MaskedEdit>(control, screen_, node, parent);
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
    case Kind::kMonthCalendar:
      return make_view<MonthsView, MonthCalendar>(control, screen_, node, parent);
    default:
      throw std::logic_error("no widget shows " + control.full_name());
  }
}

QWidget* LayoutBuilder::make_box(const Node& node, QWidget* parent) {
  QWidget* box = node.look == Look::kValue ? make_ground(parent) : new QWidget(parent);
  const bool lying = node.what == Node::What::kRow;
  auto* layout = new QBoxLayout(lying ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, box);
  const int margin = node.look == Look::kValue ? kGap / 2 : 0;
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(node.tight ? kTightGap : kGap);
  for (const Node& child : node.children)
    if (QWidget* widget = build(child, box)) layout->addWidget(widget, child.stretch);
  return box;
}

QWidget* LayoutBuilder::make_grid(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(node.tight ? kTightGap : kGap);
  int at = 0;
  for (const Node& child : node.children) {
    layout->addWidget(build(child, box), at / node.columns, at % node.columns);
    if (child.stretch > 0) layout->setColumnStretch(at % node.columns, child.stretch);
    ++at;
  }
  return box;
}

QWidget* LayoutBuilder::make_frame(const Node& node, QWidget* parent) {
  auto& frame = dynamic_cast<Frame&>(*node.controls.front());
  auto* view = new FrameView(frame, screen_, node, parent);
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(kGap, kGap / 2, kGap, kGap / 2);
  layout->addWidget(build(node.children.front(), view));
  view->refresh();
  return view;
}

QWidget* LayoutBuilder::make_tabs(const Node& node, QWidget* parent) {
  auto& strip = dynamic_cast<TabStrip&>(*node.controls.front());
  auto* view = new TabsView(strip, screen_, node, parent);
  for (const Node& page : node.children) {
    auto* sheet = new QWidget(view);
    auto* layout = new QVBoxLayout(sheet);
    layout->setContentsMargins(kGap / 2, kGap / 2, kGap / 2, kGap / 2);
    layout->addWidget(build(page, sheet));
    view->add_page(sheet);
  }
  view->refresh();
  return view;
}

QWidget* LayoutBuilder::make_board(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* keys = new FocusBoard(box);
  QGridLayout* layout = make_close_grid(box);
  for (int i = 0; i < static_cast<int>(node.controls.size()); ++i) {
    const Node cell = cell_of(node, node.controls, i)
                          .shown(node.look)
                          .switching(node.off, node.on)
                          .with_signs(node.sign, node.sign_on);
    add_cell(cell, node.words, i + 1, *keys, *layout, i / node.columns, i % node.columns);
  }
  return box;
}

QWidget* LayoutBuilder::make_rows(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* keys = new FocusBoard(box);
  QGridLayout* layout = make_close_grid(box);
  const int arrays = static_cast<int>(node.arrays.size());
  const int count = static_cast<int>(node.arrays.front().controls.size());
  const int rows = (count + node.columns - 1) / node.columns;
  const auto column_of = [&](int across, int array) { return across * (arrays + 1) + array; };
  for (int i = 0; i < count; ++i)
    for (int k = 0; k < arrays; ++k) {
      const BoardArray& array = node.arrays[static_cast<std::size_t>(k)];
      const Node cell = cell_of(node, array.controls, i).shown(array.look).switching(array.off, array.on);
      add_cell(cell, array.words, i + 1, *keys, *layout, i % rows + 1, column_of(i / rows, k));
    }
  for (int across = 0; across < node.columns; ++across) {
    for (int k = 0; k < arrays; ++k)
      layout->addWidget(make_head(node.arrays[static_cast<std::size_t>(k)].head, box), 0,
                        column_of(across, k));
    if (across > 0) layout->setColumnMinimumWidth(column_of(across, -1), kGap);
  }
  return box;
}

void LayoutBuilder::add_cell(Node cell, const std::string& words, int number, FocusBoard& keys,
                             QGridLayout& layout, int row, int column) {
  if (!words.empty()) cell.called(words + ' ' + std::to_string(number));
  QWidget* widget = make_control(*cell.controls.front(), cell, layout.parentWidget());
  layout.addWidget(widget, row, column);
  layout.setColumnStretch(column, 1);
  layout.setRowStretch(row, 1);
  if (widget->focusPolicy() != Qt::NoFocus) keys.add(*widget);
}

QWidget* LayoutBuilder::make_pile(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  Node leaf = node;
  int number = 0;
  for (Control* control : node.controls) {
    leaf.called(node.words + ' ' + std::to_string(++number));
    layout->addWidget(make_control(*control, leaf, box), 0, 0);
  }
  return box;
}

QWidget* LayoutBuilder::make_shared_place(const Node& node, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  for (const Node& child : node.children) layout->addWidget(build(child, box), 0, 0);
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

}  // namespace evac::desktop

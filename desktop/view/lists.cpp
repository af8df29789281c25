#include "desktop/view/lists.h"

#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/view/press.h"
#include "platform/user.h"

namespace evac::desktop {
namespace {

// Rows high enough for a finger.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), option.fontMetrics.height() * 4 / 3};
  }
};

// Draws a row that is cut at its tabs in columns; the bars that follow the tabs are marks of the file.
class ColumnDelegate : public RowDelegate {
 public:
  ColumnDelegate(std::vector<double> stops, QObject* parent)
      : RowDelegate(parent), stops_(std::move(stops)) {}

  void paint(QPainter* p, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem empty = option;
    initStyleOption(&empty, index);
    const QStringList fields = empty.text.split('\t');
    empty.text.clear();
    empty.widget->style()->drawControl(QStyle::CE_ItemViewItem, &empty, p, empty.widget);
    const bool chosen = option.state & QStyle::State_Selected;
    p->setPen(option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    const int line = option.fontMetrics.height();
    QRect area = option.rect.adjusted(2, 0, 0, 0);
    for (qsizetype i = 0; i < fields.size(); ++i) {
      QString field = fields[i].trimmed();
      if (field.startsWith('|')) field = field.mid(1).trimmed();
      const auto stop = static_cast<std::size_t>(i);
      const int width =
          stop < stops_.size() ? static_cast<int>(stops_[stop] * line) : option.rect.right() - area.left();
      p->drawText(QRect(area.left(), area.top(), width - 4, area.height()), Qt::AlignVCenter,
                  option.fontMetrics.elidedText(field, Qt::ElideRight, width - 4));
      area.setLeft(area.left() + width);
    }
  }

 private:
  const std::vector<double> stops_;
};

}  // namespace

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if ((role != Qt::DisplayRole && role != Qt::ToolTipRole) || index.row() >= list_.count()) return {};
  const std::string& row = list_.row(index.row());
  if (role == Qt::ToolTipRole)
    return reads_ ? qt(reads_(row)).replace('\t', QStringLiteral("  ")) : QVariant();
  return qt(reads_ ? reads_(row) : row);
}

void RowModel::reload() {
  beginResetModel();
  endResetModel();
}

ListView::ListView(RowControl& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), model_(control, node.reads) {
  keep_size(node, line_ * 10, line_ * 5);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideMiddle);
  setEditTriggers(NoEditTriggers);
  new PressWatch(*viewport(), control, screen);
  new PressWatch(*this, control, screen);
  setModel(&model_);
  if (look_ == Look::kColumns) {
    setItemDelegate(new ColumnDelegate(node.stops, this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  } else {
    setItemDelegate(new RowDelegate(this));
  }
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { choose(index.row()); });
  connect(this, &QListView::doubleClicked, this,
          [this](const QModelIndex&) { screen_.act([&list = control_] { user::double_click(list); }); });
}

void ListView::keyPressEvent(QKeyEvent* event) {
  // Only a key chooses by moving: a click of the mouse is told by its own signal, and the toolkit moves its
  // cursor for reasons of its own, such as a coming focus.
  const QScopedValueRollback keyed(keyed_, true);
  const QModelIndex before = currentIndex();
  QListView::keyPressEvent(event);
  // The row on which the focus stands is chosen by a key that can move no farther, and by Space.
  constexpr Qt::Key kChoosing[] = {Qt::Key_Space, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
  const bool chooses = std::ranges::find(kChoosing, event->key()) != std::end(kChoosing);
  if (chooses && before.isValid() && currentIndex() == before && control_.selected() != before.row())
    choose(before.row());
}

void ListView::choose(int row) {
  screen_.act([&list = control_, row] {
    if (row < list.count()) user::pick(list, row);
  });
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (keyed_ && current.isValid()) choose(current.row());
}

void ListView::show_state() {
  if (shown_rows_ != control_.rows()) {
    const int at = verticalScrollBar()->value();
    shown_rows_ = control_.rows();
    model_.reload();
    verticalScrollBar()->setValue(at);
  }
  const QModelIndex chosen = model_.index(control_.selected());
  if (chosen != currentIndex() || !selectionModel()->isSelected(chosen)) {
    if (chosen.isValid())
      setCurrentIndex(chosen);
    else
      selectionModel()->clear();
  }
}

FolderUpView::FolderUpView(FolderLister& folders, Screen& screen, QWidget* parent)
    : QPushButton(parent), folders_(folders), screen_(screen) {
  setObjectName(qt(folders.full_name()) + ".up");
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
  setMinimumHeight(fontMetrics().height() * 3 / 2);
  connect(this, &QPushButton::clicked, this, [this] {
    screen_.act([&folders = folders_] {
      if (user::reaches(folders)) folders.point_at(folder_around(folders.path()));
    });
  });
  screen.bind(folders, *this);
  refresh();
}

void FolderUpView::refresh() {
  const QString path = qt(folders_.path());
  setVisible(folders_.visible());
  setEnabled(folder_around(folders_.path()) != folders_.path());
  setText(QStringLiteral("↑ ") +
          fontMetrics().elidedText(path, Qt::ElideMiddle, width() - fontMetrics().height() * 2));
  setToolTip(QStringLiteral("Из папки %1 на уровень выше").arg(path));
  setAccessibleName(toolTip());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
  if (role != Qt::DisplayRole) return {};
  return qt(shown_.at(static_cast<std::size_t>(index.row())).at(static_cast<std::size_t>(index.column())));
}

void GridModel::reload() {
  const int rows = grid_.row_count(), had = static_cast<int>(shown_.size());
  const auto row_of = [this](int row) {
    std::vector<std::string> cells;
    for (int column = 0; column < grid_.column_count(); ++column) cells.push_back(grid_.cell(row, column));
    return cells;
  };
  if (rows < had) {
    beginRemoveRows({}, rows, had - 1);
    shown_.resize(static_cast<std::size_t>(rows));
    endRemoveRows();
  }
  // A pass of the terminals changes row after row: only those are painted again.
  for (int row = 0; row < std::min(rows, had); ++row) {
    auto cells = row_of(row);
    auto& shown = shown_[static_cast<std::size_t>(row)];
    if (cells == shown) continue;
    shown = std::move(cells);
    emit dataChanged(index(row, 0), index(row, grid_.column_count() - 1));
  }
  if (rows > had) {
    beginInsertRows({}, had, rows - 1);
    for (int row = had; row < rows; ++row) shown_.push_back(row_of(row));
    endInsertRows();
  }
}

GridView::GridView(Grid& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), model_(control) {
  keep_size(node, line_ * 16, line_ * 6);
  setModel(&model_);
  horizontalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(line_ * 3 / 2);
  // Always there, so that the columns keep in step with the heads above them.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setTabKeyNavigation(false);
}

void GridView::show_state() {
  // Rows that come are followed, unless the user looks at earlier ones.
  const auto* bar = verticalScrollBar();
  const int at = bar->value();
  const bool at_end = at >= bar->maximum();
  model_.reload();
  if (at_end)
    scrollToBottom();
  else
    verticalScrollBar()->setValue(at);
}

}  // namespace evac::desktop

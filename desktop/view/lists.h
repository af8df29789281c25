// Lists and grids, which read their rows straight from the control.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QPushButton>
#include <QTableView>

#include "desktop/view/bound_widget.h"
#include "platform/listers.h"

namespace evac::desktop {

class RowModel : public QAbstractListModel {
 public:
  // `reads` makes of a row what is shown of it; null shows it as it is.
  RowModel(const RowControl& list, std::string (*reads)(std::string_view)) : list_(list), reads_(reads) {}
  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : list_.count(); }
  QVariant data(const QModelIndex& index, int role) const override;
  void reload();

 private:
  const RowControl& list_;
  std::string (*const reads_)(std::string_view);
};

class ListView : public BoundWidget<QListView, RowControl> {
 public:
  ListView(RowControl& control, Screen& screen, const Node& node, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void show_state() override;
  void choose(int row);

  RowModel model_;
  std::vector<std::string> shown_rows_;
  bool keyed_ = false;
};

// The folder that a lister shows, on a button that leads to the one around it.
class FolderUpView : public QPushButton, public Face {
 public:
  FolderUpView(FolderLister& folders, Screen& screen, QWidget* parent);
  ~FolderUpView() override { screen_.unbind(folders_, *this); }
  void refresh() override;
  QWidget& widget() override { return *this; }

 protected:
  void resizeEvent(QResizeEvent*) override { refresh(); }  // cuts the path to its place

 private:
  FolderLister& folders_;
  Screen& screen_;
};

class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const Grid& grid) : grid_(grid) {}
  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : grid_.column_count();
  }
  QVariant data(const QModelIndex& index, int role) const override;
  void reload();

 private:
  const Grid& grid_;
  std::vector<std::vector<std::string>> shown_;
};

class GridView : public BoundWidget<QTableView, Grid> {
 public:
  GridView(Grid& control, Screen& screen, const Node& node, QWidget* parent);

 private:
  void show_state() override;
  GridModel model_;
};

}  // namespace evac::desktop

#include "desktop/view/frames.h"

#include <QPainter>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "platform/user.h"

namespace evac::desktop {

FrameView::FrameView(Frame& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent) {}

namespace {

// Tabs that a finger can hit, with edges that can be seen; the one in front has a heavy line.
class WideTabs : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(QRect(0, height() - 1, width(), 1), grey::kLine);
    for (int tab = 0; tab < count(); ++tab) {
      const bool front = tab == currentIndex();
      const QRect area = tabRect(tab).adjusted(1, front ? 0 : 2, -1, 0);
      draw_field(p, area, front ? grey::kField : grey::kFace);
      if (front) p.fillRect(area.adjusted(0, 0, 0, 4 - area.height()), grey::kFocus);
      QFont font = this->font();
      font.setBold(front);
      p.setFont(font);
      p.setPen(grey::kText);
      p.drawText(area, Qt::AlignCenter, tabText(tab));
      if (front && hasFocus()) draw_focus_ring(p, area);
    }
  }
  QSize tabSizeHint(int index) const override {
    const int line = fontMetrics().height();
    QFont bold = font();
    bold.setBold(true);
    return {QFontMetrics(bold).horizontalAdvance(tabText(index)) + line * 3 / 2, line * 2};
  }
};

}  // namespace

TabsView::TabsView(TabStrip& control, Screen& screen, const Node& node, QWidget* parent)
    : BoundWidget(control, screen, node, parent), bar_(new WideTabs(this)), pages_(new QStackedWidget(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(bar_);
  layout->addWidget(pages_, 1);
  bar_->setExpanding(false);
  bar_->setUsesScrollButtons(false);
  bar_->setDrawBase(true);
  bar_->setObjectName(objectName() + ".bar");
  bar_->setAccessibleName(QStringLiteral("Вкладки"));
  for (const auto& tab : control.tabs()) {
    const int at = bar_->addTab(qt(tab));
    const QKeySequence key(Qt::Key_F1 + at);
    bar_->setTabToolTip(at, key.toString());
    connect(new QShortcut(key, this), &QShortcut::activated, bar_, [this, at] { bar_->setCurrentIndex(at); });
  }
  connect(new QShortcut(Qt::CTRL | Qt::Key_Tab, this), &QShortcut::activated, this, [this] { turn(1); });
  connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, this), &QShortcut::activated, this,
          [this] { turn(-1); });
  connect(bar_, &QTabBar::currentChanged, this, [this](int tab) {
    if (showing_) return;
    screen_.act([this, tab] {
      user::turn_to(control_, tab);
      // What did not reach the control is taken back.
      refresh();
    });
  });
}

void TabsView::add_page(QWidget* page) {
  auto* view = new QScrollArea(pages_);
  view->setFrameShape(QFrame::NoFrame);
  view->setFocusPolicy(Qt::NoFocus);
  view->setWidgetResizable(true);
  view->setWidget(page);
  pages_->addWidget(view);
}

void TabsView::turn(int by) {
  bar_->setCurrentIndex((bar_->currentIndex() + by + bar_->count()) % bar_->count());
}

void TabsView::show_state() {
  showing_ = true;
  bar_->setCurrentIndex(control_.value());
  pages_->setCurrentIndex(control_.value());
  showing_ = false;
}

}  // namespace evac::desktop

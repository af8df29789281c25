#include "desktop/view/host_widgets.h"

#include <QPainter>

#include "desktop/notices.h"
#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"

namespace evac::desktop {

FiresView::FiresView(std::vector<Picture*> lamps, Screen& screen, const Node& node, QWidget* parent)
    : QLabel(parent), lamps_(std::move(lamps)), screen_(screen), burning_(lamps_.size()) {
  setFont(font_of(Look::kTitle, font()));
  setObjectName("fires");
  const int line = QFontMetrics(QApplication::font()).height();
  setFixedHeight(static_cast<int>((node.height > 0 ? node.height : 1.6) * line));
  setMinimumWidth(static_cast<int>(node.width * line));
  for (Picture* lamp : lamps_) screen_.bind(*lamp, *this);
}

FiresView::~FiresView() {
  for (Picture* lamp : lamps_) screen_.unbind(*lamp, *this);
}

void FiresView::refresh() {
  QStringList zones;
  for (std::size_t i = 0; i < lamps_.size(); ++i) {
    const std::string& picture = lamps_[i]->picture();
    if (picture == picture::kPause) burning_[i] = true;
    if (picture == picture::kNo) burning_[i] = false;
    if (burning_[i]) zones << QString::number(lamps_[i]->index().value_or(0));
  }
  const QString text = zones.isEmpty()
                           ? QString()
                           : QStringLiteral("ПОЖАР  ") +
                                 (zones.size() == 1 ? QStringLiteral("зона ") : QStringLiteral("зоны ")) +
                                 zones.join(", ");
  if (text == shown_) return;
  shown_ = text;
  setText(text);
  setAccessibleName(text.isEmpty() ? QStringLiteral("Пожара нет") : text);
  setToolTip(text);
}

void FiresView::paintEvent(QPaintEvent*) {
  if (shown_.isEmpty()) return;
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  p.setBrush(signal::kFire);
  p.drawRoundedRect(rect(), 4, 4);
  p.setPen(Qt::white);
  const QRect area = rect().adjusted(10, 0, -10, 0);
  p.drawText(area, Qt::AlignVCenter | Qt::AlignLeft,
             fontMetrics().elidedText(shown_, Qt::ElideRight, area.width()));
}

NoticesView::NoticesView(Notices& notices, QWidget* parent) : QLabel(parent), notices_(notices) {
  setObjectName("notices");
  setMinimumWidth(1);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setFixedHeight(fontMetrics().height() * 4 / 3);
  QFont bold = font();
  bold.setBold(true);
  setFont(bold);
  connect(&notices, &Notices::changed, this, [this] { show_notices(); });
  show_notices();
}

void NoticesView::show_notices() {
  const QString text = notices_.text();
  setText(text);
  setToolTip(text);
  setAccessibleName(text);
}

void NoticesView::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) return;
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const double side = height() * 0.8;
  draw_picture(p, QRectF(2, (height() - side) / 2, side, side), picture::kPause);
  const QRect area = rect().adjusted(height() + 4, 0, -2, 0);
  p.setPen(grey::kText);
  p.drawText(area, Qt::AlignVCenter, fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
}

}  // namespace evac::desktop

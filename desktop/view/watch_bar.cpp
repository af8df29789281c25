#include "desktop/view/watch_bar.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "desktop/view/screen.h"
#include "platform/pictures.h"

namespace evac::desktop {
namespace {

constexpr int kEdge = 10;
constexpr int kCalmLines = 2;        // that a bar which does not burn has room for
constexpr double kPerWindow = 0.04;  // capitals of a burning bar, by the height of the window
constexpr int kMostRest = 9;         // lines behind the first that are still counted on
constexpr int kLeastPixels = 16;     // of its letters in a window that is narrow
constexpr double kBarPerCapital = 1.7;

struct RankLook {
  QColor ground, text;
  std::string_view sign;  // picture before the text
};

const RankLook& look_of(WatchRank rank) {
  static const RankLook kLooks[] = {{signal::kFire, Qt::white, {}},
                                    {signal::kPause, grey::kText, picture::kPause},
                                    {grey::kFace, grey::kText, {}}};
  return kLooks[static_cast<std::size_t>(rank)];
}

// The font whose capitals are so many pixels high.
QFont font_of_capitals(QFont font, int capitals) {
  font.setBold(true);
  font.setPixelSize(100);
  font.setPixelSize(std::max(1, capitals * 100 / std::max(1, QFontMetrics(font).capHeight())));
  while (QFontMetrics(font).capHeight() < capitals) font.setPixelSize(font.pixelSize() + 1);
  return font;
}

// The numbers of zones say more than the names of some of them, where there is no room for both.
QString without_names(QString line) {
  static const QRegularExpression name(QStringLiteral(" «[^»]*»"));
  return line.remove(name);
}

QString fitted(const QString& line, const QFontMetrics& metrics, int width) {
  if (metrics.horizontalAdvance(line) <= width) return line;
  return metrics.elidedText(without_names(line), Qt::ElideRight, width);
}

// Smaller where the window is narrow all the same, so that the first zone at least is to be read.
QFont narrowed(QFont font, const QString& line, int width) {
  const QString first = without_names(line).section(',', 0, 0) + QStringLiteral("…");
  while (font.pixelSize() > kLeastPixels && QFontMetrics(font).horizontalAdvance(first) > width)
    font.setPixelSize(font.pixelSize() - 1);
  return font;
}

QString count_text(int rest) {
  return QStringLiteral("ещё %1 ▾").arg(rest);
}

}  // namespace

WatchBar::WatchBar(WatchFeed& feed, QWidget* parent) : QWidget(parent), feed_(feed) {
  setObjectName(QStringLiteral("watch"));
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(&feed, &WatchFeed::changed, this, &WatchBar::show_change);
  show_change();
}

int WatchBar::capital_height() const {
  return std::max(kLeastCapitals, static_cast<int>(window()->height() * kPerWindow));
}

QSize WatchBar::sizeHint() const {
  const int height = static_cast<int>(capital_height() * kBarPerCapital);
  return {least_width(), std::max(kLeastHeight, height)};
}

int WatchBar::least_width() const {
  const QFontMetrics letters(font_of_capitals(font(), kLeastCapitals));
  return letters.horizontalAdvance(QStringLiteral("ПОЖАР: зона 128…")) + rest_width(kMostRest) + 4 * kEdge;
}

int WatchBar::rest_width(int rest) const {
  QFont chip = font();
  chip.setBold(true);
  return QFontMetrics(chip).horizontalAdvance(count_text(rest)) + 2 * kEdge;
}

QFont WatchBar::text_font() const {
  if (feed_.burning()) return font_of_capitals(font(), capital_height());
  QFont small = font();
  small.setBold(true);
  return small;
}

WatchBar::Shown WatchBar::shown() const {
  Shown shown;
  if (!feed_.looking()) {
    shown.lines << QStringLiteral("Пуск: обнаружение ещё не включено");
    return shown;
  }
  const auto& lines = feed_.lines();
  // Notes alone do not keep the console from watching.
  if (lines.empty() || lines.front().rank == WatchRank::kNote)
    shown.lines << QStringLiteral("Обнаружение включено");
  const qsizetype room = feed_.burning() ? 1 : kCalmLines;
  shown.rest = static_cast<int>(lines.size());
  for (const auto& line : lines)
    if (shown.lines.size() < room) {
      shown.lines << qt(line.text);
      --shown.rest;
    }
  return shown;
}

QString WatchBar::spoken() const {
  QStringList lines;
  for (const auto& line : feed_.lines()) lines << qt(line.text);
  return lines.isEmpty() ? shown().lines.front() : lines.join(QStringLiteral(". "));
}

void WatchBar::show_change() {
  setAccessibleName(spoken());
  setToolTip(spoken().replace(QStringLiteral(". "), QStringLiteral("\n")) +
             QStringLiteral("\n\nCtrl+F12 — «Стоп / сброс» из любого окна"));
  // A fire that begins is told at once, and once; the rest by its name.
  if (feed_.burning() && !was_burning_) {
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
  }
  was_burning_ = feed_.burning();
  update();
}

QRect WatchBar::rest_area(int rest) const {
  if (rest == 0) return {};
  const int width = rest_width(rest);
  return {this->width() - width - kEdge, (height() - 34) / 2, width, 34};
}

void WatchBar::paintEvent(QPaintEvent*) {
  const Shown shown = this->shown();
  const WatchRank rank = feed_.lines().empty() ? WatchRank::kNote : feed_.lines().front().rank;
  const RankLook& look = look_of(rank);
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(hasFocus() ? grey::kFocus : look.ground.darker(130), hasFocus() ? 3 : 1));
  p.setBrush(look.ground);
  p.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);

  QRect area = rect().adjusted(kEdge, 2, -kEdge, -2);
  if (!look.sign.empty()) {
    const int side = area.height() * 3 / 5;
    draw_picture(p, QRectF(area.left(), area.center().y() - side / 2, side, side), look.sign);
    area.setLeft(area.left() + side + kEdge);
  }
  if (const QRect chip = rest_area(shown.rest); !chip.isEmpty()) {
    QFont bold = font();
    bold.setBold(true);
    p.setFont(bold);
    p.setPen(QPen(look.text, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(chip, 4, 4);
    p.drawText(chip, Qt::AlignCenter, count_text(shown.rest));
    area.setRight(chip.left() - kEdge);
  }
  p.setPen(look.text);
  const QFont own = text_font();
  p.setFont(feed_.burning() ? narrowed(own, shown.lines.front(), area.width()) : own);
  const int line = area.height() / static_cast<int>(shown.lines.size());
  for (qsizetype i = 0; i < shown.lines.size(); ++i)
    p.drawText(QRect(area.left(), area.top() + static_cast<int>(i) * line, area.width(), line),
               Qt::AlignVCenter | Qt::AlignLeft, fitted(shown.lines[i], p.fontMetrics(), area.width()));
}

void WatchBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (rest_area(shown().rest).contains(event->position().toPoint()))
    open_list();
  else
    press();
}

void WatchBar::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      press();
      break;
    case Qt::Key_Down:
      open_list();
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

bool WatchBar::event(QEvent* event) {
  // The capitals follow the size of the window, which the bar learns by its own.
  if (event->type() == QEvent::Resize)
    QMetaObject::invokeMethod(
        this, [this] { updateGeometry(); }, Qt::QueuedConnection);
  return QWidget::event(event);
}

void WatchBar::press() {
  if (feed_.burning())
    feed_.show_alarm_panel();
  else
    open_list();
}

void WatchBar::open_list() {
  if (feed_.lines().empty()) return;
  auto* popup = new QFrame(this, Qt::Popup);
  popup->setAttribute(Qt::WA_DeleteOnClose);
  popup->setObjectName(QStringLiteral("watch list"));
  popup->setFrameShape(QFrame::Box);
  auto* scroll = new QScrollArea(popup);
  scroll->setWidgetResizable(true);
  auto* sheet = new QWidget(scroll);
  auto* lines = new QVBoxLayout(sheet);
  for (const auto& line : feed_.lines()) {
    auto* label = new QLabel(qt(line.text), sheet);
    label->setWordWrap(true);
    label->setMargin(6);
    label->setAutoFillBackground(true);
    QPalette colors = label->palette();
    colors.setColor(QPalette::Window, look_of(line.rank).ground);
    colors.setColor(QPalette::WindowText, look_of(line.rank).text);
    label->setPalette(colors);
    lines->addWidget(label);
  }
  lines->addStretch();
  scroll->setWidget(sheet);
  auto* layout = new QVBoxLayout(popup);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll);
  const int most = window()->height() * 2 / 3;
  popup->setFixedWidth(width());
  popup->setFixedHeight(std::min(most, sheet->heightForWidth(width()) > 0 ? sheet->heightForWidth(width()) + 8
                                                                          : sheet->sizeHint().height() + 8));
  popup->move(mapToGlobal(QPoint(0, height())));
  popup->show();
}

}  // namespace evac::desktop

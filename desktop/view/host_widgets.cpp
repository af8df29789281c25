#include "desktop/view/host_widgets.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <algorithm>
#include <numeric>

#include "desktop/notices.h"
#include "desktop/scan_feed.h"
#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "platform/pictures.h"

namespace evac::desktop {
namespace {

constexpr std::chrono::milliseconds kKeyboardLook{150};
constexpr std::chrono::seconds kTimerLook{1};

// Shares of the line that the subjects have, in their order.
constexpr int kShares[] = {4, 3, 3, 4, 3, 3, 3, 3};
static_assert(std::size(kShares) == Notices::kSubjects);
const int kAllShares = std::accumulate(std::begin(kShares), std::end(kShares), 0);

QFont bold(QFont font) {
  font.setBold(true);
  return font;
}

// The sign of a fault and the text behind it, cut to the place.
void draw_notice(QPainter& p, QRect place, const QString& text, bool fault) {
  if (fault) {
    const double side = place.height() * 0.8;
    draw_picture(p, QRectF(place.left() + 2, place.center().y() - side / 2, side, side), picture::kPause);
  }
  place.adjust(fault ? place.height() + 4 : 2, 0, -6, 0);
  p.setPen(grey::kText);
  p.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
             p.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

}  // namespace

NoticesView::NoticesView(Notices& notices, QWidget* parent) : QWidget(parent), notices_(notices) {
  setObjectName("notices");
  setMinimumWidth(1);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setFixedHeight(fontMetrics().height() * 4 / 3);
  const auto show = [this] {
    setAccessibleName(notices_.text());
    update();
  };
  connect(&notices, &Notices::changed, this, show);
  show();
}

// Begins at its own place, and may take those behind it that are empty.
QRect NoticesView::place_of(int subject) const {
  int before = 0, shares = 0;
  for (int i = 0; i < subject; ++i) before += kShares[i];
  for (int i = subject; i < Notices::kSubjects; ++i) {
    if (i > subject && !notices_.message(static_cast<Notices::Subject>(i)).isEmpty()) break;
    shares += kShares[i];
  }
  return {width() * before / kAllShares, 0, width() * shares / kAllShares, height()};
}

void NoticesView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  for (int i = 0; i < Notices::kSubjects; ++i) {
    const auto subject = static_cast<Notices::Subject>(i);
    if (notices_.message(subject).isEmpty()) continue;
    p.setFont(Notices::is_fault(subject) ? bold(font()) : font());
    draw_notice(p, place_of(i), notices_.message(subject), Notices::is_fault(subject));
  }
}

bool NoticesView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  for (int i = 0; i < Notices::kSubjects; ++i)
    if (place_of(i).contains(help->pos()))
      QToolTip::showText(help->globalPos(), notices_.message(static_cast<Notices::Subject>(i)), this);
  return true;
}

KeyboardNote::KeyboardNote(std::function<KeyboardState()> read, QWidget* parent)
    : QLabel(parent), read_(std::move(read)) {
  setObjectName("keyboard");
  setTextFormat(Qt::RichText);
  setIndent(2);
  setFixedHeight(fontMetrics().height() * 4 / 3);
  timer_.setInterval(kKeyboardLook);
  connect(&timer_, &QTimer::timeout, this, [this] { look(); });
}

void KeyboardNote::look() {
  const KeyboardState state = read_();
  QStringList parts;
  if (!state.layout.isEmpty())
    parts << QStringLiteral("Раскладка <b>%1</b>").arg(state.layout.toHtmlEscaped());
  if (state.caps_lock) parts << QStringLiteral("<b>CAPS LOCK ВКЛЮЧЁН</b>");
  const QString text = parts.join(QStringLiteral(" • "));
  if (text == this->text()) return;
  setText(text);
  setAccessibleName(QTextDocumentFragment::fromHtml(text).toPlainText());
}

void KeyboardNote::showEvent(QShowEvent* event) {
  look();
  timer_.start();
  QLabel::showEvent(event);
}

void KeyboardNote::hideEvent(QHideEvent* event) {
  timer_.stop();
  QLabel::hideEvent(event);
}

TimerAheadView::TimerAheadView(std::function<QStringList()> read, QWidget* parent)
    : QListWidget(parent), read_(std::move(read)) {
  setObjectName("timer ahead");
  setAccessibleName(QStringLiteral("Ближайшие события недельного таймера"));
  setWordWrap(true);
  setAlternatingRowColors(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setMinimumSize(fontMetrics().height() * 12, fontMetrics().height() * 3);
  timer_.setInterval(kTimerLook);
  connect(&timer_, &QTimer::timeout, this, [this] { look(); });
}

void TimerAheadView::look() {
  const QStringList lines = read_ ? read_() : QStringList();
  if (lines == lines_) return;
  lines_ = lines;
  const int row = currentRow();
  clear();
  addItems(lines);
  setCurrentRow(std::min(row, count() - 1));
}

void TimerAheadView::showEvent(QShowEvent* event) {
  look();
  timer_.start();
  QListWidget::showEvent(event);
}

void TimerAheadView::hideEvent(QHideEvent* event) {
  timer_.stop();
  QListWidget::hideEvent(event);
}

BoxNoteView::BoxNoteView(Notices& notices, QWidget* parent) : QPushButton(parent), notices_(notices) {
  setObjectName("box note");
  setFlat(true);
  setFont(bold(font()));
  QSizePolicy keep(QSizePolicy::Ignored, QSizePolicy::Fixed);
  keep.setRetainSizeWhenHidden(true);
  setSizePolicy(keep);
  connect(&notices, &Notices::changed, this, [this] { show_boxes(); });
  connect(this, &QPushButton::clicked, this, [this] { notices_.dismiss_boxes(); });
  show_boxes();
}

void BoxNoteView::show_boxes() {
  const QStringList& boxes = notices_.boxes();
  setVisible(!boxes.isEmpty());
  setToolTip(
      QStringLiteral("Окна, которые ответили сами:\n%1\n\nНажмите, чтобы убрать").arg(boxes.join('\n')));
  setAccessibleName(boxes.join(QStringLiteral("; ")));
  update();
}

void BoxNoteView::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  if (notices_.boxes().isEmpty()) return;
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const qsizetype count = notices_.boxes().size();
  QString text = notices_.boxes().back() + QStringLiteral("  ✕");
  if (count > 1) text.prepend(QStringLiteral("(%1) ").arg(count));
  draw_notice(p, rect(), text, true);
}

ScanProgressView::ScanProgressView(ScanFeed& feed, QWidget* parent) : QWidget(parent), feed_(feed) {
  setObjectName("scan progress");
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  const auto show = [this] {
    setAccessibleName(feed_.text());
    update();
  };
  connect(&feed, &ScanFeed::changed, this, show);
  show();
}

void ScanProgressView::paintEvent(QPaintEvent*) {
  const auto& pass = feed_.pass();
  if (!pass) return;
  QPainter p(this);
  const double done = std::clamp(double(pass->asked - 1) / std::max(1, pass->of), 0.0, 1.0);
  draw_field(p, rect(), grey::kField);
  p.fillRect(QRectF(1, 1, (width() - 2) * done, height() - 2), grey::kPale);
  p.setPen(grey::kText);
  p.drawText(rect(), Qt::AlignCenter, feed_.text());
}

}  // namespace evac::desktop

#include "desktop/busy_sign.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include "desktop/notices.h"
#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"

namespace evac::desktop {
namespace {

using namespace std::chrono_literals;

constexpr auto kBetweenPaints = 100ms;
constexpr auto kNoteStands = 60s;

}  // namespace

// In the middle of the window: the words over a bar.
class BusySign::Card : public QWidget {
 public:
  explicit Card(QWidget& window) : QWidget(&window) {
    setObjectName(QStringLiteral("busy"));
    const int line = fontMetrics().height();
    resize(line * 24, line * 5);
    move(window.rect().center() - rect().center());
    show();
    raise();
  }
  void tell(const QString& what, int done, int total) {
    text_ = total > 0 ? QStringLiteral("%1: %2 из %3").arg(what).arg(done).arg(total) : what;
    share_ = total > 0 ? double(done) / total : 0;
    setAccessibleName(text_);
    repaint();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    const int line = fontMetrics().height();
    draw_field(p, rect(), grey::kField);
    p.setPen(grey::kText);
    p.drawText(QRect(line, line / 2, width() - 2 * line, line * 2), Qt::AlignCenter, text_);
    const QRect bar(line, line * 3, width() - 2 * line, line);
    draw_field(p, bar, grey::kWindow);
    p.fillRect(QRectF(bar.left() + 1, bar.top() + 1, (bar.width() - 2) * share_, bar.height() - 2),
               grey::kFocus);
  }

 private:
  QString text_;
  double share_ = 0;
};

BusySign::BusySign(Notices& notices) : notices_(notices) {
  forget_.setSingleShot(true);
  QObject::connect(&forget_, &QTimer::timeout, &forget_, [this] { notices_.take_back(Notices::kWork); });
}

BusySign::~BusySign() {
  set_pointer(false);
}

void BusySign::show(QWidget& window, const QString& what, int done, int total) {
  const auto now = Clock::now();
  if (!at_work_) {
    at_work_ = true;
    worked_ = {};
    since_ = now;
    notices_.take_back(Notices::kWork);
  }
  if (!pointer_) {
    set_pointer(true);
    since_ = now;
  }
  what_ = what;
  done_ = done;
  total_ = total;
  if (worked_ + (now - since_) < kUnseen || now - painted_ < kBetweenPaints) return;
  painted_ = now;
  paint(window);
}

void BusySign::paint(QWidget& window) {
  const bool first = !card_;
  if (first) card_ = std::make_unique<Card>(window);
  card_->tell(what_, done_, total_);
  // The screen gets its due, the hands and the line do not.
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

void BusySign::hold() {
  if (!pointer_) return;
  worked_ += Clock::now() - since_;
  set_pointer(false);
  card_.reset();
}

void BusySign::over() {
  if (!at_work_) return;
  hold();
  at_work_ = false;
  if (worked_ < kUnseen) return;
  const double seconds = std::chrono::duration<double>(worked_).count();
  const QString count = done_ > 0 ? QStringLiteral(": %1").arg(done_) : QString();
  notices_.tell(
      Notices::kWork,
      QStringLiteral("%1%2 за %3 с").arg(what_, count, QString::number(seconds, 'f', 1).replace('.', ',')));
  forget_.start(kNoteStands);
}

void BusySign::set_pointer(bool busy) {
  if (pointer_ == busy) return;
  pointer_ = busy;
  if (busy)
    QApplication::setOverrideCursor(Qt::BusyCursor);
  else
    QApplication::restoreOverrideCursor();
}

}  // namespace evac::desktop

#include "desktop/boxes.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTime>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>

#include "desktop/end_signals.h"
#include "desktop/heartbeat.h"
#include "desktop/view/screen.h"
#include "desktop/view/watch_bar.h"

namespace evac::desktop {
namespace {

using namespace std::chrono_literals;

constexpr std::string_view kOwnTitle = "Пульт оповещения";
constexpr auto kFireCheck = 20ms;
constexpr auto kFaultShown = 10s;
constexpr int kButtonHeight = 40, kButtonWidth = 110;
constexpr int kTextWidth = 420;

const QString kOk = QStringLiteral("ОК"), kYes = QStringLiteral("Да"), kNo = QStringLiteral("Нет"),
              kCancel = QStringLiteral("Отмена");

QString title_or_own(std::string_view title) {
  return qt(title.empty() ? kOwnTitle : title);
}

// A box: the alarm bar, a picture and a text, what stands below them, the buttons.
class Box : public QDialog {
 public:
  Box(WatchFeed& feed, QWidget* owner, const QString& title, QStyle::StandardPixmap picture,
      const QString& text)
      : QDialog(owner) {
    setObjectName(QStringLiteral("box"));
    setWindowTitle(title);
    auto* sheet = new QVBoxLayout(this);
    sheet->setSizeConstraint(QLayout::SetFixedSize);
    auto* bar = new WatchBar(feed, this);
    bar->setFocusPolicy(Qt::NoFocus);
    sheet->addWidget(bar);
    auto* middle = new QHBoxLayout;
    auto* icon = new QLabel(this);
    icon->setPixmap(style()->standardIcon(picture).pixmap(32, 32));
    middle->addWidget(icon, 0, Qt::AlignTop);
    body_ = new QVBoxLayout;
    auto* label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("text"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(kTextWidth);
    body_->addWidget(label);
    middle->addLayout(body_, 1);
    sheet->addLayout(middle);
    held_ = new QLabel(this);
    held_->setWordWrap(true);
    sheet->addWidget(held_);
    buttons_ = new QHBoxLayout;
    buttons_->addStretch();
    sheet->addLayout(buttons_);
  }

  QPushButton* add_button(const QString& text, bool accepts, bool in_front) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(text);
    button->setMinimumSize(kButtonWidth, kButtonHeight);
    button->setDefault(in_front);
    button->setAutoDefault(in_front);
    if (in_front) button->setFocus();
    connect(button, &QPushButton::clicked, this, [this, accepts] { done(accepts ? Accepted : Rejected); });
    buttons_->addWidget(button);
    return button;
  }
  QVBoxLayout& body() { return *body_; }
  QLabel& held() { return *held_; }

 private:
  QVBoxLayout* body_;
  QLabel* held_;
  QHBoxLayout* buttons_;
};

// Runs the box to its end, but not for longer than it may hold the console: true when it answered itself.
bool run_for(
    Box& box, std::chrono::seconds most, const QString& safe_answer, const std::function<bool()>& fire,
    const std::function<void()>& while_up = [] {}) {
  bool by_itself = false;
  const auto end = std::chrono::steady_clock::now() + most;
  const auto look = [&] {
    while_up();
    const auto left = std::chrono::ceil<std::chrono::seconds>(end - std::chrono::steady_clock::now());
    if (left.count() <= 0 || fire()) {
      by_itself = true;
      box.reject();
      return;
    }
    const QString text =
        QStringLiteral(
            "Пока окно открыто, обнаружение ждёт. Через %1 с ответ «%2» будет дан сам, при пожаре — "
            "сразу.")
            .arg(left.count())
            .arg(safe_answer);
    if (box.held().text() != text) box.held().setText(text);
  };
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &box, look);
  timer.start(kFireCheck);
  look();
  if (!by_itself) box.exec();
  return by_itself;
}

}  // namespace

bool QtBoxes::run(QDialog& dialog, const QString& what, const QString& safe_answer) {
  before_box();
  const QScopedValueRollback up(up_, &dialog);
  const auto most = raised_by_user() ? kForPresses : kForTicks;
  if (run_for(static_cast<Box&>(dialog), most, safe_answer, fire_waits, while_up)) notices_.keep_box(what);
  return dialog.result() == QDialog::Accepted;
}

void QtBoxes::answer_safely() {
  if (up_) up_->reject();
}

void QtBoxes::message(std::string_view text, std::string_view title) {
  Box box(feed_, QApplication::activeWindow(), title_or_own(title), QStyle::SP_MessageBoxInformation,
          qt(text));
  box.add_button(kOk, true, true);
  run(box, qt(text), kOk);
}

bool QtBoxes::ask(std::string_view text, std::string_view title) {
  Box box(feed_, QApplication::activeWindow(), title_or_own(title), QStyle::SP_MessageBoxQuestion, qt(text));
  box.add_button(kYes, true, false);
  box.add_button(kNo, false, true);
  return run(box, QStringLiteral("%1 — %2").arg(qt(text), kNo), kNo);
}

std::string QtBoxes::input(std::string_view prompt, std::string_view title, std::string_view preset) {
  Box box(feed_, QApplication::activeWindow(), title_or_own(title), QStyle::SP_MessageBoxQuestion,
          qt(prompt));
  auto* typed = new QLineEdit(qt(preset), &box);
  typed->setObjectName(QStringLiteral("input"));
  typed->setMinimumHeight(kButtonHeight);
  typed->selectAll();
  box.body().addWidget(typed);
  box.add_button(kOk, true, true);
  box.add_button(kCancel, false, false);
  typed->setFocus();
  const bool accepted = run(box, QStringLiteral("%1 — %2").arg(qt(prompt), kCancel), kCancel);
  return accepted ? plain(typed->text()) : std::string();
}

bool ask_host(WatchFeed& feed, QWidget* owner, const QString& text) {
  Box box(feed, owner, qt(kOwnTitle), QStyle::SP_MessageBoxWarning, text);
  box.add_button(kYes, true, false);
  box.add_button(kNo, false, true);
  Heartbeat heartbeat;
  run_for(
      box, QtBoxes::kForPresses, kNo, [] { return false; }, [&heartbeat] { heartbeat.beat(); });
  return box.result() == QDialog::Accepted;
}

void show_fault(int number, const std::string& text) {
  QMessageBox box(QMessageBox::Critical, qt(kOwnTitle),
                  QStringLiteral("Ошибка %1: %2\n\nПрограмма завершается.").arg(number).arg(qt(text)),
                  QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  QTimer::singleShot(kFaultShown, &box, &QMessageBox::reject);
  // The service manager must not take the reading of it for a hang.
  Heartbeat heartbeat;
  QTimer beats;
  QObject::connect(&beats, &QTimer::timeout, &box, [&heartbeat] { heartbeat.beat(); });
  beats.start(kFireCheck);
  box.exec();
}

void show_start_error(const QString& text) {
  QMessageBox box(QMessageBox::Critical, qt(kOwnTitle), text, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  EndSignals signals_that_end;
  QObject::connect(&signals_that_end, &EndSignals::end_wanted, &box, &QMessageBox::reject);
  box.exec();
}

}  // namespace evac::desktop

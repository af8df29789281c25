// The weekly timer on the desktop: a programme is given its dates by mouse and by keyboard, and the panel
// says what comes next.
#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QTest>

#include "desktop/timer_ahead.h"
#include "desktop/view/months.h"
#include "store/programme_files.h"
#include "store/timer_record.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::seconds;

class TimerDesktop : public TrainingDesktop {
 protected:
  TimerDesktop() {
    desktop->start();
    resize_main(1260, 650);
  }
  // Has the keyboard in the window that is in front.
  static QWidget* focus() {
    QWidget* window = QApplication::activeModalWidget();
    return window->focusWidget() ? window->focusWidget() : window;
  }
  // As many times.
  static void key(Qt::Key key, int times = 1, Qt::KeyboardModifiers held = {}) {
    for (; times > 0; --times) QTest::keyClick(focus(), key, held);
  }
  std::function<void()> press(Control& control) {
    return [this, &control] { widget<QAbstractButton>(control)->click(); };
  }
  // Notes what the box says that is up, and presses Enter on it.
  std::function<void()> answer_box() {
    return [this] {
      for (auto* words : QApplication::activeModalWidget()->findChildren<QLabel*>()) said << words->text();
      key(Qt::Key_Return);
    };
  }
  MonthsView& months() { return *widget<MonthsView>(forms().frm8.MonthView1); }
  void press_day(Date day) {
    QTest::mouseClick(&months(), Qt::LeftButton, {}, months().place_of(day).center());
  }
  // Opens the choice of a programme and its dates, the way from the menu, and closes all behind it.
  void work_choice(std::vector<std::function<void()>> steps) {
    forms().form3.CmbLstProg.add("Школа");
    steps.insert(steps.begin(), press(forms().frm_tm.CmdAdd));
    steps.push_back([this] { window(forms().frm_tm).close(); });
    work_modal([this] { forms().form3.CmdR.click(); }, std::move(steps));
  }
  std::vector<std::string> saved_schedule() {
    FilesState known;
    DataFolder folder({desktop->files(), desktop->console().model().settings, known});
    return read_schedule(folder);
  }
  Date today() { return date_of(desktop->loop().wall()); }
  Date in_days(int count) { return Date(local_days(today()) + days(count)); }
  std::string entry(int from, int to) {
    return schedule_text("Школа", short_date_text(in_days(from)), short_date_text(in_days(to)));
  }
  QStringList said;
};

TEST_F(TimerDesktop, ARangeOfDatesIsDrawnOrPressedAndGoesIntoTheSchedulesFile) {
  const auto choose = [this] {
    QTest::mouseClick(widget<QListView>(forms().frm8.Lst1)->viewport(), Qt::LeftButton, {}, QPoint(9, 9));
  };
  const auto again = press(forms().frm_tm.CmdAdd);
  QString aloud;
  work_choice({choose,
               [this] {
                 const auto at = [this](int day) { return months().place_of(in_days(day)).center(); };
                 QTest::mousePress(&months(), Qt::LeftButton, {}, at(1));
                 for (const int day : {2, 14, 12}) QTest::mouseMove(&months(), at(day));
                 QTest::mouseRelease(&months(), Qt::LeftButton, {}, at(12));
               },
               answer_box(), [&] { aloud = months().accessibleName(); }, press(forms().frm8.Command1), again,
               choose,
               // The last day first, and one day alone.
               [this] { press_day(in_days(20)); }, [this] { press_day(in_days(5)); }, answer_box(),
               press(forms().frm8.Command1), again, choose, [this] { press_day(in_days(3)); },
               [this] { press_day(in_days(3)); }, answer_box(), press(forms().frm8.Command1),
               press(forms().frm_tm.Command2)});
  EXPECT_EQ(saved_schedule(), (std::vector{entry(1, 12), entry(5, 20), entry(3, 3)}));
  EXPECT_TRUE(said.contains(QStringLiteral("Диапазон дат: с %1 по %2")
                                .arg(qt(short_date_text(in_days(1))), qt(short_date_text(in_days(12))))));
  EXPECT_TRUE(aloud.startsWith("Диапазон дат, ") &&
              aloud.endsWith(QStringLiteral("выбрано с %1 по %2")
                                 .arg(qt(short_date_text(in_days(1))), qt(short_date_text(in_days(12))))))
      << aloud.toStdString();
}

std::string record(const char* function, const char* message = "Вкл/Выкл") {
  return timer_record({"1", "0", "0", "0", "1", message, "1", "60", function});
}

TEST(TimerAhead, TellsWhatComesAndWhatNeverWillWithWhy) {
  // A Friday, the engine waiting for the bell of 23:59:59.
  const Date friday{std::chrono::November / 27 / 2026};
  const WallTime now = local_days(friday) + seconds(20 * 3600);
  constexpr int kBell = kSecondsPerDay - 1;
  TimerState timer;
  timer.events = {{record("Сообщение", "Звонок.wav"), kBell, 0b0011111},
                  {record("№2CD-stop"), kBell, 0b0010001},
                  {record("№пресета 2"), 0, 0b1100000},
                  {record("№2FM12"), 36000, 0b0100000},
                  {record("Остановка"), 600, 0},
                  {"", 0, 0}};
  timer.tm_scan = false;
  timer.tm_next_s = kBell;
  timer.tm_next_d = friday;
  const QStringList passed_over = {"✕ Запись 2, 23:59:59: никогда, в эту секунду уже есть событие",
                                   "✕ Запись 3, 0:00:00: не сработает СБ, за секунду до неё другое событие",
                                   "✕ Запись 5, 0:10:00: никогда, нет дней недели"};
  const QStringList coming = {"Сегодня 23:59:59  Звонок.wav, терминалы 1–60",
                              "Завтра 10:00:00  №2FM12, терминалы 1–60", "ВС 29.11 0:00:00  №пресета 2",
                              "ПН 30.11 23:59:59  Звонок.wav, терминалы 1–60",
                              "ВТ 01.12 23:59:59  Звонок.wav, терминалы 1–60"};
  EXPECT_EQ(timer_ahead(timer, now), coming + passed_over);
  // Missed: nothing comes behind it.
  const QStringList missed = timer_ahead(timer, now + seconds(4 * 3600));
  EXPECT_TRUE(missed.front().startsWith("Событие ПТ 27.11 23:59:59 прошло")) << missed.front().toStdString();
  EXPECT_EQ(missed.mid(1), passed_over);
  timer.tm_on = false;
  EXPECT_EQ(timer_ahead(timer, now).mid(1), passed_over);
  EXPECT_EQ(timer_ahead(TimerState{}, now), QStringList{"В программе нет событий"});
}

}  // namespace
}  // namespace evac::desktop

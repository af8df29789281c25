#include "desktop/stand.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include "desktop/view/palette.h"
#include "desktop/view/screen.h"

namespace evac::desktop {
namespace {

constexpr int kRefresh = 500;  // milliseconds
constexpr int kZones = 120, kTerminals = 255;

CellLook output_look(const rack::Output& output, const QString& what, int number) {
  const bool colored = output.on && output.channel >= 1 && output.channel <= 5;
  const Color color = colored ? kLegendColors[static_cast<std::size_t>(output.channel - 1)] : Color::kWindow;
  const QString state = output.on
                            ? QStringLiteral("канал %1, громкость %2").arg(output.channel).arg(output.volume)
                            : QStringLiteral("выключено");
  return {screen_color(color), output.on, QStringLiteral("%1 %2: %3").arg(what).arg(number).arg(state)};
}

// The ways in which a terminal answers the scan.
struct Way {
  const char* words;
  const char* mark;  // behind its number
  bool silent = false, absent = false, slow = false;
  std::optional<rack::Rack::Answer> answer{};
};
constexpr std::chrono::milliseconds kSlow{700};  // later than the console waits
const Way kWays[] = {
    {"отвечает", ""},
    {"молчит", "×", true},
    {"отвечает через 0,7 с", "…", false, false, true},
    {"его нет: канал 255", "–", false, true},
    {"отвечает: зона 0", "?", false, false, false, rack::Rack::Answer{1, 20, 0, 0}},
    {"отвечает: зона 200", "?", false, false, false, rack::Rack::Answer{1, 20, 200, 0}},
};

const Way& way_of(const rack::Rack& rack, int terminal) {
  const auto answer = rack.own_answer(terminal);
  return *std::ranges::find_if(kWays, [&](const Way& way) {
    return &way == std::end(kWays) - 1 ||
           (way.silent == rack.is_silent(terminal) && way.absent == rack.is_absent(terminal) &&
            way.slow == rack.is_slow(terminal) && way.answer.has_value() == answer.has_value() &&
            (!answer || way.answer->zone == answer->zone));
  });
}

QGroupBox* group(const QString& title, QLayout* layout) {
  auto* box = new QGroupBox(title);
  layout->setContentsMargins(6, 6, 6, 6);
  box->setLayout(layout);
  return box;
}

}  // namespace

Stand::Stand(TrainingLine& line) : line_(line) {
  setObjectName(QString::fromUtf8(kName));
  setWindowTitle(QStringLiteral("Стенд — виртуальная стойка"));
  auto* top = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  left->addWidget(line_panel());
  left->addWidget(contact_panel());
  left->addWidget(terminal_panel());
  left->addStretch(1);
  top->addLayout(left);
  top->addWidget(network_panel(), 1);
  auto* all = new QVBoxLayout(this);
  all->addLayout(top);
  all->addWidget(log_panel(), 1);
  connect(&line_, &TrainingLine::passed, this, [this](const rack::Passed& frame) {
    changed_ = changed_ || !FrameLog::is_poll(frame);
    log_.add(frame);
  });
  refresh_.setInterval(kRefresh);
  connect(&refresh_, &QTimer::timeout, this, &Stand::show_changes);
  refresh_.start();
}

void Stand::show_behind() {
  setAttribute(Qt::WA_ShowWithoutActivating);
  show();
  lower();
}

void Stand::bring_up() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

QWidget* Stand::line_panel() {
  const auto& rack = line_.rack();
  plugged_ = new QCheckBox(QStringLiteral("Линия подключена"));
  plugged_->setChecked(line_.plugged());
  connect(plugged_, &QCheckBox::clicked, this, [this](bool on) {
    if (on)
      line_.plug();
    else
      line_.unplug();
  });
  paced_ = new QCheckBox(QStringLiteral("Скорость линии 4800 бод"));
  paced_->setChecked(true);
  link_ = new QCheckBox(QStringLiteral("Бит «связь»"));
  link_->setChecked(rack.link_bit());
  programme_ = new QCheckBox(QStringLiteral("Бит «программа в работе»"));
  programme_->setChecked(rack.programme_bit());
  period_ = new QSpinBox;
  period_->setRange(0, 60000);
  period_->setSingleStep(100);
  period_->setSuffix(QStringLiteral(" мс"));
  period_->setSpecialValueText(QStringLiteral("нет"));
  period_->setValue(static_cast<int>(rack.poll_period().count()));
  for (auto* box : {paced_, link_, programme_}) connect(box, &QCheckBox::clicked, this, &Stand::follow_line);
  connect(period_, &QSpinBox::valueChanged, this, [this](int period) {
    line_.change([&](rack::Rack& rack) { rack.set_poll_period(std::chrono::milliseconds(period)); });
  });
  follow_line();

  auto* polls = new QHBoxLayout;
  polls->addWidget(new QLabel(QStringLiteral("Опрос каждые")));
  polls->addWidget(period_, 1);
  auto* layout = new QVBoxLayout;
  layout->addWidget(plugged_);
  layout->addWidget(paced_);
  layout->addLayout(polls);
  layout->addWidget(link_);
  layout->addWidget(programme_);
  clock_ = new QLabel;
  polls_ = new QLabel;
  layout->addWidget(clock_);
  layout->addWidget(polls_);
  return group(QStringLiteral("Контроллер"), layout);
}

void Stand::follow_line() {
  line_.change([this](rack::Rack& rack) {
    rack.set_paced(paced_->isChecked());
    rack.set_status(link_->isChecked(), programme_->isChecked());
    if (polls_in_scan_) rack.set_polls_in_scan(polls_in_scan_->isChecked());
  });
}

QWidget* Stand::contact_panel() {
  contacts_ = new CellBoard(
      rack::Rack::kContacts, 16,
      [this](int contact) -> CellLook {
        const bool closed = line_.rack().contact(contact);
        return {closed ? signal::kFire : grey::kField, closed,
                QStringLiteral("Контакт зоны %1: %2")
                    .arg(contact)
                    .arg(closed ? QStringLiteral("замкнут") : QStringLiteral("разомкнут"))};
      },
      this);
  contacts_->set_pressable();
  contacts_->setObjectName(QStringLiteral("contacts"));
  contacts_->setAccessibleName(QStringLiteral("Пожарные контакты зон"));
  connect(contacts_, &CellBoard::pressed, this, [this](int contact) {
    line_.change([&](rack::Rack& rack) { rack.set_contact(contact, !rack.contact(contact)); });
  });
  auto* open_all = new QPushButton(QStringLiteral("Разомкнуть все"));
  connect(open_all, &QPushButton::clicked, this, [this] {
    line_.change([](rack::Rack& rack) {
      for (int contact = 1; contact <= rack::Rack::kContacts; ++contact) rack.set_contact(contact, false);
    });
    contacts_->update();
  });
  auto* zone = new QSpinBox;
  zone->setRange(1, kZones);
  auto* alarm = new QPushButton(QStringLiteral("Тревога блока в зоне"));
  connect(alarm, &QPushButton::clicked, this,
          [this, zone] { line_.change([&](rack::Rack& rack) { rack.report_alarm(zone->value()); }); });
  auto* foot = new QHBoxLayout;
  foot->addWidget(open_all);
  foot->addStretch(1);
  foot->addWidget(alarm);
  foot->addWidget(zone);
  auto* layout = new QVBoxLayout;
  layout->addWidget(contacts_);
  layout->addLayout(foot);
  return group(QStringLiteral("Пожарные контакты (нажмите, чтобы замкнуть)"), layout);
}

QWidget* Stand::network_panel() {
  const auto& network = line_.rack().network();
  zones_ = new CellBoard(
      kZones, 20,
      [&network](int zone) { return output_look(network.zone(zone), QStringLiteral("Зона"), zone); }, this);
  zones_->setAccessibleName(QStringLiteral("Зоны"));
  terminals_ = new CellBoard(
      kTerminals, 22,
      [this](int number) {
        CellLook look =
            output_look(line_.rack().network().terminal(number), QStringLiteral("Терминал"), number);
        const Way& way = way_of(line_.rack(), number);
        look.text = QString::number(number) + QString::fromUtf8(way.mark);
        look.tip += QStringLiteral("; на опрос %1").arg(QString::fromUtf8(way.words));
        return look;
      },
      this);
  terminals_->set_pressable();
  terminals_->setObjectName(QStringLiteral("terminals"));
  connect(terminals_, &CellBoard::pressed, this, &Stand::answer_as_chosen);
  terminals_->setAccessibleName(QStringLiteral("Терминалы"));
  outlets_ = new CellBoard(
      rack::Network::kBlocks * 8, 16,
      [&network](int cell) -> CellLook {
        const int block = (cell - 1) / 8 + 1, outlet = (cell - 1) % 8 + 1;
        const bool on = network.outlet(block, outlet);
        return {on ? screen_color(Color::kOn) : grey::kField, on,
                QStringLiteral("Блок питания %1, CH%2: %3")
                    .arg(block)
                    .arg(outlet)
                    .arg(on ? QStringLiteral("включён") : QStringLiteral("выключен")),
                QString::number(outlet)};
      },
      this);
  outlets_->setAccessibleName(QStringLiteral("Выходы питания"));
  network_ = new QLabel;
  network_->setWordWrap(true);
  network_->setTextFormat(Qt::PlainText);
  network_->setMinimumHeight(fontMetrics().height() * 4);
  network_->setAlignment(Qt::AlignTop);
  auto* layout = new QVBoxLayout;
  layout->addWidget(new QLabel(QStringLiteral("Зоны")));
  layout->addWidget(zones_, 6);
  layout->addWidget(new QLabel(QStringLiteral("Терминалы (нажмите, чтобы на опрос отвечали иначе)")));
  layout->addWidget(terminals_, 12);
  layout->addWidget(new QLabel(QStringLiteral("Питание: выходы блоков 1–8, по два блока в ряду")));
  layout->addWidget(outlets_, 4);
  layout->addWidget(network_);
  return group(QStringLiteral("Что слышит стойка"), layout);
}

QWidget* Stand::terminal_panel() {
  way_ = new QComboBox;
  way_->setObjectName(QStringLiteral("way"));
  way_->setAccessibleName(QStringLiteral("Как отвечает нажатый терминал"));
  for (const Way& way : kWays) way_->addItem(QString::fromUtf8(way.words));
  way_->setCurrentIndex(1);
  auto* all = new QPushButton(QStringLiteral("Так все"));
  connect(all, &QPushButton::clicked, this, [this] {
    for (int terminal = 1; terminal <= kTerminals; ++terminal) answer_as_chosen(terminal);
  });
  auto* last = new QSpinBox;
  last->setRange(1, kTerminals);
  last->setValue(20);
  auto* burst = new QPushButton(QStringLiteral("Залп ответов терминалов 1 –"));
  burst->setObjectName(QStringLiteral("burst"));
  connect(burst, &QPushButton::clicked, this,
          [this, last] { line_.change([&](rack::Rack& rack) { rack.send_answers(1, last->value()); }); });
  polls_in_scan_ = new QCheckBox(QStringLiteral("Контроллер опрашивает и во время опроса терминалов"));
  polls_in_scan_->setChecked(line_.rack().polls_in_scan());
  connect(polls_in_scan_, &QCheckBox::clicked, this, &Stand::follow_line);
  auto* choice = new QHBoxLayout;
  choice->addWidget(new QLabel(QStringLiteral("Нажатый")));
  choice->addWidget(way_, 1);
  choice->addWidget(all);
  auto* foot = new QHBoxLayout;
  foot->addWidget(burst);
  foot->addWidget(last);
  foot->addStretch(1);
  auto* layout = new QVBoxLayout;
  layout->addLayout(choice);
  layout->addLayout(foot);
  layout->addWidget(polls_in_scan_);
  return group(QStringLiteral("Опрос терминалов"), layout);
}

void Stand::answer_as_chosen(int terminal) {
  const Way& way = kWays[way_->currentIndex()];
  line_.change([&](rack::Rack& rack) {
    rack.set_silent(terminal, way.silent);
    rack.set_absent(terminal, way.absent);
    rack.set_slow(terminal, way.slow ? std::optional(kSlow) : std::nullopt);
    auto answer = way.answer;
    if (answer && answer->zone != 0) answer->terminal = static_cast<std::uint8_t>(terminal);
    rack.set_answer(terminal, answer);
  });
  terminals_->update();
}

QWidget* Stand::log_panel() {
  table_ = new QTableView;
  table_->setObjectName(QStringLiteral("frames"));
  table_->setModel(&log_);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 5 / 4);
  table_->setSelectionBehavior(QTableView::SelectRows);
  table_->setShowGrid(false);
  table_->setTabKeyNavigation(false);
  const int line = fontMetrics().height();
  table_->setColumnWidth(FrameLog::kTime, line * 6);
  table_->setColumnWidth(FrameLog::kFrom, line * 8);
  table_->setColumnWidth(FrameLog::kBytes, line * 13);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->setMinimumHeight(line * 4);
  auto* polls = new QCheckBox(QStringLiteral("Без опросов и ответов на них"));
  polls->setChecked(true);
  connect(polls, &QCheckBox::toggled, this, [this](bool on) { log_.hide_polls(on); });
  auto* clear = new QPushButton(QStringLiteral("Очистить"));
  connect(clear, &QPushButton::clicked, this, [this] { log_.clear(); });
  auto* foot = new QHBoxLayout;
  foot->addWidget(polls);
  foot->addStretch(1);
  foot->addWidget(clear);
  auto* layout = new QVBoxLayout;
  layout->addWidget(table_, 1);
  layout->addLayout(foot);
  return group(QStringLiteral("Кадры на линии"), layout);
}

void Stand::show_changes() {
  if (!isVisible()) return;
  auto& rack = line_.rack();
  plugged_->setChecked(line_.plugged());
  const auto& network = rack.network();
  const auto time = rack.calendar();
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  const auto set = [](bool was) {
    return was ? QStringLiteral("выставлено") : QStringLiteral("не выставлено");
  };
  clock_->setText(QStringLiteral("Дата %1.%2.%3 (%4)\nЧасы %5:%6:%7 (%8)")
                      .arg(unsigned(date.day()), 2, 10, QChar('0'))
                      .arg(unsigned(date.month()), 2, 10, QChar('0'))
                      .arg(int(date.year()))
                      .arg(set(network.date_set()))
                      .arg(clock.hours().count())
                      .arg(clock.minutes().count(), 2, 10, QChar('0'))
                      .arg(clock.seconds().count(), 2, 10, QChar('0'))
                      .arg(set(network.time_set())));
  polls_->setText(QStringLiteral("Опросов %1, ответов %2").arg(rack.polls_sent()).arg(rack.polls_answered()));
  const auto* scroll = table_->verticalScrollBar();
  const bool at_end = scroll->value() >= scroll->maximum();
  log_.show_new();
  if (at_end) table_->scrollToBottom();
  if (!std::exchange(changed_, false)) return;
  zones_->update();
  terminals_->update();
  outlets_->update();
  network_->setText(network_words());
}

QString Stand::network_words() const {
  const auto& network = line_.rack().network();
  QString text = QStringLiteral("Включено зон: %1").arg(network.zones_on());
  if (network.alert()) text += QStringLiteral("   ОПОВЕЩЕНИЕ: все зоны и аварийные каналы");
  const auto on = [](bool is) { return is ? QStringLiteral("включён") : QStringLiteral("выключен"); };
  text += QStringLiteral("\nАварийные каналы: 9 %1, 10 %2").arg(on(network.alarm9()), on(network.alarm10()));
  text += QStringLiteral("\nМатрица: ");
  for (int output = 1; output <= 8; ++output) {
    const int input = network.matrix_input(output);
    text += QStringLiteral("CH%1←%2 ")
                .arg(output)
                .arg(input == 0    ? QStringLiteral("MUTE")
                     : input == 15 ? QStringLiteral("нет")
                                   : QStringLiteral("IN%1").arg(input));
  }
  const auto deck = [](const QString& name, const rack::Source& source) {
    if (!source.playing) return name + QStringLiteral(": стоп");
    return QStringLiteral("%1: дорожка %2, выход %3").arg(name).arg(source.value).arg(source.output);
  };
  const auto& tuner = network.tuner();
  text += '\n' + deck(QStringLiteral("CD"), network.cd()) + QStringLiteral("; ") +
          deck(QStringLiteral("MP3"), network.mp3()) + QStringLiteral("; тюнер: ") +
          (tuner.playing ? QStringLiteral("%1, станция %2")
                               .arg(tuner.operation == 1 ? QStringLiteral("FM") : QStringLiteral("AM"))
                               .arg(tuner.value)
                         : QStringLiteral("стоп"));
  return text;
}

}  // namespace evac::desktop

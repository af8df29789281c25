#include "desktop/desktop.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "desktop/host_log.h"
#include "desktop/layouts/layouts.h"
#include "desktop/login_manager.h"
#include "desktop/stand.h"
#include "desktop/timer_ahead.h"
#include "desktop/training_music.h"
#include "desktop/view/pictures.h"
#include "model/text.h"
#include "platform/listers.h"
#include "store/admin_files.h"
#include "store/play_list_file.h"

namespace evac::desktop {
namespace {

constexpr const char* kTrainingTitle = " — учебный режим";

constexpr std::chrono::seconds kDeviceWatch{1}, kLastAnswer{1};
// For what was not looked at ahead; a length that is only summed up may take longer.
constexpr std::chrono::milliseconds kSoundPatience = Patience::kAnEvent, kSumPatience{500};
constexpr std::string_view kMessageFolder = "C:\\ZEF_DAT\\message";
constexpr int kLooksPerProbe = 5;
constexpr int kAlarmTab = 0;
constexpr std::string_view kDataFolder = "C:\\ZEF_DAT";
constexpr std::string_view kWrittenFolders[] = {kProgramFolder, kDataFolder};
constexpr std::string_view kSettingsFolders[] = {kDataFolder, "C:\\ZEF_DAT\\alarm", "C:\\ZEF_DAT\\timer"};
constexpr std::string_view kSettingsFile = "C:\\ZEF_DAT\\F_ust.dat";

std::map<int, QString> devices(const HostSetup& setup) {
  std::map<int, QString> names;
  for (const auto& [number, device] : setup.ports) names[number] = QString::fromStdString(device);
  return names;
}

QString disk_trouble(const BackgroundFiles::Health& health) {
  if (health.stuck && health.waiting == 0) return QStringLiteral("Диск не отвечает");
  if (health.stuck) return QStringLiteral("Диск не отвечает, ждут записи: %1").arg(health.waiting);
  if (health.failing.empty()) return {};
  const auto name = health.failing.substr(health.failing.rfind('\\') + 1);
  return qt(join("Не записывается ", name, ": ", words_of(health.error)));
}

QString moment(WallTime time) {
  return qt(join(short_date_text(date_of(time)), " ", time_text(second_of_day(time))));
}

QStringList strings(const std::vector<std::string>& lines) {
  QStringList list;
  for (const auto& line : lines) list << QString::fromStdString(line);
  return list;
}

}  // namespace

Desktop::Disks::Disks(const HostSetup& setup)
    : disk(setup.drives),
      // Nobody waits for a sync, and the next line tries again.
      files(disk, patience, [this](const std::string& path, bool folder) { (void)disk.sync(path, folder); }) {
}

void Desktop::LeaveStuck::operator()(Disks* disks) const {
  if (disks->files.end(kLastAnswer)) delete disks;
}

Desktop::Desktop(const HostSetup& setup, std::unique_ptr<TrainingLine> training)
    : training_(std::move(training)),
      disks_(new Disks(setup)),
      line_(loop_, devices(setup), notices_),
      sound_{setup.sound_sink, setup.sound_font},
      // Files of its own: a look that is stuck outlives all the rest here.
      messages_([disk = PosixFiles(setup.drives)](std::string_view path) { return disk.locate(path); },
                sound_),
      tracks_([disk = PosixFiles(setup.drives)](std::string_view path) { return disk.locate(path); }, sound_),
      mp_(tracks_, sound_, kSoundPatience, &patience_),
      mp1_(messages_, sound_, kSoundPatience, &patience_),
      mp2_(messages_, sound_, kSoundPatience, &patience_),
      mp3_(tracks_, sound_, kSumPatience),
      comedi_(setup.cards),
      tone_(sound_),
      process_(setup.restart_armed, notices_, feed_,
               [this](auto refused) {
                 ask_login_manager(QDBusConnection::systemBus(), process_, std::move(refused));
               }),
      screen_(loop_),
      windows_(screen_,
               {.notices = notices_,
                .feed = feed_,
                .scan = scan_,
                .track = {.on = [this] { return console_->model().player.mp_pow; },
                          .length = [this] { return mp_.duration(); },
                          .position = [this] { return mp_.position(); }},
                .timer_ahead = [this] { return timer_ahead(console_->model().timer, loop_.wall()); },
                .stand_button = [this](QWidget* parent) { return make_stand_button(parent); }},
               training_ ? QString::fromUtf8(kTrainingTitle) : QString()) {
  mp_.presume_unknown();
  mp2_.measure_aside();
  if (training_)
    simulated_cards_ = std::make_unique<SimulatedCards>(
        [this](int card, int port) { return training_->rack().contact_word(card, port); });
  // It is there from the second start on; what it is needed for says so if it can't be made.
  (void)files_.make_folder(kProgramFolder);
  for (const std::string_view folder : kWrittenFolders) disk_.remove_left_over(folder);
  host_.before_wait = [this] {
    patience_.renew();
    for (GstMedia* media : {&mp_, &mp1_, &mp2_, &mp3_}) media->settle();
    scan_.look();
    look_at_tracks_ahead();
    screen_.flush();
  };
  host_.display_lost = [this] {
    if (!ending_) end(QStringLiteral("дисплей потерян"));
  };
  host_.steady_wall().changed = [this] { loop_.keep_phase(); };
  host_.steady_wall().stepped = [this](WallTime from, WallTime to) {
    notices_.keep_box(QStringLiteral("Часы компьютера переведены: %1 → %2").arg(moment(from), moment(to)));
  };
  boxes_.before_box = [this] {
    patience_.renew();
    windows_.hold_busy();
    screen_.flush();
  };
  windows_.work_goes_on = [this] { patience_.renew(); };
  boxes_.raised_by_user = [this] { return screen_.in_act(); };
  boxes_.fire_waits = windows_.work_must_end = [this] { return ending_ || console_->fire_waiting().now(); };
  boxes_.while_up = windows_.while_busy = [this] { heartbeat_.beat(); };
  Cards& cards = simulated_cards_ ? static_cast<Cards&>(*simulated_cards_) : comedi_;
  console_ = std::make_unique<Console>(
      Machine{loop_, windows_, line_, files_, {mp_, mp1_, mp2_, mp3_}, cards, boxes_, tone_, process_});
  windows_.set_layouts(all_layouts(console_->forms()));
  feed_.follow(console_->watch());
  scan_.follow([this] { return scan_pass(); });
  QObject::connect(&feed_, &WatchFeed::changed, &feed_, [this] { show_signs(); });
  QObject::connect(&notices_, &Notices::changed, &notices_, [this] { show_signs(); });
  feed_.show_alarm_panel = [this] { screen_.act([this] { console_->form1().SSTab1.set_value(kAlarmTab); }); };
  qApp->installEventFilter(this);
  QObject::connect(&device_watch_, &QTimer::timeout, &device_watch_, [this] { look_after_devices(); });
  device_watch_.start(kDeviceWatch);
  // The detection itself is what shows that the console lives.
  Timer& detection = console_->form1().Timer4;
  detection.tick = [this, tick = detection.tick] {
    tick();
    heartbeat_.beat();
  };
  QObject::connect(&end_signals_, &EndSignals::end_wanted, this, [this](const QString& name) { end(name); });
  QObject::connect(&end_signals_, &EndSignals::window_wanted, this, [this] { bring_up(); });
  // A device that is playing is not opened a second time, only to see whether it can be.
  self_check_ = std::make_unique<SelfCheck>(
      CheckSetup{.settings_file = disk_.locate(kSettingsFile),
                 .state = setup.state,
                 .sound = [setup = sound_, sounding = sounding_, last = QStringList()]() mutable {
                   if (!*sounding) last = strings(missing_sound(setup));
                   return last;
                 }});
  QObject::connect(
      self_check_.get(), &SelfCheck::looked, this, [this](const QString& data, const QStringList& sound) {
        if (!training_)
          notices_.tell(Notices::kData, data.isEmpty() ? QString() : QStringLiteral("Проверка: ") + data);
        missing_sound_ = sound;
        look_after_devices();
      });
  self_check_->start();
  look_after_devices();
}

Desktop::~Desktop() {
  heartbeat_.stopping();
  // Widgets refer to controls, and what is still posted to both.
  stand_.reset();
  loop_.clear();
  windows_.destroy();
  feed_.let_go();
  scan_.let_go();
  console_.reset();
}

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_F12 && key->modifiers() == Qt::ControlModifier) {
      if (event->type() == QEvent::KeyPress && !key->isAutoRepeat() && watched->isWindowType()) stop_alert();
      event->accept();
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

void Desktop::stop_alert() {
  // A box holds the console: it goes first. The press reaches the button also behind a settings window.
  boxes_.answer_safely();
  screen_.act([this] {
    Button& stop = console_->form1().CmdStF;
    if (stop.usable()) stop.click();
  });
}

void Desktop::start() {
  if (training_) {
    training_->plug();
    stand_ = std::make_unique<Stand>(*training_);
  }
  if (const QDateTime cut_off = self_check_->cut_off(); cut_off.isValid()) {
    const QString text =
        QStringLiteral("Предыдущая работа прервана %1").arg(cut_off.toString(QStringLiteral("H:mm:ss")));
    notices_.keep_box(text);
    host_log(text);
  }
  read_settings_ahead();
  console_->load();
  patience_.end_start();
  heartbeat_.ready();
}

void Desktop::read_settings_ahead() {
  std::string bytes;
  // What can't be read says so to who needs it.
  const auto read = [&](std::string_view folder, std::string_view name) {
    (void)files_.read(path_in(folder, name), bytes);
  };
  for (const std::string_view folder : kSettingsFolders)
    for (const std::string& name : files_.files(folder)) read(folder, name);
  for (const std::string& name : files_.files(kProgramFolder))
    if (is_play_list(name)) read(kProgramFolder, name);
  // Where the player looks for its own folder, so as not to ask for one that is there; and its first drive.
  (void)files_.folders(kProgramFolder);
  (void)files_.drive_ready(kProgramFolder[0]);
  // Without it nobody would get into the settings; often there is none.
  read(kDataFolder, kPasswordFile);
}

void Desktop::end(const QString& why) {
  host_log(QStringLiteral("Программа завершается: %1").arg(why));
  ending_ = true;
  loop_.post([this] { console_->shutdown(); });
}

void Desktop::bring_up() {
  FormWindow& window = windows_.window(console_->form1());
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.raise();
  window.activateWindow();
}

void Desktop::run() {
  while (true) loop_.pump();
}

std::optional<ScanFeed::Pass> Desktop::scan_pass() {
  const SystemModel& model = console_->model();
  if (!model.supervision.ScanRunning) return std::nullopt;
  constexpr int kAsked = 4;
  return ScanFeed::Pass{Number(console_->form1().Lbl_A[kAsked].caption()), model.terminals.term_count};
}

void Desktop::show_signs() {
  if (!console_) return;
  for (Picture& lamp : console_->form1().PctA)
    screen_.set_sign(lamp, feed_.closed(lamp.index().value_or(0)) ? picture::kPause : std::string_view());
  const bool unknown = feed_.polls_missed() || line_.is_lost();
  for (Picture* indicator : {&console_->form1().PctD1, &console_->form1().PctD0})
    screen_.set_sign(*indicator, unknown ? sign::kUnknown : std::string_view());
}

void Desktop::look_at_tracks_ahead() {
  if (!console_) return;
  const PlayerState& player = console_->model().player;
  const auto& list = player.mp_list;
  const Ahead ahead{list.data(), list.size(), player.mp_trk, console_->form1().LstPtreckMP.selected()};
  if (ahead == ahead_) return;
  if (ahead.list != ahead_.list || ahead.tracks != ahead_.tracks) tracks_.look_through(list);
  ahead_ = ahead;
  std::vector<std::string> soon;
  const int last = player.mp_cnt();
  const auto in_turn = [last](int number) { return (number + last - 1) % last + 1; };
  if (last > 0)
    for (const int number :
         {player.mp_trk, in_turn(player.mp_trk + 1), ahead.row + 1, in_turn(player.mp_trk - 1), 1})
      if (number >= 1 && number <= last) soon.push_back(list[static_cast<std::size_t>(number - 1)]);
  tracks_.look_soon(std::move(soon));
}

void Desktop::look_after_devices() {
  if (looks_++ % kLooksPerProbe == 0) messages_.look_ahead(std::string(kMessageFolder));
  if (const auto track = mp_.playing()) console_->mend_track_length(track->file, track->length, track->late);
  // What was stopped while its disk hung is not to begin by itself once that answers.
  const PlayerState& player = console_->model().player;
  if (!player.mp_play && !player.mp_pause && mp_.waits_to_be_heard()) mp_.hold();
  QStringList sound = missing_sound_;
  const std::array media = {&mp_, &mp1_, &mp2_, &mp3_};
  for (GstMedia* each : media) {
    each->release_when_ended();
    const QString trouble = QString::fromStdString(each->trouble());
    if (!trouble.isEmpty() && !sound.contains(trouble)) sound << trouble;
  }
  *sounding_ = std::any_of(media.begin(), media.end(), [](GstMedia* each) { return each->is_open(); });
  notices_.tell(Notices::kSound, sound.join(QStringLiteral("; ")));
  notices_.tell(Notices::kDisk, disk_trouble(files_.health()));
  notices_.tell(Notices::kCards, QString::fromStdString(comedi_.trouble()));
}

QWidget* Desktop::make_stand_button(QWidget* parent) {
  if (!stand_) return nullptr;
  auto* part = new QWidget(parent);
  auto* button = new QPushButton(QStringLiteral("С&тенд"), part);
  button->setObjectName(qt(Stand::kName));
  button->setToolTip(QStringLiteral("Окно виртуальной стойки"));
  QObject::connect(button, &QPushButton::clicked, button, [this] { stand_->bring_up(); });
  auto* layout = new QHBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new QLabel(QStringLiteral("Учебный режим: «Стенд» → нажмите контакт"), part));
  layout->addWidget(button);
  return part;
}

HostSetup training_setup(const std::filesystem::path& folder) {
  HostSetup setup;
  setup.state = folder / "state";
  setup.drives = {{'C', folder / "c"}, {'D', folder / "d"}};
  std::filesystem::create_directories(setup.drives['C']);
  // At the first start alone: what the user has taken away stays away.
  if (!std::filesystem::exists(setup.drives['D'])) {
    make_training_music(setup.drives['D']);
    make_training_music(setup.drives['C'] / "ZEF" / "PlayList");
  }
  // Whichever port is chosen leads to the one rack.
  setup.ports = {{1, (folder / "line").string()}, {2, (folder / "line").string()}};
  return setup;
}

}  // namespace evac::desktop

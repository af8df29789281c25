#include "desktop/desktop.h"

#include <QApplication>
#include <QPushButton>

#include "desktop/stand.h"

namespace evac::desktop {
namespace {

constexpr const char* kTrainingTitle = " — учебный режим";

class SystemTone : public Tone {
 public:
  void beep(int, int) override { QApplication::beep(); }
};

std::map<int, QString> devices(const HostSetup& setup) {
  std::map<int, QString> names;
  for (const auto& [number, device] : setup.ports) names[number] = QString::fromStdString(device);
  return names;
}

std::unique_ptr<Cards> cards_of(TrainingLine* training) {
  if (!training) return std::make_unique<NoCards>();
  return std::make_unique<SimulatedCards>(
      [training](int card, int port) { return training->rack().contact_word(card, port); });
}

}  // namespace

Desktop::Desktop(const HostSetup& setup, std::unique_ptr<TrainingLine> training)
    : training_(std::move(training)),
      files_(setup.drives),
      line_(loop_, devices(setup), notices_),
      mp_(files_),
      mp1_(files_),
      mp2_(files_),
      mp3_(files_),
      cards_(cards_of(training_.get())),
      tone_(std::make_unique<SystemTone>()),
      process_(setup.restart_armed, notices_),
      screen_(loop_),
      windows_(
          screen_,
          {notices_, [this](const std::string& name, QWidget* parent) { return make_extra(name, parent); }},
          training_ ? QString::fromUtf8(kTrainingTitle) : QString()) {
  files_.make_folder(kProgramFolder);
  host_.before_wait = [this] { screen_.flush(); };
  boxes_.before_box = [this] { screen_.flush(); };
  console_ = std::make_unique<Console>(
      Machine{loop_, windows_, line_, files_, {mp_, mp1_, mp2_, mp3_}, *cards_, boxes_, *tone_, process_});
}

Desktop::~Desktop() {
  // Widgets refer to controls, and what is still posted to both.
  stand_.reset();
  loop_.clear();
  windows_.destroy();
  console_.reset();
}

void Desktop::start() {
  if (training_) {
    training_->plug();
    stand_ = std::make_unique<Stand>(*training_);
  }
  console_->load();
}

void Desktop::run() {
  while (true) loop_.pump();
}

QWidget* Desktop::make_extra(const std::string& name, QWidget* parent) {
  if (!stand_ || name != Stand::kName) return nullptr;
  auto* button = new QPushButton(qt(name), parent);
  button->setObjectName(qt(name));
  button->setToolTip(QStringLiteral("Окно виртуальной стойки"));
  QObject::connect(button, &QPushButton::clicked, button, [this] { stand_->bring_up(); });
  return button;
}

HostSetup training_setup(const std::filesystem::path& folder) {
  HostSetup setup;
  setup.drives = {{'C', folder / "c"}};
  std::filesystem::create_directories(setup.drives['C']);
  // Whichever port is chosen leads to the one rack.
  setup.ports = {{1, (folder / "line").string()}, {2, (folder / "line").string()}};
  return setup;
}

}  // namespace evac::desktop

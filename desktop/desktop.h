// The whole program: the machine under the console on Qt, the console, its windows; in training mode the
// virtual rack and its window too.
#pragma once

#include <QTimer>
#include <atomic>
#include <memory>

#include "app/console.h"
#include "desktop/boxes.h"
#include "desktop/cards_comedi.h"
#include "desktop/end_signals.h"
#include "desktop/form_windows.h"
#include "desktop/heartbeat.h"
#include "desktop/host_ini.h"
#include "desktop/media_gst.h"
#include "desktop/process.h"
#include "desktop/qt_loop.h"
#include "desktop/scan_feed.h"
#include "desktop/self_check.h"
#include "desktop/serial_line.h"
#include "desktop/simulated_cards.h"
#include "desktop/training_line.h"
#include "machine/background_files.h"
#include "machine/posix_files.h"

namespace evac::desktop {

class Stand;

class Desktop : private QObject {
 public:
  // With a training line the machine is a simulated one around its rack.
  Desktop(const HostSetup& setup, std::unique_ptr<TrainingLine> training);
  ~Desktop();

  // Loads the console and shows its main window. A Fault, or ProgramEnded, comes out of it as it is.
  void start();
  // Runs until the console ends the program, which throws ProgramEnded.
  [[noreturn]] void run();
  // One step of the loop.
  void pump() { loop_.pump(); }

  Console& console() { return *console_; }
  Screen& screen() { return screen_; }
  FormWindows& windows() { return windows_; }
  SerialLine& line() { return line_; }
  Notices& notices() { return notices_; }
  WatchFeed& feed() { return feed_; }
  ScanFeed& scan() { return scan_; }
  Boxes& boxes() { return boxes_; }
  Files& files() { return files_; }
  EventLoop& loop() { return loop_; }
  // Seconds into the track that the player has.
  double player_position() { return mp_.position(); }
  // Null outside training mode.
  TrainingLine* training() { return training_.get(); }
  Stand* stand() { return stand_.get(); }

 private:
  QWidget* make_stand_button(QWidget* parent);
  // The stop of an alert by one chord, from any tab, window and box.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void stop_alert();
  // Ends the program in order, whatever is open.
  void end(const QString& why);
  void bring_up();
  // All files of the settings once, so that a disk that falls silent later has had its word on each.
  void read_settings_ahead();
  // The tracks that a press, or the end of one, asks for next.
  void look_at_tracks_ahead();
  // What the watch and the line know better than the pictures that the console gave: lamps of closed contacts
  // burn, and nothing is known of a controller that is not heard.
  void show_signs();
  // The terminal that is asked; none while no pass runs.
  std::optional<ScanFeed::Pass> scan_pass();
  // Once a second: what was found out late of its track goes to the player, and what disk, sound and cards
  // have to say to the header strip.
  void look_after_devices();

  Notices notices_;
  QtLoop host_;
  EventLoop loop_{host_};
  std::unique_ptr<TrainingLine> training_;
  // A drive that does not answer at the end keeps no program alive: who asks it is left, with all this.
  struct Disks {
    explicit Disks(const HostSetup& setup);
    PosixFiles disk;
    Patience patience;
    BackgroundFiles files;
  };
  struct LeaveStuck {
    void operator()(Disks* disks) const;
  };
  const std::unique_ptr<Disks, LeaveStuck> disks_;
  PosixFiles& disk_ = disks_->disk;
  Patience& patience_ = disks_->patience;
  BackgroundFiles& files_ = disks_->files;
  SerialLine line_;
  const SoundSetup sound_;
  // Some media control has the device.
  const std::shared_ptr<std::atomic<bool>> sounding_ = std::make_shared<std::atomic<bool>>(false);
  QStringList missing_sound_;  // what this machine lacks to be heard
  // Two, so that a track on a drive that hangs keeps no message waiting.
  SoundProbe messages_, tracks_;
  GstMedia mp_, mp1_, mp2_, mp3_;
  ComediCards comedi_;
  std::unique_ptr<SimulatedCards> simulated_cards_;  // of the training mode
  WatchFeed feed_;
  ScanFeed scan_;
  QtBoxes boxes_{feed_, notices_};
  GstTone tone_;
  DesktopProcess process_;
  Screen screen_;
  FormWindows windows_;
  std::unique_ptr<Console> console_;
  std::unique_ptr<Stand> stand_;
  // What was last looked at ahead: the list, by its place and length, the track, the row.
  struct Ahead {
    const std::string* list = nullptr;
    std::size_t tracks = 0;
    int track = 0, row = -1;
    bool operator==(const Ahead&) const = default;
  } ahead_;
  QTimer device_watch_;
  int looks_ = 0;  // at the devices
  EndSignals end_signals_;
  bool ending_ = false;
  Heartbeat heartbeat_;
  std::unique_ptr<SelfCheck> self_check_;
};

// The machine of the training mode, with its data under `folder`, which is made as needed.
HostSetup training_setup(const std::filesystem::path& folder);

}  // namespace evac::desktop

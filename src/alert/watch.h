// What the console knows, said: is anything burning, and is this console watching? At every tick of Timer4,
// before the engine and behind it, it reads the contacts itself and looks at the state of the alert. It
// changes nothing; it is a list of lines. A look without news allocates nothing.
#pragma once

#include <string>
#include <vector>

#include "alert/alert_engine.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

enum class WatchRank { kFire, kWarning, kNote };

struct WatchLine {
  WatchRank rank;
  std::string text;
  bool operator==(const WatchLine&) const = default;
};

class Watch {
 public:
  struct Doors {
    const AlertState& alert;
    const AlgorithmState& algorithms;
    const SettingsState& settings;
    const ZoneState& zones;
    const FilesState& files;
    const SourceState& sources;
    const MessageState& messages;
    const LinkState& link;
    const PlayerState& player;
    const TimerState& timer;
    const SupervisionState& supervision;
    const RestartState& restart;
    const AlarmTab& tab;
    const AlertEngine& engine;
    const BlockAlert& block;
    const AlgorithmRun& algorithm;
    Cards& cards;
    const EventLoop& loop;
  };
  explicit Watch(const Doors& doors) : doors_(doors) {}

  // From here on the controller's polls are missed.
  void begin();
  // One look. Raises `changed` when the lines are others than before.
  void look();
  // The most urgent first; within a rank in the order of the table.
  const std::vector<WatchLine>& lines() const { return lines_; }
  Event<> changed;  // the first look too

  // Whether it has looked yet: without a line that is good news.
  bool looking() const { return looking_; }
  bool polls_missed() const { return findings_.silent_seconds > 0; }
  // Whether a contact is closed now that was open at the last look. Changes nothing.
  bool new_contact() const;
  // Whether the fire contact of the zone, 1..128, is closed.
  bool closed(int zone) const { return findings_.contacts[zone_bit(zone)]; }

 private:
  // Why no contact starts an alert.
  enum class Blind { kNot, kStopped, kManualMessage, kTest, kManualType, kNoType, kNoCards };
  // What keeps an alert from being heard.
  enum class NoSound { kNot, kNoChannel, kNoVolume };

  // All that the lines are made of, but for texts.
  struct Findings {
    ZoneBits contacts, alerted, no_algorithm, fourth_bank, mute, restarting, waiting, not_until_reset, ended,
        answered;
    ZoneBits no_steps, marked;
    int type = 0;  // of the alerts
    int block_zone = 0, test_zone = 0, alg_zone = 0;
    bool alarm_zones = false, manual_message = false, contacts_idle = false, block_mute = false;
    Blind blind = Blind::kNot;
    NoSound no_sound = NoSound::kNot;
    std::array<bool, 2> card_fails{}, card_missing{};
    int unread_restart = 0;
    int silent_seconds = 0;  // without a poll
    bool timer_off = false, control_off = false, player_off = false;
    bool timer_idle = false;  // off by the operator's hand
    bool no_programme = false;
    int event_past = -1;  // the time of day of the event that the timer missed
    int names_edition = 0, files_edition = 0;
    bool operator==(const Findings&) const = default;
  };

  // What an alert switched off and nobody has switched on since.
  class Silenced {
   public:
    // `count`: how often alerts have done so by now.
    bool left_off(int count, bool on);

   private:
    int counted_ = 0;
    bool off_ = false;
  };

  void take_algorithms();
  // False for the cards that failed to be read; the words keep what they had.
  std::array<bool, 2> read_words(std::array<std::int32_t, kBanks>& words) const;
  void read_contacts(Findings& f);
  void find_alerts(Findings& f);
  void find_unanswered(Findings& f) const;
  ZoneBits seen_in(int bank) const;
  ZoneBits restarting() const;
  void find_gaps(Findings& f);
  void find_timer(Findings& f) const;
  Blind blindness(int type) const;

  // The lines of the findings.
  std::vector<WatchLine> told() const;
  std::string zone_numbers(const ZoneBits& zones) const;
  std::string zones_text(const ZoneBits& zones) const;
  std::string number_text(int zone) const;

  const Doors doors_;
  std::array<std::int32_t, kBanks> words_{};
  Findings findings_;
  // The file of the manual message and the programme that the timer lacks, as they are told.
  std::string manual_file_, programme_;
  std::vector<WatchLine> lines_;
  Instant begun_{};
  bool looking_ = false;
  // The alert that runs has lost its sound; its message, and the plays of it that have opened.
  bool mute_ = false;
  const FollowedMessage* followed_ = nullptr;
  int plays_ = 0;
  // By the table of the algorithms: zones with a first step, and those that share their alarm mark with
  // others of their bank.
  int edition_ = -1;
  ZoneBits with_steps_, several_marks_;
  Silenced timer_, control_, player_;
};

}  // namespace evac

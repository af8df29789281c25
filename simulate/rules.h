// What must hold at every step of the simulation, told from outside: from what the console does to its
// machine, what the rack hears, what the disk holds, and what the watch says.
#pragma once

#include <array>
#include <deque>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "rack/rack.h"

namespace evac::simulate {

using drill::CarriedLine;

// How the path of the file ends that is written in each second.
inline constexpr std::string_view kStatusFile = "\\FNetKntrl";

// Which rule is broken, and by what.
class Broken : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Rules {
 public:
  explicit Rules(drill::VirtualMachine& machine) : machine_(machine) {}

  // What happens, each at its own moment.
  void process_started(Console& console);
  void process_ended(const rack::Network& heard_so_far);
  void operator_acted() {
    untouched_ = false;
    status_phase_.reset();  // the status file may be stopped, or go on
  }
  void contact_set(int zone, bool closed);
  void card_set_failing(int card, bool failing);
  void poll_arrived();
  // Bytes have come that may have swallowed the next poll.
  void line_garbled();
  void sent(const rack::Frame& frame);
  void heard(const rack::Frame& frame, Instant when);
  void journalled(std::string_view line);
  void saved(std::string_view path, std::string_view bytes);
  void removed(std::string_view path) { saved_.erase(std::string(path)); }
  void appended(std::string_view path, std::string_view bytes) { written_[journal_ = path] += bytes; }
  // The line or its device changes; from now on it takes no frame, or it works. The media change.
  void line_disturbed(bool works);
  void media_disturbed() { sound_sure_ = false; }
  // The wall clock was set by more than it catches up with.
  void wall_set();
  // The media control of the alerts is driven: what stands behind its name.
  void message_driven(std::string_view what);

  // Zones whose contact is closed.
  const std::set<int>& closed() const { return closed_; }
  // Throws Broken for a rule that does not hold now. `console` is null while no process runs.
  void check(Console* console, const rack::Network& heard);
  // What was saved is on the disk. Called between two processes; `torn_end`: the last was killed as it wrote.
  void check_disk(bool torn_end);
  // The engineer has put another file in its place.
  void replaced_from_outside(std::string_view path, std::string_view bytes);

  struct {
    long contacts = 0, certain = 0, answered = 0, opened_early = 0, polls = 0, zones = 0, saves = 0,
         seconds = 0;
    std::map<std::string, long> excused;
    int most_frames = 0;
    std::ptrdiff_t deepest = 0;
  } counts;

 private:
  struct Contact {
    Instant closed;
    std::chrono::milliseconds held;  // so far, when it closed
    bool certain;                    // no excuse is accepted
    std::vector<int> zones;          // those of its first step
    int without_algorithm;           // contacts closed at about that time that end a tick early
    std::string excuse;
    std::optional<std::chrono::milliseconds> took;  // until its first zone was sent
    int resets = 0;                                 // stops of all since
  };
  struct Since {
    Instant came;
    std::chrono::milliseconds held;
  };
  struct Answer {
    Instant sent;
    std::size_t before;  // answers that were on their way
    std::chrono::milliseconds held;
  };
  std::chrono::milliseconds working_since(Instant moment, std::chrono::milliseconds held) const {
    return machine_.now() - moment - (machine_.held_so_far() - held);
  }
  void expect_alert(int zone, Console& console);
  // The watch has two ticks from now to say what is new.
  void settling_since_now();
  void take_excuses(Console& console);
  void check_contacts();
  void check_polls();
  void check_sound(Console& console);
  void check_line(const rack::Network& heard);
  void check_watch(Console& console);
  void check_alert(Console& console);
  void check_bounds();
  void note_saved(Console& console);
  void note_status(std::string_view line);
  void check_loaded(Console& console) const;
  static std::string excuse_of(Console& console, int zone);

  drill::VirtualMachine& machine_;
  std::set<int> closed_;
  std::array<bool, 2> failing_{};
  Instant contacts_changed_{}, started_{};
  std::chrono::milliseconds held_at_change_{0};
  const char* stack_base_ = nullptr;
  int names_edition_ = 0;
  Console* console_ = nullptr;
  std::optional<Since> left_over_;  // since when an alert runs whose bank has no contact closed
  bool clock_set_ = false;          // since the start
  bool untouched_ = true;           // no operator since the start
  bool first_answer_ = true;        // no poll was answered since the start
  bool first_fire_ = true;          // no contact since the start
  bool sound_sure_ = true;          // every message can be opened since the start
  // The message that was given to the media last, and up to when it sounds.
  std::string message_;
  WallTime sounds_until_{};
  Instant alert_held_{};  // last, by the stop of detection or by a manual message
  bool cut_off_ = false;  // the settings of alerting have taken the media, until the alert's next play
  std::map<int, Contact> waited_for_;
  std::deque<Since> polls_;
  std::deque<Answer> answers_;
  std::optional<Instant> garbled_;
  int uncertain_polls_ = 0;
  Instant line_disturbed_{};
  bool line_works_ = true;
  // The network as it will be when all that was sent has been heard.
  rack::Network promised_;
  bool promise_open_ = false;
  std::map<int, Instant> zone_sent_, zone_heard_;
  std::set<int> zones_journalled_;  // and not heard yet
  // By path: what the last successful save wrote, and what was added to journals.
  std::map<std::string, std::string> saved_, written_;
  std::string journal_;               // the one written to last
  std::set<std::string> just_saved_;  // since the last check
  // Of the model, when its file was saved by the console.
  std::optional<std::vector<std::string>> settings_lines_;
  // By how much the time of day in the status file, in seconds, is ahead of its counter, modulo that one's
  // range.
  std::optional<int> status_phase_;
  std::optional<std::array<int, 8>> sources_;
  std::optional<std::vector<int>> zone_channels_;
};

}  // namespace evac::simulate

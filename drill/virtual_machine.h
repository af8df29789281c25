// A machine that is all in memory but for its files: a clock that moves only when it is told to, a line that
// hears and delivers, media and cards that pretend. The library under the tests, and under console-drill.
#pragma once

#include <array>
#include <bitset>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "drill/carried_line.h"
#include "machine/faulty_devices.h"
#include "machine/faulty_files.h"
#include "machine/posix_files.h"
#include "machine/steady_wall.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac::drill {

inline constexpr std::string_view kProgramFolder = "C:\\ZEF";

// The console ended its own process; unwinds to whoever runs the loop.
struct ProcessEnded {};

// The answer to a box, and how long the box stays up before it.
struct Answer {
  enum class Kind { kOk, kYes, kNo, kText, kCancel };
  Kind kind = Kind::kOk;
  std::string text;
  std::chrono::milliseconds after{0};
};

class VirtualMachine : public LoopHost,
                       public WindowHost,
                       public Boxes,
                       public Cards,
                       public Tone,
                       public Process {
 public:
  // `root` stands for all drives: drive C is root/c. Starts at 2026-01-05 08:00:00.
  explicit VirtualMachine(std::filesystem::path root);
  ~VirtualMachine() override;

  // What the console is built on. Lives as long as the machine; a new console may follow one that ended.
  Machine machine();
  EventLoop& loop() { return loop_; }
  // As the disk has them, without the faults.
  PosixFiles& files() { return files_; }
  FaultyFiles& faulty_files() { return faulty_files_; }
  FaultyDisk& disk() { return disk_; }

  // Told of everything that the console does to its machine, a line each.
  std::function<void(const std::string&)> trace = [](const std::string&) {};
  // Called where time may pass no further and something waits: obeys one command, which may give more time.
  std::function<void()> out_of_time;

  // Lets time pass for the duration, with all that happens in it.
  void run_for(std::chrono::milliseconds duration);
  // Gives time without letting it pass yet.
  void allow(std::chrono::milliseconds duration) { limit_ = now_ + duration; }
  void set_wall(WallTime wall);
  // Time passes with nothing handled, as in a process that is stopped, or in a call that does not return.
  void hold(std::chrono::milliseconds duration);
  // All of that so far.
  std::chrono::milliseconds held_so_far() const { return held_so_far_; }
  // From here on the console sees the wall clock without a second left out; and the system's clock, stepped
  // behind it.
  void make_wall_steady() { steady_ = true; }
  SteadyWall& steady_wall() { return steady_wall_; }
  void step_wall(std::chrono::milliseconds by) { set_wall(wall_at_zero_ + now_.time_since_epoch() + by); }
  // Forgets what a console that is gone left: its events and its grip on the port.
  void clear_process();

  // The line.
  void receive(std::span<const std::uint8_t> bytes) { port_.arrive(bytes); }
  void set_port_good(int number, bool good);
  // Frames written to the line and not yet taken away by whoever expects them.
  std::deque<Frame9>& sent() { return seen_.sent; }
  // From here on frames take the way through an outbox and a device with such a buffer.
  void carry_line(std::size_t buffer);
  // Frames that have passed on it and were not yet taken away.
  std::deque<Frame9>& heard() { return seen_.heard; }
  // Null until then.
  CarriedLine* carried() { return carried_.get(); }
  // The open line goes, and can't be opened again until it is back.
  void lose_line();
  void restore_line();
  bool line_lost() const { return line_lost_; }

  // Boxes.
  void queue_answer(Answer answer) { answers_.push_back(std::move(answer)); }
  // Texts of message boxes raised and not yet taken away.
  std::deque<std::string>& raised() { return seen_.raised; }
  // All of it that can be expected and is then taken away.
  struct Seen {
    std::deque<Frame9> sent, heard;
    std::deque<std::string> raised;
  };
  Seen& seen() { return seen_; }
  // A box is up and holds everything.
  bool held() const { return held_; }

  // Sounds: how long the media play the file, in seconds. The file must be made apart.
  void set_sound(std::string_view path, double seconds);
  void unset_sound(std::string_view path);
  std::optional<double> sound_length(std::string_view path);

  // Puts a drive in, with its directory under the root, or takes it out.
  void mount_drive(char letter);
  void unmount_drive(char letter) { files_.unmount(letter); }

  // Whether the card is there when the console registers it.
  void set_card(int number, bool present) { cards_.at(static_cast<std::size_t>(number)) = present; }
  FaultyCards& faulty_cards() { return faulty_cards_; }
  // No file can be opened by any of the media; the next opening takes so long.
  void set_media_silent(bool on);
  void stall_media(std::chrono::milliseconds time);
  // Digital input of zone 1..128.
  void set_contact(int zone, bool closed) { contacts_.set(static_cast<std::size_t>(zone - 1), closed); }

  // LoopHost
  Instant now() const override { return now_; }
  WallTime wall() const override;
  Instant moment_of(WallTime time) const override;
  void look_at_clock() override { (void)wall(); }
  void idle(std::optional<Instant> next_due) override;
  // WindowHost
  void form_shown(Form& form, bool modal) override;
  void form_hidden(Form& form) override;
  void popup_shown(PopupMenu& menu) override;
  void popup_hidden(PopupMenu& menu) override;
  // Boxes
  void message(std::string_view text, std::string_view title) override;
  bool ask(std::string_view text, std::string_view title) override;
  std::string input(std::string_view prompt, std::string_view title, std::string_view preset) override;
  // Cards
  std::int16_t register_card(int type, int number) override;
  void release_card(std::int16_t handle) override;
  bool read_port(std::int16_t handle, int port, std::int32_t& word) override;
  // Tone
  void beep(int frequency, int duration) override;
  // Process
  std::string working_folder() const override { return std::string(kProgramFolder); }
  [[noreturn]] void end() override;
  void restart(int flags) override;

 private:
  class Port : public SerialPort {
   public:
    explicit Port(VirtualMachine& owner) : SerialPort(owner.loop_), owner_(owner) {}
    void arrive(std::span<const std::uint8_t> bytes) { deliver(bytes); }
    using SerialPort::lose;
    using SerialPort::reset;
    std::set<int> bad;

   private:
    std::optional<std::string> open_line(int number) override;
    void close_line(int number) override;
    void configure_line(const std::string& settings) override;
    void write_line(std::span<const std::uint8_t> bytes) override;
    bool keeps_frames() const override { return owner_.carried_ != nullptr; }
    VirtualMachine& owner_;
  };

  class VirtualMedia : public Media {
   public:
    VirtualMedia(VirtualMachine& owner, std::string name) : owner_(owner), name_(std::move(name)) {}
    void set_file(std::string_view path) override;
    int ready_state() override;
    void play() override;
    void hold() override;
    void stop() override;
    double duration() override;
    double position() override;
    void seek(double seconds) override;
    void set_volume(int hundredths) override;
    // As a fresh process finds it.
    void reset();

   private:
    void note(const std::string& what) { owner_.trace("media " + name_ + " " + what); }
    VirtualMachine& owner_;
    const std::string name_;
    std::string path_;
    std::optional<Instant> playing_since_;
    double position_ = 0;
  };

  // The next answer that was queued, after the box has been up for its time.
  std::optional<Answer> answer_box();
  // Time never goes back; what the line carries meanwhile arrives.
  void move_to(Instant time);

  Instant now_{}, limit_{};
  std::chrono::milliseconds held_so_far_{0};
  WallTime wall_at_zero_{};
  bool steady_ = false;
  mutable SteadyWall steady_wall_;
  EventLoop loop_{*this};
  const std::filesystem::path root_;
  const Hold hold_ = [this](std::chrono::milliseconds time) { hold(time); };
  PosixFiles files_;
  FaultyDisk disk_;
  FaultyFiles faulty_files_{files_, hold_};
  std::unique_ptr<CarriedLine> carried_;
  bool line_lost_ = false;
  Port port_{*this};
  VirtualMedia mp_{*this, "MP"}, mp1_{*this, "MP1"}, mp2_{*this, "MP2"}, mp3_{*this, "MP3"};
  std::array<FaultyMedia, 4> faulty_media_{FaultyMedia{mp_, hold_}, FaultyMedia{mp1_, hold_},
                                           FaultyMedia{mp2_, hold_}, FaultyMedia{mp3_, hold_}};
  std::deque<Answer> answers_;
  Seen seen_;
  bool held_ = false;
  std::map<std::string, double> sounds_;
  std::array<bool, 2> cards_{};  // whether they are there
  FaultyCards faulty_cards_{*this, hold_};
  std::bitset<128> contacts_;
};

}  // namespace evac::drill

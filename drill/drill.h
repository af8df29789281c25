// The drill: obeys one command a line on a whole console with a virtual clock, and prints what happened.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <istream>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <utility>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "drill/words.h"

namespace evac::drill {

class Drill {
 public:
  // `number_lines`: failing commands are reported with the number of their line.
  Drill(std::filesystem::path root, std::istream& in, std::ostream& out, bool number_lines);
  // The next line of commands, asked for when all before it is done and no time is left; false: no more.
  using Source = std::function<bool(std::string& line)>;
  // Takes what is printed, a line each; the last one of a line of commands is its result.
  using Sink = std::function<void(const std::string& line, bool result)>;
  Drill(std::filesystem::path root, Source source, Sink sink, bool number_lines);
  ~Drill();

  // Obeys all commands; the number of those that failed.
  int run();
  // Numbers of the faults that came and that nothing expected, the last one last.
  const std::vector<int>& faults() const { return faults_; }
  VirtualMachine& machine() { return machine_; }
  // Null while no process runs.
  Console* console() { return console_.get(); }

 private:
  using Words = std::vector<Word>;
  struct Command {
    void (Drill::*obey)(const Words&);
    bool before_start;  // taken when no process runs
    bool after_start;   // taken when one does
  };
  // No more commands; unwinds whatever waits.
  struct NoMoreCommands {};

  static const std::map<std::string_view, Command>& commands();

  // Obeys the next command of the line, or prints the line's result and begins the next one; what it sets off
  // runs on top of what waits.
  void next_command();
  void begin_line();
  // The next line that holds commands.
  std::string next_line();
  void print_result();
  void obey(const Words& words);
  void end_process();
  Windows& windows() { return console_->windows(); }
  void print(const std::string& line) { sink_(line, false); }

  // The machine.
  void do_clock(const Words&);
  void do_card(const Words&);
  void do_contact(const Words&);
  void do_sound(const Words&);
  void do_nosound(const Words&);
  void do_file(const Words&);
  void do_hex(const Words&);
  void do_remove(const Words&);
  void do_drive(const Words&);
  void do_port(const Words&);
  void do_disk(const Words&);
  void do_media(const Words&);
  void do_line(const Words&);
  void do_hold(const Words&);
  void do_kill(const Words&);
  void do_ls(const Words&);
  void do_cat(const Words&);
  void do_dump(const Words&);
  void make_file(std::string_view path, std::string_view bytes);
  // Time and the line.
  void do_start(const Words&);
  void do_wait(const Words&);
  void do_now(const Words&);
  void do_rx(const Words&);
  void do_frame(const Words&);
  void do_quit(const Words&);
  // The user.
  void do_click(const Words&);
  void do_rclick(const Words&);
  void do_shift_rclick(const Words&);
  void do_dblclick(const Words&);
  void do_set(const Words&);
  void do_key(const Words&);
  void do_drag(const Words&);
  void do_drop(const Words&);
  void do_press(const Words&);
  void do_release(const Words&);
  void do_close(const Words&);
  void do_answer(const Words&);
  // A control that the user's hand reaches; an error otherwise.
  Control& reachable(const Word& name);
  // What is seen.
  void do_get(const Words&);
  void do_watch(const Words&);
  void do_items(const Words&);
  void do_expect(const Words&);
  void do_forget(const Words&);
  void expect_frames(const Words&);
  void expect_no(const Words&);
  void expect_box(const Words&);
  void expect_journal(const Words&);
  void expect_row(const Words&);
  void expect_watch(const Words&);
  void expect_fault(const Words&);

  const Source source_;
  const Sink sink_;
  const bool number_lines_;
  VirtualMachine machine_;
  std::unique_ptr<Console> console_;
  std::string last_entry_;  // the journal's last line behind its time
  std::string result_;      // of the line
  bool reported_ = true;
  int line_ = 0, command_line_ = 0;
  std::deque<Words> waiting_;  // the other commands of that line
  int failures_ = 0;
  std::vector<int> faults_;
  // As they were before a line of several expectations.
  std::optional<std::pair<VirtualMachine::Seen, std::vector<int>>> before_;
};

}  // namespace evac::drill

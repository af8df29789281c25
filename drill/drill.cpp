#include "drill/drill.h"

#include <tuple>

#include "drill/target.h"
#include "model/text.h"

namespace evac::drill {

Drill::Drill(std::filesystem::path root, std::istream& in, std::ostream& out, bool number_lines)
    : Drill(
          std::move(root), [&in](std::string& line) { return !!std::getline(in, line); },
          [&out](const std::string& line, bool result) {
            out << line << '\n';
            if (result) out.flush();
          },
          number_lines) {}

Drill::Drill(std::filesystem::path root, Source source, Sink sink, bool number_lines)
    : source_(std::move(source)),
      sink_(std::move(sink)),
      number_lines_(number_lines),
      machine_(std::move(root)) {
  machine_.trace = [this](const std::string& line) { print(line); };
  machine_.out_of_time = [this] { next_command(); };
}

Drill::~Drill() = default;

const std::map<std::string_view, Drill::Command>& Drill::commands() {
  static const std::map<std::string_view, Command> table = {
      {"clock", {&Drill::do_clock, true, true}},
      {"card", {&Drill::do_card, true, true}},
      {"contact", {&Drill::do_contact, true, true}},
      {"sound", {&Drill::do_sound, true, true}},
      {"nosound", {&Drill::do_nosound, true, true}},
      {"file", {&Drill::do_file, true, true}},
      {"hex", {&Drill::do_hex, true, true}},
      {"remove", {&Drill::do_remove, true, true}},
      {"drive", {&Drill::do_drive, true, true}},
      {"port", {&Drill::do_port, true, true}},
      {"disk", {&Drill::do_disk, true, true}},
      {"media", {&Drill::do_media, true, true}},
      {"line", {&Drill::do_line, true, true}},
      {"hold", {&Drill::do_hold, false, true}},
      {"kill", {&Drill::do_kill, false, true}},
      {"answer", {&Drill::do_answer, true, true}},
      {"ls", {&Drill::do_ls, true, true}},
      {"cat", {&Drill::do_cat, true, true}},
      {"dump", {&Drill::do_dump, true, true}},
      {"quit", {&Drill::do_quit, true, true}},
      {"start", {&Drill::do_start, true, false}},
      {"wait", {&Drill::do_wait, false, true}},
      {"now", {&Drill::do_now, false, true}},
      {"rx", {&Drill::do_rx, false, true}},
      {"frame", {&Drill::do_frame, false, true}},
      {"click", {&Drill::do_click, false, true}},
      {"rclick", {&Drill::do_rclick, false, true}},
      {"shift-rclick", {&Drill::do_shift_rclick, false, true}},
      {"dblclick", {&Drill::do_dblclick, false, true}},
      {"set", {&Drill::do_set, false, true}},
      {"key", {&Drill::do_key, false, true}},
      {"drag", {&Drill::do_drag, false, true}},
      {"drop", {&Drill::do_drop, false, true}},
      {"press", {&Drill::do_press, false, true}},
      {"release", {&Drill::do_release, false, true}},
      {"close", {&Drill::do_close, false, true}},
      {"get", {&Drill::do_get, false, true}},
      {"watch", {&Drill::do_watch, false, true}},
      {"items", {&Drill::do_items, false, true}},
      {"expect", {&Drill::do_expect, true, true}},
      {"forget", {&Drill::do_forget, false, true}},
  };
  return table;
}

int Drill::run() {
  while (true) {
    try {
      machine_.loop().pump();
    } catch (const Fault& fault) {
      faults_.push_back(fault.number());
      print(join("fault ", fault.number(), " ", in_quotes(fault.what())));
      end_process();
    } catch (const ProcessEnded&) {
      end_process();
    } catch (const NoMoreCommands&) {
      break;
    }
  }
  print_result();
  end_process();
  return failures_;
}

void Drill::next_command() {
  const bool begins = waiting_.empty();
  if (begins) print_result();
  try {
    if (begins) begin_line();
    const Words command = std::move(waiting_.front());
    waiting_.pop_front();
    obey(command);
  } catch (const CommandError& error) {
    ++failures_;
    result_ = join("error: ", error.what());
    if (number_lines_) result_ += join(" (line ", command_line_, ")");
    waiting_.clear();
    if (before_) std::tie(machine_.seen(), faults_) = *before_;
  }
}

void Drill::begin_line() {
  const std::string line = next_line();
  result_ = "ok";
  reported_ = false;
  before_.reset();
  waiting_ = commands_of(split_words(line));
  if (waiting_.size() > 1 && waiting_.front()[0].text == "expect") before_.emplace(machine_.seen(), faults_);
}

std::string Drill::next_line() {
  std::string line;
  while (true) {
    if (!source_(line)) throw NoMoreCommands{};
    ++line_;
    if (line.ends_with('\r')) line.pop_back();
    if (const auto first = line.find_first_not_of(" \t"); first != std::string::npos && line[first] != '#')
      break;
  }
  command_line_ = line_;
  return line;
}

void Drill::print_result() {
  if (reported_) return;
  reported_ = true;
  sink_(result_, true);
}

void Drill::obey(const Words& words) {
  const auto command = commands().find(words[0].text);
  if (command == commands().end()) throw CommandError("no command " + words[0].text);
  if (console_ && !command->second.after_start) throw CommandError("the console has been started");
  if (!console_ && !command->second.before_start) throw CommandError("the console has not been started");
  (this->*command->second.obey)(words);
}

void Drill::end_process() {
  machine_.clear_process();
  console_.reset();
}

void Drill::do_start(const Words& words) {
  want(words, 1, "start");
  console_ = std::make_unique<Console>(machine_.machine());
  console_->journal().written = [this](const std::string& line) {
    print("journal " + in_quotes(line));
    const auto blank = line.find(' ');
    last_entry_ = blank == std::string::npos ? "" : line.substr(blank + 1);
  };
  console_->load();
}

void Drill::do_quit(const Words& words) {
  want(words, 1, "quit");
  throw NoMoreCommands{};
}

}  // namespace evac::drill

#include "drill/virtual_machine.h"

#include <algorithm>
#include <cstdio>

#include "drill/words.h"
#include "model/text.h"

namespace evac::drill {
namespace {

namespace fs = std::filesystem;

constexpr WallTime kFirstMoment =
    std::chrono::local_days(std::chrono::January / 5 / 2026) + std::chrono::hours(8);
constexpr std::string_view kProgramFolderOnDisk = "ZEF";

std::string number_text(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

std::string hex_bytes(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) text += " " + hex_byte(byte);
  return text;
}

}  // namespace

VirtualMachine::VirtualMachine(fs::path root)
    : wall_at_zero_(kFirstMoment), root_(std::move(root)), files_({{'C', root_ / "c"}}) {
  fs::create_directories(root_ / "c" / kProgramFolderOnDisk);
  files_.set_write(
      [this](int fd, const void* bytes, std::size_t count) { return disk_.write(fd, bytes, count); });
  steady_wall_.changed = [this] { loop_.keep_phase(); };
  out_of_time = [] { throw std::logic_error("a handler waits, and no time is left"); };
}

VirtualMachine::~VirtualMachine() = default;

Machine VirtualMachine::machine() {
  auto& media = faulty_media_;
  return {loop_,         *this, port_, faulty_files_, {media[0], media[1], media[2], media[3]},
          faulty_cards_, *this, *this, *this};
}

void VirtualMachine::run_for(std::chrono::milliseconds duration) {
  allow(duration);
  while (true) {
    if (loop_.run_due()) continue;
    const auto due = loop_.next_due();
    if (!due || *due > limit_) break;
    move_to(*due);
  }
  move_to(limit_);
  while (loop_.run_due()) {
  }
}

void VirtualMachine::move_to(Instant time) {
  now_ = std::max(now_, time);
  if (carried_) carried_->advance(now_);
}

void VirtualMachine::hold(std::chrono::milliseconds duration) {
  held_so_far_ += duration;
  move_to(now_ + duration);
  limit_ = std::max(limit_, now_);
}

WallTime VirtualMachine::wall() const {
  const WallTime system = wall_at_zero_ + now_.time_since_epoch();
  return steady_ ? steady_wall_.look(now_, system) : system;
}

Instant VirtualMachine::moment_of(WallTime time) const {
  const WallTime shown = wall();
  return now_ + (steady_ ? steady_wall_.until(time) : std::max(time - shown, std::chrono::milliseconds{}));
}

void VirtualMachine::carry_line(std::size_t buffer) {
  carried_ = std::make_unique<CarriedLine>(buffer);
  carried_->advance(now_);
  carried_->arrived = [this, reader = rack::FrameReader{}](std::uint8_t byte, Instant) mutable {
    Frame9 frame{};
    if (!reader.take(byte, frame)) return;
    seen_.heard.push_back(frame);
    trace("heard" + hex_bytes(frame));
  };
}

void VirtualMachine::lose_line() {
  line_lost_ = true;
  if (carried_) carried_->lose(now_);
  port_.lose();
}

void VirtualMachine::restore_line() {
  line_lost_ = false;
}

void VirtualMachine::set_media_silent(bool on) {
  for (FaultyMedia& media : faulty_media_) media.set_silent(on);
}

void VirtualMachine::stall_media(std::chrono::milliseconds time) {
  for (FaultyMedia& media : faulty_media_) media.stall_next(time);
}

void VirtualMachine::set_wall(WallTime wall) {
  wall_at_zero_ = wall - now_.time_since_epoch();
}

void VirtualMachine::clear_process() {
  loop_.clear();
  port_.reset();
  if (carried_) carried_->forget();
  for (VirtualMedia* media : {&mp_, &mp1_, &mp2_, &mp3_}) media->reset();
  held_ = false;
}

void VirtualMachine::set_port_good(int number, bool good) {
  if (good)
    port_.bad.erase(number);
  else
    port_.bad.insert(number);
}

void VirtualMachine::set_sound(std::string_view path, double seconds) {
  sounds_[lower_case(path)] = seconds;
}
void VirtualMachine::unset_sound(std::string_view path) {
  sounds_.erase(lower_case(path));
}

std::optional<double> VirtualMachine::sound_length(std::string_view path) {
  const auto sound = sounds_.find(lower_case(path));
  if (sound == sounds_.end() || !files_.is_file(path)) return std::nullopt;
  return sound->second;
}

void VirtualMachine::mount_drive(char letter) {
  const auto directory = root_ / std::string(1, static_cast<char>(letter - 'A' + 'a'));
  fs::create_directories(directory);
  files_.mount(letter, directory);
}

void VirtualMachine::idle(std::optional<Instant> next_due) {
  if (next_due && *next_due <= limit_) return move_to(*next_due);
  // What rested is made up for before the next command.
  if (now_ < limit_) return move_to(limit_);
  out_of_time();
}

void VirtualMachine::form_shown(Form& form, bool modal) {
  trace("show " + form.name() + (modal ? " modal" : ""));
}
void VirtualMachine::form_hidden(Form& form) {
  trace("hide " + form.name());
}
void VirtualMachine::popup_shown(PopupMenu& menu) {
  trace("show " + menu.name());
}
void VirtualMachine::popup_hidden(PopupMenu& menu) {
  trace("hide " + menu.name());
}

std::optional<Answer> VirtualMachine::answer_box() {
  if (answers_.empty()) return std::nullopt;
  const Answer answer = std::move(answers_.front());
  answers_.pop_front();
  const Instant until = now_ + answer.after;
  held_ = true;
  while (now_ < until) {
    if (limit_ > now_)
      move_to(std::min(limit_, until));
    else
      out_of_time();
  }
  held_ = false;
  return answer;
}

void VirtualMachine::message(std::string_view text, std::string_view title) {
  seen_.raised.emplace_back(text);
  answer_box();
  trace(join("box ", in_quotes(text), " ", in_quotes(title), " ok -> ok"));
}

bool VirtualMachine::ask(std::string_view text, std::string_view title) {
  seen_.raised.emplace_back(text);
  const auto answer = answer_box();
  const bool yes = answer && answer->kind == Answer::Kind::kYes;
  trace(join("box ", in_quotes(text), " ", in_quotes(title), " yesno -> ", yes ? "yes" : "no"));
  return yes;
}

std::string VirtualMachine::input(std::string_view prompt, std::string_view title, std::string_view preset) {
  const auto answer = answer_box();
  std::string text(preset);
  if (answer && answer->kind == Answer::Kind::kText) text = answer->text;
  if (answer && answer->kind == Answer::Kind::kCancel) text.clear();
  trace(join("input ", in_quotes(prompt), " ", in_quotes(title), " ", in_quotes(preset), " -> ",
             in_quotes(text)));
  return text;
}

std::int16_t VirtualMachine::register_card(int, int number) {
  return cards_.at(static_cast<std::size_t>(number)) ? static_cast<std::int16_t>(number) : std::int16_t{-1};
}

void VirtualMachine::release_card(std::int16_t) {}

bool VirtualMachine::read_port(std::int16_t handle, int port, std::int32_t& word) {
  if (handle < 0) return false;
  const auto first = static_cast<std::size_t>(handle * 64 + port * 32);
  word = static_cast<std::int32_t>((contacts_ >> first & decltype(contacts_)(0xFFFFFFFF)).to_ulong());
  return true;
}

void VirtualMachine::beep(int frequency, int duration) {
  trace(join("beep ", frequency, " ", duration));
}

void VirtualMachine::end() {
  trace("end");
  throw ProcessEnded{};
}

void VirtualMachine::restart(int flags) {
  trace(join("restart ", flags));
}

std::optional<std::string> VirtualMachine::Port::open_line(int number) {
  if (bad.contains(number) || owner_.line_lost_) return "the port does not answer";
  if (owner_.carried_) owner_.carried_->restore();
  owner_.trace(join("port open COM", number));
  return std::nullopt;
}

void VirtualMachine::Port::close_line(int number) {
  owner_.trace(join("port close COM", number));
}

void VirtualMachine::Port::configure_line(const std::string& settings) {
  owner_.trace("port settings " + settings);
}

void VirtualMachine::Port::write_line(std::span<const std::uint8_t> bytes) {
  owner_.trace("tx" + hex_bytes(bytes));
  Frame9 frame{};
  std::copy_n(bytes.begin(), std::min(bytes.size(), frame.size()), frame.begin());
  owner_.seen_.sent.push_back(frame);
  if (owner_.carried_) owner_.carried_->put(frame, owner_.now_);
}

void VirtualMachine::VirtualMedia::set_file(std::string_view path) {
  path_ = path;
  position_ = 0;
  playing_since_.reset();
  note("file " + in_quotes(path));
}

void VirtualMachine::VirtualMedia::reset() {
  path_.clear();
  playing_since_.reset();
  position_ = 0;
}

int VirtualMachine::VirtualMedia::ready_state() {
  return owner_.sound_length(path_) ? 4 : 0;
}

void VirtualMachine::VirtualMedia::play() {
  if (!playing_since_) playing_since_ = owner_.now_;
  note("play");
}

void VirtualMachine::VirtualMedia::hold() {
  position_ = position();
  playing_since_.reset();
  note("hold");
}

void VirtualMachine::VirtualMedia::stop() {
  position_ = 0;
  playing_since_.reset();
  note("stop");
}

double VirtualMachine::VirtualMedia::duration() {
  return owner_.sound_length(path_).value_or(0);
}

double VirtualMachine::VirtualMedia::position() {
  const double played =
      playing_since_ ? std::chrono::duration<double>(owner_.now_ - *playing_since_).count() : 0;
  return std::min(position_ + played, duration());
}

void VirtualMachine::VirtualMedia::seek(double seconds) {
  position_ = seconds;
  if (playing_since_) playing_since_ = owner_.now_;
  note("seek " + number_text(seconds));
}

void VirtualMachine::VirtualMedia::set_volume(int hundredths) {
  note(join("volume ", hundredths));
}

}  // namespace evac::drill

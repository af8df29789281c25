#include "admin/restart_times.h"

#include <algorithm>
#include <limits>

#include "model/text.h"
#include "platform/windows.h"

namespace evac {
namespace {

constexpr std::string_view kOn = "1", kOff = "0";

// What a restart of the machine is asked for with.
constexpr int kShutDown = 1, kReboot = 2, kForce = 4;

// The greatest digit that may stand at a place of hh:mm:ss.
char most_at(int place, const std::string& text) {
  switch (place) {
    case 0:
      return '2';
    case 1:
      return text.starts_with('2') ? '3' : '9';
    case 3:
    case 6:
      return '5';
    default:
      return '9';
  }
}

// With two digits of the hour, as the mask has it.
std::string masked_time(int second_of_day) {
  const std::string text = time_text(second_of_day);
  return text.size() < std::string_view("hh:mm:ss").size() ? "0" + text : text;
}

}  // namespace

void RestartTimes::LoadResetTimes() {
  RestartState& restart = doors_.restart;
  restart.ResetAny = false;
  RestartSlots slots;
  if (read_restart(doors_.folder, slots) != kNoError) return;
  for (int n = 1; n <= kRestartSlots; ++n) {
    const RestartSlot& slot = slots[static_cast<std::size_t>(n - 1)];
    using Field = std::numeric_limits<std::int16_t>;
    restart.ResetOn[n] =
        static_cast<std::int16_t>(std::clamp<int>(Number(*slot.mark), Field::min(), Field::max()));
    restart.ResetTime[n] = 0;
    if (slot.mark != kOn) continue;
    restart.ResetAny = true;
    const auto time = time_value(*slot.time);
    if (!time) {
      restart.unread = n;
      return;
    }
    restart.ResetTime[n] = *time;
  }
}

void RestartTimes::test() {
  const RestartState& restart = doors_.restart;
  if (!restart.ResetAny) return;
  const int now = second_of_day(doors_.loop.wall());
  for (int n = 1; n <= kRestartSlots; ++n)
    if (restart.ResetOn[n] == 1 && restart.ResetTime[n] == now) {
      doors_.process.restart(kShutDown + kReboot + kForce);
      // Slots at one time are one restart.
      return;
    }
}

void RestartTimes::open() {
  FrmRez& form = doors_.form;
  for (int n = 1; n <= kRestartSlots; ++n) {
    form.TxtTper[n].set_text("");
    show_slot(n, false);
  }
  form.CmdPrim.set_enabled(false);
  form.Timer1.set_enabled(true);
  form.windows().show_modal(form);
  form.Timer1.set_enabled(false);
}

void RestartTimes::show_slots() {
  for (int n = 1; n <= kRestartSlots; ++n) {
    const bool on = doors_.restart.ResetOn[n] == 1;
    show_slot(n, on);
    if (on) doors_.form.TxtTper[n].set_text(masked_time(doors_.restart.ResetTime[n]));
  }
  doors_.form.Timer1.set_enabled(false);
}

void RestartTimes::show_slot(int n, bool on) {
  MaskedEdit& input = doors_.form.TxtTper[n];
  muted_ = true;
  doors_.form.Chk1[n].set_value(on);
  muted_ = false;
  input.set_enabled(on);
  input.set_back_color(on ? Color::kWindow : Color::kButtonFace);
}

void RestartTimes::toggle(int n) {
  if (muted_) return;
  const bool on = doors_.restart.ResetOn[n] == 0;
  doors_.restart.ResetOn[n] = on;
  show_slot(n, on);
  if (on) doors_.form.TxtTper[n].set_focus();
  wake();
}

void RestartTimes::filter(int n, std::string& key) {
  MaskedEdit& input = doors_.form.TxtTper[n];
  if (key == "\b") return;
  if (key.size() != 1 || key[0] < '0' || key[0] > '9') {
    key.clear();
    input.set_focus();
  } else if (key[0] > most_at(input.caret(), input.text())) {
    key.clear();
  } else {
    doors_.restart.ResetAny = true;
    wake();
  }
}

void RestartTimes::apply() {
  RestartState& restart = doors_.restart;
  restart.ResetAny = false;
  RestartSlots slots;
  if (read_restart(doors_.folder, slots) != kNoError) return;
  slots = {};
  int wrong = 0;
  for (int n = 1; n <= kRestartSlots && wrong == 0; ++n) {
    RestartSlot& slot = slots[static_cast<std::size_t>(n - 1)];
    const bool on = doors_.form.Chk1[n].value();
    restart.ResetOn[n] = on;
    slot.mark = on ? kOn : kOff;
    if (!on) continue;
    restart.ResetAny = true;
    const std::string& text = doors_.form.TxtTper[n].text();
    if (const auto time = time_value(text)) {
      restart.ResetTime[n] = *time;
      slot.time = text;
    } else {
      wrong = n;
    }
  }
  if (write_restart(doors_.folder, slots) != kNoError) return;
  if (wrong > 0) {
    doors_.boxes.message("Неверный формат времени", "Предупреждение");
    doors_.form.TxtTper[wrong].set_focus();
    return;
  }
  restart.unread = 0;
  doors_.form.CmdPrim.set_enabled(false);
}

void RestartTimes::leave() {
  doors_.form.windows().hide(doors_.form);
}

}  // namespace evac

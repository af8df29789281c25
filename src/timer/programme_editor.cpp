#include "timer/programme_editor.h"

#include <algorithm>

#include "model/text.h"
#include "platform/windows.h"
#include "store/play_list_file.h"
#include "store/programme_files.h"
#include "store/timer_record.h"

namespace evac {
namespace {

using namespace timer_function;

constexpr int kTooLong = 20;  // characters of a message's name
constexpr std::string_view kTerminalRange = "№ терминалов", kPresetNumber = "№ пресета";

enum Kind { kMessageKind = 1, kTunerKind = 4, kPresetKind = 5 };

// What Cmb1 offers for each kind but the last; the first is shown.
constexpr std::string_view kFunctions[][2] = {
    {kPlay, kStop}, {kCdPlay, kCdStop}, {kMp3Play, kMp3Stop}, {kFm, kAm}};

// The text, and the row that has it.
void show(ComboBox& box, std::string_view text) {
  const auto row = std::ranges::find(box.rows(), text);
  box.mark(row == box.rows().end() ? -1 : static_cast<int>(row - box.rows().begin()));
  box.set_text(text);
}

}  // namespace

void ProgrammeEditor::open() {
  doors_.programmes.ProgStart();
  EdFill();
  doors_.form.windows().show_modal(doors_.form);
  reset();
}

void ProgrammeEditor::EdFill() {
  Form3& form = doors_.form;
  doors_.messages.LoadMessageList();
  doors_.play_lists.clear();
  doors_.player.mp_pl_next = 1;
  doors_.program_files.point_at(doors_.settings.protocol_base);
  for (const std::string& file : doors_.program_files.rows())
    if (is_play_list(file)) form.CmbF1.add(file);

  std::vector<std::string> rows;
  if (!doors_.timer.tm_none)
    for (const ProgrammeEvent& event : doors_.timer.events)
      if (!event.tm_rec.empty()) rows.push_back(event.tm_rec);
  show_count(static_cast<int>(rows.size()));
  form.Lst1.add_all(std::move(rows));
  form.Opt1.set_value(true);
  form.CmbLstProg.clear();
  form.CmbLstProg.add_all(programme_names(doors_.folder));
  show(form.CmbLstProg, doors_.timer.prog_today.empty() ? doors_.timer.prog_last : doors_.timer.prog_today);
  if (form.Lst1.count() == 0) return;
  form.Lst1.mark(form.Lst1.count() - 1);
  row_chosen();
}

// As when the window was made.
void ProgrammeEditor::reset() {
  Form3& form = doors_.form;
  form.Lst1.clear();
  show_count(0);
  for (OptionButton* kind : form.kinds) kind->set_value(false);
  for (ScrollBar* bar : {&form.VSH, &form.VSM, &form.VSS, &form.VsFr, &form.VsTo, &form.VsUs, &form.VsTu})
    bar->set_value(bar->least());
  for (int n = 1; n <= kDaysOfWeek; ++n) light_day(n, false);
  ed_mask_ = 0;
  for (ComboBox* box : {&form.CmbF1, &form.Cmb1, &form.CmbLstProg}) {
    box->clear();
    box->set_text("");
  }
  for (Control* control :
       std::initializer_list<Control*>{&form.CmdS, &form.Cmb1, &form.VsTo, &form.VsUs, &form.VsTu})
    control->set_enabled(true);
  form.CmdSt.set_enabled(false);
  form.LblL3.set_caption("");
  form.Frame1.set_caption(kTerminalRange);
}

void ProgrammeEditor::show_count(int rows) {
  ed_rows_ = static_cast<std::int16_t>(rows);
  doors_.form.LblNp.set_caption(std::to_string(ed_rows_));
}

void ProgrammeEditor::kind_chosen(int kind) {
  Form3& form = doors_.form;
  form.Frame1.set_caption(kind == kPresetKind ? kPresetNumber : kTerminalRange);
  form.VsTo.set_enabled(kind != kPresetKind);
  if (kind == kPresetKind) return;
  form.Cmb1.clear();
  for (const std::string_view function : kFunctions[kind - 1]) form.Cmb1.add(function);
  form.Cmb1.mark(0);
  if (kind != kMessageKind) form.Cmb1.set_enabled(true);
  form.VsTu.set_enabled(kind == kTunerKind);
  form.VsUs.set_enabled(kind != kMessageKind);
}

void ProgrammeEditor::message_chosen() {
  Form3& form = doors_.form;
  const bool play_list = is_play_list(form.CmbF1.text());
  if (play_list)
    form.LblL3.set_caption("");
  else
    doors_.messages.show_length(form.CmbF1.text(), form.LblL3);
  form.CmdS.set_enabled(!play_list);
  form.Opt1.set_value(true);
  form.Cmb1.set_enabled(play_list);
  show(form.Cmb1, play_list ? kPlay : kMessage);
}

void ProgrammeEditor::toggle_day(int n) {
  light_day(n, !ed_day_[n]);
  const int bit = 1 << (n - 1);
  ed_mask_ = static_cast<std::int16_t>(ed_day_[n] ? ed_mask_ + bit : ed_mask_ - bit);
}

void ProgrammeEditor::light_day(int n, bool lit) {
  ed_day_[n] = lit;
  doors_.form.CmdW[n].set_back_color(lit ? Color::kOn : Color::kButtonFace);
}

void ProgrammeEditor::from_changed() {
  Form3& form = doors_.form;
  form.LblFr.set_caption(std::to_string(form.VsFr.value()));
  if (form.VsFr.value() > form.VsTo.value()) form.VsTo.set_value(form.VsFr.value());
}

void ProgrammeEditor::to_changed() {
  Form3& form = doors_.form;
  form.LblTo.set_caption(std::to_string(form.VsTo.value()));
  if (form.VsTo.value() < form.VsFr.value()) form.VsFr.set_value(form.VsTo.value());
}

void ProgrammeEditor::add_row() {
  Form3& form = doors_.form;
  const std::string& file = form.CmbF1.text();
  if (Len(file) >= kTooLong) return doors_.boxes.message("Длина сообщения не должна превышать 20 знаков");
  if (ed_mask_ == 0) return doors_.boxes.message("Не указан день недели");

  const std::string device = join(kDevice, form.LblUs.caption(), form.Cmb1.text());
  std::string function, message(kNoTimerMessage);
  if (form.Opt1.value()) {
    function = is_play_list(file) ? form.Cmb1.text() : std::string(kMessage);
    message = file;
  } else if (form.Opt5.value()) {
    function = join(kDevice, kPreset, " ", form.LblFr.caption());
  } else {
    function = form.Opt4.value() ? device + form.LblTu.caption() : device;
  }
  show_count(ed_rows_ + 1);
  form.Lst1.add(timer_record({form.LblNp.caption(), form.LblH.caption(), form.LblM.caption(),
                              form.LblS.caption(), std::to_string(ed_mask_), message, form.LblFr.caption(),
                              form.LblTo.caption(), function}));
}

void ProgrammeEditor::delete_row() {
  ListBox& rows = doors_.form.Lst1;
  const int row = rows.selected();
  if (row < 0) return;
  if (row + 1 < rows.count() && !rows.row(row + 1).empty())
    return doors_.boxes.message("Удалить можно только последнюю запись");
  rows.remove(row);
  show_count(ed_rows_ - 1);
}

void ProgrammeEditor::row_chosen() {
  Form3& form = doors_.form;
  const int row = form.Lst1.selected();
  const auto& events = doors_.timer.events;
  if (row < 0 || row >= static_cast<int>(events.size())) return;
  const std::string& record = events[static_cast<std::size_t>(row)].tm_rec;
  // A row that was added in the place of a deleted one is not saved yet either.
  if (record.empty() || record != form.Lst1.row(row)) return;
  const auto field = [&record](TimerField n) { return TmField(record, n); };

  form.VSH.set_value(Number(field(kTmHours)));
  form.VSM.set_value(Number(field(kTmMinutes)));
  form.VSS.set_value(Number(field(kTmSeconds)));
  form.LblNp.set_caption(std::to_string(row + 1));
  ed_mask_ = 0;
  const int days = Number(field(kTmDays));
  for (int n = 1; n <= kDaysOfWeek; ++n) {
    const int bit = 1 << (n - 1);
    light_day(n, days > 0 && (days & bit) != 0);
    if (ed_day_[n]) ed_mask_ = static_cast<std::int16_t>(ed_mask_ + bit);
  }
  form.VsFr.set_value(LeadingNumber(field(kTmFrom)).value_or(1));
  form.VsTo.set_value(LeadingNumber(field(kTmTo)).value_or(1));
  const bool no_message = field(kTmMessage).starts_with(kNoTimerMessage);
  form.CmdS.set_enabled(!no_message);
  form.Cmb1.set_enabled(no_message);
  form.Opt1.set_value(true);
  take_device(field(kTmFunction));
}

void ProgrammeEditor::take_device(const std::string& function) {
  Form3& form = doors_.form;
  const std::string operation = Mid(function, 3, Len(function));
  const bool tuner = operation.starts_with(kAm) || operation.starts_with(kFm);
  const bool cd = operation.starts_with("CD"), mp3 = operation.starts_with("MP3");
  if (!tuner && !cd && !mp3) {
    form.Frame1.set_caption(kTerminalRange);
    if (Mid(function, 2, Len(kPreset)) == kPreset) form.Opt5.set_value(true);
    return;
  }
  (tuner ? form.Opt4 : cd ? form.Opt2 : form.Opt3).set_value(true);
  form.Cmb1.set_enabled(true);
  show(form.Cmb1, tuner ? operation.substr(0, kFm.size()) : operation);
  if (tuner) form.VsTu.set_value(Number(operation.substr(kFm.size())));
  form.VsUs.set_value(Number(Mid(function, 2, 1)));
}

bool ProgrammeEditor::ask_name(std::string_view preset) {
  ComboBox& names = doors_.form.CmbLstProg;
  const std::string name = doors_.boxes.input("Введите имя программы", "Новая программа", preset);
  const auto refuse = [this](std::string_view why) {
    doors_.boxes.message(why);
    return false;
  };
  if (name.empty()) return refuse("Не указано имя программы");
  if (!is_programme_name(name)) return refuse("Недопустимое имя программы");
  // The disk finds a file whatever the case of its letters.
  if (std::ranges::any_of(names.rows(), [&](const auto& n) { return lower_case(n) == lower_case(name); }))
    return refuse("Такое имя уже существует");
  names.add(name);
  show(names, name);
  return true;
}

void ProgrammeEditor::add_programme() {
  if (ask_name("Prog_new")) doors_.form.LblNp.set_caption("0");
}

void ProgrammeEditor::save() {
  Form3& form = doors_.form;
  if (form.CmbLstProg.text().empty() && !ask_name("Новая программа")) return;
  doors_.programmes.save(form.CmbLstProg.text(), form.Lst1.rows());
}

void ProgrammeEditor::programme_chosen() {
  Form3& form = doors_.form;
  TimerState& timer = doors_.timer;
  ed_rows_ = 0;
  doors_.programmes.ProgLoad(form.CmbLstProg.text());
  if (timer.tm_none) return;
  timer.tm_next_i = 0;
  form.Lst1.clear();
  // The empty one at the end of each programme begins the count anew.
  for (const ProgrammeEvent& event : timer.events) {
    if (event.tm_rec.empty()) {
      show_count(0);
      continue;
    }
    form.Lst1.add(event.tm_rec);
    show_count(ed_rows_ + 1);
    form.Lst1.mark(form.Lst1.count() - 1);
    row_chosen();
  }
}

}  // namespace evac

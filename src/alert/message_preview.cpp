#include "alert/message_preview.h"

#include "sound/followed_message.h"

namespace evac {

MessagePreview::Choices MessagePreview::rows(Form5& f) {
  constexpr std::string_view kCannotOpen = "Не удается открыть выбранный файл",
                             kOpenError = "Ошибка открытия файла ";
  Choices choices;
  choices[1] = {&f.CmbF1, &f.LblL, &f.CmdSound1, &f.CmdStop1, kCannotOpen};
  choices[2] = {&f.CmbF2, &f.LblL2, &f.CmdSound2, &f.CmdStop2, kOpenError};
  choices[3] = {&f.CmbF3, &f.LblL3, &f.CmdSound3, &f.CmdStop3, kOpenError};
  return choices;
}

void MessagePreview::chosen(int n) {
  doors_.lists.show_length(choices_[n].files->text(), *choices_[n].length);
}

void MessagePreview::play(int n) {
  const Choice& choice = choices_[n];
  const std::string path = message_path(doors_.settings, choice.files->text());
  if (!doors_.files.is_file(path)) {
    doors_.boxes.message("Не найден указанный звуковой файл");
    return;
  }
  doors_.MP2.set_file(path);
  if (doors_.MP2.ready_state() <= 0) {
    doors_.boxes.message(choice.open_error);
    return;
  }
  doors_.MP2.play();
  choice.stop->set_enabled(true);
  choice.stop->set_focus();
}

void MessagePreview::stop(int n) {
  doors_.MP2.stop();
  choices_[n].stop->set_enabled(false);
  choices_[n].sound->set_focus();
}

void MessagePreview::reset() {
  for (const Choice& choice : choices_) choice.stop->set_enabled(false);
}

}  // namespace evac

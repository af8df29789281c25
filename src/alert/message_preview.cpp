#include "alert/message_preview.h"

#include "alert/followed_message.h"

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
  lists_.show_length(choices_[n].files->text(), *choices_[n].length);
}

void MessagePreview::play(int n) {
  const Choice& choice = choices_[n];
  const std::string path = message_path(settings_, choice.files->text());
  if (!files_.is_file(path)) {
    boxes_.message("Не найден указанный звуковой файл");
    return;
  }
  MP2_.set_file(path);
  if (MP2_.ready_state() <= 0) {
    boxes_.message(choice.open_error);
    return;
  }
  MP2_.play();
  choice.stop->set_enabled(true);
  choice.stop->set_focus();
}

void MessagePreview::stop(int n) {
  MP2_.stop();
  choices_[n].stop->set_enabled(false);
  choices_[n].sound->set_focus();
}

void MessagePreview::reset() {
  for (const Choice& choice : choices_) choice.stop->set_enabled(false);
}

}  // namespace evac

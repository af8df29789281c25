#include "alert/message_lists.h"

#include "alert/followed_message.h"
#include "model/text.h"

namespace evac {

void MessageLists::LoadMessageList() {
  ComboBox* const lists[] = {&form5_.CmbF1, &form5_.CmbF2, &form5_.CmbF3, &tab_.CmbF};
  for (ComboBox* list : lists) {
    list->clear();
    list->set_text("");
  }
  const std::string folder = settings_.data_path("message");
  tab_.Dir3.point_at(folder);
  tab_.File1.point_at(folder);
  messages_.MessageLengths.clear();
  for (const std::string& file : tab_.File1.rows()) {
    MP2_.set_file(message_path(settings_, file));
    messages_.MessageLengths.push_back(time_text(static_cast<int>(MP2_.duration())));
    MP2_.hold();
    for (ComboBox* list : lists) list->add(file);
  }
  show_message(settings_.SettingsLine[kBlockMessage], {{form5_.CmbF1, form5_.LblL}});
  show_message(settings_.SettingsLine[kManualMessage],
               {{form5_.CmbF2, form5_.LblL2}, {tab_.CmbF, tab_.LblL}});
}

void MessageLists::show_message(std::string_view file, std::initializer_list<Choice> choices) {
  for (const Choice& choice : choices) {
    choice.files.set_text(file.empty() ? kNoMessage : file);
    if (file.empty())
      choice.length.set_caption("");
    else
      show_length(file, choice.length);
  }
}

void MessageLists::show_length(std::string_view file, Label& label) const {
  const auto& files = tab_.File1.rows();
  for (std::size_t i = 0; i < files.size() && i < messages_.MessageLengths.size(); ++i)
    if (lower_case(files[i]) == lower_case(file)) label.set_caption(messages_.MessageLengths[i]);
}

}  // namespace evac

#include "alert/message_lists.h"

#include "model/text.h"
#include "sound/followed_message.h"
#include "store/timer_record.h"

namespace evac {

void MessageLists::LoadMessageList() {
  ComboBox* const lists[] = {&doors_.form5.CmbF1, &doors_.form3.CmbF1, &doors_.form5.CmbF2,
                             &doors_.form5.CmbF3, &doors_.tab.CmbF};
  for (ComboBox* list : lists) {
    list->clear();
    list->set_text("");
  }
  const std::string folder = doors_.settings.data_path("message");
  doors_.listers.Dir3.point_at(folder);
  doors_.listers.File1.point_at(folder);
  doors_.messages.MessageLengths.clear();
  for (const std::string& file : doors_.listers.File1.rows()) {
    doors_.MP2.set_file(message_path(doors_.settings, file));
    doors_.messages.MessageLengths.push_back(time_text(static_cast<int>(doors_.MP2.duration())));
    doors_.MP2.hold();
    for (ComboBox* list : lists) list->add(file);
  }
  show_message(doors_.settings.SettingsLine[kBlockMessage], {{doors_.form5.CmbF1, doors_.form5.LblL}});
  show_message(doors_.settings.SettingsLine[kManualMessage],
               {{doors_.form5.CmbF2, doors_.form5.LblL2}, {doors_.tab.CmbF, doors_.tab.LblL}});
  if (doors_.timer.tm_none) return;
  const auto& events = doors_.timer.events;
  show_message(events.empty() ? "" : TmField(events.front().tm_rec, kTmMessage),
               {{doors_.form3.CmbF1, doors_.form3.LblL3}});
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
  const auto& files = doors_.listers.File1.rows();
  for (std::size_t i = 0; i < files.size() && i < doors_.messages.MessageLengths.size(); ++i)
    if (lower_case(files[i]) == lower_case(file)) label.set_caption(doors_.messages.MessageLengths[i]);
}

}  // namespace evac

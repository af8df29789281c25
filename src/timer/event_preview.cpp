#include "timer/event_preview.h"

#include "sound/followed_message.h"

namespace evac {

void EventPreview::play() {
  const std::string path = message_path(doors_.settings, doors_.form.CmbF1.text());
  if (!doors_.files.is_file(path)) return doors_.boxes.message("Не найден указанный звуковой файл");
  doors_.MP2.set_file(path);
  if (doors_.MP2.ready_state() <= 0) return doors_.boxes.message("Не удается открыть выбранный файл");
  doors_.MP2.play();
  doors_.form.CmdSt.set_enabled(true);
  doors_.form.CmdSt.set_focus();
}

void EventPreview::stop() {
  doors_.MP2.hold();
  doors_.form.CmdSt.set_enabled(false);
  doors_.form.CmdS.set_focus();
}

}  // namespace evac

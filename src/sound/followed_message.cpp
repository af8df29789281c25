#include "sound/followed_message.h"

#include "model/text.h"

namespace evac {

std::optional<int> FollowedMessage::play(std::string_view file) {
  doors_.media.set_file(message_path(doors_.settings, file));
  if (doors_.media.ready_state() <= 0) return {};
  doors_.media.play();
  const int length = static_cast<int>(doors_.media.duration() + 1);
  end_in(length);
  return length;
}

int FollowedMessage::left() const {
  return doors_.end - second_of_day(doors_.loop.wall());
}

void FollowedMessage::end_in(int seconds) {
  doors_.end = later_in_day(second_of_day(doors_.loop.wall()), seconds);
}

std::string message_path(const SettingsState& settings, std::string_view file) {
  return settings.data_path(join("message\\", file));
}

}  // namespace evac

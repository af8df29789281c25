#include "alert/followed_message.h"

#include "model/text.h"

namespace evac {

std::optional<int> FollowedMessage::play(std::string_view file) {
  media_.set_file(message_path(settings_, file));
  if (media_.ready_state() <= 0) return {};
  media_.play();
  const int length = static_cast<int>(media_.duration() + 1);
  end_in(length);
  return length;
}

int FollowedMessage::left() const {
  return end_ - second_of_day(loop_.wall());
}

void FollowedMessage::end_in(int seconds) {
  end_ = later_in_day(second_of_day(loop_.wall()), seconds);
}

std::string message_path(const SettingsState& settings, std::string_view file) {
  return settings.data_path(join("message\\", file));
}

}  // namespace evac

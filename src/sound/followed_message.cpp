#include "sound/followed_message.h"

#include <cmath>

#include "model/text.h"

namespace evac {
namespace {

constexpr double kTail = 1;  // seconds that a play takes beyond its file

}  // namespace

std::optional<int> FollowedMessage::play(std::string_view file) {
  doors_.media.set_file(message_path(doors_.settings, file));
  if (doors_.media.ready_state() <= 0) return {};
  doors_.media.play();
  const double length = doors_.media.duration() + kTail;
  end_in(static_cast<int>(std::floor(length + 0.5)));
  return static_cast<int>(length);
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

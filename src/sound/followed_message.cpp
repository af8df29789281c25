#include "sound/followed_message.h"

#include <cmath>

#include "model/text.h"

namespace evac {
namespace {

constexpr double kTail = 1;  // seconds that a play takes beyond its file

}  // namespace

std::optional<int> FollowedMessage::play(std::string_view file) {
  doors_.media.set_file(message_path(doors_.settings, file));
  if (doors_.file_given) *doors_.file_given = file;
  opened_ = doors_.media.ready_state() > 0;
  if (!opened_) return {};
  doors_.media.play();
  ++plays_;
  started_ = second_of_day(doors_.loop.wall());
  const double length = doors_.media.duration() + kTail;
  end_in(static_cast<int>(std::floor(length + 0.5)));
  return static_cast<int>(length);
}

int FollowedMessage::left() const {
  return doors_.end - second_of_day(doors_.loop.wall());
}

bool FollowedMessage::overdue() const {
  const bool behind_midnight = doors_.end < started_ && second_of_day(doors_.loop.wall()) >= started_;
  return left() < -1 && !behind_midnight;
}

void FollowedMessage::end_in(int seconds) {
  doors_.end = later_in_day(second_of_day(doors_.loop.wall()), seconds);
}

std::string message_path(const SettingsState& settings, std::string_view file) {
  return settings.data_path(join("message\\", file));
}

}  // namespace evac

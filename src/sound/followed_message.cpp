#include "sound/followed_message.h"

#include <cmath>

#include "model/text.h"

namespace evac {
namespace {

constexpr double kTail = 1;  // seconds that a play takes beyond its file

WallTime full_second(WallTime time) {
  return std::chrono::floor<std::chrono::seconds>(time);
}

}  // namespace

std::optional<int> FollowedMessage::play(std::string_view file) {
  doors_.media.set_file(message_path(doors_.settings, file));
  if (doors_.file_given) *doors_.file_given = file;
  opened_ = doors_.media.ready_state() > 0;
  if (!opened_) return {};
  doors_.media.play();
  ++plays_;
  const double length = doors_.media.duration() + kTail;
  const auto seconds = static_cast<int>(std::floor(length + 0.5));
  end_in(seconds);
  ends_ = full_second(doors_.loop.wall()) + std::chrono::seconds(seconds);
  return static_cast<int>(length);
}

int FollowedMessage::left() const {
  return doors_.end - second_of_day(doors_.loop.wall());
}

bool FollowedMessage::overdue() const {
  return ends_ && full_second(doors_.loop.wall()) - *ends_ > std::chrono::seconds(1);
}

void FollowedMessage::end_in(int seconds) {
  doors_.end = later_in_day(second_of_day(doors_.loop.wall()), seconds);
}

std::string message_path(const SettingsState& settings, std::string_view file) {
  return settings.data_path(join("message\\", file));
}

}  // namespace evac

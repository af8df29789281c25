// A message that is followed by the clock. The media tell nobody that a file has ended, so the time of day of
// its end is worked out when it starts, and a timer compares that with the clock.
#pragma once

#include <optional>
#include <string_view>

#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class FollowedMessage {
 public:
  struct Doors {
    Media& media;
    std::int32_t& end;
    const SettingsState& settings;
    EventLoop& loop;
    std::string* file_given = nullptr;  // where the file last given to the media is kept, if anywhere
  };
  // Keeps the end, a time of day in whole seconds, in `end`.
  explicit FollowedMessage(const Doors& doors) : doors_(doors) {}

  // Plays a file of the folder "message". A play takes a second more than its file, to the nearest second,
  // ties up. Returns the whole part of that time, the figure for the journal; none when the file can't be
  // opened, and then the end stays as it was.
  std::optional<int> play(std::string_view file);
  // Whole seconds from now to the end; negative once it is past, and until midnight where it lies behind it.
  int left() const;
  // Whether the last play could be opened; so it is before the first one, and once the outcome is forgotten.
  bool opened() const { return opened_; }
  void forget_outcome() {
    opened_ = true;
    ends_.reset();
  }
  // Plays that could be opened, so far.
  int plays() const { return plays_; }
  // The second of the last play's end has passed unseen: by the calendar and the clock it is more than a
  // second ago. Its time of day comes round again only the next day.
  bool overdue() const;
  // Sets the end so many seconds from now, whatever plays.
  void end_in(int seconds);

 private:
  const Doors doors_;
  bool opened_ = true;
  int plays_ = 0;
  std::optional<WallTime> ends_;  // the end of the last play that opened, with its date
};

// Path of a file in the folder "message".
std::string message_path(const SettingsState& settings, std::string_view file);

}  // namespace evac

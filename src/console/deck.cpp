#include "console/deck.h"

#include <optional>

#include "console/channel_colors.h"
#include "model/text.h"

namespace evac {
namespace {

enum Operation { kBackToStart = 1, kPlayTrack = 4, kStop = 5 };
enum LitButton { kPlayButton = 0, kStopButton = 3, kRestartButton = 4 };

int first(int) {
  return 1;
}
int next(int track) {
  return track + 1;
}
int previous(int track) {
  return track > 1 ? track - 1 : track;
}
int same(int track) {
  return track;
}

// What a press of each button does; a light or a lamp without a value stays as it is.
struct Press {
  int (*track)(int);
  Operation operation;
  std::optional<bool> play_lit, stop_lit, restart_lit;
  std::optional<SourceLamp> lamp;
};
constexpr Press kPresses[] = {
    {first, kPlayTrack, true, false, {}, SourceLamp::kPlaying},
    {next, kPlayTrack, true, false, false, {}},
    {previous, kPlayTrack, true, false, false, {}},
    {same, kStop, false, true, false, SourceLamp::kStopped},
    {first, kBackToStart, true, false, true, {}},
};

}  // namespace

void Deck::press(int i) {
  const Press& press = kPresses[i];
  doors_.track = static_cast<std::int16_t>(press.track(doors_.track));
  doors_.link.SendSource(Link::kSourceCommand, doors_.kind.device, doors_.out_channel, press.operation,
                         doors_.track);
  doors_.text.set_caption(press.operation == kStop ? std::string(doors_.kind.stop_text)
                                                   : join(doors_.kind.play_text, int{doors_.track}));
  const auto light = [this](LitButton button, std::optional<bool> lit) {
    if (lit) doors_.buttons[button].set_back_color(*lit ? Color::kOn : doors_.paint.ColorButtonFace);
  };
  light(kPlayButton, press.play_lit);
  light(kStopButton, press.stop_lit);
  light(kRestartButton, press.restart_lit);
  if (press.lamp) ChanLamp(doors_.terminals_tab, doors_.kind.source, *press.lamp);
}

}  // namespace evac

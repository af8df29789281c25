// Painting by channel, and the lamps of the sources. All painting shares the colour picked last.
#pragma once

#include "console/terminals_tab.h"
#include "model/system_model.h"

namespace evac {

// The background of the main window: a zone or terminal button that is off.
inline constexpr Color kMainBackground = Color::kButtonFace;

inline bool is_channel(int channel) {
  return channel >= 1 && channel <= kChannels;
}

// Makes the channel's colour the colour picked last; a number that is no channel leaves that as it is.
void pick_channel_color(PaintState& paint, int channel);
// Picks the channel's colour and paints the control with the colour picked last.
void SetChannelColor(PaintState& paint, Control& control, int channel);
// The samples of a legend: channels 1 to 5 and, where there is a sixth, "Не выбран".
void paint_legend(ControlArray<Label>& samples);

enum class SourceLamp { kPlaying, kStopped };  // "P" and "S"
// Lights or darkens the lamp of every channel that carries the source.
void ChanLamp(TerminalsTab& tab, std::string_view source, SourceLamp state);

}  // namespace evac

// A deck of the rack, CD or MP3. Each press sends one frame at once and shows what was asked for; no answer
// is awaited.
#pragma once

#include <string_view>

#include "console/source_names.h"
#include "console/terminals_tab.h"
#include "link/link.h"
#include "model/system_model.h"

namespace evac {

// What tells one deck from another.
struct DeckKind {
  int device;
  std::string_view source;  // by this name the channels' lamps know it
  std::string_view play_text, stop_text;
};

inline constexpr DeckKind kCdDeck{Link::kCdDeck, source_name::kCd, "CD-play Track - ", "CD-stop "};
inline constexpr DeckKind kMp3Deck{Link::kMp3Deck, source_name::kMp3, "MP3-play Track - ", "MP3-stop"};

class Deck {
 public:
  struct Doors {
    const DeckKind& kind;
    std::int16_t& track;
    std::int16_t& out_channel;
    ControlArray<Button>& buttons;
    Label& text;
    TerminalsTab& terminals_tab;
    const PaintState& paint;
    Link& link;
  };
  explicit Deck(const Doors& doors) : doors_(doors) {}

  // Click of an option of the outputs; sends nothing.
  void choose_output(int i) { doors_.out_channel = static_cast<std::int16_t>(i); }
  // Buttons 0 play, 1 next, 2 previous, 3 stop, 4 back to the start. Faults with an overflow at track 100:
  // the track is counted, but neither sent nor shown.
  void press(int i);

 private:
  const Doors doors_;
};

}  // namespace evac

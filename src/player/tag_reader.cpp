#include "player/tag_reader.h"

namespace evac {

void TagReader::ReadTag() {
  if (!doors_.steps.track_ready(kTagTexts)) return;
  const std::string& file = doors_.player.mp_file;
  const auto tag = read_tag(doors_.files, file);
  if (!tag) return;
  PlayerTab& tab = doors_.tab;
  tab.LblII.set_caption(file);
  tab.LblII.set_tool_tip(file);
  tab.LblTitle.set_caption(tag->title);
  tab.LblArtist.set_caption(tag->artist);
  tab.LblAlbum.set_caption(tag->album);
  tab.LblYear.set_caption(tag->year);
  tab.LblComment.set_caption(tag->comment);
}

void TagReader::clear() {
  PlayerTab& tab = doors_.tab;
  for (Label* label :
       {&tab.LblII, &tab.LblTitle, &tab.LblArtist, &tab.LblAlbum, &tab.LblYear, &tab.LblComment})
    label->set_caption("");
}

}  // namespace evac

// The wing of the player.
#include "app/console.h"

namespace evac {

void Console::wire_player() {
  Form1& form1 = forms_.form1;
  form1.CmdPMP.click = [this] { player_power_.toggle(); };
  form1.CmdCicl2.click = [this] { player_power_.toggle_cycle(); };
  form1.CmdPlayMP.click = [this] { transport_.play(); };
  form1.CmdStopMP.click = [this] { transport_.stop(); };
  form1.CmdPauseMP.click = [this] { transport_.pause(); };
  form1.CmdNextMP.click = [this] { transport_.next(); };
  form1.CmdPrevMP.click = [this] { transport_.previous(); };
  form1.CmdUpMP.click = [this] { volume_.up(); };
  form1.CmdDownMP.click = [this] { volume_.down(); };
  form1.Tmr1.tick = [this] { transport_.watch_end(); };
  form1.Tmr2.tick = [this] { position_.tick(); };
  form1.Ipos.mouse_down = [this](MousePress press) { position_.press(press); };
  form1.Ipos.mouse_move = [this](int way) { position_.move(way); };
  form1.Ipos.mouse_up = [this] { position_.release(); };

  form1.CmdListMP.click = [this] { list_panels_.toggle_tracks(); };
  form1.CmdListMP.mouse_down = [this](MousePress press) { track_choice_.jump(press); };
  form1.TxtNzMp.key_press = [this](std::string& key) { track_choice_.filter_key(key); };
  form1.LstPtreckMP.click = [this] { track_choice_.pick(); };
  form1.LstPtreckMP.double_click = [this] { track_choice_.play_picked(); };
  form1.LstPtreckMP.mouse_down = [this](MousePress press) { track_removal_.remove_chosen(press); };

  form1.CmdLpl.click = [this] { list_panels_.toggle_lists(); };
  form1.CmdCrpl.click = [this] { play_lists_.save(); };
  form1.CmdCln.click = [this] { play_lists_.clean(); };
  form1.LstPll.double_click = [this] { play_lists_.load_chosen(); };
  form1.LstPll.mouse_down = [this](MousePress press) { play_lists_.delete_chosen(press); };

  form1.CmdAddPl.click = [this] { add_panel_.toggle(); };
  form1.Drive1.click = [this] { add_panel_.drive_changed(); };
  form1.Dir2.change = [this] { add_panel_.folder_changed(); };
  form1.Dir2.double_click = [this] { forms_.form1.Dir2.open_chosen(); };
  form1.LstAddList.click = [this] { add_panel_.add_chosen(); };
  form1.LstAddList.mouse_down = [this](MousePress press) { add_panel_.add_all(press); };

  form1.CmdSVL.click = [this] { list_length_.toggle(); };
  form1.CmdSeek.click = [this] { tag_search_.toggle(); };
  form1.CmdSeekOk.click = [this] { tag_search_.run(); };
  form1.TxtSeek.change = [this] { tag_search_.text_changed(); };
}

}  // namespace evac

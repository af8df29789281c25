// Tab "mp3-плеер" of Form1: the built-in player, its lists, the tag of the track, the search.
#pragma once

#include "platform/controls.h"
#include "platform/listers.h"

namespace evac {

// The files that are offered as tracks.
inline constexpr std::string_view kTrackPatterns = "*.Wav;*.mp3;*.mid;*.rmi";
// The way of the position button, in the form's units.
inline constexpr int kPositionEnd = 5520;

struct PlayerTab {
  PlayerTab(Form& form, Files& files)
      : place{form.place("PlayerTab")},
        Drive1{Frame9.inside(), "Drive1", files},
        Dir2{Frame9.inside(), "Dir2", files},
        File2{place, "File2", files, "*"},
        File3{place, "File3", files, kTrackPatterns} {
    hide_panels();
  }
  // What is out of sight while the player is off.
  void hide_panels() {
    for (Control* control :
         std::initializer_list<Control*>{&LstPtreckMP, &LstPll, &Label5, &TxtNzMp, &Drive1, &Dir2,
                                         &LstAddList, &LblVPL, &TxtSeek, &LblSeek, &CmdSeekOk})
      control->set_visible(false);
  }
  Place place;

  Frame Frame9{place, "Frame9"};
  Label LblUP{Frame9.inside(), "LblUP", "mp3-player"};
  Button CmdPMP{Frame9.inside(), "CmdPMP", "Off"};
  Button CmdPlayMP{Frame9.inside(), "CmdPlayMP"};
  Button CmdPauseMP{Frame9.inside(), "CmdPauseMP"};
  Button CmdStopMP{Frame9.inside(), "CmdStopMP"};
  Button CmdPrevMP{Frame9.inside(), "CmdPrevMP"};
  Button CmdNextMP{Frame9.inside(), "CmdNextMP"};
  Button CmdUpMP{Frame9.inside(), "CmdUpMP"};
  Button CmdDownMP{Frame9.inside(), "CmdDownMP"};
  Label LblMPU{Frame9.inside(), "LblMPU"};  // volume
  Button CmdCicl2{Frame9.inside(), "CmdCicl2", "CYCLE"};
  Button Ipos{Frame9.inside(), "Ipos"};     // the position, by its left side
  Label LblTMP{Frame9.inside(), "LblTMP"};  // time left

  // The tracks and the saved lists share one place.
  ListBox LstPtreckMP{Frame9.inside(), "LstPtreckMP"};
  ListBox LstPll{Frame9.inside(), "LstPll"};
  Label Label5{Frame9.inside(), "Label5", "Номер трека"};
  TextBox TxtNzMp{Frame9.inside(), "TxtNzMp"};
  Button CmdListMP{Frame9.inside(), "CmdListMP", "SHOW"};
  Button CmdLpl{Frame9.inside(), "CmdLpl", "LOAD"};
  Button CmdCrpl{Frame9.inside(), "CmdCrpl", "CREAT"};
  Button CmdAddPl{Frame9.inside(), "CmdAddPl", "ADD"};
  Button CmdCln{Frame9.inside(), "CmdCln", "CLEAN"};
  Button CmdSVL{Frame9.inside(), "CmdSVL", "SIZE"};
  Label LblVPL{Frame9.inside(), "LblVPL"};  // length of the list

  DriveLister Drive1;
  FolderLister Dir2;
  ListBox LstAddList{Frame9.inside(), "LstAddList"};

  Button CmdSeek{Frame9.inside(), "CmdSeek", "SEEK"};
  Label LblSeek{Frame9.inside(), "LblSeek", "Текст для поиска"};
  TextBox TxtSeek{Frame9.inside(), "TxtSeek"};
  Button CmdSeekOk{Frame9.inside(), "CmdSeekOk", "OK"};

  Frame Frame7_1{place, "Frame7", "Информация о исполнителе", 1};
  Label Label9{Frame7_1.inside(), "Label9", "Название"};
  Label LblTitle{Frame7_1.inside(), "LblTitle"};
  Label Label10{Frame7_1.inside(), "Label10", "Исполнитель"};
  Label LblArtist{Frame7_1.inside(), "LblArtist"};
  Label Label11{Frame7_1.inside(), "Label11", "Альбом"};
  Label LblAlbum{Frame7_1.inside(), "LblAlbum"};
  Label Label12{Frame7_1.inside(), "Label12", "Год"};
  Label LblYear{Frame7_1.inside(), "LblYear"};
  Label Label13{Frame7_1.inside(), "Label13", "Комментарий"};
  Label LblComment{Frame7_1.inside(), "LblComment"};
  Label LblII{Frame7_1.inside(), "LblII"};  // path of the track

  FileLister File2;  // files of the program folder
  FileLister File3;  // tracks of the chosen folder

  Timer Tmr1{place, "Tmr1", 500};
  Timer Tmr2{place, "Tmr2", 1000};
};

}  // namespace evac

#include "player/add_panel.h"

#include "model/text.h"

namespace evac {

void AddPanel::toggle() {
  PlayerTab& tab = doors_.tab;
  if (!doors_.player.mp_pow) return;
  const bool open = doors_.player.mp_add = !doors_.player.mp_add;
  tab.CmdAddPl.set_back_color(mode_color(open));
  tab.Drive1.set_visible(open);
  tab.Dir2.set_visible(open);
  tab.LstAddList.set_visible(open);
  if (!open) return;
  tab.Drive1.choose('C');
  tab.Dir2.point_at("C:\\");
}

void AddPanel::drive_changed() {
  DriveLister& drives = doors_.tab.Drive1;
  if (doors_.steps.DriveReady()) return doors_.tab.Dir2.point_at(path_in(drives.drive(), ""));
  doors_.player.mp_drv_bad = true;
  doors_.boxes.message(join("Drive ", drives.drive(), " not access!"), "!!!");
  drives.choose('C');
  doors_.player.mp_drv_bad = false;
}

void AddPanel::folder_changed() {
  PlayerTab& tab = doors_.tab;
  tab.File3.point_at(tab.Dir2.path());
  tab.LstAddList.clear();
  tab.LstAddList.add_all(tab.File3.rows());
}

void AddPanel::add_chosen() {
  ListBox& files = doors_.tab.LstAddList;
  const int row = files.selected();
  if (row < 0) return;
  const std::string file = files.row(row);
  files.remove(row);
  added({file});
}

void AddPanel::add_all(MousePress press) {
  ListBox& files = doors_.tab.LstAddList;
  if (press.button != 2 || files.count() == 0) return;
  const std::vector<std::string> all = files.rows();
  files.clear();
  added(all);
}

void AddPanel::added(const std::vector<std::string>& files) {
  std::vector<std::string> paths;
  paths.reserve(files.size());
  for (const std::string& file : files) paths.push_back(path_in(doors_.tab.Dir2.path(), file));
  doors_.tracks.add(paths);
  if (!doors_.player.mp_show) doors_.tab.CmdListMP.click();
  doors_.length.clear();
}

}  // namespace evac

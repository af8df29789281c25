#include "player/play_lists.h"

#include <algorithm>

#include "model/text.h"
#include "store/play_list_file.h"

namespace evac {
namespace {

constexpr std::string_view kFolder = "PlayList";

}  // namespace

struct PlayLists::FolderTexts {
  std::string_view question, title, refusal, refusal_title;
};

bool PlayLists::PlayerInit() {
  static constexpr FolderTexts kTexts{"Не найдена папка PlayList\nСоздать папку PlayList ???", "Вопрос ?",
                                      "Не найдена папка PlayList", "???"};
  switch (find_folder(kTexts)) {
    case Folder::kRefused:
      return false;
    case Folder::kThere:
      fill_from_folder();
      [[fallthrough]];
    case Folder::kFailed:
      return true;
  }
  return true;
}

// Leaves Dir2 in the program folder.
PlayLists::Folder PlayLists::find_folder(const FolderTexts& texts) {
  doors_.tab.Dir2.point_at(doors_.settings.protocol_base);
  const auto& folders = doors_.tab.Dir2.rows();
  const std::string wanted = lower_case(list_path(kFolder));
  if (std::ranges::any_of(folders, [&](const std::string& path) { return lower_case(path) == wanted; }))
    return Folder::kThere;
  if (doors_.boxes.ask(texts.question, texts.title))
    return doors_.files.make_folder(list_path(kFolder)) == kNoError ? Folder::kThere : Folder::kFailed;
  doors_.boxes.message(texts.refusal, texts.refusal_title);
  doors_.tab.CmdPMP.click();
  return Folder::kRefused;
}

void PlayLists::fill_from_folder() {
  PlayerState& player = doors_.player;
  player.mp_pl_dir = list_path(kFolder);
  doors_.tab.Dir2.point_at(player.mp_pl_dir);
  std::vector<std::string> paths;
  for (const std::string& file : doors_.tab.File3.rows()) paths.push_back(path_in(player.mp_pl_dir, file));
  doors_.tracks.fill(std::move(paths), kGap);
  player.mp_file = player.mp_cnt() > 0 ? player.track() : "";
}

void PlayLists::ListRefresh() {
  PlayerTab& tab = doors_.tab;
  tab.File2.point_at(doors_.settings.protocol_base);
  tab.LstPll.clear();
  int& next = doors_.player.mp_pl_next;
  next = 1;
  for (const std::string& file : tab.File2.rows()) {
    if (!is_play_list(file)) continue;
    tab.LstPll.add(file);
    // By name the list numbered 10 comes before the one numbered 2, and is passed over here.
    if (play_list_number(file) == next) ++next;
  }
}

void PlayLists::LoadPlayList(std::string_view name) {
  PlayerState& player = doors_.player;
  player.mp_pl_name = name;
  auto tracks = read_play_list(doors_.files, list_path(name));
  if (!tracks) return;
  if (tracks->empty()) return doors_.boxes.message("Play-list empty", "Play-list");
  doors_.tracks.fill(*std::move(tracks), kLoadedGap);
  player.mp_trk = 1;
  if (!player.mp_show) doors_.tab.CmdListMP.click();
}

void PlayLists::save() {
  const PlayerState& player = doors_.player;
  if (!player.mp_pow || !doors_.boxes.ask("Записать данные в Play-list", "Play-list")) return;
  if (player.mp_cnt() == 0) return;
  const std::string name = join(kPlayListName, player.mp_pl_next);
  if (write_play_list(doors_.files, list_path(name), player.mp_list) != kNoError) return;
  doors_.boxes.message(join("Данные в файле ", name), "!!!");
  ListRefresh();
}

void PlayLists::load_chosen() {
  const ListBox& lists = doors_.tab.LstPll;
  if (!doors_.player.mp_pow || lists.selected() < 0) return;
  const std::string name = lists.row(lists.selected());
  if (!doors_.boxes.ask(join("Load ", name), "Play-list!")) return;
  doors_.tab.CmdStopMP.click();
  doors_.tab.LstPtreckMP.clear();
  if (doors_.player.mp_svl) doors_.tab.CmdSVL.click();
  LoadPlayList(name);
}

void PlayLists::delete_chosen(MousePress press) {
  const ListBox& lists = doors_.tab.LstPll;
  if (!press.plain_right() || !doors_.player.mp_pow || lists.selected() < 0) return;
  const std::string name = lists.row(lists.selected());
  if (!doors_.boxes.ask(join("Удалить запись? ", name), "!!!")) return;
  if (doors_.files.remove(list_path(name)) == kNoError) ListRefresh();
}

void PlayLists::clean() {
  static constexpr std::string_view kQuestion = "Не найдена папка PlayList\nСоздать папку PlayList";
  static constexpr FolderTexts kTexts{kQuestion, "???", kQuestion, "Сообщение"};
  PlayerTab& tab = doors_.tab;
  if (!doors_.player.mp_pow || !doors_.boxes.ask("Очистить список", "???")) return;
  tab.CmdStopMP.click();
  doors_.player.mp_trk = 1;
  tab.LstPtreckMP.clear();
  tab.Drive1.choose(doors_.settings.protocol_base[0]);
  if (find_folder(kTexts) != Folder::kThere) return;
  fill_from_folder();
  doors_.player.mp_pl_name.clear();
  doors_.length.clear();
}

std::string PlayLists::list_path(std::string_view name) const {
  return path_in(doors_.settings.protocol_base, name);
}

}  // namespace evac

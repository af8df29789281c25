// Form1, the main window: the header strip, the menu and the seven tabs, each a struct of the room that works
// it.
#pragma once

#include "alert/alarm_tab.h"
#include "console/power_tab.h"
#include "console/sources_tab.h"
#include "console/terminals_tab.h"
#include "console/zones_tab.h"
#include "link/header_strip.h"
#include "platform/controls.h"
#include "player/player_tab.h"
#include "store/folder_listers.h"
#include "supervision/monitor_panel.h"
#include "supervision/scan_panel.h"
#include "timer/timer_panel.h"

namespace evac {

struct MainMenu {
  explicit MainMenu(Form& form) : place{form.place("MainMenu")} {}
  Place place;

  MenuItem M_fn{place, "M_fn", "Настройка"};
  MenuItem M_n_o{place, "M_n_o", "Оборудование", &M_fn};
  MenuItem M_n_op{place, "M_n_op", "Оповещение", &M_fn};
  MenuItem M_tim{place, "M_tim", "Таймер", &M_fn};
  MenuItem M_n_z{place, "M_n_z", "Зоны", &M_fn};
  MenuItem M_n_t{place, "M_n_t", "Терминалы", &M_fn};
  MenuItem M_perez{place, "M_perez", "Перезапуск", &M_fn};
  MenuItem M_ex{place, "M_ex", "Выход", &M_fn};
  MenuItem Mdp{place, "Mdp", "Дополнительно"};
  MenuItem MusPar{place, "MusPar", "Установка/смена пароля", &Mdp};
  MenuItem M_op{place, "M_op", "Описание", &Mdp};
  MenuItem M_o_p{place, "M_o_p", "О программе", &Mdp};
  MenuItem M_len{place, "M_len", "Язык"};
  MenuItem M_rus{place, "M_rus", "RU", &M_len};
  MenuItem M_en{place, "M_en", "EN", &M_len};
};

struct Form1 : Form,
               MainMenu,
               PictureStores,
               HeaderStrip,
               AlarmTab,
               ZonesTab,
               TerminalsTab,
               PlayerTab,
               SourcesTab,
               ScanPanel,
               MonitorPanel,
               TimerPanel,
               PowerTab,
               FolderListers {
  Form1(Windows& windows, Files& files)
      : Form(windows, "Form1", "Пульт оповещения"),
        MainMenu(static_cast<Form&>(*this)),
        PictureStores(static_cast<Form&>(*this)),
        HeaderStrip(static_cast<Form&>(*this)),
        AlarmTab(static_cast<Form&>(*this)),
        ZonesTab(static_cast<Form&>(*this)),
        TerminalsTab(static_cast<Form&>(*this)),
        PlayerTab(*this, files),
        SourcesTab(static_cast<Form&>(*this)),
        ScanPanel(static_cast<Form&>(*this)),
        MonitorPanel(static_cast<Form&>(*this)),
        TimerPanel(*this, Frame8),
        PowerTab(static_cast<Form&>(*this)),
        FolderListers(*this, files) {}

  TabStrip SSTab1{
      Form::place(),
      "SSTab1",
      {"Аварийная панель", "Зоны", "Терминалы", "mp3-плеер", "Музыкальные источники", "Контроль", "Питание"}};
};

}  // namespace evac

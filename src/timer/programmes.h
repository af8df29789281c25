// What the weekly timer works from: the programme that holds today, by the schedule or as it was saved last,
// and the saving of programmes.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"
#include "platform/machine.h"
#include "store/data_folder.h"

namespace evac {

class Programmes {
 public:
  struct Doors {
    TimerState& timer;
    DataFolder& folder;
    ListBox& entries;  // of the window of the schedule
    const EventLoop& loop;
    Boxes& boxes;
  };
  explicit Programmes(const Doors& doors) : doors_(doors) {}

  // The schedule, the programme that it gives for today, and that programme.
  void load_day();
  // The same on a change of the date. The engine keeps its event, and takes it from what is loaded.
  void new_day();

  // A programme without a file leaves the timer none; a box tells.
  void ProgLoad(std::string_view name);
  // The programme that holds today. Where none was ever saved, what is loaded stays.
  void ProgStart();

  // Writes these rows as that programme; they are what is loaded from now on, and the engine searches anew. A
  // file that can't be written ends it where it stands, silently.
  void save(std::string_view name, const std::vector<std::string>& rows);
  // Writes these entries of the schedule. They take effect with the next day.
  void save_schedule(const std::vector<std::string>& rows);

 private:
  void SchLoad();
  void SchToday();

  const Doors doors_;
};

}  // namespace evac

// A console on a virtual machine with alert settings, algorithms and messages in its files, and a log of all
// that it does to the machine, each line with the time of day.
#pragma once

#include <algorithm>
#include <memory>

#include "app/console.h"
#include "drill/virtual_machine.h"
#include "model/text.h"
#include "store/algorithm_record.h"
#include "store/record_file.h"
#include "tests/scratch.h"
#include "tests/stored_data.h"

namespace evac {

inline const std::string kAlgorithmFile = "alarm\\f_al.dat", kSettingsFile = "alarm\\f_al_str.dat";

struct AlertRig {
  AlertRig() {
    machine.set_card(0, true);
    machine.set_card(1, true);
    machine.trace = [this](const std::string& line) {
      if (logging) log.push_back(time_text(second_of_day(machine.wall())) + " " + line);
    };
  }

  // As another program writes it.
  void write(const std::string& name, int record_length, const std::vector<std::string>& texts) {
    StoredData other(machine.files());
    RecordFile file(other.folder, name, record_length);
    for (std::size_t i = 0; i < texts.size(); ++i) file.put(static_cast<int>(i) + 1, texts[i]);
    must(file.save());
  }
  void settle(const std::vector<std::string>& lines) { write(kSettingsFile, 256, lines); }
  void settle_steps(const std::vector<std::string>& records) { write(kAlgorithmFile, 512, records); }
  void sound(const std::string& name, double seconds) {
    const std::string path = "C:\\ZEF_DAT\\message\\" + name;
    must(machine.files().replace(path, "sound"));
    machine.set_sound(path, seconds);
  }

  void start() {
    console.reset();
    machine.clear_process();
    console = std::make_unique<Console>(machine.machine());
    console->load();
    console->model().sources.ch_computer = 2;
    console->model().sources.vol_computer = 20;
    forget();
  }
  void forget() {
    log.clear();
    machine.sent().clear();
    machine.raised().clear();
  }
  void set_clock(std::chrono::milliseconds time_of_day) {
    machine.set_wall(std::chrono::floor<std::chrono::days>(machine.wall()) + time_of_day);
  }
  void run(std::chrono::milliseconds duration) { machine.run_for(duration); }
  // How often the log has a line with that in it.
  long logged(std::string_view part) const {
    return std::count_if(log.begin(), log.end(),
                         [&](const std::string& line) { return line.find(part) != std::string::npos; });
  }
  AlertState& alert() { return console->model().alert; }

  Scratch scratch;
  drill::VirtualMachine machine{scratch.path};
  StoredData data{machine.files()};
  std::unique_ptr<Console> console;
  bool logging = true;
  std::vector<std::string> log;
};

// Alert type "Контроллер", three plays of a block's message, the manual start allowed.
inline std::vector<std::string> controller_settings() {
  return {"3", "1", "fire.wav", "3", "fire.wav", "2", "0", "0", "0", "0", "0", "1", "1"};
}

// A step for one zone.
inline std::string step_record(int algorithm, int order, int plays, int zone,
                               std::string_view file = "fire.wav") {
  std::string zones(kZones, '0');
  zones[static_cast<std::size_t>(zone - 1)] = '1';
  return algorithm_record(std::to_string(algorithm), order, file, std::to_string(plays), zones);
}

}  // namespace evac

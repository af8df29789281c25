// Watches for fire, ten times a second, and starts the alert. Which signal it watches is the alert type of
// the settings: the external block's report, none but the operator's hand, or the contacts on the input
// cards.
#pragma once

#include "alert/alert_end.h"
#include "alert/algorithm_run.h"
#include "alert/banks.h"
#include "alert/block_alert.h"
#include "alert/restart_log.h"
#include "journal/journal.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class AlertEngine {
 public:
  struct Doors {
    AlertState& alert;
    const SettingsState& settings;
    AlarmTab& tab;
    Cards& cards;
    const EventLoop& loop;
    BlockAlert& block;
    AlgorithmRun& algorithm;
    AlertEnd& end;
    Journal& journal;
  };
  explicit AlertEngine(const Doors& doors) : doors_(doors) {}

  // Timer4. Touches no file and not the line unless there is a new fire.
  void tick();

  const RestartLog& restarts() const { return restarts_; }

 private:
  // Words of inputs, one a bank.
  using Words = std::array<std::int32_t, kBanks>;

  void scan_inputs();
  void reset();
  // False when a zone of fire has no algorithm: the tick ends there.
  bool scan_bank(int bank, const Words& words);
  // The bank's inputs as they stand at this moment: a reset inside the scan clears the simulated ones.
  std::int32_t inputs_of(int bank, const Words& words) const;

  const Doors doors_;
  RestartLog restarts_;
};

}  // namespace evac

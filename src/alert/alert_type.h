// The alert type of the settings: which signal of fire the engine watches.
#pragma once

#include "model/system_model.h"
#include "model/text.h"

namespace evac {

// The external block's report, none but the operator's hand, the contacts on the input cards. Any other
// number is no type.
enum AlertType { kTypeBlock = 1, kTypeManual = 2, kTypeController = 3 };

inline int alert_type(const SettingsState& settings) {
  return Number(settings.SettingsLine[kAlertType]);
}

}  // namespace evac

#include "alert/zone_choice.h"

#include "model/text.h"
#include "platform/windows.h"
#include "store/algorithm_record.h"

namespace evac {

void ZoneChoice::choose(std::string& zones) {
  load(zones);
  zones_ = &zones;
  form7_.windows().show_modal(form7_);
  zones_ = nullptr;
}

void ZoneChoice::load(std::string_view zones) {
  for (auto& box : form7_.Chk) box.set_value(false);
  form7_.ChkAll.set_value(false);
  form7_.Frame1.set_enabled(true);
  form7_.CmdSave.set_enabled(false);
  // Each tick counts as a click, so a text that ticks anything can be saved at once.
  for (int k = 1; k <= kZones; ++k)
    if (Mid(zones, k, 1) == kZoneIn) form7_.Chk[k - 1].set_value(true);
  if (zones.starts_with(kAlarmMark)) {
    form7_.Chk[0].set_value(true);
    form7_.ChkAll.set_value(true);
  }
}

void ZoneChoice::zone_clicked() {
  form7_.CmdSave.set_enabled(true);
}

void ZoneChoice::all_clicked() {
  form7_.CmdSave.set_enabled(true);
  form7_.Frame1.set_enabled(!form7_.ChkAll.value());
}

void ZoneChoice::save() {
  if (!zones_) return;
  const bool all = form7_.ChkAll.value();
  zones_->clear();
  for (int k = 1; k <= kZones; ++k) {
    if (all && k == 1)
      zones_->append(kAlarmMark);
    else
      zones_->append(all || form7_.Chk[k - 1].value() ? kZoneIn : kZoneLeft);
  }
}

}  // namespace evac

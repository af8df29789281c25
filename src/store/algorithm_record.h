// One step of an alert algorithm as a text of five fields, the form in which lists show it and files keep it.
#pragma once

#include <string>
#include <string_view>

namespace evac {

enum AlgorithmField { kAlgNumber = 1, kAlgOrder = 2, kAlgMessage = 3, kAlgPlays = 4, kAlgZones = 5 };

// What each zone's character of the zone text says.
inline constexpr std::string_view kZoneIn = "1", kZoneLeft = "0";
// In the first place: all zones, and the alarm sequence after them.
inline constexpr std::string_view kAlarmMark = "7";

// Field n, 1..5, without blanks around it; field 1 keeps the tab behind it. Empty for another n and for an
// empty record.
std::string AlgField(std::string_view record, int n);

// Whether the zones of the record, its fifth field, begin with the alarm mark.
bool has_alarm_mark(std::string_view record);

// Number and plays are cut to 3 characters, the message to 20.
std::string algorithm_record(std::string_view number, int order, std::string_view message,
                             std::string_view plays, std::string_view zones);

}  // namespace evac

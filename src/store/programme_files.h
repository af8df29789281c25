// The files of the weekly timer, all in the folder "timer": a programme is one file of event records that
// bears the programme's name, Name_f.dat names the programme saved last, List_prog.dat is the schedule of the
// ranges of dates. Nothing here is a fault: what can't be read reads as nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/system_model.h"
#include "store/data_folder.h"

namespace evac {

// Whether a programme can bear that name: one that its file and Name_f.dat can hold, and that is not the name
// of one of the two files that are no programmes.
bool is_programme_name(std::string_view name);
// The programmes there are, as they are listed.
std::vector<std::string> programme_names(const DataFolder& folder);

bool has_programme(const DataFolder& folder, std::string_view name);
// The texts of the records and, since the end shows only where a read fails to get a whole record, one more:
// empty, or what is left of a record that the end of the file cuts off.
FileError read_programme(DataFolder& folder, std::string_view name, std::vector<std::string>& records);
FileError write_programme(DataFolder& folder, std::string_view name, const std::vector<std::string>& records);

// The programme saved last; empty when there is none. The file is made when it is missing.
std::string read_last_programme(DataFolder& folder);
FileError write_last_programme(DataFolder& folder, std::string_view name);

// The entries of the schedule, an empty text where a record has none.
std::vector<std::string> read_schedule(DataFolder& folder);
FileError write_schedule(DataFolder& folder, const std::vector<std::string>& entries);

// An entry as a text, and cut up again. Dates are texts, and the first comes back with a blank before it. The
// words of the range count where they first stand, be it in the name: such an entry never holds.
std::string schedule_text(std::string_view name, std::string_view from, std::string_view to);
ScheduleEntry schedule_entry(std::string_view text);

}  // namespace evac

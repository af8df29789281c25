// A record as a text of several fields: each but the last is followed by an end mark of its own, the same
// signs with one blank more each time. Algorithms and timer programmes are kept and shown so.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace evac {

// Field n, from 1, without blanks around it; field 1 keeps the first sign of its end mark and is not trimmed.
// `ends` are the marks of all fields but the last; each counts where it first stands. Empty for an n that is
// no field's, for an empty record, and where the marks stand in another order.
std::string CutField(std::string_view record, int n, std::span<const std::string_view> ends);

}  // namespace evac

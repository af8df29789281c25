#include "store/record_fields.h"

#include "model/text.h"

namespace evac {

std::string CutField(std::string_view record, int n, std::span<const std::string_view> ends) {
  const int last = static_cast<int>(ends.size()) + 1;
  if (record.empty() || n < 1 || n > last) return {};
  const auto end_of = [&](int field) { return InStr(record, ends[static_cast<std::size_t>(field - 1)]); };
  if (n == 1) return Left(record, end_of(n));
  const int before = end_of(n - 1);
  const int count = n == last ? Len(record) - before : end_of(n) - before - n;
  return Trim(Mid(record, before + n, count));
}

}  // namespace evac

#include "store/record_file.h"

#include <algorithm>

#include "store/code_page.h"

namespace evac {
namespace {

constexpr std::size_t kLengthBytes = 2;

std::string read_record(std::string_view record) {
  if (record.size() < kLengthBytes) return {};
  const std::size_t length = static_cast<unsigned char>(record[0]) | static_cast<unsigned char>(record[1])
                                                                         << 8;
  return from_code_page(record.substr(kLengthBytes, length));
}

}  // namespace

FileError RecordFile::load() {
  records_.clear();
  whole_count_ = 0;
  std::string bytes;
  const FileError error = folder_.read(file_, bytes);
  unread_ = error != kNoError;
  if (unread_) {
    folder_.reading_ended(file_, true);
    return error;
  }
  const auto length = static_cast<std::size_t>(record_length_);
  records_.reserve((bytes.size() + length - 1) / length);
  for (std::size_t at = 0; at < bytes.size(); at += length)
    records_.push_back({read_record(std::string_view(bytes).substr(at, length))});
  whole_count_ = static_cast<int>(bytes.size() / length);
  return kNoError;
}

const std::string& RecordFile::text(int n) const {
  static const std::string none;
  return n >= 1 && n <= count() ? records_[static_cast<std::size_t>(n - 1)].text : none;
}

const std::string& RecordFile::take(int n) {
  if (n >= 1 && n <= count()) records_[static_cast<std::size_t>(n - 1)].taken = true;
  return text(n);
}

void RecordFile::end_reading() {
  folder_.reading_ended(file_, unread_ || std::ranges::any_of(records_, [](const Record& record) {
                                 return !record.taken && !record.text.empty();
                               }));
}

bool RecordFile::holds(std::string_view text) const {
  return to_code_page(text).size() + kLengthBytes <= static_cast<std::size_t>(record_length_);
}

void RecordFile::put(int n, std::string_view text) {
  if (n > count()) records_.resize(static_cast<std::size_t>(n));
  records_[static_cast<std::size_t>(n - 1)].text = text;
}

FileError RecordFile::save() {
  const auto length = static_cast<std::size_t>(record_length_);
  std::string bytes(records_.size() * length, '\0');
  for (std::size_t i = 0; i < records_.size(); ++i) {
    const std::string text = to_code_page(records_[i].text).substr(0, length - kLengthBytes);
    bytes[i * length] = static_cast<char>(text.size() & 0xFF);
    bytes[i * length + 1] = static_cast<char>(text.size() >> 8);
    std::copy(text.begin(), text.end(),
              bytes.begin() + static_cast<std::ptrdiff_t>(i * length + kLengthBytes));
  }
  return folder_.replace(file_, bytes);
}

}  // namespace evac

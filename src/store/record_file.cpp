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

int RecordFile::load() {
  records_.clear();
  std::string bytes;
  int error = files_.read(path_, bytes);
  if (error == kFileNotFound) return files_.replace(path_, "");
  if (error != kNoError) return error;
  const auto length = static_cast<std::size_t>(record_length_);
  for (std::size_t at = 0; at < bytes.size(); at += length)
    records_.push_back(read_record(std::string_view(bytes).substr(at, length)));
  return kNoError;
}

const std::string& RecordFile::text(int n) const {
  static const std::string none;
  return n >= 1 && n <= count() ? records_[static_cast<std::size_t>(n - 1)] : none;
}

void RecordFile::put(int n, std::string_view text) {
  if (n > count()) records_.resize(static_cast<std::size_t>(n));
  records_[static_cast<std::size_t>(n - 1)] = text;
}

int RecordFile::save() {
  const auto length = static_cast<std::size_t>(record_length_);
  std::string bytes(records_.size() * length, '\0');
  for (std::size_t i = 0; i < records_.size(); ++i) {
    const std::string text = to_code_page(records_[i]).substr(0, length - kLengthBytes);
    bytes[i * length] = static_cast<char>(text.size() & 0xFF);
    bytes[i * length + 1] = static_cast<char>(text.size() >> 8);
    std::copy(text.begin(), text.end(),
              bytes.begin() + static_cast<std::ptrdiff_t>(i * length + kLengthBytes));
  }
  return files_.replace(path_, bytes);
}

}  // namespace evac

#include "admin/password.h"

#include "store/code_page.h"

namespace evac {
namespace {

constexpr std::string_view kPlaceholder = "0", kEmptyPassMark = "/";

}  // namespace

std::string stored_password(std::string_view password) {
  std::string bytes = to_code_page(password);
  for (char& byte : bytes) byte = static_cast<char>(byte - 1);
  return from_code_page(bytes);
}

std::string stored_new_password(std::string_view password) {
  return stored_password(password.empty() ? kPlaceholder : password);
}

bool opens(std::string_view stored, std::string_view entry) {
  return (entry.empty() && stored == kEmptyPassMark) || stored_password(entry) == stored;
}

}  // namespace evac

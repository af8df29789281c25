// The form in which the operator's password is stored, and whether an entry is the password.
#pragma once

#include <string>
#include <string_view>

namespace evac {

// Each character's code in Windows-1251 lowered by one: a shift, and no protection.
std::string stored_password(std::string_view password);
// The stored form of a new password: an empty one is stored as a placeholder, a digit.
std::string stored_new_password(std::string_view password);
// Whether that entry opens what is stored. An empty one opens the placeholder's form and an empty record.
bool opens(std::string_view stored, std::string_view entry);

}  // namespace evac

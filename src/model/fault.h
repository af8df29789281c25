// A fault that ends the program: the host shows it as the platform's error message. Thrown, never caught in
// src/.
#pragma once

#include <stdexcept>
#include <string>

namespace evac {

// Numbers of the faults that the console can raise, besides those of a file that it can't do without; hosts
// print them as they stand.
enum class FaultNumber : int {
  kOverflow = 6,           // a number too large for its field
  kSubscript = 9,          // a wrong index of an array or a control array
  kPathNotFound = 76,      // a folder that cannot be made
  kPortUnavailable = 8002  // a port that cannot be opened
};

class Fault : public std::runtime_error {
 public:
  Fault(FaultNumber number, const std::string& text) : std::runtime_error(text), number_(number) {}
  int number() const { return static_cast<int>(number_); }

 private:
  FaultNumber number_;
};

[[noreturn]] inline void overflow() {
  throw Fault(FaultNumber::kOverflow, "Overflow");
}
[[noreturn]] inline void bad_subscript() {
  throw Fault(FaultNumber::kSubscript, "Subscript out of range");
}

}  // namespace evac

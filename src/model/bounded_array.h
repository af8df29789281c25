// An array of the system with its own first index; a wrong index is a fault.
#pragma once

#include <array>
#include <cstddef>

#include "model/fault.h"

namespace evac {

template <class T, int First, int Last>
class BoundedArray {
 public:
  T& operator[](int index) { return items_[slot(index)]; }
  const T& operator[](int index) const { return items_[slot(index)]; }
  void fill(const T& value) { items_.fill(value); }
  static constexpr int first() { return First; }
  static constexpr int last() { return Last; }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  static std::size_t slot(int index) {
    if (index < First || index > Last) bad_subscript();
    return static_cast<std::size_t>(index - First);
  }
  std::array<T, static_cast<std::size_t>(Last - First + 1)> items_{};
};

}  // namespace evac

#include "benchmarks/allocations.h"

#include <cstdlib>
#include <new>

namespace {
long count = 0;
}

long evac::allocations() {
  return count;
}

void* operator new(std::size_t size) {
  ++count;
  if (void* place = std::malloc(size)) return place;
  throw std::bad_alloc();
}
void operator delete(void* place) noexcept {
  std::free(place);
}
void operator delete(void* place, std::size_t) noexcept {
  std::free(place);
}

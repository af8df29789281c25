// Counts what the benchmarks take from the heap.
#pragma once

namespace evac {

// Allocations of the whole program so far.
long allocations();

}  // namespace evac

#pragma once
// The bytes this thread asks of operator new between StartCountingAllocations and
// AllocatedSinceStart (allocation_count.cpp replaces the global operator new of the test
// program for this).
#include <cstddef>

namespace vexlo::test {

void StartCountingAllocations();
std::size_t AllocatedSinceStart();  // also stops the count

}  // namespace vexlo::test

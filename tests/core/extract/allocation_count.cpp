// The global operator new and delete of this test program, counting what is asked for while
// a count runs. Kept in a file of its own so that no caller inlines them.
#include "allocation_count.h"

#include <cstdlib>
#include <new>

namespace {
thread_local bool g_counting = false;
thread_local std::size_t g_allocated = 0;
}  // namespace

void* operator new(std::size_t n) {
    if (g_counting) g_allocated += n;
    if (void* p = std::malloc(n ? n : 1)) return p;
    throw std::bad_alloc();
}
void* operator new[](std::size_t n) { return ::operator new(n); }
// The library's nothrow forms (std::stable_sort's buffer) must come from the same heap as the
// delete below frees into.
void* operator new(std::size_t n, const std::nothrow_t&) noexcept {
    if (g_counting) g_allocated += n;
    return std::malloc(n ? n : 1);
}
void* operator new[](std::size_t n, const std::nothrow_t& tag) noexcept { return ::operator new(n, tag); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { std::free(p); }
void operator delete[](void* p, const std::nothrow_t&) noexcept { std::free(p); }

namespace vexlo::test {

void StartCountingAllocations() {
    g_allocated = 0;
    g_counting = true;
}

std::size_t AllocatedSinceStart() {
    g_counting = false;
    return g_allocated;
}

}  // namespace vexlo::test

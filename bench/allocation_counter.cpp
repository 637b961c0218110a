#include "bench/allocation_counter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<std::uint64_t> allocated{0};
}

std::uint64_t allocations::count() noexcept
{
    return allocated.load(std::memory_order_relaxed);
}

void* operator new(std::size_t bytes)
{
    allocated.fetch_add(1, std::memory_order_relaxed);
    if (void* block = std::malloc(bytes ? bytes : 1))
        return block;
    throw std::bad_alloc();
}

void* operator new[](std::size_t bytes)
{
    return operator new(bytes);
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete[](void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}

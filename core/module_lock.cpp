#include "core/module_lock.h"

#include <atomic>

namespace lifetime {
namespace {
std::atomic<long> locks{0};
}

void lock() noexcept
{
    locks.fetch_add(1, std::memory_order_relaxed);
}

void unlock() noexcept
{
    locks.fetch_sub(1, std::memory_order_acq_rel);
}

long lock_count() noexcept
{
    return locks.load(std::memory_order_acquire);
}

}   // namespace lifetime

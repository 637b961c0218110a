// The module's lock count: every live object and every LockServer(TRUE)
// holds one, and the module may be unloaded only when none is held.
#pragma once

namespace lifetime {

void lock() noexcept;
void unlock() noexcept;
long lock_count() noexcept;

// Holds one lock for its lifetime.
class lock_guard {
public:
    lock_guard() noexcept { lock(); }
    ~lock_guard() { unlock(); }
    lock_guard(const lock_guard&) = delete;
    lock_guard& operator=(const lock_guard&) = delete;
};

}   // namespace lifetime

// The interlocked reference count of a module object that deletes itself at
// its last Release.
#pragma once

#include <atomic>

#include "core/module_lock.h"

namespace lifetime {

class ref_count {
public:
    // An object starts with the one reference its maker holds (make_com); an
    // object that lives on its own counts only outside references, from 0.
    explicit ref_count(unsigned long initial = 1) noexcept : refs_(initial) {}

    unsigned long add() noexcept { return refs_.fetch_add(1, std::memory_order_relaxed) + 1; }

    // Drops one reference. At the last, `destroy` runs with the module locked
    // once more, so that the module does not look unloadable while its code
    // is still running the destructor.
    template <class Destroy>
    unsigned long release(Destroy destroy) noexcept
    {
        const unsigned long count = refs_.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (count == 0) {
            lock_guard hold;
            destroy();
        }
        return count;
    }

private:
    std::atomic<unsigned long> refs_;
};

}   // namespace lifetime

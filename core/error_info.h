// The object that describes a failure to the calling thread: the platform's
// IErrorInfo on Windows. The native build has a stand-in holding just the
// description, counted as a COM object is counted, so that a com_ptr holds
// either. platform::create_error_info makes them.
#pragma once

#include "core/win_types.h"

#ifndef _WIN32
#include <atomic>

#include "core/wide.h"
#endif

namespace com {

#ifdef _WIN32
using error_info = IErrorInfo;
#else
class error_info {
public:
    explicit error_info(wstring_view description) : description_(description) {}
    error_info(const error_info&) = delete;
    error_info& operator=(const error_info&) = delete;

    void AddRef() noexcept { refs_.fetch_add(1, std::memory_order_relaxed); }
    void Release() noexcept
    {
        if (refs_.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

    // What GetDescription would hand a host.
    wstring_view description() const noexcept { return description_; }

private:
    ~error_info() = default;   // only Release ends one

    std::atomic<int> refs_{1};
    wstring description_;
};
#endif

}   // namespace com

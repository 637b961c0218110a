// Where exceptions stop: every renderer and every COM method runs its body
// through `guarded`, which turns whatever it throws into an HRESULT and hands
// the describing error object to the calling thread.
#pragma once

#include "core/win_types.h"

// The HRESULT for the exception being handled, chosen by the most derived of
// the module's error types it is; installs the error object that describes it
// (or none) as the thread's error information. Only from inside a handler.
HRESULT current_exception_result() noexcept;

template <class Body>
HRESULT guarded(Body&& body) noexcept
{
    try {
        return body();
    } catch (...) {
        return current_exception_result();
    }
}

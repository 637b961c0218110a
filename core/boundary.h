// Where exceptions stop: every renderer and every COM method runs its body
// through `guarded`, which turns whatever it throws into an HRESULT and hands
// the describing error object to the calling thread.
#pragma once

#include <exception>

#include "core/win_types.h"

// The HRESULT for `e`, chosen by its exact type; installs the error object
// (or none) as the thread's error information.
HRESULT exception_result(const std::exception& e) noexcept;

// E_UNEXPECTED for anything else, with no error object left on the thread.
HRESULT unknown_exception_result() noexcept;

template <class Body>
HRESULT guarded(Body&& body) noexcept
{
    try {
        return body();
    } catch (const std::exception& e) {
        return exception_result(e);
    } catch (...) {
        // Nothing but std::exception is ever thrown inside the module; should
        // anything else arrive it still must not unwind into the host.
        return unknown_exception_result();
    }
}

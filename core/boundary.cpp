#include "core/boundary.h"

#include <exception>
#include <iterator>

#include "core/com_ptr.h"
#include "core/errors.h"
#include "core/platform.h"

namespace {

// Fails with `result`, leaving `info` (or none) on the thread.
HRESULT fail(HRESULT result, com::error_info* info) noexcept
{
    platform::set_error_info(info);
    return result;
}

// Fails with DISP_E_EXCEPTION and a new error object describing it as
// `description` says; with none when no object can be made.
HRESULT fail_described(wstring_view description) noexcept
{
    const com_ptr<com::error_info> info(platform::create_error_info(description));
    return fail(DISP_E_EXCEPTION, info.get());
}

}   // namespace

HRESULT current_exception_result() noexcept
{
    // Most derived first: a type made from one of the module's errors keeps
    // that error's result.
    try {
        throw;
    } catch (const com::error& e) {
        return fail(e.code(), e.info());
    } catch (const not_expected&) {
        return fail(E_UNEXPECTED, nullptr);
    } catch (const wide_message_error& e) {
        wchar description[260];
        e.format(description, std::size(description));
        return fail_described(description);
    } catch (const std::exception& e) {
        wchar description[1024];
        platform::utf8_to_utf16(e.what(), description, std::size(description));
        return fail_described(description);
    } catch (...) {
        // Nothing but std::exception is ever thrown inside the module; should
        // anything else arrive it still must not unwind into the host.
        return fail(E_UNEXPECTED, nullptr);
    }
}

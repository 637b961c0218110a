#include "core/boundary.h"

#include <typeinfo>

#include "core/com_ptr.h"
#include "core/errors.h"
#include "core/platform.h"

namespace {

// A new error object describing `e`; null when none can be made.
com::error_info* describe(const std::exception& e) noexcept
{
    wchar description[1024];
    platform::utf8_to_utf16(e.what(), description, std::size(description));
    return platform::create_error_info(description);
}

}   // namespace

HRESULT exception_result(const std::exception& e) noexcept
{
    const std::type_info& type = typeid(e);
    HRESULT result = DISP_E_EXCEPTION;
    com_ptr<com::error_info> info;

    if (type == typeid(com::error)) {
        const auto& error = static_cast<const com::error&>(e);
        result = error.code();
        info = com_ptr<com::error_info>::share(error.info());
    } else if (type == typeid(not_expected)) {
        result = E_UNEXPECTED;
    } else {
        info = com_ptr<com::error_info>(describe(e));
    }

    platform::set_error_info(info.get());
    return result;
}

HRESULT unknown_exception_result() noexcept
{
    platform::set_error_info(nullptr);
    return E_UNEXPECTED;
}

#include "core/type_name.h"

#include <cstdlib>
#include <memory>

#if defined(__GNUC__)
#  include <cxxabi.h>
#endif

namespace detail {

std::string demangle(const char* mangled)
{
#if defined(__GNUC__)
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> readable(
        abi::__cxa_demangle(mangled, nullptr, nullptr, &status), std::free);
    if (status == 0 && readable)
        return readable.get();
#endif
    return mangled;
}

} // namespace detail

// Readable type names for error messages ("Expected a char.").
#pragma once

#include <string>
#include <string_view>
#include <typeinfo>

namespace detail {
std::string demangle(const char* mangled);
}

// The compiler's own name of T, demangled once and kept for the module's life.
template <class T>
std::string_view type_name()
{
    static const std::string name = detail::demangle(typeid(T).name());
    return name;
}

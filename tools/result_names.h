// The symbolic names of the results a host meets, for tools that print them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace results {

inline std::string name(std::int32_t result)
{
    static constexpr struct {
        std::uint32_t code;
        const char* name;
    } known[] = {
        {0x00000000, "S_OK"},
        {0x00000001, "S_FALSE"},
        {0x8000FFFF, "E_UNEXPECTED"},
        {0x80004001, "E_NOTIMPL"},
        {0x80004002, "E_NOINTERFACE"},
        {0x80004003, "E_POINTER"},
        {0x80004005, "E_FAIL"},
        {0x8007000E, "E_OUTOFMEMORY"},
        {0x80070057, "E_INVALIDARG"},
        {0x80020009, "DISP_E_EXCEPTION"},
        {0x80040111, "CLASS_E_CLASSNOTAVAILABLE"},
        {0x800401E4, "MK_E_SYNTAX"},
        {0x80030005, "STG_E_ACCESSDENIED"},
        {0x80030070, "STG_E_MEDIUMFULL"},
        {0x80030103, "STG_E_INCOMPLETE"},
    };
    for (const auto& k : known)
        if (k.code == static_cast<std::uint32_t>(result))
            return k.name;
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%08X", static_cast<unsigned>(result));
    return hex;
}

// "DISP_E_EXCEPTION (0x80020009)"
inline std::string describe(std::int32_t result)
{
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%08X", static_cast<unsigned>(result));
    const std::string symbolic = name(result);
    return symbolic == hex ? symbolic : symbolic + " (" + hex + ")";
}

} // namespace results

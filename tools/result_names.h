// The symbolic names of the results a host meets, for tools that print them
// and sample files that name them. Each row is made from the module's own
// constant, so a name and its value cannot drift apart.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "core/option_entry.h"
#include "core/win_types.h"

namespace results {

#define RESULT(name) OPTION(#name, static_cast<std::uint32_t>(name))

// Every result the module returns, and the two that reach hosts through it:
// MK_E_SYNTAX from the system's name parser, STG_E_ACCESSDENIED from a
// host's stream.
inline constexpr OptionEntry known[] = {
    RESULT(S_OK),
    RESULT(S_FALSE),
    RESULT(E_UNEXPECTED),
    RESULT(E_NOTIMPL),
    RESULT(E_NOINTERFACE),
    RESULT(E_POINTER),
    RESULT(E_FAIL),
    RESULT(E_OUTOFMEMORY),
    RESULT(E_INVALIDARG),
    RESULT(DISP_E_EXCEPTION),
    RESULT(CLASS_E_NOAGGREGATION),
    RESULT(CLASS_E_CLASSNOTAVAILABLE),
    RESULT(MK_E_NEEDGENERIC),
    RESULT(MK_E_SYNTAX),
    RESULT(STG_E_ACCESSDENIED),
    RESULT(STG_E_MEDIUMFULL),
    RESULT(STG_E_INCOMPLETE),
};

#undef RESULT

static_assert(values_unique(known));

// "0x80020009"
inline std::string hex(std::int32_t result)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(result));
    return text;
}

// "DISP_E_EXCEPTION", or the hexadecimal value of a result not in the table.
inline std::string name(std::int32_t result)
{
    const OptionEntry* row = find_row(known, static_cast<std::uint32_t>(result));
    return row ? std::string(option_narrow(*row)) : hex(result);
}

// The result a name stands for; none for a name not in the table.
inline std::optional<HRESULT> named(std::string_view text)
{
    for (const OptionEntry& row : known)
        if (option_narrow(row) == text)
            return static_cast<HRESULT>(row.value);
    return std::nullopt;
}

// "DISP_E_EXCEPTION (0x80020009)", or just the value of a result not in the table.
inline std::string describe(std::int32_t result)
{
    const OptionEntry* row = find_row(known, static_cast<std::uint32_t>(result));
    return row ? std::string(option_narrow(*row)) + " (" + hex(result) + ")" : hex(result);
}

}   // namespace results

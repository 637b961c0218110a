// Shapes that many event texts share, written once.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/xml_writer.h"
#include "core/output_buffer.h"
#include "core/payload_cursor.h"
#include "core/text_format.h"
#include "devices/device_types.h"

// A unit named by its device type and address: "fcn1l-10.0.0.1", or
// "(invalid)-10.0.0.1" for a type the catalogue does not know.
struct designation {
    std::uint8_t type;
    std::uint32_t address;
};

inline short_text<max_device_type_name + 1 + 16> text_of(designation unit) noexcept
{
    short_text<max_device_type_name + 1 + 16> text;
    text.first = static_cast<std::size_t>(dotted_before(std::end(text.units), dotted_ipv4{unit.address}) - text.units);
    text.prepend(wchar('-'));
    text.prepend(device_type_name(unit.type));
    return text;
}

template <text_sink Out>
Out& operator<<(Out& out, designation unit)
{
    return out << text_of(unit);
}

// A designation as payloads carry it: the type byte, then the address.
inline designation read_designation(payload_cursor& in)
{
    const std::uint8_t type = in.read_u8();
    return {type, in.read_u32()};
}

// How the XML forms spell a flag.
constexpr wstring_view true_false(bool flag) noexcept
{
    return flag ? "True"_w : "False"_w;
}

// `separator` and `text`, only when there is text: the optional tail of a
// sentence such as "...sent to network: <result>".
template <text_sink Out>
void write_if_any(Out& out, wstring_view separator, wstring_view text)
{
    if (!text.empty())
        out << separator << text;
}

// The quoted result line of the plain-text XML forms:
// <result>"text"</result> and a line break, with the given indentation.
template <text_sink Out>
void write_result_element(Out& out, wstring_view text, wstring_view indent = {})
{
    out << indent << "<result>\""_w << text << "\"</result>\n"_w;
}

// How the configuration texts spell a flag.
constexpr wstring_view lowercase_true_false(bool flag) noexcept
{
    return flag ? "true"_w : "false"_w;
}

constexpr wstring_view on_off(bool flag) noexcept
{
    return flag ? "On"_w : "Off"_w;
}

// The result line only when there is a result text to show.
template <text_sink Out>
void write_result_element_if_any(Out& out, wstring_view text, wstring_view indent = {})
{
    if (!text.empty())
        write_result_element(out, text, indent);
}

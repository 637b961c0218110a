// Shapes shared by the command result events: how a command ended, which
// reset it asked for, and whether it went out in blind mode.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>

#include "core/option_entry.h"
#include "core/output_buffer.h"
#include "core/payload_cursor.h"
#include "core/text_format.h"
#include "events/event_text.h"

// --- Result codes -----------------------------------------------------------

// A command's signed result code; a failed command (negative code) is
// followed by the error text that explains it.
template <class Text>
struct command_result {
    std::int32_t code = 0;
    Text error{};

    bool failed() const noexcept { return code < 0; }
};

// Reads the code and, after a failure, the error text with `ReadText`: most
// events carry it in UTF-16, unit registration in 8-bit characters. In line
// in every renderer: called out of line, its result (the text's whole
// buffer) costs a call and a frame on every success.
template <auto ReadText = &payload_cursor::read_wstring>
[[gnu::always_inline]] inline auto read_command_result(payload_cursor& in)
{
    using text = std::remove_cvref_t<std::invoke_result_t<decltype(ReadText), payload_cursor&>>;
    command_result<text> result{in.read_i32()};
    if (result.failed())
        result.error = std::invoke(ReadText, in);
    return result;
}

// How one form words the outcome: a fixed success text, or the error text
// between two pieces.
struct outcome_wording {
    wstring_view succeeded;
    wstring_view failedOpen;
    wstring_view failedClose;
};

template <text_sink Out, class Text>
void write_outcome(Out& out, const command_result<Text>& result, const outcome_wording& wording)
{
    if (result.failed())
        out << wording.failedOpen << result.error << wording.failedClose;
    else
        out << wording.succeeded;
}

// The opening and closing of the XML result element of a failed command;
// the error text stands quoted between them.
inline constexpr wstring_view failed_result_element_open = "\t\t<result code='failed'>\""_w;
inline constexpr wstring_view failed_result_element_close = "\"</result>\n"_w;

// --- Reset types ------------------------------------------------------------

inline constexpr OptionEntry reset_type_names[] = {
    OPTION("Hard", 0),
    OPTION("Soft", 1),
    OPTION("Firm", 2),
};
static_assert(values_are_positions(reset_type_names));

// How one form words a reset type: a known type as its name followed by
// `suffix`; any other as its code in decimal between two pieces.
struct reset_wording {
    wstring_view suffix;
    wstring_view unknownOpen;
    wstring_view unknownClose;
};

struct reset_type {
    std::int64_t code;
    const reset_wording& wording;
};

template <text_sink Out>
[[gnu::always_inline]] inline Out& operator<<(Out& out, const reset_type& type)
{
    if (const OptionEntry* name = find_row(reset_type_names, type.code))
        return out << option_text(*name) << type.wording.suffix;
    return out << type.wording.unknownOpen << decimal(type.code) << type.wording.unknownClose;
}

// --- Blind mode -------------------------------------------------------------

// A u32 flag: any non-zero value means the command went out in blind mode.
inline bool read_blind_mode(payload_cursor& in)
{
    return in.read_u32() != 0;
}

template <text_sink Out>
void write_blind_mode_element(Out& out, bool blind)
{
    out << "\t\t<blind-mode>"_w << true_false(blind) << "</blind-mode>\n"_w;
}

// The tail of the newer command and property events: a result code (i32),
// and only when that code is negative, the error text (u16 count and UTF-16
// characters). A code of zero or more is success and carries no text.
#pragma once

#include "core/output_stream.h"
#include "core/payload_cursor.h"
#include "core/renderer.h"

class command_outcome {
public:
    static command_outcome read(payload_cursor& in)
    {
        command_outcome outcome;
        outcome.failed = in.read_i32() < 0;
        if (outcome.failed)
            outcome.error = in.read_wstring();
        return outcome;
    }

    // Failures always show in the failure colour, whatever the event.
    render::colour colour(render::colour success) const noexcept
    {
        return failed ? render::colours::failure : success;
    }

    // The text of a `Result` element: "Ok", or the error text.
    wstring_view result_text() const noexcept { return failed ? error.view() : WSTR("Ok"); }

    bool failed = false;
    payload_text error;
};

// ": " and the error text after a failure (even an empty one); nothing
// after success.
template <text_sink Out>
Out& operator<<(Out& out, const command_outcome& outcome)
{
    if (outcome.failed)
        out << ": " << outcome.error.view();
    return out;
}

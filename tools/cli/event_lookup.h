// EVENT on the command line: a table index, a GUID (braces and case as one
// likes) or a name (any case; a name two event types share is refused with
// both).
#pragma once

#include <string>

#include "module/event_types.h"

namespace cli {

// The row, or usage_error saying why there is none.
const event_type_row& find_event(const std::string& which);

std::size_t index_of(const event_type_row& row);
std::string guid_text(const GUID& id);
std::string utf8(wstring_view text);

}   // namespace cli

// Time stamps of the units' logs: seconds since 1970-01-01 00:00:00 UTC in an
// unsigned 32-bit word, shown as "YYYY-MM-DD hh:mm:ss" in UTC. The units keep
// no time zone, so none is applied; the word reaches 2106-02-07 06:28:15.
#pragma once

#include <cstdint>
#include <iterator>

#include "core/short_text.h"

struct utc_time {
    std::uint32_t seconds;

    using text = short_text<19>;
    text digits() const noexcept;
};

template <text_sink Out>
Out& operator<<(Out& out, utc_time time)
{
    return out << time.digits();
}

inline utc_time::text text_of(utc_time time) noexcept
{
    return time.digits();
}

#include "devices/time_stamp.h"

#include <chrono>

namespace {

// Writes `value` as exactly `width` digits, zero-padded, and moves past them.
char* put(char* p, unsigned value, unsigned width) noexcept
{
    for (unsigned i = width; i-- > 0;) {
        p[i] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    return p + width;
}

} // namespace

utc_time::text utc_time::digits() const noexcept
{
    using namespace std::chrono;
    const sys_seconds instant{std::chrono::seconds(this->seconds)};
    const sys_days day = floor<days>(instant);
    const year_month_day date{day};
    const hh_mm_ss clock{instant - day};

    text t{};
    char* p = t.units;
    p = put(p, static_cast<unsigned>(static_cast<int>(date.year())), 4);
    *p++ = '-';
    p = put(p, static_cast<unsigned>(date.month()), 2);
    *p++ = '-';
    p = put(p, static_cast<unsigned>(date.day()), 2);
    *p++ = ' ';
    p = put(p, static_cast<unsigned>(clock.hours().count()), 2);
    *p++ = ':';
    p = put(p, static_cast<unsigned>(clock.minutes().count()), 2);
    *p++ = ':';
    put(p, static_cast<unsigned>(clock.seconds().count()), 2);
    return t;
}

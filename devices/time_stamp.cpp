#include "devices/time_stamp.h"

#include <chrono>

#include "core/digits.h"

utc_time::text utc_time::digits() const noexcept
{
    using namespace std::chrono;
    const sys_seconds instant{std::chrono::seconds(this->seconds)};
    const sys_days day = floor<days>(instant);
    const year_month_day date{day};
    const hh_mm_ss clock{instant - day};

    text t{};
    t.first = 0;
    wchar* p = t.units;
    p = digits::fixed_width(p, static_cast<unsigned>(static_cast<int>(date.year())), 4);
    *p++ = '-';
    p = digits::fixed_width(p, static_cast<unsigned>(date.month()), 2);
    *p++ = '-';
    p = digits::fixed_width(p, static_cast<unsigned>(date.day()), 2);
    *p++ = ' ';
    p = digits::fixed_width(p, static_cast<unsigned>(clock.hours().count()), 2);
    *p++ = ':';
    p = digits::fixed_width(p, static_cast<unsigned>(clock.minutes().count()), 2);
    *p++ = ':';
    digits::fixed_width(p, static_cast<unsigned>(clock.seconds().count()), 2);
    return t;
}

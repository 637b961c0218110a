#include "bench/fmt_peers.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "core/payload_cursor.h"
#include "devices/demod_tables.h"
#include "devices/device_types.h"
#include "devices/family_a_fields.h"
#include "events/alarm_layouts.h"
#include "events/command_text.h"

namespace {

// The module's tables hold UTF-16 texts; fmt writes them into its wide
// buffer one unit at a time, as it would any argument.
struct ascii {
    wstring_view text;
};

}   // namespace

template <>
struct fmt::formatter<ascii, wchar_t> {
    constexpr auto parse(fmt::basic_format_parse_context<wchar_t>& context) { return context.begin(); }
    template <class Context>
    auto format(const ascii& a, Context& context) const
    {
        return std::copy(a.text.begin(), a.text.end(), context.out());
    }
};

namespace fmt_peers {
namespace {

std::size_t finish(wchar_t* out, std::size_t capacity, fmt::format_to_n_result<wchar_t*> result)
{
    const std::size_t n = std::min<std::size_t>(result.size, capacity - 1);
    out[n] = 0;
    return n;
}

struct ipv4 {
    unsigned a, b, c, d;
    explicit ipv4(std::uint32_t address)
        : a(address >> 24), b(address >> 16 & 0xFF), c(address >> 8 & 0xFF), d(address & 0xFF)
    {}
};

ascii option_name(std::span<const OptionEntry> table, std::uint32_t value)
{
    return {lookup_option(table, value)};
}

// "Soft reset command  in blind mode succeeded."
std::size_t unit_reset(std::span<const std::uint8_t> payload, wchar_t* out, std::size_t capacity)
{
    payload_cursor in(payload.data(), payload.size());
    const std::int32_t type = in.read_i32();
    const bool blind = in.read_u32() != 0;
    const bool failed = in.read_i32() != 0;
    return finish(out, capacity,
                  fmt::format_to_n(out, capacity - 1, L"{} reset command {}{}",
                                   ascii{option_text(reset_type_names[type])}, blind ? L" in blind mode " : L"",
                                   failed ? L"failed." : L"succeeded."));
}

// "Hard Reset on subnet 10.1.0.0:255.255.0.0 succeeded."
std::size_t subnet_reset(std::span<const std::uint8_t> payload, wchar_t* out, std::size_t capacity)
{
    payload_cursor in(payload.data(), payload.size());
    const std::uint8_t type = in.read_u8();
    const ipv4 address(in.read_u32()), mask(in.read_u32());
    const bool failed = in.read_i32() != 0;
    return finish(out, capacity,
                  fmt::format_to_n(out, capacity - 1, L"{} Reset on subnet {}.{}.{}.{}:{}.{}.{}.{} {}",
                                   ascii{option_text(reset_type_names[type])}, address.a, address.b, address.c,
                                   address.d, mask.a, mask.b, mask.c, mask.d, failed ? L"failed." : L"succeeded."));
}

// "The node 'osprey-192.168.0.10' was inserted into the network."
std::size_t unit_inserted(std::span<const std::uint8_t> payload, wchar_t* out, std::size_t capacity)
{
    payload_cursor in(payload.data(), payload.size());
    const std::uint8_t type = in.read_u8();
    const ipv4 address(in.read_u32());
    return finish(out, capacity,
                  fmt::format_to_n(out, capacity - 1, L"The node '{}-{}.{}.{}.{}' was inserted into the network.",
                                   option_name(DeviceTypeKeys, type), address.a, address.b, address.c, address.d));
}

// "A alarmed, B alarmed, ..." over the unit's alarm groups.
std::size_t unit_alarms(std::span<const std::uint8_t> payload, wchar_t* out, std::size_t capacity)
{
    payload_cursor in(payload.data(), payload.size());
    const unit_alarm_record record = unit_alarm_record::read(in);
    const alarm_layout* layout = find_alarm_layout(record.deviceType);
    std::size_t n = 0;
    for (const alarm_group& group : layout->groups)
        for (const alarm_bit& b : group.bits) {
            if (!record.changed(group.offset, b.bit))
                continue;
            const auto r = fmt::format_to_n(out + n, capacity - 1 - n, L"{}{}{}", n ? L", " : L"", ascii{b.name},
                                            record.raised(group.offset, b.bit) ? L" alarmed" : L" alarm cleared");
            n += std::min<std::size_t>(r.size, capacity - 1 - n);
        }
    out[n] = 0;
    return n;
}

// "Rx FEC Rate was changed from 1/1 Rate to (invalid), ...": the coded fields
// of an R1 demodulator record.
std::size_t parameter_diff(std::span<const std::uint8_t> payload, wchar_t* out, std::size_t capacity)
{
    using namespace family_a;
    payload_cursor old_in(payload.data() + 3, payload.size() - 3);
    const section_groups& groups = record_groups[r1][1];
    // The new copy follows the old; coded fields are one byte each.
    payload_cursor skip = old_in;
    for (const group& g : groups)
        if (g.count) {
            const std::uint8_t present = skip.read_u8();
            for (std::size_t k = 0; k < g.count; ++k)
                if (present >> k & 1)
                    skip.read_u8();
        }
    payload_cursor new_in = skip;
    std::size_t n = 0;
    for (const group& g : groups) {
        if (!g.count)
            continue;
        const std::uint8_t old_present = old_in.read_u8(), new_present = new_in.read_u8();
        for (std::size_t k = 0; k < g.count; ++k) {
            if (!((old_present | new_present) >> k & 1))
                continue;
            const field& f = fields[g.fieldIndex[k]];
            const auto& table = demod_tables_r1.*f.table;
            const auto r = fmt::format_to_n(out + n, capacity - 1 - n, L"{}{} was changed from {} to {}",
                                            n ? L", " : L"", ascii{f.display}, option_name(table, old_in.read_u8()),
                                            option_name(table, new_in.read_u8()));
            n += std::min<std::size_t>(r.size, capacity - 1 - n);
        }
    }
    const auto r = fmt::format_to_n(out + n, capacity - 1 - n, L".");
    n += std::min<std::size_t>(r.size, capacity - 1 - n);
    out[n] = 0;
    return n;
}

constexpr peer peers[] = {
    {"soft reset in blind mode", unit_reset},
    {"hard reset of a subnet", subnet_reset},
    {"unit inserted", unit_inserted},
    {"fpga modem all three groups", unit_alarms},
    {"r1 demodulator, FEC rate 12 and LNB power 3", parameter_diff},
};

}   // namespace

std::span<const peer> all()
{
    return peers;
}

}   // namespace fmt_peers

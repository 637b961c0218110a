#include "devices/family_a_record.h"

#include <type_traits>

#include "core/mask_walk.h"
#include "devices/change_item.h"
#include "devices/value_formats.h"

namespace family_a {
namespace {

const section_groups& groups_of(record_kind record) noexcept
{
    return record_groups[record.which][static_cast<std::size_t>(record.part)];
}

// Bytes of each fixed-width kind on the wire; texts carry their own count.
constexpr std::size_t fixed_width(value kind) noexcept
{
    switch (kind) {
    case value::temperature:
    case value::option:
        return 1;
    case value::mac:
        return 8;
    default:
        return 4;
    }
}

// Moves `in` past one copy of the record, to where the next copy starts.
void skip_copy(payload_cursor& in, record_kind record)
{
    for (const group& g : groups_of(record)) {
        if (g.count == 0)
            continue;
        for_each_set_bit(in.read_u8(), g.members(), [&](std::uint8_t index) {
            if (fields[index].kind == value::text)
                in.read_wstring();
            else
                in.take(fixed_width(fields[index].kind));
        });
    }
}

// Reads the values the two copies hold and writes the item in the form of
// `Out`: the display name in the text, the key in XML.
template <class Out>
struct item_writer {
    bool& first;
    Out& out;
    const field& f;
    payload_cursor& old_in;
    bool has_old;
    payload_cursor& new_in;
    bool has_new;

    template <class Read, class Format>
    void operator()(Read read, const Format& format) const
    {
        decltype(read(old_in)) old_value{}, new_value{};
        if (has_old)
            old_value = read(old_in);
        if (has_new)
            new_value = read(new_in);
        if constexpr (std::is_same_v<Out, ui::event::text_output>)
            write_change_text(first, out, f.display, has_old, old_value, has_new, new_value, format);
        else
            write_change_xml(first, out, f.key, has_old, old_value, has_new, new_value, format);
    }
};

constexpr auto read_u8 = [](payload_cursor& in) { return in.read_u8(); };
constexpr auto read_u32 = [](payload_cursor& in) { return in.read_u32(); };
constexpr auto read_i32 = [](payload_cursor& in) { return in.read_i32(); };
constexpr auto read_u64 = [](payload_cursor& in) { return in.read_u64(); };
constexpr auto read_text = [](payload_cursor& in) { return in.read_wstring(); };

template <class Out>
void write_item(const item_writer<Out>& write, const demod_value_tables& tables)
{
    const field& f = write.f;
    switch (f.kind) {
    case value::text:
        return write(read_text, formats::text{});
    case value::number:
        return write(read_u32, formats::integer{});
    case value::temperature:
        return write(read_u8, formats::temperature{});
    case value::option:
        return write(read_u8, formats::option{tables.*f.table});
    case value::scaled:
        if (f.is_signed)
            return write(read_i32, formats::scaled{f.scale});
        return write(read_u32, formats::scaled{f.scale});
    case value::time_stamp:
        return write(read_u32, formats::time_stamp{});
    case value::address:
        return write(read_u32, formats::address{});
    case value::mac:
        return write(read_u64, formats::mac_address{});
    }
}

template <class Out>
void walk(payload_cursor& in, Out& out, record_kind record, bool& first)
{
    // The new copy starts where the old one ends; both are then read side by
    // side, group by group.
    payload_cursor old_in = in;
    skip_copy(in, record);
    payload_cursor& new_in = in;
    const demod_value_tables& tables = *value_tables[record.which];
    for (const group& g : groups_of(record)) {
        if (g.count == 0)
            continue;
        const std::uint8_t old_present = old_in.read_u8();
        const std::uint8_t new_present = new_in.read_u8();
        const std::span<const std::uint8_t> members = g.members();
        for_each_set_bit(old_present | new_present, members, [&](const std::uint8_t& index) {
            const auto bit = static_cast<unsigned>(&index - members.data());
            const bool has_old = (old_present >> bit & 1) != 0;
            const bool has_new = (new_present >> bit & 1) != 0;
            write_item(item_writer<Out>{first, out, fields[index], old_in, has_old, new_in, has_new}, tables);
        });
    }
}

} // namespace

void write_changes(payload_cursor& in, ui::event::text_output& out, record_kind record, bool& first)
{
    walk(in, out, record, first);
}

void write_changes(payload_cursor& in, ui::event::xml_output& out, record_kind record, bool& first)
{
    walk(in, out, record, first);
}

} // namespace family_a

#include "devices/family_a_record.h"

#include <functional>

#include "core/mask_walk.h"
#include "core/option_entry.h"
#include "devices/value_formats.h"

namespace family_a {
namespace {

const section_groups& groups_of(record_kind record) noexcept
{
    return record_groups[record.which][static_cast<std::size_t>(record.part)];
}

// One field of the record, and where its old and new values lie.
struct item {
    const field& f;
    const demod_value_tables& tables;
    payload_cursor& oldIn;
    bool hasOld;
    payload_cursor& newIn;
    bool hasNew;
};

// Reads the values the two copies hold with `read` and adds the item to the
// list, which shows the name of its form.
template <class List, class Read, class Format>
void add_item(List& list, const item& it, Read read, const Format& format)
{
    decltype(std::invoke(read, it.oldIn)) old_value{}, new_value{};
    if (it.hasOld)
        old_value = std::invoke(read, it.oldIn);
    if (it.hasNew)
        new_value = std::invoke(read, it.newIn);
    list.add({it.f.key, it.f.display}, it.hasOld, old_value, it.hasNew, new_value, format);
}

// --- How each kind of value is read and shown --------------------------------
//
// A kind skips one value (to find where the new copy starts) and adds an
// item: both read the value with the same reader, so the two cannot disagree
// on its width.

template <auto Read, class Format>
struct plain_kind {
    static void skip(payload_cursor& in) { std::invoke(Read, in); }

    template <class List>
    static void add(List& list, const item& it)
    {
        add_item(list, it, Read, Format{});
    }
};

// A coded byte through the layout's value table for the field.
struct option_kind {
    static void skip(payload_cursor& in) { in.read_u8(); }

    template <class List>
    static void add(List& list, const item& it)
    {
        add_item(list, it, &payload_cursor::read_u8, formats::option{it.tables.*it.f.table});
    }
};

// A 32-bit reading through the field's scale, signed where the field says so.
struct scaled_kind {
    static void skip(payload_cursor& in) { in.read_u32(); }

    template <class List>
    static void add(List& list, const item& it)
    {
        if (it.f.isSigned)
            add_item(list, it, &payload_cursor::read_i32, formats::scaled{it.f.scale});
        else
            add_item(list, it, &payload_cursor::read_u32, formats::scaled{it.f.scale});
    }
};

struct value_kind {
    value kind;
    void (*skip)(payload_cursor&);
    void (*addText)(text_change_list&, const item&);
    void (*addXml)(xml_change_list&, const item&);
};

template <class Kind>
constexpr value_kind handled_as(value kind) noexcept
{
    return {kind, Kind::skip, Kind::template add<text_change_list>, Kind::template add<xml_change_list>};
}

// One row per kind, in the order of `value`.
constexpr value_kind value_kinds[] = {
    handled_as<plain_kind<&payload_cursor::read_wstring, formats::text>>(value::text),
    handled_as<plain_kind<&payload_cursor::read_u32, formats::integer>>(value::number),
    handled_as<plain_kind<&payload_cursor::read_u8, formats::temperature>>(value::temperature),
    handled_as<option_kind>(value::option),
    handled_as<scaled_kind>(value::scaled),
    handled_as<plain_kind<&payload_cursor::read_u32, formats::time_stamp>>(value::time_stamp),
    handled_as<plain_kind<&payload_cursor::read_u32, formats::address>>(value::address),
    handled_as<plain_kind<&payload_cursor::read_u64, formats::mac_address>>(value::mac),
};

static_assert(one_row_per_enumerator(value_kinds, &value_kind::kind, value::mac),
              "each kind of value has its row, at its own position");

const value_kind& kind_of(const field& f) noexcept
{
    return value_kinds[static_cast<std::size_t>(f.kind)];
}

void add(text_change_list& list, const item& it)
{
    kind_of(it.f).addText(list, it);
}

void add(xml_change_list& list, const item& it)
{
    kind_of(it.f).addXml(list, it);
}

// --- The walk -----------------------------------------------------------------

// Moves `in` past one copy of the record, to where the next copy starts.
void skip_copy(payload_cursor& in, record_kind record)
{
    for (const group& g : groups_of(record)) {
        if (g.count == 0)
            continue;
        for_each_set_bit(in.read_u8(), g.members(),
                         [&](std::uint8_t index, std::size_t) { kind_of(fields[index]).skip(in); });
    }
}

template <class List>
void walk(payload_cursor& in, List& list, record_kind record)
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
        for_each_set_bit(old_present | new_present, g.members(), [&](std::uint8_t index, std::size_t bit) {
            const bool has_old = (old_present >> bit & 1) != 0;
            const bool has_new = (new_present >> bit & 1) != 0;
            add(list, item{fields[index], tables, old_in, has_old, new_in, has_new});
        });
    }
}

}   // namespace

void write_changes(payload_cursor& in, text_change_list& list, record_kind record)
{
    walk(in, list, record);
}

void write_changes(payload_cursor& in, xml_change_list& list, record_kind record)
{
    walk(in, list, record);
}

}   // namespace family_a

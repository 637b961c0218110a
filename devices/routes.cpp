#include "devices/routes.h"

#include "core/mask_walk.h"
#include "core/text_format.h"
#include "devices/change_elements.h"

namespace routes {
namespace {

using change_sets::close_line;
using change_sets::open_line;
using change_sets::value_line;

constexpr std::size_t address_bytes = 4;
constexpr std::size_t enumeration_bytes = 1;
constexpr std::size_t key_and_mask_bytes = 2 * address_bytes + 2;

void write_value(payload_cursor& in, ui::event::xml_output& out, const field& f)
{
    if (f.table.empty())
        out << dotted_ipv4{in.read_u32()};
    else
        out << lookup_option(f.table, in.read_u8());
}

std::size_t whole_entry_bytes(std::span<const field> layout) noexcept
{
    std::size_t bytes = 0;
    for (const field& f : layout)
        bytes += f.table.empty() ? address_bytes : enumeration_bytes;
    return bytes;
}

// A list's count, refused as an underflow before anything of the list is
// written when the payload cannot hold that many of its smallest entry.
std::size_t read_count(payload_cursor& in, std::size_t smallest_entry)
{
    const std::size_t count = in.read_u16();
    if (count * smallest_entry > in.remaining())
        throw io::underflow();
    return count;
}

// A removed or added route: every field of the layout.
void write_whole_entries(payload_cursor& in, ui::event::xml_output& out, std::span<const field> layout,
                         wstring_view element)
{
    const std::size_t count = read_count(in, whole_entry_bytes(layout));
    for (std::size_t i = 0; i < count; ++i) {
        open_line(out, element);
        for (const field& f : layout)
            value_line(out, "field"_w, "name"_w, f.name, [&] { write_value(in, out, f); });
        close_line(out);
    }
}

// A modified route: its key, then the fields its mask names, old and new.
void write_modified_entries(payload_cursor& in, ui::event::xml_output& out, std::span<const field> layout)
{
    const std::size_t count = read_count(in, key_and_mask_bytes);
    for (std::size_t i = 0; i < count; ++i) {
        open_line(out, "modified-element"_w);
        value_line(out, "key"_w, "field"_w, "Network"_w, [&] { out << dotted_ipv4{in.read_u32()}; });
        value_line(out, "key"_w, "field"_w, "Mask"_w, [&] { out << dotted_ipv4{in.read_u32()}; });
        for_each_set_bit(in.read_u16(), layout, [&](const field& f, std::size_t) {
            open_line(out, "changed"_w, "field"_w, f.name);
            change_sets::old_and_new(out, [&] { write_value(in, out, f); });
            close_line(out);
        });
        close_line(out);
    }
}

}   // namespace

void write_route_lists(payload_cursor& in, ui::event::xml_output& out, std::span<const field> layout)
{
    write_whole_entries(in, out, layout, "removed-element"_w);
    write_modified_entries(in, out, layout);
    write_whole_entries(in, out, layout, "added-element"_w);
}

}   // namespace routes

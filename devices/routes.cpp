#include "devices/routes.h"

#include "core/mask_walk.h"
#include "core/text_format.h"
#include "core/xml_writer.h"
#include "devices/change_set.h"

namespace routes {
namespace {

constexpr std::size_t address_bytes = 4;
constexpr std::size_t enumeration_bytes = 1;
constexpr std::size_t key_and_mask_bytes = 2 * address_bytes + 2;

// Hands a field's value to `write`: an address, or a code through the
// field's table.
template <class Write>
void with_value(payload_cursor& in, const field& f, Write&& write)
{
    if (f.table.empty())
        write(text_of(dotted_ipv4{in.read_u32()}));
    else
        write(lookup_option(f.table, in.read_u8()));
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
void write_whole_entries(payload_cursor& in, output::xml& out, std::span<const field> layout,
                         const output::element_name& element)
{
    const std::size_t count = read_count(in, whole_entry_bytes(layout));
    for (std::size_t i = 0; i < count; ++i) {
        out.open_line(element);
        for (const field& f : layout) {
            out.open_element("field"_tag, "name"_w, f.name);
            with_value(in, f, [&](const auto& value) { out.close_line_with(value); });
        }
        out.close_line();
    }
}

// A modified route: its key, then the fields its mask names, old and new.
void write_modified_entries(payload_cursor& in, output::xml& out, std::span<const field> layout)
{
    const std::size_t count = read_count(in, key_and_mask_bytes);
    for (std::size_t i = 0; i < count; ++i) {
        out.open_line("modified-element"_tag);
        for (const wstring_view key : {"Network"_w, "Mask"_w}) {
            out.open_element("key"_tag, "field"_w, key);
            out.close_line_with(dotted_ipv4{in.read_u32()});
        }
        for_each_set_bit(in.read_u16(), layout, [&](const field& f, std::size_t) {
            out.open_line("changed"_tag, "field"_w, f.name);
            for (const output::element_name* name : change_sets::old_and_new) {
                out.open_element(*name);
                with_value(in, f, [&](const auto& value) { out.close_line_with(value); });
            }
            out.close_line();
        });
        out.close_line();
    }
}

}   // namespace

void write_route_lists(payload_cursor& in, output::xml& out, std::span<const field> layout)
{
    write_whole_entries(in, out, layout, "removed-element"_tag);
    write_modified_entries(in, out, layout);
    write_whole_entries(in, out, layout, "added-element"_tag);
}

}   // namespace routes

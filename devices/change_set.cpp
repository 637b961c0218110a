#include "devices/change_set.h"

#include <memory>

#include "core/mask_walk.h"
#include "core/platform.h"
#include "core/text_format.h"
#include "core/utf16le.h"
#include "devices/change_elements.h"
#include "devices/routes.h"

namespace change_sets {
namespace {

struct task_memory_free {
    void operator()(void* block) const noexcept { platform::task_free(block); }
};

// A signed 16-bit count of UTF-16 units and the units. The text passes
// through task memory of 2N+2 bytes, as the host's own readers take it.
void write_wide_text(payload_cursor& in, ui::event::xml_output& out)
{
    const auto count = static_cast<std::int16_t>(in.read_u16());
    if (count <= 0)
        return;
    const std::span<const std::uint8_t> bytes = in.take(2 * std::size_t(count));
    const std::unique_ptr<void, task_memory_free> copy(platform::task_alloc(bytes.size() + 2));
    if (!copy)
        throw com::error(E_OUTOFMEMORY);
    auto* units = static_cast<std::uint8_t*>(copy.get());
    std::copy(bytes.begin(), bytes.end(), units);
    units[bytes.size()] = units[bytes.size() + 1] = 0;
    write_utf16le(out, std::span<const std::uint8_t>(units, bytes.size()));
}

void write_value(payload_cursor& in, ui::event::xml_output& out, body kind)
{
    switch (kind) {
    case body::wide_text:
        return write_wide_text(in, out);
    case body::byte:
        out << decimal(in.read_u8());
        return;
    case body::unsigned32:
        out << decimal(in.read_u32());
        return;
    case body::signed32:
        out << decimal(in.read_i32());
        return;
    case body::ipv4:
        out << dotted_ipv4{in.read_u32()};
        return;
    case body::routes_a:
    case body::routes_b:
        break;
    }
    throw not_expected();
}

void write_section(payload_cursor& in, ui::event::xml_output& out, const section& s)
{
    open_line(out, "changed"_w, "field"_w, s.field);
    if (s.kind == body::routes_a)
        routes::write_route_lists(in, out, routes::layout_a);
    else if (s.kind == body::routes_b)
        routes::write_route_lists(in, out, routes::layout_b);
    else
        old_and_new(out, [&] { write_value(in, out, s.kind); });
    close_line(out);
}

} // namespace

void write(payload_cursor& in, ui::event::xml_output& out, const change_set& set)
{
    const std::uint64_t mask = set.mask_bytes == 2 ? in.read_u16() : in.read_u8();
    for_each_set_bit(mask, set.sections, [&](const section& s) { write_section(in, out, s); });
}

} // namespace change_sets

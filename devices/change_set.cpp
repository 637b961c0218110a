#include "devices/change_set.h"

#include <functional>
#include <memory>

#include "core/mask_walk.h"
#include "core/option_entry.h"
#include "core/platform.h"
#include "core/text_format.h"
#include "core/utf16le.h"
#include "core/xml_writer.h"
#include "devices/routes.h"

namespace change_sets {
namespace {

struct task_memory_free {
    void operator()(void* block) const noexcept { platform::task_free(block); }
};

// A signed 16-bit count of UTF-16 units and the units. The text passes
// through task memory of 2N+2 bytes, as the host's own readers take it.
void write_wide_text(payload_cursor& in, output::xml& out)
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

template <auto Read>
auto read_decimal(payload_cursor& in)
{
    return text_of(decimal(std::invoke(Read, in)));
}

auto read_ipv4(payload_cursor& in)
{
    return text_of(dotted_ipv4{in.read_u32()});
}

// --- What each body kind writes inside its `changed` element -----------------

using body_writer = void (*)(payload_cursor&, output::xml&);

// An old and a new value, each on its line: a text that may be empty
// (<old-value/>), or a number read just before it is written.
void old_and_new_texts(payload_cursor& in, output::xml& out)
{
    for (const output::element_name* name : old_and_new) {
        out.open_element(*name);
        write_wide_text(in, out);
        out.close_line();
    }
}

template <auto Read>
void old_and_new_values(payload_cursor& in, output::xml& out)
{
    for (const output::element_name* name : old_and_new) {
        out.open_element(*name);
        out.close_line_with(Read(in));
    }
}

// The three lists of a route table, with no old and new value.
template <const auto& Layout>
void route_lists(payload_cursor& in, output::xml& out)
{
    routes::write_route_lists(in, out, Layout);
}

struct body_row {
    body kind;
    body_writer write;
};

// One row per kind, in the order of `body`.
constexpr body_row bodies[] = {
    {body::wide_text, old_and_new_texts},
    {body::byte, old_and_new_values<read_decimal<&payload_cursor::read_u8>>},
    {body::unsigned32, old_and_new_values<read_decimal<&payload_cursor::read_u32>>},
    {body::signed32, old_and_new_values<read_decimal<&payload_cursor::read_i32>>},
    {body::ipv4, old_and_new_values<read_ipv4>},
    {body::routes_a, route_lists<routes::layout_a>},
    {body::routes_b, route_lists<routes::layout_b>},
};

static_assert(one_row_per_enumerator(bodies, &body_row::kind, body::routes_b),
              "each body kind has its row, at its own position");

void write_section(payload_cursor& in, output::xml& out, const section& s)
{
    out.open_line("changed"_tag, "field"_w, s.field);
    bodies[static_cast<std::size_t>(s.kind)].write(in, out);
    out.close_line();
}

}   // namespace

void write(payload_cursor& in, output::xml& out, const change_set& set)
{
    const std::uint64_t mask = set.maskBytes == 2 ? in.read_u16() : in.read_u8();
    for_each_set_bit(mask, set.sections, [&](const section& s, std::size_t) { write_section(in, out, s); });
}

}   // namespace change_sets

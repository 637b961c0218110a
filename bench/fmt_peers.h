// The same texts as five of the module's renderers, produced with {fmt} into
// a buffer of the same size: the general formatter the renderers are measured
// against. Each peer decodes its payload with the module's payload cursor and
// tables and formats with fmt::format_to_n; only the formatting differs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace fmt_peers {

struct peer {
    std::string_view sample;   // the sample whose text it produces
    // Writes the text into `out` (room for `capacity` units, NUL included);
    // returns the units written before the NUL.
    std::size_t (*render)(std::span<const std::uint8_t> payload, wchar_t* out, std::size_t capacity);
};

std::span<const peer> all();

}   // namespace fmt_peers

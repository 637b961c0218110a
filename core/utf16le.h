// UTF-16LE text taken from a payload as it stands, one unit per byte pair.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "core/wide.h"

// Copies the units through in pieces; only the stream's buffer bounds them.
// A trailing odd byte is not a unit and is left out.
template <class Out>
void write_utf16le(Out& out, std::span<const std::uint8_t> bytes)
{
    wchar piece[64];
    while (bytes.size() >= 2) {
        const std::size_t units = std::min(std::size(piece), bytes.size() / 2);
        for (std::size_t i = 0; i < units; ++i)
            piece[i] = static_cast<wchar>(bytes[2 * i] | bytes[2 * i + 1] << 8);
        out.write(piece, units);
        bytes = bytes.subspan(2 * units);
    }
}

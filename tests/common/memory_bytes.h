// Byte sinks and sources over memory, for the name's stream form; a source
// runs dry like a short stream.
#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "core/errors.h"
#include "moniker/kor_name_stream.h"

struct memory_sink final : byte_sink {
    std::vector<std::uint8_t> bytes;
    void write(const std::uint8_t* data, std::size_t count) override { bytes.insert(bytes.end(), data, data + count); }
};

struct memory_source final : byte_source {
    const std::uint8_t* bytes;
    std::size_t size;
    std::size_t at = 0;

    memory_source(const std::uint8_t* b, std::size_t n) : bytes(b), size(n) {}
    void read(std::uint8_t* out, std::size_t count) override
    {
        if (count > size - at)
            throw io::underflow();
        std::memcpy(out, bytes + at, count);
        at += count;
    }
};

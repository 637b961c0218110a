// The parsed form of a "kor:" device name: which of the four forms it has and
// that form's fields.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

struct KorName {
    enum Kind : std::uint32_t {
        MacAddress = 0,
        DeviceAtAddress = 1,
        DeviceAtAddressExtended = 2,
        Transponder = 3,
    };

    // Any value may arrive from a stream or a host; only the four above are
    // forms (moniker/kor_name_kinds.h), and the operations refuse the rest.
    std::uint32_t kind = MacAddress;

    // Each form reads only its own fields. Parsed names hold byte values in
    // deviceType, subIndex and transponder; names made from values by a host
    // keep all 32 bits.
    std::array<std::uint8_t, 6> mac{};   // byte 5 is printed first, byte 0 last
    std::uint32_t deviceType = 0;
    std::uint32_t address = 0;   // IPv4; the most significant byte is printed first
    std::uint32_t subIndex = 0;
    std::uint32_t idValue = 0;
    std::uint32_t transponder = 0;
};

// Same kind and the same fields of that kind.
bool operator==(const KorName& a, const KorName& b) noexcept;

// The 32-bit hash of a name; none for a kind that is not a form. The hashes
// are those that hosts already keep in their tables and must not change.
std::optional<std::uint32_t> kor_name_hash(const KorName& name) noexcept;

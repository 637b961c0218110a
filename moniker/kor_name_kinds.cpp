#include "moniker/kor_name_kinds.h"

#include <algorithm>
#include <iterator>

#include "core/text_format.h"
#include "moniker/kor_name_stream.h"

#ifdef _WIN32
#include "korps/korps_interfaces.h"
#define KORPS_WITH_INTERFACES(operation) operation
#else
#define KORPS_WITH_INTERFACES(operation) nullptr
#endif

namespace {

constexpr std::uint32_t little_endian(std::uint8_t b0, std::uint8_t b1, std::uint8_t b2 = 0,
                                      std::uint8_t b3 = 0) noexcept
{
    return std::uint32_t(b0) | std::uint32_t(b1) << 8 | std::uint32_t(b2) << 16 | std::uint32_t(b3) << 24;
}

std::uint8_t read_decimal_byte(text_reader& in)
{
    return in.read_integer<unsigned char, 10, 0>();
}

// --- kind 0: a unit by MAC address

// Three bytes, "-", three bytes: the order in which they print, so the first
// lands in byte 5.
void read_mac(text_reader& in, KorName& name)
{
    for (std::size_t i = 0; i < name.mac.size(); ++i) {
        if (i == name.mac.size() / 2)
            in.expect<char>("-");
        name.mac[name.mac.size() - 1 - i] = in.read_integer<unsigned char, 16, 2>();
    }
}

void write_mac(output::buffer& out, const KorName& name)
{
    const auto& m = name.mac;
    out << hex_byte{m[5]} << hex_byte{m[4]} << hex_byte{m[3]} << "-"_w << hex_byte{m[2]} << hex_byte{m[1]}
        << hex_byte{m[0]};
}

// Bytes 0 to 3 as a little-endian word, XOR bytes 4 and 5 as the low half of
// another.
std::uint32_t mac_hash(const KorName& n) noexcept
{
    const auto& m = n.mac;
    return little_endian(m[0], m[1], m[2], m[3]) ^ little_endian(m[4], m[5]);
}

// --- kind 1: a device at an IPv4 address

// Four decimal bytes joined by "."; the first is the most significant. The
// device type comes from the key before them.
void read_address(text_reader& in, KorName& name)
{
    std::uint32_t address = read_decimal_byte(in);
    for (int i = 1; i < 4; ++i) {
        in.expect<char>(".");
        address = address << 8 | read_decimal_byte(in);
    }
    name.address = address;
}

void write_address(output::buffer& out, const KorName& name)
{
    out << dotted_ipv4{name.address};
}

// address XOR deviceType.
std::uint32_t device_hash(const KorName& n) noexcept
{
    return n.address ^ n.deviceType;
}

constexpr KorWord device_words[] = {&KorName::deviceType, &KorName::address};

// --- kind 2: the same, extended: ",<idValue>,<subIndex>" after the address

void read_extension(text_reader& in, KorName& name)
{
    name.idValue = in.read_integer<unsigned int, 10, 0>();
    in.expect<char>(",");
    name.subIndex = read_decimal_byte(in);
}

void write_extension(output::buffer& out, const KorName& name)
{
    out << decimal(name.idValue) << ","_w << decimal(name.subIndex);
}

// (address AND deviceType) XOR idValue XOR subIndex: AND where the plain
// device form has XOR, as the extended form has always hashed, and hosts keep
// these values.
std::uint32_t device_ex_hash(const KorName& n) noexcept
{
    return (n.address & n.deviceType) ^ n.idValue ^ n.subIndex;
}

constexpr KorWord device_ex_words[] = {&KorName::deviceType, &KorName::address, &KorName::subIndex, &KorName::idValue};

// --- kind 3: a transponder

void read_transponder(text_reader& in, KorName& name)
{
    name.transponder = read_decimal_byte(in);
}

void write_transponder(output::buffer& out, const KorName& name)
{
    out << decimal(name.transponder);
}

// The number itself.
std::uint32_t transponder_hash(const KorName& n) noexcept
{
    return n.transponder;
}

constexpr KorWord transponder_words[] = {&KorName::transponder};

#ifdef _WIN32

// --- the host's binder calls and another moniker's getters, kind by kind

HRESULT bind_mac(IKorBinder* binder, const KorName& n, const GUID& riid, void** ppv)
{
    return binder->BindMac(n.mac.data(), riid, ppv);
}

HRESULT bind_device(IKorBinder* binder, const KorName& n, const GUID& riid, void** ppv)
{
    return binder->BindDevice(n.deviceType, n.address, riid, ppv);
}

HRESULT bind_device_ex(IKorBinder* binder, const KorName& n, const GUID& riid, void** ppv)
{
    return binder->BindDeviceEx(n.deviceType, n.address, n.subIndex, n.idValue, riid, ppv);
}

HRESULT bind_transponder(IKorBinder* binder, const KorName& n, const GUID& riid, void** ppv)
{
    return binder->BindTransponder(n.transponder, riid, ppv);
}

HRESULT mac_of(IKorMoniker* other, KorName& name)
{
    return other->GetMacAddress(name.mac.data());
}

HRESULT pair_of(HRESULT (STDMETHODCALLTYPE IKorMoniker::*getter)(ULONG*, ULONG*), IKorMoniker* other,
                std::uint32_t& first, std::uint32_t& second)
{
    ULONG a = 0, b = 0;
    const HRESULT result = (other->*getter)(&a, &b);
    first = a;
    second = b;
    return result;
}

HRESULT device_of(IKorMoniker* other, KorName& name)
{
    return pair_of(&IKorMoniker::GetDeviceAddress, other, name.deviceType, name.address);
}

HRESULT device_ex_of(IKorMoniker* other, KorName& name)
{
    const HRESULT result = device_of(other, name);
    return FAILED(result) ? result : pair_of(&IKorMoniker::GetExtension, other, name.subIndex, name.idValue);
}

HRESULT transponder_of(IKorMoniker* other, KorName& name)
{
    ULONG transponder = 0;
    const HRESULT result = other->GetTransponder(&transponder);
    name.transponder = transponder;
    return result;
}

#endif

constexpr kor_name_kind kinds[] = {
    {
        .form = "MAC address",
        .identifier = "mac"_w,
        .read = read_mac,
        .write = write_mac,
        .mac = true,
        .hash = mac_hash,
        .bind = KORPS_WITH_INTERFACES(bind_mac),
        .readFrom = KORPS_WITH_INTERFACES(mac_of),
    },
    {
        .form = "device at an IPv4 address",
        .read = read_address,
        .write = write_address,
        .words = device_words,
        .hash = device_hash,
        .bind = KORPS_WITH_INTERFACES(bind_device),
        .readFrom = KORPS_WITH_INTERFACES(device_of),
    },
    {
        .form = "device at an IPv4 address, extended",
        .extends = KorName::DeviceAtAddress,
        .tail = ","_w,
        .read = read_extension,
        .write = write_extension,
        .words = device_ex_words,
        .hash = device_ex_hash,
        .bind = KORPS_WITH_INTERFACES(bind_device_ex),
        .readFrom = KORPS_WITH_INTERFACES(device_ex_of),
    },
    {
        .form = "transponder",
        .identifier = "transponder"_w,
        .read = read_transponder,
        .write = write_transponder,
        .words = transponder_words,
        .hash = transponder_hash,
        .bind = KORPS_WITH_INTERFACES(bind_transponder),
        .readFrom = KORPS_WITH_INTERFACES(transponder_of),
    },
};
static_assert(std::size(kinds) == KorName::Transponder + 1, "one row per kind, in kind order");

constexpr bool extends_earlier_kinds() noexcept
{
    for (std::size_t kind = 0; kind < std::size(kinds); ++kind)
        if (kinds[kind].extends && *kinds[kind].extends >= kind)
            return false;
    return true;
}
static_assert(extends_earlier_kinds(), "a kind extends one the parser has already read");
static_assert(
    std::ranges::all_of(kinds, [](const kor_name_kind& k) { return kor_name_stream_bytes(k) <= kor_name_stream_max; }),
    "every name fits the size promised to hosts");

}   // namespace

std::span<const kor_name_kind> kor_name_kinds() noexcept
{
    return kinds;
}

const kor_name_kind* find_kor_name_kind(std::uint32_t kind) noexcept
{
    return kind < std::size(kinds) ? &kinds[kind] : nullptr;
}

#include "moniker/kor_name_printer.h"

#include <iterator>

#include "core/boundary.h"
#include "core/text_format.h"
#include "devices/device_types.h"

namespace {

using output = io::text::output_stream<wchar>;

void write_mac(output& out, const KorName& name)
{
    const auto& m = name.mac;
    out << "mac-"_w << hex_byte{m[5]} << hex_byte{m[4]} << hex_byte{m[3]} << "-"_w << hex_byte{m[2]}
        << hex_byte{m[1]} << hex_byte{m[0]};
}

// The key of the type's low byte as the table spells it, whatever case the
// name was parsed in.
void write_device(output& out, const KorName& name)
{
    out << device_type_name(static_cast<std::uint8_t>(name.deviceType)) << "-"_w << dotted_ipv4{name.address};
}

void write_device_ex(output& out, const KorName& name)
{
    write_device(out, name);
    out << ","_w << decimal(name.idValue) << ","_w << decimal(name.subIndex);
}

void write_transponder(output& out, const KorName& name)
{
    out << "transponder-"_w << decimal(name.transponder);
}

// Indexed by kind.
constexpr void (*const writers[])(output&, const KorName&) = {
    write_mac,
    write_device,
    write_device_ex,
    write_transponder,
};
static_assert(std::size(writers) == KorName::Transponder + 1);

} // namespace

HRESULT print_kor_name(const KorName& name, wchar* buffer, std::size_t capacity) noexcept
{
    if (!buffer)
        return E_POINTER;
    if (!is_valid_kind(name.kind))
        return E_UNEXPECTED;
    return guarded([&] {
        output out(buffer, capacity);
        out << "kor:"_w;
        writers[name.kind](out, name);
        return S_OK;
    });
}

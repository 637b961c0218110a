#include "moniker/kor_name_printer.h"

#include "core/boundary.h"
#include "devices/device_types.h"
#include "moniker/kor_name_kinds.h"

namespace {

// The head, the "-" after it, then the fields of the kind and of every kind
// it extends, the earliest first. The head of a device form is the key of the
// type's low byte as the table spells it, whatever case the name was parsed in.
void write_name(output::buffer& out, const kor_name_kind& kind, const KorName& name)
{
    if (kind.extends) {
        write_name(out, kor_name_kinds()[*kind.extends], name);
        out << kind.tail;
    } else {
        if (kind.identifier.empty())
            out << device_type_name(static_cast<std::uint8_t>(name.deviceType));
        else
            out << kind.identifier;
        out << "-"_w;
    }
    kind.write(out, name);
}

}   // namespace

HRESULT print_kor_name(const KorName& name, wchar* buffer, std::size_t capacity) noexcept
{
    if (!buffer)
        return E_POINTER;
    const kor_name_kind* kind = find_kor_name_kind(name.kind);
    if (!kind)
        return E_UNEXPECTED;
    return guarded([&] {
        output::buffer out(buffer, capacity);
        out << "kor:"_w;
        write_name(out, *kind, name);
        return S_OK;
    });
}

// Any text through the "kor:" display-name parser.
//
// Input: UTF-16LE units (an odd last byte is dropped), parsed as a
// NUL-terminated display name. Invariants: the parser answers S_OK,
// E_UNEXPECTED or DISP_E_EXCEPTION; a name that parses prints, within its
// buffer, to a canonical text that parses back to the same name with every
// unit eaten; a buffer one unit too small fails without writing past it.
#include <cstdint>
#include <vector>

#include "core/platform.h"
#include "fuzz/fuzz_check.h"
#include "moniker/kor_name_parser.h"
#include "moniker/kor_name_printer.h"

namespace {

constexpr wchar canary = 0xA5A5;

std::size_t length_of(const std::vector<wchar>& text)
{
    std::size_t n = 0;
    while (text[n] != 0)
        ++n;
    return n;
}

}   // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<wchar> text(size / 2 + 1, 0);
    for (std::size_t i = 0; i + 1 < size; i += 2)
        text[i / 2] = static_cast<wchar>(data[i] | data[i + 1] << 8);

    KorName name;
    std::size_t eaten = 0;
    const HRESULT result = parse_kor_name(text.data(), name, eaten);
    const bool described = !platform::take_error_description().empty();
    FUZZ_REQUIRE(result == S_OK || result == E_UNEXPECTED || result == DISP_E_EXCEPTION);
    FUZZ_REQUIRE(described == (result == DISP_E_EXCEPTION));
    if (result != S_OK)
        return 0;
    FUZZ_REQUIRE(eaten <= length_of(text));

    std::vector<wchar> printed(kor_name_capacity + 1, canary);
    FUZZ_REQUIRE(print_kor_name(name, printed.data(), kor_name_capacity) == S_OK);
    FUZZ_REQUIRE(printed[kor_name_capacity] == canary);
    const std::size_t length = length_of(printed);

    KorName again;
    std::size_t again_eaten = 0;
    FUZZ_REQUIRE(parse_kor_name(printed.data(), again, again_eaten) == S_OK);
    FUZZ_REQUIRE(again == name);
    FUZZ_REQUIRE(again_eaten == length);

    std::vector<wchar> tight(length + 1, canary);
    FUZZ_REQUIRE(print_kor_name(name, tight.data(), length) == DISP_E_EXCEPTION);
    FUZZ_REQUIRE(tight[length] == canary);
    platform::take_error_description();
    return 0;
}

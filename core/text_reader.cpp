#include "core/text_reader.h"

namespace {

constexpr bool is_letter(wchar c) noexcept
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

constexpr bool is_digit(wchar c) noexcept
{
    return c >= '0' && c <= '9';
}

}   // namespace

bool ascii_equal(wstring_view wide, std::string_view ascii) noexcept
{
    return std::equal(wide.begin(), wide.end(), ascii.begin(), ascii.end(),
                      [](wchar w, char a) { return w == wchar(static_cast<unsigned char>(a)); });
}

bool text_reader::skip(std::string_view literal) noexcept
{
    if (!ascii_equal(rest().substr(0, literal.size()), literal))
        return false;
    advance(literal.size());
    return true;
}

wstring_view text_reader::read_identifier()
{
    const std::size_t start = pos_;
    if (!is_letter(peek()) && peek() != '_')
        throw io::expected_type<identifier<wchar_t>>();
    while (is_letter(peek()) || is_digit(peek()) || peek() == '_')
        advance(1);
    return text_.substr(start, pos_ - start);
}

void text_reader::sign()
{
    if (skip("+"))
        return;
    if (peek() == '-')
        throw io::unexpected_value<char>('-');
}

int text_reader::digit_value(wchar c, int radix) noexcept
{
    int value = -1;
    if (is_digit(c))
        value = c - '0';
    else if (c >= 'a' && c <= 'f')
        value = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
        value = c - 'A' + 10;
    return value < radix ? value : -1;
}

// The things a text reader expects to find, as types, and the name each one
// has in a failed read's message ("Expected a identifier<wchar_t>."). Those
// messages reach hosts and are documented, so every name is spelled here,
// exactly as the messages have always shown it, whatever the compiler.
#pragma once

#include <cstddef>
#include <string_view>

namespace detail {

// A token's name put together at compile time from texts and numbers.
struct spelled_name {
    char text[64]{};
    std::size_t size = 0;

    // Writing past `text` is not a constant expression, so a name too long
    // does not compile.
    constexpr void append(std::string_view piece)
    {
        for (char c : piece)
            text[size++] = c;
    }

    constexpr void append(std::size_t number)
    {
        char digits[20];
        std::size_t n = 0;
        do {
            digits[n++] = static_cast<char>('0' + number % 10);
            number /= 10;
        } while (number);
        while (n)
            text[size++] = digits[--n];
    }

    constexpr operator std::string_view() const noexcept { return {text, size}; }
};

template <class... Pieces>
constexpr spelled_name spell(Pieces... pieces)
{
    spelled_name name;
    (name.append(pieces), ...);
    return name;
}

}   // namespace detail

// The name of a token type in messages: its own `name`, or for the plain
// types a reader is asked for, the name the messages have always given them.
template <class Token>
inline constexpr std::string_view token_name = Token::name;

template <>
inline constexpr std::string_view token_name<char> = "char";
template <>
inline constexpr std::string_view token_name<wchar_t> = "wchar_t";
template <>
inline constexpr std::string_view token_name<unsigned char> = "unsigned char";
template <>
inline constexpr std::string_view token_name<unsigned short> = "unsigned short";
template <>
inline constexpr std::string_view token_name<unsigned int> = "unsigned int";
template <>
inline constexpr std::string_view token_name<unsigned long> = "unsigned long";
template <>
inline constexpr std::string_view token_name<unsigned long long> = "unsigned long long";

// A literal of N - 1 characters, such as "-" (char [2]).
namespace detail {
template <std::size_t N>
inline constexpr spelled_name char_array_name = spell("char [", N, "]");
}
template <std::size_t N>
inline constexpr std::string_view token_name<char[N]> = detail::char_array_name<N>;

// The default flavour of a text integer: no prefix, no digit grouping.
struct default_tag {
    static constexpr std::string_view name = "default_tag";
};

// A name: a letter or "_", then letters, digits and "_".
template <class Char>
struct identifier {
    static constexpr detail::spelled_name name = detail::spell("identifier<", token_name<Char>, ">");
};

// A number of type `Type` in `Radix`, of exactly `Digits` digits at most
// (0: any number of them).
template <class Type, int Radix, int Digits, class Tag>
struct integer {
    static_assert(Radix >= 2 && Digits >= 0);
    static constexpr detail::spelled_name name = detail::spell("integer<", token_name<Type>, ", ", std::size_t(Radix),
                                                               ", ", std::size_t(Digits), ", ", token_name<Tag>, ">");
};

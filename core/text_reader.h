// A cursor over wide text that reads the pieces of a display name. Every read
// either consumes what it returns or throws the error that names what was
// expected; the cursor never looks past the end of its text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "core/errors.h"
#include "core/text_tokens.h"
#include "core/wide.h"

// Whether `wide` spells `ascii` exactly, one unit per character.
bool ascii_equal(wstring_view wide, std::string_view ascii) noexcept;

class text_reader {
public:
    explicit text_reader(wstring_view text) noexcept : text_(text) {}

    // Units consumed so far.
    std::size_t position() const noexcept { return pos_; }
    wstring_view rest() const noexcept { return text_.substr(pos_); }
    void advance(std::size_t units) noexcept { pos_ += std::min(units, text_.size() - pos_); }

    // Consumes `literal` when the text goes on with it.
    bool skip(std::string_view literal) noexcept;

    // Consumes `literal`, or throws io::expected_value<Token> naming it.
    template <class Token>
    void expect(std::string_view literal)
    {
        if (!skip(literal))
            throw io::expected_value<Token>(std::string(literal));
    }

    // A letter or "_", then letters, digits and "_".
    wstring_view read_identifier();

    // An unsigned number: an optional "+", then up to `Digits` digits of
    // `Radix` (up to 1000 when `Digits` is 0), refusing a value above the
    // type's range.
    template <class Type, int Radix, int Digits>
    Type read_integer()
    {
        static_assert(std::numeric_limits<Type>::is_integer && !std::numeric_limits<Type>::is_signed);
        constexpr std::size_t max_digits = Digits > 0 ? Digits : 1000;
        constexpr unsigned long long limit = std::numeric_limits<Type>::max();
        sign();
        unsigned long long value = 0;
        std::size_t taken = 0;
        for (int digit; taken < max_digits && (digit = digit_value(peek(), Radix)) >= 0; ++taken) {
            if (value > limit / Radix || (value == limit / Radix && unsigned(digit) > limit % Radix))
                throw text::integer_overflow();
            value = value * Radix + unsigned(digit);
            advance(1);
        }
        if (taken == 0)
            throw io::expected_type<integer<Type, Radix, Digits, default_tag>>();
        return static_cast<Type>(value);
    }

private:
    // The next unit, or NUL at the end.
    wchar peek() const noexcept { return pos_ < text_.size() ? text_[pos_] : wchar(0); }

    // Consumes a leading "+"; a leading "-" is an error, since every number
    // of a display name is unsigned.
    void sign();

    // The value of `c` as a digit of `radix` (at most 16), or -1.
    static int digit_value(wchar c, int radix) noexcept;

    wstring_view text_;
    std::size_t pos_ = 0;
};

// A layer on the output buffer that indents lines lazily: a line's fill is
// written together with the line's first unit, so a text that ends in a line
// feed has no trailing fill and an empty write after a line feed adds
// nothing.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "core/output_stream.h"

namespace io::text::indented {

template <class Char, Char Fill>
struct fill_source {
    static constexpr std::size_t size = 256;
    static constexpr std::array<Char, size> units = [] {
        std::array<Char, size> a{};
        a.fill(Fill);
        return a;
    }();
};

template <class Char, int Fill, int PerLevel, class Base>
class output_stream {
public:
    template <class... Args>
    explicit output_stream(Args&&... args) : base_(std::forward<Args>(args)...)
    {}

    void write(const Char* s, std::size_t n)
    {
        write_lines(s, n, [this](auto... a) { base_.write(a...); });
    }
    void write_ansi(const char* s, std::size_t n)
    {
        write_lines(s, n, [this](auto... a) { base_.write_ansi(a...); });
    }

    std::size_t size() const noexcept { return base_.size(); }
    const Char* data() const noexcept { return base_.data(); }

    bool atLineStart = true;
    std::uint32_t indent = 0;   // in indentation units

private:
    using fill = fill_source<Char, static_cast<Char>(Fill)>;

    template <class Unit, class Write>
    void write_lines(const Unit* s, std::size_t n, Write&& write)
    {
        while (n > 0) {
            if (atLineStart) {
                write_fill();
                atLineStart = false;
            }
            const Unit* newline = std::find(s, s + n, Unit('\n'));
            const std::size_t piece = newline == s + n ? n : static_cast<std::size_t>(newline - s) + 1;
            write(s, piece);
            if (newline != s + n)
                atLineStart = true;
            s += piece;
            n -= piece;
        }
    }

    void write_fill()
    {
        std::size_t count = std::size_t(indent) * PerLevel;
        while (count > 0) {
            const std::size_t piece = std::min(count, fill::size);
            base_.write(fill::units.data(), piece);
            count -= piece;
        }
    }

    Base base_;
};

}   // namespace io::text::indented

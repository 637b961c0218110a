// The items of a list whose bits are set in a mask, in bit order, each with
// its bit index: section masks of a change set, field masks of a modified
// route, presence bytes of a parameter record. Bits beyond the end of the
// list are ignored.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

// Only the set bits are visited: a mask with nothing set costs one test.
template <class Item, class Visit>
constexpr void for_each_set_bit(std::uint64_t mask, std::span<const Item> items, Visit&& visit)
{
    if (items.size() < 64)
        mask &= (std::uint64_t(1) << items.size()) - 1;
    for (; mask != 0; mask &= mask - 1) {
        const auto bit = static_cast<std::size_t>(std::countr_zero(mask));
        visit(items[bit], bit);
    }
}

// The items of a list whose bits are set in a mask, in bit order, each with
// its bit index: section masks of a change set, field masks of a modified
// route, presence bytes of a parameter record. Bits beyond the end of the
// list are ignored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

template <class Item, class Visit>
constexpr void for_each_set_bit(std::uint64_t mask, std::span<const Item> items, Visit&& visit)
{
    for (std::size_t bit = 0; bit < items.size() && bit < 64; ++bit)
        if (mask >> bit & 1)
            visit(items[bit], bit);
}

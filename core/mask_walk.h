// The items of a list whose bits are set in a mask, in bit order: section
// masks of a change set, field masks of a modified route, presence bytes of
// a parameter record. Bits beyond the end of the list are ignored.
#pragma once

#include <cstdint>
#include <span>

template <class Item, class Visit>
constexpr void for_each_set_bit(std::uint64_t mask, std::span<const Item> items, Visit&& visit)
{
    for (std::size_t k = 0; k < items.size() && k < 64; ++k)
        if (mask >> k & 1)
            visit(items[k]);
}

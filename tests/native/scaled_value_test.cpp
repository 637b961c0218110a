// Scaled values: the unit row a value is shown in and its amount there,
// checked against the integer part of the magnitude compared with each row's
// multiplier and the division by that multiplier, worked place by place.
#include <gtest/gtest.h>

#include <span>

#include "devices/scaled_value.h"
#include "devices/unit_tables.h"
#include "tests/native/decimal_reference.h"

namespace {

static_assert(exponent_of(1) == 0 && exponent_of(1'000) == 3 && exponent_of(1'000'000'000'000) == 12 &&
              exponent_of(10'000'000'000'000'000'000u) == 19);

TEST(ScaledValue, UnitRowAndAmountAgreeWithThePlaceByPlaceReference)
{
    const std::span<const UnitEntry> tables[] = {units::frequency,      units::data_rate, units::symbol_rate,
                                                 units::level,          units::ratio,     units::current,
                                                 units::fixed_megahertz};
    for (const std::span<const UnitEntry> table : tables)
        for (const std::int64_t m : reference::mantissas())
            for (unsigned p = 0; p <= decimal_value::max_places; ++p) {
                const decimal_value value = decimal_value::from(m, p);
                const std::uint64_t whole = reference::whole_magnitude({m, p});
                std::size_t expected = 0;
                for (std::size_t i = 1; i < table.size() && reference::ten_to(table[i].exponent) <= whole; ++i)
                    expected = i;
                const UnitEntry& row = unit_row(table, value);
                ASSERT_EQ(static_cast<std::size_t>(&row - table.data()), expected)
                    << table[0].narrow << " " << m << "e-" << p;
                ASSERT_EQ(reference::outcome([&] {
                              return in_unit({value, table}).amount;
                          }),
                          reference::shown(reference::divided_by({m, p}, reference::ten_to(row.exponent))))
                    << table[0].narrow << " " << m << "e-" << p;
            }
}

}   // namespace

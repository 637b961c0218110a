// Factors of five and of ten taken out by table, and decimal widths, checked
// against dividing one place at a time and against printed digits, over words
// of every size.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/powers_of_ten.h"

namespace {

tens::reduced one_at_a_time(std::uint64_t value, unsigned factor, unsigned most)
{
    tens::reduced r{value, 0};
    while (r.count < most && r.value % factor == 0) {
        r.value /= factor;
        ++r.count;
    }
    return r;
}

std::vector<std::uint64_t> words()
{
    std::vector<std::uint64_t> all = {1, 3, 7, UINT64_MAX, UINT64_MAX - 1};
    for (std::uint64_t five = 1;; five *= 5) {
        // Twice and three times a large power of five wrap: any word will do.
        all.insert(all.end(), {five, five * 2, five * 3});
        if (five > UINT64_MAX / 5)
            break;
    }
    for (const std::uint64_t ten : tens::power)
        all.insert(all.end(), {ten - 1, ten, ten + 1, ten * 7, ten * 16});
    for (unsigned k = 0; k < 64; ++k)
        all.push_back(std::uint64_t(1) << k);
    std::uint64_t state = 42;
    for (unsigned i = 0; i < 200; ++i) {
        state = state * 6364136223846793005 + 1442695040888963407;
        all.push_back(state >> (i % 40));
        all.push_back((state >> 40) * tens::power[i % 8]);
    }
    return all;
}

TEST(PowersOfTen, FactorsComeOutAsDividingOneAtATimeTakesThem)
{
    const unsigned mosts[] = {0, 1, 2, 3, 7, 15, 16, 17, 19, 26, 27, 31, tens::every};
    for (const std::uint64_t word : words())
        for (const unsigned most : mosts) {
            if (word == 0)
                continue;
            const tens::reduced fives = tens::without_fives(word, most);
            const tens::reduced fives_expected = one_at_a_time(word, 5, most);
            ASSERT_EQ(fives.value, fives_expected.value) << word << " at most " << most;
            ASSERT_EQ(fives.count, fives_expected.count) << word << " at most " << most;
            const tens::reduced zeros = tens::without_zeros(word, most);
            const tens::reduced zeros_expected = one_at_a_time(word, 10, most);
            ASSERT_EQ(zeros.value, zeros_expected.value) << word << " at most " << most;
            ASSERT_EQ(zeros.count, zeros_expected.count) << word << " at most " << most;
        }
    for (const unsigned most : mosts) {
        EXPECT_EQ(tens::without_zeros(0, most).value, 0u);
        EXPECT_EQ(tens::without_zeros(0, most).count, most);
    }
}

TEST(PowersOfTen, DecimalWidthIsThePrintedLength)
{
    for (const std::uint64_t word : words()) {
        const std::size_t printed = word == 0 ? 0 : std::to_string(word).size();
        ASSERT_EQ(tens::decimal_width(word), printed) << word;
    }
}

}   // namespace

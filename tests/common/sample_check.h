// Checks one sample against a pair of renderers: the exact output, colour,
// result and error description with a large buffer, then every buffer size
// from nothing up to the full output, where the renderer must either produce
// the whole output or fail with an overflow, leaving a terminated prefix and
// nothing written past the buffer. Shared by the native tests (renderers from
// the table) and the Windows tests (renderers from the real module).
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/platform.h"
#include "core/renderer.h"
#include "tools/sample_file.h"

namespace samples {
// Test names and failure messages show the sample by its name.
inline void PrintTo(const sample& s, std::ostream* os)
{
    *os << s.file << ": " << s.name;
}
}   // namespace samples

namespace sample_check {

struct renderers {
    EventXmlRenderer xml = nullptr;
    EventTextRenderer text = nullptr;
};

// Each test program supplies these two: where its renderers come from and
// how it registers the samples' alarm types with the module.
renderers find_renderers(const GUID& id);
void register_alarm_types();

struct outcome {
    HRESULT result;
    std::u16string output;
    std::uint32_t colour;
    std::string error;
    bool intact;
};

inline constexpr wchar canary = 0xCCCC;
inline constexpr std::uint32_t no_colour = 0xDEADBEEF;

inline outcome render(const renderers& r, bool text, const std::vector<std::uint8_t>& payload, std::size_t capacity)
{
    constexpr std::size_t guard = 8;
    std::vector<wchar> buffer(capacity + guard, canary);
    std::uint32_t colour = no_colour;
    const auto bytes = static_cast<std::uint32_t>(payload.size());
    const auto units = static_cast<std::uint32_t>(capacity);
    const HRESULT result = text ? r.text(nullptr, bytes, payload.data(), buffer.data(), units, &colour)
                                : r.xml(nullptr, bytes, payload.data(), buffer.data(), units);
    outcome o{result, {}, colour, platform::take_error_description(), true};
    for (std::size_t i = capacity; i < buffer.size(); ++i)
        o.intact = o.intact && buffer[i] == canary;
    if (capacity > 0 && buffer[0] != canary) {
        const auto end = std::find(buffer.begin(), buffer.begin() + capacity, wchar(0));
        o.output.assign(buffer.begin(), end);
    }
    return o;
}

inline void check(const renderers& r, bool text, const samples::sample& s, const samples::expectation& e)
{
    const char* form = text ? "text" : "xml";
    const outcome full = render(r, text, s.payload, s.capacity.value_or(8192));
    EXPECT_EQ(full.result, e.result) << form;
    EXPECT_EQ(samples::quote(full.output), samples::quote(e.output)) << form;
    if (e.colour) {
        EXPECT_EQ(full.colour, *e.colour) << form;
    }
    if (e.error) {
        EXPECT_EQ(full.error, *e.error) << form;
    }
    if (e.result != S_OK)
        return;

    for (std::size_t capacity = 0; capacity <= e.output.size() + 1; ++capacity) {
        const outcome o = render(r, text, s.payload, capacity);
        ASSERT_TRUE(o.intact) << form << ": wrote past a buffer of " << capacity;
        if (capacity > e.output.size()) {
            ASSERT_EQ(o.result, S_OK) << form << " with room for all of it";
            ASSERT_EQ(o.output, e.output) << form;
            continue;
        }
        ASSERT_EQ(o.result, DISP_E_EXCEPTION) << form << ", capacity " << capacity;
        ASSERT_EQ(o.error, "an overflow occured") << form << ", capacity " << capacity;
        ASSERT_EQ(o.colour, no_colour) << form << ": a failure stores no colour";
        ASSERT_EQ(e.output.compare(0, o.output.size(), o.output), 0)
            << form << ", capacity " << capacity << ": " << samples::quote(o.output) << " is no prefix";
    }
}

inline void check(const renderers& r, const samples::sample& s)
{
    ASSERT_NE(r.text, nullptr) << s.file << ":" << s.line << ": no such event type";
    if (s.text)
        check(r, true, s, *s.text);
    if (s.xml) {
        ASSERT_NE(r.xml, nullptr) << "this event type has no XML form";
        check(r, false, s, *s.xml);
    }
}

inline std::string test_name(const testing::TestParamInfo<samples::sample>& info)
{
    std::string name = info.param.file.substr(0, info.param.file.find('.')) + "_" + info.param.name;
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    return name;
}

}   // namespace sample_check

// The event type enumerator through the real module, as the console uses it.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <iterator>
#include <vector>

#include "tests/wine/module_fixture.h"

namespace {

struct enumerator {
    IEnumEVENTUI* p = nullptr;
    enumerator() { EXPECT_EQ(korps_module::get().UI_EnumEVENTUI(&p), S_OK); }
    explicit enumerator(IEnumEVENTUI* adopted) : p(adopted) {}
    ~enumerator()
    {
        if (p)
            p->Release();
    }
    IEnumEVENTUI* operator->() const { return p; }
};

std::vector<EVENTUI> read_all()
{
    enumerator e;
    std::vector<EVENTUI> rows(64);
    ULONG fetched = 0;
    EXPECT_EQ(e->Next(64, rows.data(), &fetched), S_FALSE);
    rows.resize(fetched);
    return rows;
}

// The published list, as a host takes it from korps/korps_event_list.h and
// korps/korps_events.h: each type's place, identifier and display name.
enum listed_index : std::size_t {
#define LISTED_INDEX(symbol, ...) symbol,
    KORPS_EVENT_TYPES(LISTED_INDEX)
#undef LISTED_INDEX
};

struct listed_event {
    const GUID* id;
    const wchar_t* name;
};

constexpr listed_event listed[] = {
#define LISTED_EVENT(symbol, name, ...) {&KORPS_EVENT_##symbol, L"" name},
    KORPS_EVENT_TYPES(LISTED_EVENT)
#undef LISTED_EVENT
};
constexpr std::size_t listed_count = std::size(listed);

// Each record: the type's identifier and name in the list's order, a text
// renderer, and an XML renderer for every type but the two that have none.
TEST(Enumerator, HandsOutTheListInOrder)
{
    const std::vector<EVENTUI> rows = read_all();
    ASSERT_EQ(rows.size(), listed_count);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_TRUE(IsEqualGUID(rows[i].eventType, *listed[i].id)) << i;
        EXPECT_STREQ(rows[i].name, listed[i].name) << i;
        EXPECT_EQ(rows[i].reserved, 0u);
        EXPECT_NE(rows[i].textRenderer, nullptr);
        EXPECT_EQ(rows[i].xmlRenderer == nullptr, i == MULTICAST_PORT_FAILURE || i == DEMODULATOR_FAILED) << i;
    }
}

TEST(Enumerator, NextAndSkipAtTheEdges)
{
    // Next ('N'), Skip ('S') or Reset ('R') with its count, and the answer:
    // the result, and for Next the records fetched and the row of the first
    // (-1: none).
    struct script_step {
        char op;
        ULONG count;
        HRESULT result;
        ULONG fetched;
        int firstRow;
    };
    constexpr ULONG all = listed_count;
    const std::vector<std::vector<script_step>> scripts = {
        {{'N', all, S_OK, all, 0}, {'N', 1, S_FALSE, 0, -1}, {'N', 0, S_OK, 0, -1}},
        {{'S', all - 2, S_OK, 0, 0}, {'N', 5, S_FALSE, 2, int(all) - 2}},
        {{'N', 0, S_OK, 0, -1}, {'N', 1, S_OK, 1, 0}},
        {{'S', all, S_OK, 0, 0}, {'S', 0, S_OK, 0, 0}, {'S', 1, S_FALSE, 0, 0}},
        {{'S', 100, S_FALSE, 0, 0}, {'N', 1, S_FALSE, 0, -1}},
        {{'N', all, S_OK, all, 0}, {'R', 0, S_OK, 0, 0}, {'N', 1, S_OK, 1, 0}},
    };
    const std::vector<EVENTUI> table = read_all();
    for (std::size_t s = 0; s < scripts.size(); ++s) {
        enumerator e;
        for (const script_step& step : scripts[s]) {
            std::array<EVENTUI, 64> records{};
            ULONG fetched = 12345;
            if (step.op == 'S') {
                EXPECT_EQ(e->Skip(step.count), step.result) << "script " << s;
            } else if (step.op == 'R') {
                EXPECT_EQ(e->Reset(), S_OK);
            } else {
                EXPECT_EQ(e->Next(step.count, records.data(), &fetched), step.result) << "script " << s;
                EXPECT_EQ(fetched, step.fetched) << "script " << s;
                if (step.firstRow >= 0) {
                    EXPECT_EQ(std::memcmp(&records[0], &table[step.firstRow], sizeof(EVENTUI)), 0);
                }
            }
        }
    }
}

TEST(Enumerator, NullOutPointersAreRefused)
{
    EXPECT_EQ(korps_module::get().UI_EnumEVENTUI(nullptr), E_POINTER);
    enumerator e;
    ULONG fetched = 7;
    EXPECT_EQ(e->Next(1, nullptr, &fetched), E_POINTER);
    EXPECT_EQ(e->Next(0, nullptr, &fetched), S_OK);
    EXPECT_EQ(fetched, 0u);
    EXPECT_EQ(e->Clone(nullptr), E_POINTER);
    EVENTUI record{};
    EXPECT_EQ(e->Next(1, &record, nullptr), S_OK) << "a refused call does not move the cursor; the count is optional";
    EXPECT_STREQ(record.name, listed[0].name);
    UINT colour = 0;
    EXPECT_EQ(record.textRenderer(nullptr, 0, nullptr, nullptr, 4, &colour), E_POINTER);
}

TEST(Enumerator, CloneStartsAtTheBeginning)
{
    const std::vector<EVENTUI> table = read_all();
    enumerator source;
    ASSERT_EQ(source->Skip(10), S_OK);
    IEnumEVENTUI* raw = nullptr;
    ASSERT_EQ(source->Clone(&raw), S_OK);
    enumerator clone(raw);

    EVENTUI record{};
    EXPECT_EQ(clone->Next(1, &record, nullptr), S_OK);
    EXPECT_EQ(std::memcmp(&record, &table[0], sizeof record), 0);
    EXPECT_EQ(source->Next(1, &record, nullptr), S_OK);
    EXPECT_EQ(std::memcmp(&record, &table[10], sizeof record), 0);
}

TEST(Enumerator, InterfacesAndReferenceCounts)
{
    enumerator e;
    IUnknown* unknown = nullptr;
    ASSERT_EQ(e->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&unknown)), S_OK);
    EXPECT_EQ(static_cast<void*>(unknown), static_cast<void*>(e.p));
    EXPECT_EQ(unknown->Release(), 1u);
    void* other = &other;
    EXPECT_EQ(e->QueryInterface(IID_IStream, &other), E_NOINTERFACE);
    EXPECT_EQ(other, nullptr);
}

}   // namespace

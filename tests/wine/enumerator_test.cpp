// The event type enumerator through the real module, as the console uses it.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <iterator>
#include <set>
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

TEST(Enumerator, HandsOutTheListInOrder)
{
    const std::vector<EVENTUI> rows = read_all();
    ASSERT_EQ(rows.size(), listed_count);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_TRUE(IsEqualGUID(rows[i].eventType, *listed[i].id)) << i;
        EXPECT_STREQ(rows[i].name, listed[i].name) << i;
    }
}

TEST(Enumerator, RenderersOfTheRecords)
{
    const std::vector<EVENTUI> rows = read_all();
    ASSERT_EQ(rows.size(), listed_count);
    std::set<void*> text;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].reserved, 0u);
        EXPECT_NE(rows[i].textRenderer, nullptr);
        EXPECT_EQ(rows[i].xmlRenderer == nullptr, i == MULTICAST_PORT_FAILURE || i == DEMODULATOR_FAILED) << i;
        text.insert(reinterpret_cast<void*>(rows[i].textRenderer));
    }
    // The data-changed types share one text renderer; insertion and removal
    // of a unit share their XML renderer.
    EXPECT_EQ(text.size(), listed_count - 4);
    for (std::size_t i :
         {OSPREY_DATA_CHANGED, OSPREY_DATA_CHANGED_V2, HERON_UNIT_DATA_CHANGED, HERON_DEVICE_DATA_CHANGED})
        EXPECT_EQ(rows[i].textRenderer, rows[FALCON_DATA_CHANGED].textRenderer) << i;
    EXPECT_EQ(rows[UNIT_INSERTED].xmlRenderer, rows[UNIT_REMOVED].xmlRenderer);
}

TEST(Enumerator, NextAndSkipAtTheEdges)
{
    struct script_step {
        enum { next, skip, reset } op;
        ULONG count;
        HRESULT result;
        ULONG fetched;   // for next
        int firstRow;   // for next: the row of the first record, -1 for none
    };
    constexpr ULONG all = listed_count;
    const std::vector<std::vector<script_step>> scripts = {
        {{script_step::next, all, S_OK, all, 0},
         {script_step::next, 1, S_FALSE, 0, -1},
         {script_step::next, 0, S_OK, 0, -1}},
        {{script_step::skip, all - 2, S_OK, 0, 0}, {script_step::next, 5, S_FALSE, 2, int(all) - 2}},
        {{script_step::next, 0, S_OK, 0, -1}, {script_step::next, 1, S_OK, 1, 0}},
        {{script_step::skip, all, S_OK, 0, 0},
         {script_step::skip, 0, S_OK, 0, 0},
         {script_step::skip, 1, S_FALSE, 0, 0}},
        {{script_step::skip, 100, S_FALSE, 0, 0}, {script_step::next, 1, S_FALSE, 0, -1}},
        {{script_step::next, all, S_OK, all, 0},
         {script_step::reset, 0, S_OK, 0, 0},
         {script_step::next, 1, S_OK, 1, 0}},
    };
    const std::vector<EVENTUI> table = read_all();
    for (std::size_t s = 0; s < scripts.size(); ++s) {
        enumerator e;
        for (const script_step& step : scripts[s]) {
            std::array<EVENTUI, 64> records{};
            ULONG fetched = 12345;
            switch (step.op) {
            case script_step::next:
                EXPECT_EQ(e->Next(step.count, records.data(), &fetched), step.result) << "script " << s;
                EXPECT_EQ(fetched, step.fetched) << "script " << s;
                if (step.firstRow >= 0) {
                    EXPECT_EQ(std::memcmp(&records[0], &table[step.firstRow], sizeof(EVENTUI)), 0);
                }
                break;
            case script_step::skip:
                EXPECT_EQ(e->Skip(step.count), step.result) << "script " << s;
                break;
            case script_step::reset:
                EXPECT_EQ(e->Reset(), S_OK);
                break;
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
    EXPECT_EQ(e->AddRef(), 2u);
    EXPECT_EQ(e->Release(), 1u);
}

TEST(Enumerator, ModuleStaysLoadedWhileAnEnumeratorLives)
{
    auto& module = korps_module::get();
    EXPECT_EQ(module.DllCanUnloadNow(), S_OK);
    {
        enumerator e;
        IEnumEVENTUI* clone = nullptr;
        ASSERT_EQ(e->Clone(&clone), S_OK);
        EXPECT_EQ(module.DllCanUnloadNow(), S_FALSE);
        clone->Release();
        EXPECT_EQ(module.DllCanUnloadNow(), S_FALSE);
    }
    EXPECT_EQ(module.DllCanUnloadNow(), S_OK);
}

}   // namespace

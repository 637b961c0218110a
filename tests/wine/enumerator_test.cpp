// The event type enumerator through the real module, as the console uses it.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
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

std::wstring guid_text(const GUID& id)
{
    wchar_t text[40];
    StringFromGUID2(id, text, 40);
    return text;
}

TEST(Enumerator, HandsOutTheWholeTable)
{
    const std::vector<EVENTUI> rows = read_all();
    ASSERT_EQ(rows.size(), 40u);

    struct test_case {
        std::size_t index;
        const wchar_t* name;
        const wchar_t* id;
    };
    const test_case cases[] = {
        {0, L"FALCON Data Changed", L"{9F74E20A-4198-4269-BDC7-C0A02BE22131}"},
        {1, L"OSPREY Data Changed", L"{91286A63-5EA9-412A-8021-E9132460F87E}"},
        {2, L"OSPREY Data Changed", L"{6E66E529-AC7C-40DD-BC1D-6A8678996824}"},
        {5, L"Alarm Status Changed", L"{B2ECE055-145C-4686-9F1D-2C3577E541DD}"},
        {9, L"Corvane Unit Properties Saved", L"{074642CD-0303-4304-8261-598D4C2A00F9}"},
        {23, L"Multicast Port Failure", L"{D115012C-6627-4006-95A6-2E10C12B2945}"},
        {33, L"Corvane Global Reinitialize", L"{074642CB-C9AD-4304-8261-598D4C2A00F9}"},
        {34, L"Corvane Scan Network", L"{074642CA-C9AD-4304-8261-598D4C2A00F9}"},
        {36, L"Corvane Unit Properties Saved Orrin 3.2", L"{074642CD-C9AD-4304-8261-598D4C2A00F9}"},
        {39, L"Demodulator Failed Event", L"{074642D0-C9AD-4304-8261-598D4C2A00F9}"},
    };
    for (const test_case& c : cases) {
        EXPECT_STREQ(rows[c.index].name, c.name) << c.index;
        EXPECT_EQ(guid_text(rows[c.index].eventType), c.id) << c.index;
    }

    // The named constants of korps/korps_events.h are checked against the
    // table when the module is built; here, that a host can link them.
    EXPECT_TRUE(IsEqualGUID(rows[39].eventType, KORPS_EVENT_DEMODULATOR_FAILED));

    std::set<void*> text;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].reserved, 0u);
        EXPECT_NE(rows[i].textRenderer, nullptr);
        EXPECT_EQ(rows[i].xmlRenderer == nullptr, i == 23 || i == 39) << i;
        text.insert(reinterpret_cast<void*>(rows[i].textRenderer));
    }
    EXPECT_EQ(text.size(), 36u);
    for (std::size_t i = 1; i <= 4; ++i)
        EXPECT_EQ(rows[i].textRenderer, rows[0].textRenderer);
    EXPECT_EQ(rows[7].xmlRenderer, rows[8].xmlRenderer);
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
    const std::vector<std::vector<script_step>> scripts = {
        {{script_step::next, 40, S_OK, 40, 0},
         {script_step::next, 1, S_FALSE, 0, -1},
         {script_step::next, 0, S_OK, 0, -1}},
        {{script_step::skip, 38, S_OK, 0, 0}, {script_step::next, 5, S_FALSE, 2, 38}},
        {{script_step::next, 0, S_OK, 0, -1}, {script_step::next, 1, S_OK, 1, 0}},
        {{script_step::skip, 40, S_OK, 0, 0},
         {script_step::skip, 0, S_OK, 0, 0},
         {script_step::skip, 1, S_FALSE, 0, 0}},
        {{script_step::skip, 100, S_FALSE, 0, 0}, {script_step::next, 1, S_FALSE, 0, -1}},
        {{script_step::next, 40, S_OK, 40, 0}, {script_step::reset, 0, S_OK, 0, 0}, {script_step::next, 1, S_OK, 1, 0}},
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
    EXPECT_STREQ(record.name, L"FALCON Data Changed");
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

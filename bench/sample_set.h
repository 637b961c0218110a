// The sample renderings a benchmark replays: every successful sample, with the
// renderer that makes it and the output it must make.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "module/event_types.h"
#include "tools/sample_file.h"

namespace bench {

struct rendering {
    const samples::sample* sample;
    bool text;
    const event_type_row* row;
    const std::u16string* expected;

    // One call as a host makes it; returns the result.
    HRESULT run(wchar* buffer, std::uint32_t capacity) const
    {
        const auto bytes = static_cast<std::uint32_t>(sample->payload.size());
        std::uint32_t colour = 0;
        return text ? row->textRenderer(nullptr, bytes, sample->payload.data(), buffer, capacity, &colour)
                    : row->xmlRenderer(nullptr, bytes, sample->payload.data(), buffer, capacity);
    }

    // What the host would have if the text were known in advance.
    void copy_expected(wchar* buffer) const
    {
        std::char_traits<wchar>::copy(buffer, reinterpret_cast<const wchar*>(expected->data()), expected->size());
        buffer[expected->size()] = 0;
    }

    std::string family() const { return sample->file.substr(0, sample->file.find('.')); }
};

inline std::vector<rendering> successful_renderings(const std::vector<samples::sample>& all)
{
    std::vector<rendering> out;
    for (const samples::sample& s : all) {
        const event_type_row* row = find_event_type(s.event);
        // The event log repeats samples of the other files.
        if (!row || s.file.starts_with("event-log"))
            continue;
        if (s.text && s.text->result == S_OK)
            out.push_back({&s, true, row, &s.text->output});
        if (s.xml && s.xml->result == S_OK && row->xmlRenderer)
            out.push_back({&s, false, row, &s.xml->output});
    }
    return out;
}

}   // namespace bench

// One form of one event rendered as a host renders it, and what the command
// line shows of it.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include <nlohmann/json.hpp>

#include "module/event_types.h"

namespace cli {

struct form_result {
    bool text = true;
    HRESULT result = S_OK;
    std::u16string output;   // what the buffer holds afterwards
    std::uint32_t colour = 0;   // text form, on success
    std::string error;   // the error object's description
    std::size_t needed = 0;   // units the whole output needs, NUL included (0: not measurable)
};

inline constexpr std::size_t ample_capacity = 1 << 16;

form_result render_form(const event_type_row& row, bool text, std::span<const std::uint8_t> payload,
                        std::size_t capacity = ample_capacity);

// "#RRGGBB" for a COLORREF (0x00BBGGRR).
std::string rgb(std::uint32_t colour);

nlohmann::ordered_json to_json(const form_result& r);

// Prints the form for people: its result, colour and text, or why it failed
// and what the buffer holds.
void print(const form_result& r, bool colour_text);

}   // namespace cli

// Colour on a terminal: a text in its display colour, as 24-bit terminal
// colour, when standard output is a terminal or when asked.
#pragma once

#include <cstdint>
#include <string>

namespace cli {

// "auto", "always" or "never" to whether colour is written.
bool use_colour(const std::string& when);

std::string coloured(const std::string& text, std::uint32_t colour, bool enabled);

}   // namespace cli

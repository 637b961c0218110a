// The display colours of the text forms, as 0x00BBGGRR: what a text body
// returns and the host paints its line in.
#pragma once

#include <cstdint>

namespace render {

using colour = std::uint32_t;

namespace colours {
inline constexpr colour green = 0x00FF00;   // success, unit OK
inline constexpr colour red = 0x0000FF;   // alarm or failure
inline constexpr colour yellow = 0x00FFFF;   // latched
inline constexpr colour grey = 0xC0C0C0;   // unknown or disconnected
inline constexpr colour command = 0x80FFFF;   // a command was carried out
inline constexpr colour inventory = 0xFFFF80;   // inventory changes, properties saved
inline constexpr colour failure = 0x0080FF;   // failure notices
}   // namespace colours

}   // namespace render

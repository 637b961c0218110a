// The two renderer shapes that the host calls through the event type table,
// and the one place where a renderer's body meets them.
//
// A renderer body is a plain function of a payload cursor and an output
// stream; `xml_renderer<Body>` and `text_renderer<Body>` give it the exact
// calling convention and argument list the host expects, refuse bad
// arguments, check the payload size where the event demands one, and stop
// every exception at the boundary.
#pragma once

#include <cstdint>
#include <span>
#include <type_traits>

#include "core/boundary.h"
#include "core/event_output.h"
#include "core/payload_cursor.h"
#include "core/win_types.h"

using EventXmlRenderer = HRESULT(KORPS_STDCALL*)(void* context, std::uint32_t payloadBytes,
                                                 const std::uint8_t* payload, wchar* buffer,
                                                 std::uint32_t capacity);
using EventTextRenderer = HRESULT(KORPS_STDCALL*)(void* context, std::uint32_t payloadBytes,
                                                  const std::uint8_t* payload, wchar* buffer,
                                                  std::uint32_t capacity, std::uint32_t* colour);

namespace render {

// Display colours, as 0x00BBGGRR.
using colour = std::uint32_t;
namespace colours {
inline constexpr colour green = 0x00FF00;       // success, unit OK
inline constexpr colour red = 0x0000FF;         // alarm or failure
inline constexpr colour yellow = 0x00FFFF;      // latched
inline constexpr colour grey = 0xC0C0C0;        // unknown or disconnected
inline constexpr colour command = 0x80FFFF;     // a command was carried out
inline constexpr colour inventory = 0xFFFF80;   // inventory changes, properties saved
inline constexpr colour failure = 0x0080FF;     // failure notices
} // namespace colours

// Payload size rules, checked before anything is written. A payload that
// breaks its event's rule is refused with E_UNEXPECTED and no error object.
struct any_size {
    static constexpr bool accepts(std::span<const std::uint8_t>) noexcept { return true; }
};

template <std::size_t Bytes>
struct exact_size {
    static constexpr bool accepts(std::span<const std::uint8_t> payload) noexcept
    {
        return payload.size() == Bytes;
    }
};

namespace detail {

template <class Body>
struct body_traits;

template <class Result, class Out>
struct body_traits<Result (*)(payload_cursor&, Out&)> {
    using stream = Out;
};

template <class Out>
void prepare(Out& out) noexcept
{
    // XML fragments sit three columns in, inside the host's own document.
    if constexpr (std::is_base_of_v<ui::event::indented_output, Out>)
        out.indent += 3;
}

} // namespace detail

template <auto Body, class Size = any_size>
HRESULT KORPS_STDCALL xml_renderer(void*, std::uint32_t payloadBytes, const std::uint8_t* payload, wchar* buffer,
                                   std::uint32_t capacity) noexcept
{
    if (!buffer || (!payload && payloadBytes != 0))
        return E_POINTER;
    if (!Size::accepts({payload, payloadBytes}))
        return E_UNEXPECTED;
    return guarded([&] {
        typename detail::body_traits<decltype(Body)>::stream out(buffer, capacity);
        detail::prepare(out);
        payload_cursor in(payload, payloadBytes);
        Body(in, out);
        return S_OK;
    });
}

template <auto Body, class Size = any_size>
HRESULT KORPS_STDCALL text_renderer(void*, std::uint32_t payloadBytes, const std::uint8_t* payload, wchar* buffer,
                                    std::uint32_t capacity, std::uint32_t* colour) noexcept
{
    if (!buffer || !colour || (!payload && payloadBytes != 0))
        return E_POINTER;
    if (!Size::accepts({payload, payloadBytes}))
        return E_UNEXPECTED;
    return guarded([&] {
        typename detail::body_traits<decltype(Body)>::stream out(buffer, capacity);
        payload_cursor in(payload, payloadBytes);
        *colour = Body(in, out);
        return S_OK;
    });
}

} // namespace render

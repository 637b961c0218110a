// The two renderer shapes that the host calls through the event type table,
// and the one place where a renderer's body meets them.
//
// A renderer body is a plain function of a payload cursor and one form of the
// output (core/output_buffer.h, core/xml_writer.h); `xml_renderer<Dialect, Body>` and
// `text_renderer<Body>` give it the exact calling convention and argument list
// the host expects, refuse bad arguments, check the payload size where the
// event demands one, and stop every exception at the boundary.
// `room_needed<Body>` runs the same body over the counting form.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <type_traits>

#include "core/boundary.h"
#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "core/win_types.h"

using EventXmlRenderer = HRESULT(KORPS_STDCALL*)(void* context, std::uint32_t payloadBytes, const std::uint8_t* payload,
                                                 wchar* buffer, std::uint32_t capacity);
using EventTextRenderer = HRESULT(KORPS_STDCALL*)(void* context, std::uint32_t payloadBytes,
                                                  const std::uint8_t* payload, wchar* buffer, std::uint32_t capacity,
                                                  std::uint32_t* colour);

namespace render {

// Payload size rules, checked before anything is written. A payload that
// breaks its event's rule is refused with E_UNEXPECTED and no error object.
struct any_size {
    static constexpr bool accepts(std::span<const std::uint8_t>) noexcept { return true; }
};

template <std::size_t Bytes>
struct exact_size {
    static constexpr bool accepts(std::span<const std::uint8_t> payload) noexcept { return payload.size() == Bytes; }
};

namespace detail {

template <class Body>
struct body_traits;

template <class Result, class Out>
struct body_traits<Result (*)(payload_cursor&, Out&)> {
    using output = Out;
};

template <auto Body>
using output_of = typename body_traits<decltype(Body)>::output;

template <class Out>
inline constexpr bool is_xml_dialect = std::is_same_v<Out, output::verbatim_xml> || std::is_same_v<Out, output::xml>;

// What every entry point does around its body: refuses missing arguments
// and a payload that breaks the size rule, then runs `write` on a cursor over
// the payload behind the exception boundary.
template <class Size, class Write>
HRESULT checked_run(bool arguments_present, std::uint32_t payloadBytes, const std::uint8_t* payload,
                    Write&& write) noexcept
{
    if (!arguments_present || (!payload && payloadBytes != 0))
        return E_POINTER;
    if (!Size::accepts({payload, payloadBytes}))
        return E_UNEXPECTED;
    return guarded([&] {
        payload_cursor in(payload, payloadBytes);
        write(in);
        return S_OK;
    });
}

}   // namespace detail

// An XML renderer whose body writes `Dialect`: output::verbatim_xml
// or output::xml. The table names the dialect, the body's parameter
// must agree.
template <class Dialect, auto Body, class Size = any_size>
HRESULT KORPS_STDCALL xml_renderer(void*, std::uint32_t payloadBytes, const std::uint8_t* payload, wchar* buffer,
                                   std::uint32_t capacity) noexcept
{
    static_assert(detail::is_xml_dialect<Dialect>, "an XML renderer writes one of the two XML dialects");
    static_assert(std::is_same_v<detail::output_of<Body>, Dialect>, "the body writes another dialect");
    return detail::checked_run<Size>(buffer != nullptr, payloadBytes, payload, [&](payload_cursor& in) {
        Dialect out(buffer, capacity);
        Body(in, out);
    });
}

template <auto Body, class Size = any_size>
HRESULT KORPS_STDCALL text_renderer(void*, std::uint32_t payloadBytes, const std::uint8_t* payload, wchar* buffer,
                                    std::uint32_t capacity, std::uint32_t* colour) noexcept
{
    static_assert(std::is_same_v<detail::output_of<Body>, output::text>, "a text body writes text");
    return detail::checked_run<Size>(buffer && colour, payloadBytes, payload, [&](payload_cursor& in) {
        output::text out(buffer, capacity);
        *colour = Body(in, out);
    });
}

// The room a rendering needs, in units with its terminator, measured by
// rendering into the counting form of its output: nothing is written. The
// result is what the renderer returns for the same payload with room enough,
// and `units` is set only on success.
using room_function = HRESULT (*)(std::uint32_t payloadBytes, const std::uint8_t* payload, std::size_t* units) noexcept;

template <auto Body, class Size = any_size>
HRESULT room_needed(std::uint32_t payloadBytes, const std::uint8_t* payload, std::size_t* units) noexcept
{
    return detail::checked_run<Size>(units != nullptr, payloadBytes, payload, [&](payload_cursor& in) {
        std::array<wchar, output::counting_scratch> scratch;
        detail::output_of<Body> out(output::counting, scratch);
        Body(in, out);
        *units = out.size() + 1;
    });
}

// One form of an event type as the table lists it: its renderer and the
// measure of the room it needs.
template <class Renderer>
struct form {
    Renderer render = nullptr;
    room_function room = nullptr;
};

template <class Dialect, auto Body, class Size = any_size>
inline constexpr form<EventXmlRenderer> xml_form{xml_renderer<Dialect, Body, Size>, room_needed<Body, Size>};

template <auto Body, class Size = any_size>
inline constexpr form<EventTextRenderer> text_form{text_renderer<Body, Size>, room_needed<Body, Size>};

// The form of an event type that has no XML.
inline constexpr form<EventXmlRenderer> no_xml_form{};

}   // namespace render

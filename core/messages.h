// Every text a host can read in the thread's error object when the module
// fails, named once. Hosts, their operators and the documents quote these
// texts as they stand, so each is kept exactly, misspellings included.
#pragma once

#include <string_view>

#include "core/wide.h"

namespace messages {

// --- Payloads and output buffers ---------------------------------------------

inline constexpr const char* overflow = "an overflow occured";   // as the system spells it
inline constexpr const char* underflow = "an underflow occured";   // as the system spells it
inline constexpr wstring_view decimal_overflow = "decimal overflow"_w;
inline constexpr wstring_view unit_family_not_supported =
    "the parameter records of this unit family are not supported"_w;
inline constexpr const char* invalid_unit_type = "invalid unit type";
inline constexpr const char* invalid_osprey_device_address = "invalid osprey device address";
inline constexpr const char* invalid_device_type = "invalid device type";
inline constexpr const char* bad_alarm_id = "bad alarm id";

// A failure that cannot happen on any input. It reaches hosts as
// E_UNEXPECTED with no error object; only the module's own tools see the text.
inline constexpr const char* catastrophic_failure = "Catastrophic failure";

// When a message cannot be made at all (no memory for it).
inline constexpr const char* unknown_exception = "Unknown exception";

// --- The XML writer, used wrongly by a renderer ------------------------------

inline constexpr const char* elements_nested_too_deeply = "elements nested too deeply";
inline constexpr const char* unexpected_attribute = "unexpected attribute";
inline constexpr const char* no_open_element = "no open element";

// --- Display names -------------------------------------------------------------

inline constexpr const char* unrecognized_moniker_string = "unrecognized moniker string";
inline constexpr const char* integer_overflow = "integer overflow";

// The pieces of a failed read, around the name of the token expected and the
// text it had to be ("Expected a char with a value of '.'."):
inline constexpr std::string_view expected_a = "Expected a ";
inline constexpr std::string_view with_a_value_of = " with a value of '";
inline constexpr std::string_view encountered_a = "Encountered a ";
inline constexpr std::string_view with_an_unexpected_value_of =
    " with an enexpected value of '";   // as the system spells it
inline constexpr std::string_view end_of_value = "'.";
inline constexpr std::string_view end_of_sentence = ".";

}   // namespace messages

// The process-wide alarm type map behind RegisterAlarmTypeMap. The map only
// grows and is shared by every test of the process, so every test registers
// identifiers that nothing has used before.
#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>
#include <string>

#include "events/alarm_type_map.h"

namespace {

// An identifier not used before in this process: 0xA5 and a serial number in
// the first five bytes, the rest clear.
GUID fresh_id()
{
    static std::uint32_t serial = 0;
    GUID id{};
    auto* bytes = reinterpret_cast<std::uint8_t*>(&id);
    bytes[0] = 0xA5;
    ++serial;
    std::memcpy(bytes + 1, &serial, sizeof serial);
    return id;
}

// `id` with `byte` raised by one.
GUID next_in(GUID id, std::size_t byte)
{
    auto* bytes = reinterpret_cast<std::uint8_t*>(&id);
    ++bytes[byte];
    return id;
}

std::string error_of(const GUID& id)
{
    try {
        alarm_types::name_of(id);
    } catch (const std::runtime_error& e) {
        return e.what();
    }
    return "(found)";
}

TEST(AlarmTypeMap, LaterRecordOfAnIdentifierWins)
{
    const GUID carrier = fresh_id(), fan = fresh_id();
    const alarm_type_record once[] = {{carrier, "Carrier"}, {carrier, "Carrier Lost"}, {fan, "Fan"}};
    EXPECT_EQ(alarm_types::register_records(3, once), 0);
    EXPECT_STREQ(alarm_types::name_of(carrier), "Carrier Lost");
    EXPECT_STREQ(alarm_types::name_of(fan), "Fan");

    const alarm_type_record again[] = {{fan, "Cooling Fan"}};
    EXPECT_EQ(alarm_types::register_records(1, again), 0);
    EXPECT_STREQ(alarm_types::name_of(fan), "Cooling Fan");
    EXPECT_STREQ(alarm_types::name_of(carrier), "Carrier Lost");
}

// Unknown and nameless identifiers are bad alarm ids; an empty or missing
// list registers nothing; a name registered late is found from then on.
TEST(AlarmTypeMap, WhatIsNotRegisteredIsABadAlarmId)
{
    const GUID known = fresh_id(), late = fresh_id(), nameless = fresh_id();
    const alarm_type_record first[] = {{known, "Link"}, {nameless, nullptr}};
    alarm_types::register_records(2, first);
    const alarm_type_record ignored[] = {{known, "Replaced"}, {late, "New"}};
    EXPECT_EQ(alarm_types::register_records(0, ignored), 0);
    EXPECT_EQ(alarm_types::register_records(-1, ignored), 0);
    EXPECT_EQ(alarm_types::register_records(2, nullptr), 0);
    EXPECT_STREQ(alarm_types::name_of(known), "Link");
    EXPECT_EQ(error_of(late), "bad alarm id");
    EXPECT_EQ(error_of(nameless), "bad alarm id");

    const alarm_type_record late_record[] = {{late, "Late"}};
    alarm_types::register_records(1, late_record);
    EXPECT_STREQ(alarm_types::name_of(late), "Late");
}

// The host owns the text: the map hands back the very pointer it was given.
TEST(AlarmTypeMap, KeepsTheHostsTextNotACopy)
{
    char name[] = "Temperature";
    const GUID id = fresh_id();
    const alarm_type_record records[] = {{id, name}};
    alarm_types::register_records(1, records);
    EXPECT_EQ(alarm_types::name_of(id), name);
}

// Identifiers that differ in any single byte are different alarms.
TEST(AlarmTypeMap, EveryByteOfTheIdentifierCounts)
{
    static const std::string names[] = {"b0", "b1", "b2",  "b3",  "b4",  "b5",  "b6",  "b7",
                                        "b8", "b9", "b10", "b11", "b12", "b13", "b14", "b15"};
    // Its own first byte, so that stepping the serial bytes cannot meet
    // another test's fresh identifiers.
    GUID base = fresh_id();
    reinterpret_cast<std::uint8_t*>(&base)[0] = 0x5A;
    for (std::size_t byte = 0; byte < 16; ++byte) {
        const alarm_type_record record[] = {{next_in(base, byte), names[byte].c_str()}};
        alarm_types::register_records(1, record);
    }
    for (std::size_t byte = 0; byte < 16; ++byte)
        EXPECT_EQ(alarm_types::name_of(next_in(base, byte)), names[byte]) << "byte " << byte;
}

}   // namespace

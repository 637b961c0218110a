#include "events/alarm_events.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <span>
#include <string_view>

#include "core/text_format.h"
#include "events/alarm_layouts.h"
#include "events/alarm_status.h"
#include "events/alarm_type_map.h"
#include "events/event_text.h"
#include "events/unit_alarm_record.h"
#include "events/unit_status.h"

namespace {

// An alarm's move between statuses: the payload holds the old and the new
// status byte, then the alarm's identifier.
struct alarm_status_change {
    ansi_text alarm;   // as the host registered it
    const alarm_status_row& from;
    const alarm_status_row& to;
};

alarm_status_change read_alarm_status_change(payload_cursor& in)
{
    const std::uint8_t from = in.read_u8();
    const std::uint8_t to = in.read_u8();
    GUID id;
    std::memcpy(&id, in.take(sizeof id).data(), sizeof id);
    return {ansi_text(alarm_types::name_of(id)), alarm_status(from), alarm_status(to)};
}

// The walk below relies on every group's bits standing in ascending order,
// each within the 64 bits loaded from the group's first byte: the walk then
// goes from changed bit to changed bit, lowest first, in table order.
consteval bool ascending_within_a_word(std::span<const alarm_bit> bits)
{
    for (std::size_t i = 0; i < bits.size(); ++i)
        if (bits[i].bit < 0 || bits[i].bit >= 64 || (i > 0 && bits[i].bit <= bits[i - 1].bit))
            return false;
    return true;
}

consteval bool all_ascending_within_a_word()
{
    for (const alarm_layout& layout : alarm_layouts::rows) {
        for (const alarm_group& group : layout.groups)
            if (!ascending_within_a_word(group.bits))
                return false;
        if (!ascending_within_a_word(layout.demodulator))
            return false;
    }
    return true;
}
static_assert(all_ascending_within_a_word());

// Hands every changed bit of the record's named alarms to `out`, group by
// group, then slot by slot for each demodulator whose bytes changed at all.
//
// A group goes from changed bit to changed bit, lowest first, which is table
// order. Its bits ascend, so row i names bit i or a higher one: the row of a
// changed bit b stands at position b at most, and below it only by as many
// rows as the table has gaps, which for most tables is none.
template <class Listing>
void list_changed_alarms(const unit_alarm_record& record, const alarm_layout& layout, Listing& out)
{
    const auto list_group = [&](std::span<const alarm_bit> bits, std::uint32_t offset, std::uint64_t changes) {
        if (bits.empty())
            return;
        const std::uint64_t raised = record.raised_from(offset);
        changes &= ~std::uint64_t(0) >> (63 - bits.back().bit);   // none past the last row
        for (; changes != 0; changes &= changes - 1) {
            const int bit = std::countr_zero(changes);
            std::size_t row = std::min(static_cast<std::size_t>(bit), bits.size() - 1);
            while (row > 0 && bits[row].bit > bit)
                --row;
            if (bits[row].bit == bit)
                out.alarm(bits[row].name, (raised >> bit & 1) != 0);
        }
    };
    for (const alarm_group& group : layout.groups)
        if (const std::uint64_t changes = record.changes_from(group.offset))
            list_group(group.bits, group.offset, changes);
    constexpr std::uint64_t slot_bits = (std::uint64_t(1) << 8 * alarm_layout::slot_bytes) - 1;
    for (std::uint32_t slot = 0; slot < layout.demodulators; ++slot) {
        const std::uint32_t offset = alarm_layout::slot_offset(slot);
        const std::uint64_t changes = record.changes_from(offset);
        if ((changes & slot_bits) == 0)
            continue;
        out.open_device(slot + 1);
        list_group(layout.demodulator, offset, changes);
        out.close_device();
    }
}

// The one-line form: "A alarmed, B alarm cleared, Device 2: C alarmed".
class alarm_sentence {
public:
    explicit alarm_sentence(output::text& out) noexcept : out_(out) {}

    void state_change(render::alarm_state from, render::alarm_state to)
    {
        out_ << "Alarm state changed from '"_w << render::alarm_state_name(from) << "' to '"_w
             << render::alarm_state_name(to) << "'"_w;
        if (to != render::alarm_state::ok)
            ++alarms_;
        continued_ = true;
    }

    // Each phrase, its separator included, is one item.
    void alarm(wstring_view name, bool raised)
    {
        out_.put(continued_ ? ", "_w : wstring_view(), name, raised ? " alarmed"_w : " alarm cleared"_w);
        if (raised)
            ++alarms_;
        continued_ = true;
    }

    // A slot's alarms follow its number directly, without a comma.
    void open_device(std::uint32_t number)
    {
        out_.put(continued_ ? ", "_w : wstring_view(), "Device "_w, text_of(decimal(number)), ": "_w);
        continued_ = false;
    }

    void close_device() noexcept {}

    bool covers(const alarm_layout&) const noexcept { return true; }

    render::colour colour() const noexcept { return alarms_ == 0 ? render::colours::green : render::colours::red; }

private:
    output::text& out_;
    bool continued_ = false;
    unsigned alarms_ = 0;
};

// The XML form: one element a line, slots as <device address="n"> around
// their alarms.
class alarm_elements {
public:
    explicit alarm_elements(output::xml& out) noexcept : out_(out) {}

    void state_change(render::alarm_state from, render::alarm_state to)
    {
        out_.open_line("alarm-state"_tag);
        out_.element_line("old"_tag, render::alarm_state_name(from));
        out_.element_line("new"_tag, render::alarm_state_name(to));
        out_.close_line();
    }

    void alarm(wstring_view name, bool raised) { out_.element_line(raised ? "raised"_tag : "cleared"_tag, name); }

    void open_device(std::uint32_t number) { out_.open_line("device"_tag, "address"_w, decimal(number)); }

    void close_device() { out_.close_line(); }

    bool covers(const alarm_layout& layout) const noexcept { return layout.inXml; }

private:
    output::xml& out_;
};

// The state change, if any, then the named bits that changed.
template <class Listing>
void describe_unit_alarms(payload_cursor& in, Listing& listing)
{
    const unit_alarm_record record = unit_alarm_record::read(in);
    if (record.oldState != record.newState)
        listing.state_change(record.oldState, record.newState);
    const alarm_layout* layout = find_alarm_layout(record.deviceType);
    if (layout && listing.covers(*layout))
        list_changed_alarms(record, *layout, listing);
}

}   // namespace

void alarm_status_changed_xml(payload_cursor& in, output::xml& out)
{
    const alarm_status_change change = read_alarm_status_change(in);
    out.element_line("Identifier"_tag, change.alarm);
    out.element_line("OldState"_tag, change.from.name);
    out.element_line("NewState"_tag, change.to.name);
}

render::colour alarm_status_changed_text(payload_cursor& in, output::text& out)
{
    const alarm_status_change change = read_alarm_status_change(in);
    out << change.alarm << " changed from "_w << change.from.name << " to "_w << change.to.name;
    return change.to.colour;
}

void unit_status_xml(payload_cursor& in, output::verbatim_xml& out)
{
    const std::int32_t from = in.read_i32();
    const std::int32_t to = in.read_i32();
    out << "\t\t<!-- Status Change -->\n"_w
        << "\t\t<old-status>"_w << decimal(from) << "</old-status>\n"_w
        << "\t\t<new-status>"_w << decimal(to) << "</new-status>"_w;
}

render::colour unit_status_text(payload_cursor& in, output::text& out)
{
    const unit_status from{in.read_i32()};
    const unit_status to{in.read_i32()};
    out << "Status changed from "_w << from << " to "_w << to << "."_w;
    return colour_of(to);
}

void unit_alarm_state_changed_xml(payload_cursor& in, output::xml& out)
{
    alarm_elements listing(out);
    describe_unit_alarms(in, listing);
}

render::colour unit_alarm_state_changed_text(payload_cursor& in, output::text& out)
{
    alarm_sentence listing(out);
    describe_unit_alarms(in, listing);
    return listing.colour();
}

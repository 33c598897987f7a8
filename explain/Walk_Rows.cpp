#include "explain/WalkParts.h"

#include "frame/record/Engine.h"

#include <algorithm>
#include <array>

namespace orrery::explain {

using namespace record;
using json::Type;
using json::Value;

namespace {

const char* RuleOfNull(const Field& field) {
    switch (field.nulls) {
    case Nulls::Count:
        return "null in a list: its element stays empty";
    case Nulls::LeaveHole:
        return "null in a list: its element stays empty and is not counted";
    case Nulls::CloseUp:
        return "null in a list: it is passed over";
    case Nulls::Stop:
        return "null in a list: it ends here";
    default:
        return "null in a list";
    }
}

const char* OnlyWords(OnlyType only) {
    switch (only) {
    case OnlyType::String:
        return "a text";
    case OnlyType::Bool:
        return "true or false";
    case OnlyType::Integer:
        return "a whole number below 2147483647";
    case OnlyType::Unsigned:
        return "a whole number above 2147483646";
    case OnlyType::Integral:
        return "a whole number";
    case OnlyType::Array:
        return "a list";
    default:
        return "a value";
    }
}

} // namespace

void Walk::Row(const Site& site, const Value& value) {
    const Field& field = site.field;
    if (!field.readable) return;
    if (value.isNull()) {
        Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, value, site, "null: as if the key were absent");
        return;
    }
    if (!IsOfType(field.only, value)) {
        WrongType(value, site, OnlyWords(field.only));
        return;
    }
    if (field.atLeast != 0 && value.elements().size() < field.atLeast) {
        if (value.type() != Type::Array) {
            WrongType(value, site, "a list");
            return;
        }
        Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, site,
            "a list of " + std::to_string(value.size()) + " where " + Plural(field.atLeast, "element")
                + " at least are read: none is read");
        return;
    }
    if (field.kind == Kind::Custom) return Custom(site, value);
    if (field.wholeMember) {
        if (value.type() != Type::Array)
            WrongType(value, site, "a list");
        else
            Element(site, value);
        return;
    }
    if (!field.single && (field.rank > 0 || field.cell == Cell::Pointer)) return List(site, 0, value);
    Element(site, value);
}

void Walk::Dropped(const Site& site, const Value& list, std::uint32_t room, std::uint32_t lost, const char* why) {
    Finding& finding = Add(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, list, site,
                           Plural(list.size(), "element") + ", " + why + " " + std::to_string(room) + ": "
                               + std::to_string(lost) + (lost == 1 ? " is dropped" : " are dropped"));
    finding.lost = lost;
}

void Walk::List(const Site& site, int level, const Value& value) {
    const Field& field = site.field;
    const bool isPointer = field.cell == Cell::Pointer;
    const bool innermost = isPointer || level + 1 == field.rank;
    const std::uint32_t room = isPointer ? UINT32_MAX : field.dims[level];
    if (field.keyed) {
        if (value.type() != Type::Object) {
            WrongType(value, site, "an object of elements");
            return;
        }
        std::uint32_t used = 0, lost = 0;
        for (const json::Member& member : value.members()) {
            if (std::find(also_.begin(), also_.end(), member.key()) != also_.end()) continue;
            const bool isElement = field.amongKeys ? member.value.members().size() > 0
                                                   : !member.value.isNull() || field.nulls == Nulls::Named;
            if (!isElement) continue;
            if (used == room) {
                ++lost;
                continue;
            }
            ++used;
            const Path inner = site.path.Member(member.key());
            const Site own{site.table, field, inner};
            if (member.value.isNull())
                Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, member.value, own, "null: an element without keys");
            else
                Element(own, member.value, member.key());
        }
        if (lost > 0) Dropped(site, value, room, lost, "room for");
        return;
    }
    if (value.type() != Type::Array) {
        WrongType(value, site, "a list", field.anyShape ? "it reads as an empty list" : "");
        return;
    }
    if (level == 0 && field.exactly && value.size() != room) {
        Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, site,
            "a list of " + std::to_string(value.size()) + " where exactly " + Plural(room, "element")
                + (room == 1 ? " is" : " are") + " read: none is read");
        return;
    }
    auto elements = value.elements();
    std::uint32_t used = 0, at = 0;
    if (innermost && field.kind == Kind::TimeSection) {
        used = at =
            static_cast<std::uint32_t>(PlainSections(elements.first(std::min<std::size_t>(elements.size(), room))));
        elements = elements.subspan(at);
    }
    for (const Value& element : elements) {
        if (used == room) {
            std::uint32_t lost = value.size() - at;
            // Nulls that would be passed over lose nothing.
            if (field.nulls == Nulls::CloseUp)
                for (std::uint32_t i = at; i < value.size(); ++i)
                    lost -= value[i].isNull();
            if (lost > 0) Dropped(site, value, room, lost, "room for");
            break;
        }
        const Path inner = site.path.Element(at++);
        const Site own{site.table, field, inner};
        ++used;
        if (element.isNull()) {
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, element, own, RuleOfNull(field));
            if (field.nulls == Nulls::CloseUp) --used;
            if (field.nulls == Nulls::Stop) {
                if (at < value.size()) Dropped(site, value, used - 1, value.size() - at, "a null ends them after");
                break;
            }
            continue;
        }
        if (!innermost) {
            if (element.type() == Type::Array)
                List(own, level + 1, element);
            else
                WrongType(element, own, "a list");
            continue;
        }
        const Nulls taken = Element(own, element) ? Nulls::Count : field.refused;
        if (taken == Nulls::CloseUp) --used;
        if (taken == Nulls::Stop) {
            if (at < value.size())
                Dropped(site, value, used - 1, value.size() - at, "one that is not read ends them after");
            break;
        }
    }
}

bool Walk::Element(const Site& site, const Value& value, std::string_view memberName) {
    const Field& field = site.field;
    switch (field.kind) {
    case Kind::Bool:
        if (value.isBool() || (value.isInt() && (value.asInt() == 0 || value.asInt() == 1))) break;
        WrongType(value, site, "true or false", value.asBool() ? "it reads as true" : "it reads as false");
        break;
    case Kind::Int:
    case Kind::UInt:
    case Kind::Real:
        Number(site, value);
        break;
    case Kind::Text:
    case Kind::RawText:
    case Kind::FullText:
        if (value.isString())
            Text(site, value, value.asString());
        else
            WrongType(value, site, "a text", "the field stays empty");
        break;
    case Kind::Names:
        if (value.isString() || value.isBool())
            Code(site, value, *field.names, value.asString());
        else
            WrongType(value, site, "a text", "it reads as a text that nobody knows");
        break;
    case Kind::Record: {
        if (field.table->memberName != nullptr && !memberName.empty()) {
            const Site name{*field.table, *field.table->memberName, site.path};
            if (name.field.kind == Kind::MemberCode)
                Code(name, value, *name.field.names, memberName);
            else
                Text(name, value, memberName);
        }
        return Record(*field.table, value, site.path, true, &site, false);
    }
    case Kind::TimeSection:
        Section(site, value, false);
        break;
    case Kind::Schedule:
        Schedule(site, value, field.dims[0], field.dims[1]);
        break;
    case Kind::HolidaySchedule:
        Schedule(site, value, ORRERY_SCHEDULE_DAYS, ORRERY_DAY_SECTIONS);
        if (value.type() == Type::Array && value.size() < ORRERY_WEEK_DAYS) {
            Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, site,
                "a week of " + Plural(value.size(), "day") + " where 7 or 8 are read");
        }
        break;
    case Kind::SectionList: {
        std::uint32_t at = 0;
        for (const Value& element : value.elements()) {
            if (at == field.dims[0]) {
                Dropped(site, value, at, value.size() - at, "room for");
                break;
            }
            const Path inner = site.path.Element(at++);
            Section({site.table, field, inner}, element, true);
        }
        break;
    }
    case Kind::NetTime:
    case Kind::NetTimeEx:
    case Kind::ClockTime:
    case Kind::Date:
        Time(site, value);
        break;
    case Kind::UtcTime:
        if (value.type() == Type::Int || value.type() == Type::UInt || value.type() == Type::Real) {
            if (value.asDouble() < 0 || value.asDouble() > 4294967295.0)
                Add(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_LOST, value, site,
                    Shown(value) + " are no seconds since 1970 in 32 bits: it reads as 0");
        } else {
            WrongType(value, site, "a number of seconds since 1970", "it reads as 1970-01-01 00:00:00");
        }
        break;
    case Kind::SplitMode:
        if (!value.isString()) {
            WrongType(value, site, "the name of a split mode");
        } else {
            std::array<char, 32> room;
            const std::int32_t mode = JsonParser::GetSplitMode(value.asString());
            if (!EqualsFolded(JsonParser::SplitModeText(mode, room), value.asString()) && value.asString() != "Split") {
                Add(ORRERY_FINDING_UNKNOWN_TEXT, ORRERY_FINDING_LOST, value, site,
                    Quoted(value.asString()) + " is no split mode: it reads as " + std::to_string(mode));
            }
        }
        break;
    case Kind::BitMask:
    case Kind::BitMaskLoose:
    case Kind::Switches:
        Numbers(site, value);
        break;
    default: // not in the text, or by its name alone
        break;
    }
    return true;
}

} // namespace orrery::explain

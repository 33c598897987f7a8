#include "explain/WalkParts.h"

#include "events/EventCodecs.h"
#include "frame/PackedItems.h"
#include "frame/json/Reader.h"

#include <algorithm>

namespace orrery::explain {

using namespace record;
using json::Type;
using json::Value;

void Walk::Custom(const Site& site, const Value& value) {
    const Field& field = site.field;
    const CustomCodec* const codec = field.custom;
    if (codec == nullptr || codec->read == nullptr) return; // written only
    if (field.table != nullptr && BareItemsBehind(*field.table) != nullptr) return Groups(site, value);
    if (const PackedItems* const items = BareItemsBehind(site.table);
        items != nullptr && items->pointer == field.offset)
        return GroupRules(site, value);
    const bool isScalarNumber =
        value.type() != Type::String && value.type() != Type::Array && value.type() != Type::Object;
    if (codec == &events::kOwnedRecord) {
        Record(*field.table, value, site.path, true, &site, false);
    } else if (codec == &events::kOwnedText) {
        if (!value.isString()) WrongType(value, site, "a text");
    } else if (codec == &events::kWholeReal || codec == &events::kThousandths || codec == &events::kSignedThousandths
               || codec == &events::kAnyInteger || codec == &events::kCountedFromOne) {
        if (!isScalarNumber) WrongType(value, site, "a number", "it reads as 0");
    } else if (codec == &events::kDegrees || codec == &events::kFirstNumber || codec == &events::kSecondNumber
               || codec == &events::kPackedColor) {
        if (value.type() != Type::Array) WrongType(value, site, "a list of numbers", "it reads as 0");
    } else if (codec == &events::kByKeys) {
        if (value.type() != Type::Object) {
            WrongType(value, site, "an object of numbers");
            return;
        }
        for (const json::Member& member : value.members()) {
            bool isKnown = false;
            std::vector<std::string_view> keys;
            for (std::uint16_t i = 0; i < field.names->count; ++i) {
                isKnown = isKnown || field.names->rows[i].text == member.key();
                keys.push_back(field.names->rows[i].text);
            }
            if (isKnown) continue;
            AddNearest(UnknownKey(member, site.path.Member(member.key()), FieldName(site.table, field), false), keys);
            ++left;
        }
    } else if (field.names != nullptr && value.isString()) {
        Code(site, value, *field.names, value.asString(), true);
    } else if (field.names != nullptr && value.type() == Type::Array) {
        std::uint32_t at = 0;
        for (const Value& element : value.elements()) {
            const Path inner = site.path.Element(at++);
            if (element.isString())
                Code({site.table, field, inner}, element, *field.names, element.asString(),
                     codec != &events::kNamedBits);
        }
    } else if (codec->sample != nullptr) {
        // A text of the same type needs no look at the sample.
        const char first = codec->sample[0];
        const bool isSame =
            (first == '"' && value.isString()) || (isScalarNumber && first != '"' && first != '[' && first != '{');
        if (isSame) return;
        Value sample;
        if (json::Parse(codec->sample, document_.arena, sample)) AsSample(site, value, sample, site.path);
    }
}

// What differs from what devices send may still be read: that is tried.
void Walk::AsSample(const Site& site, const Value& value, const Value& sample, const Path& path) {
    if (value.isNull() || sample.isNull()) return;
    if (value.type() == Type::Object && sample.type() == Type::Object) {
        for (const json::Member& member : value.members()) {
            const Value& known = sample[member.key()];
            const Path inner = path.Member(member.key());
            if (!known.isNull()) {
                AsSample(site, member.value, known, inner);
                continue;
            }
            std::vector<std::string_view> keys;
            for (const json::Member& each : sample.members())
                keys.push_back(each.key());
            AddNearest(UnknownKey(member, inner, FieldName(site.table, site.field), true), keys);
        }
        return;
    }
    if (value.type() == Type::Array && sample.type() == Type::Array) {
        if (sample.size() == 0) return;
        std::uint32_t at = 0;
        for (const Value& element : value.elements()) {
            AsSample(site, element, sample[std::min(at, sample.size() - 1)], path.Element(at));
            ++at;
        }
        return;
    }
    const bool isContainer = value.type() >= Type::Array || sample.type() >= Type::Array;
    const bool isText = value.isString() != sample.isString();
    if (!isContainer && !isText) return;
    Finding& finding = Add(ORRERY_FINDING_WRONG_TYPE, ORRERY_FINDING_LOST, value, path,
                           Shown(value) + " where " + TypeName(sample) + " is read: it is not read");
    finding.field = FieldName(site.table, site.field);
    finding.isTried = true;
}

} // namespace orrery::explain

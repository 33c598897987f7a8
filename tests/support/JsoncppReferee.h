// A second opinion on what a text says: the packaged jsoncpp, set to read no more than JSON and comments.
#pragma once

#include "frame/json/Value.h"

#include <json/json.h>

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orrery::test {

// Nothing when jsoncpp refuses the text. It stops at a depth of 1000, since it reads recursively.
inline std::optional<Json::Value> JsoncppRead(std::string_view text) {
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    builder["allowTrailingCommas"] = false;
    builder["skipBom"] = false;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    try {
        if (!reader->parse(text.data(), text.data() + text.size(), &root, nullptr)) return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
    return root;
}

// A high surrogate's escape that no low one follows. jsoncpp refuses some of these and makes a foreign character of
// the others; devices send them when they cut a name, and the name's rest still counts.
inline bool HasLoneHighSurrogate(std::string_view text) {
    const auto unitAt = [&](std::size_t place) -> int {
        if (text.size() < place + 6 || text[place] != '\\' || text[place + 1] != 'u') return -1;
        int unit = 0;
        for (const char digit : text.substr(place + 2, 4)) {
            const auto value = std::string_view("0123456789abcdef").find(static_cast<char>(digit | 0x20));
            if (value == std::string_view::npos) return -1;
            unit = unit * 16 + static_cast<int>(value);
        }
        return unit;
    };
    for (std::size_t place = 0; place + 6 <= text.size(); ++place) {
        const int unit = unitAt(place);
        const int next = unitAt(place + 6);
        if (unit >= 0xD800 && unit < 0xDC00 && (next < 0xDC00 || next > 0xDFFF)) return true;
    }
    return false;
}

// The first place where the two trees differ, or nothing. Three differences are meant and do not count: integers that
// leave 32 bits are reals here, every real is compared by its value, and a text ends at its first terminator.
inline std::optional<std::string> FirstDifference(const Json::Value& theirs, const json::Value& ours,
                                                  const std::string& path = "root") {
    const auto differ = [&](const char* why) { return std::optional(path + ": " + why); };
    const auto sameReal = [&](double number) {
        return ours.type() == json::Type::Real && ours.asDouble() == number ? std::nullopt : differ("real");
    };
    switch (theirs.type()) {
    case Json::nullValue:
        return ours.isNull() ? std::nullopt : differ("null");
    case Json::booleanValue:
        return ours.isBool() && ours.asBool() == theirs.asBool() ? std::nullopt : differ("bool");
    case Json::intValue:
    case Json::uintValue:
        if (ours.isInt()) {
            return theirs.isInt64() && theirs.asInt64() == ours.asInt() ? std::nullopt : differ("int");
        }
        if (ours.isUInt()) {
            return theirs.isUInt64() && theirs.asUInt64() == ours.asUInt() ? std::nullopt : differ("uint");
        }
        // Compared as the compiler converts them: jsoncpp's own asDouble rounds large unsigned numbers twice.
        return sameReal(theirs.isInt64() ? static_cast<double>(theirs.asInt64())
                                         : static_cast<double>(theirs.asUInt64()));
    case Json::realValue:
        return sameReal(theirs.asDouble());
    case Json::stringValue: {
        std::string text = theirs.asString();
        text = text.substr(0, text.find('\0'));
        return ours.isString() && ours.asString() == text ? std::nullopt : differ("string");
    }
    case Json::arrayValue:
        if (ours.type() != json::Type::Array || ours.size() != theirs.size()) return differ("array");
        for (Json::ArrayIndex i = 0; i < theirs.size(); ++i) {
            if (auto found = FirstDifference(theirs[i], ours[i], path + "[" + std::to_string(i) + "]")) return found;
        }
        return std::nullopt;
    case Json::objectValue: {
        if (ours.type() != json::Type::Object || ours.size() != theirs.size()) return differ("object");
        // Both keep their members in byte order.
        auto member = ours.members().begin();
        for (auto next = theirs.begin(); next != theirs.end(); ++next, ++member) {
            if (member->key() != next.name()) return differ("key");
            if (auto found = FirstDifference(*next, member->value, path + "." + next.name())) return found;
            if (&ours[next.name()] != &member->value) return differ("look-up");
        }
        return std::nullopt;
    }
    }
    return differ("type");
}

} // namespace orrery::test

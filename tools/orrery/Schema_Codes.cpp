// Codes of fields: the texts that devices use, what other texts and codes do, and the constants of the headers.
#include "orrery/Schema.h"

#include "orrery/Codes.h"

#include "events/EventCodecs.h"
#include "frame/JsonParser.h"

#include <algorithm>
#include <cctype>

namespace orrery::tool {

using namespace record;

namespace {

std::string Plain(std::string_view text) {
    std::string plain;
    for (const char c : text) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return plain;
}

bool IsWordOf(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// "CFG_SENSOR_..." or the name of the list itself in a member's comment or type.
bool Mentions(std::string_view text, const headers::Enumeration& enumeration) {
    const auto has = [&](std::string_view word) {
        for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
            const std::size_t end = at + word.size();
            if ((at == 0 || !IsWordOf(text[at - 1])) && (end == text.size() || !IsWordOf(text[end]))) return true;
        }
        return false;
    };
    if (enumeration.name[0] != '\0' && has(enumeration.name)) return true;
    for (std::size_t at = text.find("_..."); at != std::string_view::npos; at = text.find("_...", at + 1)) {
        std::size_t begin = at;
        while (begin > 0 && IsWordOf(text[begin - 1]))
            --begin;
        const std::string_view prefix = text.substr(begin, at + 1 - begin);
        if (std::string_view(enumeration.constants[0].name).starts_with(prefix)) return true;
    }
    return false;
}

// Whether a constant says that it is the code of the text: its comment begins with it, or its name ends in it.
bool IsNamed(const headers::Constant& constant, std::string_view text) {
    const std::string_view doc = constant.doc;
    if (doc.starts_with('"')) {
        // `"A" and "B"`: one code of two texts.
        for (std::size_t at = 0; at < doc.size();) {
            const std::size_t open = doc.find('"', at);
            const std::size_t close = open == std::string_view::npos ? open : doc.find('"', open + 1);
            if (close == std::string_view::npos) break;
            if (EqualsFolded(doc.substr(open + 1, close - open - 1), text)) return true;
            at = close + 1;
        }
        return false;
    }
    const std::string plain = Plain(text);
    return !plain.empty() && Plain(constant.name).ends_with(plain);
}

struct Match {
    const headers::Enumeration* enumeration = nullptr;
    bool mentioned = false;
    std::size_t named = 0;
};

const headers::Constant* ConstantOf(const headers::Enumeration& enumeration, std::int64_t code) {
    const auto found =
        std::ranges::find_if(enumeration.constants, [&](const headers::Constant& each) { return each.value == code; });
    return found == enumeration.constants.end() ? nullptr : &*found;
}

// The list of constants that a field's codes come from; null when the headers have none.
const headers::Enumeration* EnumerationOf(std::string_view record, const Field& field) {
    const headers::Member* const member = headers::FindMember(record, field.name);
    const std::string_view doc = member == nullptr ? "" : member->doc;
    const std::string_view type = member == nullptr ? "" : member->type;
    Match best;
    for (const headers::Enumeration& each : headers::Enumerations()) {
        Match match{&each, Mentions(doc, each) || (!type.empty() && type == each.name), 0};
        std::size_t missing = 0;
        if (field.names != nullptr) {
            for (std::size_t i = 0; i < field.names->count; ++i) {
                const Name& row = field.names->rows[i];
                const headers::Constant* const constant = ConstantOf(each, row.code);
                const bool isNamed = constant != nullptr && IsNamed(*constant, row.text);
                match.named += isNamed;
                missing += !isNamed && !row.text.empty();
            }
            if (!match.mentioned && (match.named < 2 || missing > 0)) continue;
        } else if (!match.mentioned) {
            continue;
        }
        if (best.enumeration == nullptr
            || std::pair(match.mentioned, match.named) > std::pair(best.mentioned, best.named))
            best = match;
    }
    return best.enumeration;
}

// Ways of dividing a picture: names made of a word and a number, those that are in use.
void AddSplitModes(Node& node) {
    constexpr std::pair<std::int32_t, std::int32_t> kRanges[] = {{1, 64}, {1001, 1009}, {2000, 2000}, {3001, 3009}};
    Node codes = Node::Array();
    for (const auto& [first, last] : kRanges) {
        for (std::int32_t mode = first; mode <= last; ++mode) {
            std::array<char, 32> room;
            const std::string_view name = JsonParser::SplitModeText(mode, room);
            if (name.empty() || JsonParser::GetSplitMode(name) != mode) continue;
            Node code = Node::Object();
            code.Add("code", Node::Number(mode)).Add("name", Node::Text(name));
            codes.Add(std::move(code));
        }
    }
    node.Add("codes", std::move(codes))
        .Add("compare", Node::Text("exact"))
        .Add("unknownText", Node::Number(JsonParser::GetSplitMode({})))
        .Add("unknownCode", Node::Text("noKey"));
}

} // namespace

std::string NameOfEnumeration(const headers::Enumeration& enumeration) {
    if (enumeration.name[0] != '\0') return enumeration.name;
    std::string_view common = enumeration.constants[0].name;
    if (enumeration.constants.size() == 1) return std::string(common);
    for (const headers::Constant& each : enumeration.constants) {
        std::size_t same = 0;
        while (same < common.size() && each.name[same] == common[same])
            ++same;
        common = common.substr(0, same);
    }
    common = common.substr(0, common.rfind('_') == std::string_view::npos ? 0 : common.rfind('_'));
    // Where several lists begin alike, each is known by its first constant.
    const auto alike = std::ranges::count_if(headers::Enumerations(), [&](const headers::Enumeration& other) {
        return std::string_view(other.constants[0].name).starts_with(common);
    });
    const bool isPlain = alike == 1 && common.find('_') != std::string_view::npos;
    return std::string(isPlain ? common : std::string_view(enumeration.constants[0].name));
}

Node EnumerationNodes() {
    Node all = Node::Array();
    for (const headers::Enumeration& each : headers::Enumerations()) {
        Node constants = Node::Array();
        for (const headers::Constant& constant : each.constants) {
            Node node = Node::Object();
            node.Add("name", Node::Text(constant.name)).Add("value", Node::Number(constant.value));
            if (constant.doc[0] != '\0') node.Add("doc", Node::Text(constant.doc));
            constants.Add(std::move(node));
        }
        Node node = Node::Object();
        node.Add("name", Node::Text(NameOfEnumeration(each)));
        if (each.doc[0] != '\0') node.Add("doc", Node::Text(each.doc));
        all.Add(std::move(node.Add("constants", std::move(constants))));
    }
    return all;
}

void AddCodes(Node& node, std::string_view record, const Field& field) {
    const headers::Enumeration* const enumeration = EnumerationOf(record, field);
    if (enumeration != nullptr) node.Add("enumeration", Node::Text(NameOfEnumeration(*enumeration)));
    if (field.kind == Kind::SplitMode) return AddSplitModes(node);
    const NameTable* const names = field.names;
    if (names == nullptr) return;
    Node codes = Node::Array();
    for (const Name* row = names->rows; row != names->rows + names->count; ++row) {
        Node code = Node::Object();
        code.Add("code", Node::Number(row->code)).Add("name", Node::Text(row->text));
        const headers::Constant* const constant =
            enumeration == nullptr ? nullptr : ConstantOf(*enumeration, row->code);
        if (constant != nullptr) code.Add("constant", Node::Text(constant->name));
        if (row->compare != names->compare) code.Add("exact", Node::Bool(row->compare == Compare::Exact));
        codes.Add(std::move(code));
    }
    node.Add("codes", std::move(codes));
    if (field.custom == &events::kNamedBits) node.Add("codesAre", Node::Text("bits"));
    if (field.custom == &events::kByKeys) node.Add("codesAre", Node::Text("places"));
    node.Add("compare", Node::Text(names->compare == Compare::Folded ? "folded" : "exact"));
    if (names->lastWins) node.Add("lastWins", Node::Bool(true));
    // What a text of no row reads as; what a code of no row writes.
    if (names->unknownLeaves)
        node.Add("unknownText", Node::Text("leaves"));
    else
        node.Add("unknownText", Node::Number(names->unknownCode));
    switch (names->outside) {
    case NameTable::Outside::NoKey:
        node.Add("unknownCode", Node::Text("noKey"));
        break;
    case NameTable::Outside::Null:
        node.Add("unknownCode", Node::Text("null"));
        break;
    case NameTable::Outside::Text:
        node.Add("unknownCode", Node::Text("text")).Add("unknownCodeText", Node::Text(names->outsideText));
        break;
    }
}

} // namespace orrery::tool

#include "orrery/Codes.h"

#include "events/EventCodecs.h"
#include "frame/JsonParser.h"

namespace orrery::tool {

using namespace record;

namespace {

// Split modes are no list of names: their texts are made of numbers.
std::string SplitText(std::int32_t mode) {
    std::array<char, 32> room;
    return std::string(JsonParser::SplitModeText(mode, room));
}

} // namespace

bool HasNames(const Field& field) {
    // Names of bits and of places in a list are no codes.
    const bool isCode = field.custom != &events::kNamedBits && field.custom != &events::kByKeys;
    return (field.names != nullptr && isCode) || field.kind == Kind::SplitMode;
}

std::string NameOfCode(const Field& field, std::int64_t code) {
    if (field.names != nullptr) return std::string(NameOfCode(*field.names, code));
    return code < INT32_MIN || code > INT32_MAX ? std::string() : SplitText(static_cast<std::int32_t>(code));
}

std::string_view NameOfCode(const NameTable& names, std::int64_t code) {
    if (code < INT32_MIN || code > INT32_MAX) return {};
    const Name* const row = names.RowOf(static_cast<std::int32_t>(code));
    return row != nullptr ? row->text : std::string_view();
}

std::optional<std::int32_t> CodeOfName(const Field& field, std::string_view name) {
    if (field.names == nullptr) {
        const std::int32_t mode = JsonParser::GetSplitMode(name);
        if (EqualsFolded(SplitText(mode), name)) return mode;
        return std::nullopt;
    }
    // A name that stands in no row is a mistake here, whatever a device's text would read as.
    return field.names->UnknownLeaves().CodeOf(name);
}

std::vector<std::string_view> NamesOf(const Field& field) {
    std::vector<std::string_view> all;
    if (field.names == nullptr) return all;
    for (const Name* row = field.names->rows; row != field.names->rows + field.names->count; ++row)
        all.push_back(row->text);
    return all;
}

} // namespace orrery::tool

#include "orrery/Docs.h"

#include "orrery/Output.h"
#include "orrery/Words.h"

#include "explain/headers/HeaderWords.h"

#include <algorithm>

namespace orrery::tool {

using namespace record;

namespace {

std::string Listed(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i)
        text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    return text;
}

std::string QuotedPath(std::string_view key) {
    std::string text;
    while (true) {
        const std::size_t slash = std::min(key.find('/'), key.size());
        text += Quoted(key.substr(0, slash));
        if (slash == key.size()) return text;
        text += '.';
        key.remove_prefix(slash + 1);
    }
}

} // namespace

const char* RoleWord(Role role) {
    constexpr const char* kWords[] = {"", "size", "count", "capacity", "flag", "condition", "reserved", "element"};
    return kWords[static_cast<std::size_t>(role)];
}

MemberRole RoleOf(const std::vector<const Table*>& tables, const Field& field) {
    MemberRole found;
    const auto serves = [&](Role role, const Slot& slot, const Field& row) {
        if (!slot.exists() || slot.offset != field.offset || slot.cell != field.cell) return;
        if (found.role == Role::None) found.role = role;
        const std::string name = row.name;
        if (found.role == role && std::find(found.of.begin(), found.of.end(), name) == found.of.end())
            found.of.push_back(name);
    };
    if (field.kind == Kind::Size) return {Role::Size, {}};
    for (const Table* table : tables) {
        for (const Field& row : *table) {
            if (row.size == 0 || row.offset == field.offset) continue;
            serves(Role::Flag, row.flag, row);
            serves(Role::Count, row.count, row);
            serves(Role::Capacity, row.capacity, row);
            serves(Role::Condition, row.condition, row);
            serves(Role::Condition, row.readCondition, row);
        }
    }
    if (found.role != Role::None) return found;
    const std::string_view name = field.name;
    if (field.kind == Kind::None && name.find("Reserved") != std::string_view::npos) return {Role::Reserved, {}};
    return found;
}

std::string DocOf(const std::vector<const Table*>& tables, const Field& field) {
    const headers::Member* const member = headers::FindMember(tables.front()->record, field.name);
    if (member != nullptr && member->doc[0] != '\0') return member->doc;
    const MemberRole role = RoleOf(tables, field);
    switch (role.role) {
    case Role::Size:
        return "bytes of the record, as the caller's layout has it";
    case Role::Flag:
        return "1 when " + Listed(role.of) + (role.of.size() == 1 ? " is" : " are") + " told";
    case Role::Count:
        return "elements of " + Listed(role.of) + " in use";
    case Role::Capacity:
        return "elements of " + Listed(role.of) + " that there is room for";
    case Role::Condition:
        return "whether " + Listed(role.of) + (role.of.size() == 1 ? " is" : " are") + " in use";
    case Role::Reserved:
        return "reserved";
    default:
        break;
    }
    if (field.key != nullptr && field.key[0] != '\0') return QuotedPath(field.key);
    if (field.key != nullptr && tables.front()->shape != Shape::Object) {
        std::size_t place = 1;
        for (const Field& row : *tables.front())
            place += row.key != nullptr && row.offset < field.offset;
        return "element " + std::to_string(place) + " of the list";
    }
    if (field.kind == Kind::MemberName || field.kind == Kind::MemberCode) return "the name under which it stands";
    return {};
}

} // namespace orrery::tool

#include "explain/headers/HeaderWords.h"

#include <algorithm>

namespace orrery::headers {

const Member* Record::Find(std::string_view member) const noexcept {
    member = member.substr(0, member.find('.'));
    const auto found = std::ranges::find_if(members, [&](const Member& each) { return each.name == member; });
    return found == members.end() ? nullptr : &*found;
}

const Record* FindRecord(std::string_view record) noexcept {
    const auto records = Records();
    const auto found =
        std::ranges::lower_bound(records, record, {}, [](const Record& each) { return std::string_view(each.name); });
    return found == records.end() || found->name != record ? nullptr : &*found;
}

const Member* FindMember(std::string_view record, std::string_view member) noexcept {
    const Record* const known = FindRecord(record);
    return known == nullptr ? nullptr : known->Find(member);
}

} // namespace orrery::headers

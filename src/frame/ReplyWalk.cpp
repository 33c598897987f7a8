#include "frame/ReplyWalk.h"

namespace orrery {

bool Beside::Add(std::string_view key, const json::Value& value) noexcept {
    std::uint32_t place = count_;
    int order = 1;
    while (place > 0 && (order = json::CompareKeys(members_[place - 1].key(), key)) > 0)
        --place;
    if (place > 0 && order == 0) {
        members_[place - 1].value = value;
        return true;
    }
    if (count_ == kMost) return false;
    for (std::uint32_t i = count_++; i > place; --i)
        members_[i] = members_[i - 1];
    members_[place] = {key.data(), static_cast<std::uint32_t>(key.size()), value};
    return true;
}

std::string_view ReplyWalk::Params() noexcept {
    static constexpr char kText[6 + json::kKeySlack] = "params";
    return {kText, 6};
}

std::string_view ReplyWalk::WithSlack(std::string_view key) noexcept {
    const bool isInText = key.data() + key.size() + 1 == p_; // and not one whose escapes were taken out
    if (!isInText || end_ - key.data() >= static_cast<std::ptrdiff_t>(json::kKeySlack)) return key;
    auto* const copy = document_.arena.Array<char>(key.size() + json::kKeySlack);
    if (copy == nullptr) return {};
    std::memcpy(copy, key.data(), key.size());
    std::memset(copy + key.size(), 0, json::kKeySlack);
    return {copy, key.size()};
}

bool ReplyWalk::MakeRoot() noexcept {
    if (path_.inParams && !root_.Add(Params(), params_.Object())) return false;
    document_.root = root_.Object();
    return true;
}

} // namespace orrery

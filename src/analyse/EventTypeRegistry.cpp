#include "analyse/EventTypeRegistry.h"

#include "analyse/AlarmNames.h"
#include "analyse/RuleNames.h"
#include "frame/NameHash.h"
#include "frame/json/Value.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace orrery {

namespace {

using events::AlarmName;
using events::kAlarmNames;
using events::kRuleNames;
using events::RuleName;
using events::Way;

constexpr std::size_t kRuleCount = std::size(kRuleNames);
constexpr std::string_view kUnnamed = "All";

constexpr bool IsRead(const RuleName& row) {
    return row.way != Way::WriteOnly;
}
constexpr bool IsWritten(const RuleName& row) {
    return row.way == Way::Both || row.way == Way::WriteOnly;
}

// ---- Code to name: the codes are few and small, so that a row number a code costs less than any search ----

constexpr std::size_t kCodeEnd = [] {
    std::int32_t last = 0;
    for (const RuleName& row : kRuleNames)
        last = std::max(last, row.code);
    return static_cast<std::size_t>(last) + 1;
}();

constexpr std::uint8_t kNoRow = 0xff;
static_assert(kRuleCount < kNoRow);

using RowsByCode = std::array<std::uint8_t, kCodeEnd>;

// Of several names of one code the last in the list stands, as if each were assigned in turn.
template <class Test>
constexpr RowsByCode ByCode(Test test) {
    RowsByCode rows{};
    rows.fill(kNoRow);
    for (std::uint8_t i = 0; i < kRuleCount; ++i) {
        if (test(kRuleNames[i])) rows[static_cast<std::size_t>(kRuleNames[i].code)] = i;
    }
    return rows;
}

constexpr RowsByCode kWritten = ByCode(IsWritten);
constexpr RowsByCode kDeviceForms = ByCode([](const RuleName& row) { return row.way == Way::DeviceForm; });

// ---- Name to code: an open-addressing index, made when the library is compiled ----

constexpr std::uint32_t Hash(std::string_view name) {
    const std::string_view tail = name.size() < 8 ? name : name.substr(name.size() - 8);
    return NameHash(json::KeyPrefix(name), json::KeyPrefix(tail), name.size());
}

constexpr auto kIndex = [] {
    std::array<std::uint8_t, 512> index{};
    index.fill(kNoRow);
    for (std::uint8_t i = 0; i < kRuleCount; ++i) {
        if (!IsRead(kRuleNames[i])) continue;
        std::size_t slot = Hash(kRuleNames[i].text) % index.size();
        while (index[slot] != kNoRow)
            slot = (slot + 1) % index.size();
        index[slot] = i;
    }
    return index;
}();

template <class Row, std::size_t N>
constexpr bool NamesDiffer(const Row (&rows)[N]) {
    std::array<std::string_view, N> names{};
    std::transform(std::begin(rows), std::end(rows), names.begin(), [](const Row& row) { return row.text; });
    std::sort(names.begin(), names.end());
    return std::adjacent_find(names.begin(), names.end()) == names.end();
}

static_assert(NamesDiffer(kRuleNames) && NamesDiffer(kAlarmNames));

std::string_view Named(const RowsByCode& rows, std::int32_t code) {
    const auto index = static_cast<std::size_t>(static_cast<std::uint32_t>(code));
    if (index >= kCodeEnd || rows[index] == kNoRow) return {};
    return kRuleNames[rows[index]].text;
}

// As strncpy copies: a shorter text is followed by zeros, a longer one has no terminator.
void Copy(std::string_view text, char* buffer, std::size_t room) {
    const std::size_t size = std::min(text.size(), room);
    std::memcpy(buffer, text.data(), size);
    std::memset(buffer + size, 0, room - size);
}

} // namespace

std::int32_t RuleCodeFromName(std::string_view name) noexcept {
    for (std::size_t slot = Hash(name) % kIndex.size(); kIndex[slot] != kNoRow; slot = (slot + 1) % kIndex.size()) {
        if (kRuleNames[kIndex[slot]].text == name) return kRuleNames[kIndex[slot]].code;
    }
    return 0;
}

std::int32_t RuleCodeFromName(const char* name) noexcept {
    return name == nullptr ? 0 : RuleCodeFromName(std::string_view(name));
}

std::string_view RuleNameOf(std::int32_t code, bool useDeviceName) noexcept {
    std::string_view name;
    if (useDeviceName) name = Named(kDeviceForms, code);
    if (name.empty()) name = Named(kWritten, code);
    return name.empty() ? kUnnamed : name;
}

void RuleNameFromCode(std::int32_t code, char* buffer, std::size_t limit) noexcept {
    RuleNameFromCode(code, buffer, limit, false);
}

void RuleNameFromCode(std::int32_t code, char* buffer, std::size_t limit, bool useDeviceName) noexcept {
    if (buffer == nullptr || limit == 0) return;
    Copy(RuleNameOf(code, useDeviceName), buffer, limit - 1);
    const bool isNamed = !Named(kWritten, code).empty();
    if (isNamed) buffer[limit - 1] = '\0';
}

} // namespace orrery

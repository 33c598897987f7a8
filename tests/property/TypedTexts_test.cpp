// The two roads that are no command's: texts whose keys tell what they carry, and replies with templates. Texts made
// from the tables, cut, bent, at their limits; without memory; into buffers that end at an unreadable page.
#include "analyse/RuleFrame.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "orrery/events_typed.h"
#include "support/CommandCalls.h"
#include "support/EventWalk.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/TableText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace test;

// ---- Typed texts ---------------------------------------------------------------------------------------------------

std::uint64_t total = 0;
int handed = 0;

std::int32_t Walk(std::uint32_t type, const void* record, std::uint32_t size, void*, std::int32_t, void*) {
    ++handed;
    const events::TypedRow* const row = events::FindTyped(type);
    if (row == nullptr || record == nullptr || size % row->table->size != 0) {
        ADD_FAILURE() << type << " of " << size;
        return 0;
    }
    for (std::uint32_t at = 0; at < size; at += row->table->size)
        if (row->table->items == nullptr) total += SumOfRecord(*row->table, static_cast<const std::byte*>(record) + at);
    return 0;
}

// A text with that key alone; what its value is made of.
std::string TypedText(const events::TypedRow& row, const TextOptions& options) {
    std::string value;
    if (row.table->items != nullptr) {
        const ItemType type =
            row.table->items->typeAt(static_cast<std::uint32_t>(options.seed) % row.table->items->typeCount);
        JsonTree rule = RecordTree(*type.table, options);
        if (rule.kind() == JsonTree::Kind::Object) rule.Add("Type", JsonTree::String(std::string(type.name)));
        value = "[" + rule.Text() + "]";
    } else {
        value = RecordTree(*row.table, options).Text();
        if (row.isList) value = "[" + value + ",null," + value + "]";
    }
    return "{\"" + std::string(row.name) + "\":" + value + "}";
}

TEST(TypedTexts, EveryRowTakesTheTextMadeFromItsTable) {
    for (const events::TypedRow& row : events::TypedRows()) {
        handed = 0;
        const GuardedText text(TypedText(row, {}));
        EXPECT_EQ(CLIENT_ParseDataByCallback(text.get(), 0, Walk, nullptr), 1) << row.name << text.get();
        EXPECT_EQ(handed, 1) << row.name;
    }
}

TEST(TypedTexts, CutsAreNoJson) {
    for (const events::TypedRow& row : events::TypedRows()) {
        const std::string whole = TypedText(row, {.most = 1});
        handed = 0;
        for (std::size_t size = 0; size < whole.size(); size += 1 + whole.size() / 400) {
            const GuardedText text(std::string_view(whole).substr(0, size));
            ASSERT_EQ(CLIENT_ParseDataByCallback(text.get(), 0, Walk, nullptr), 0) << row.name << " cut at " << size;
        }
        EXPECT_EQ(handed, 0) << row.name;
    }
}

TEST(TypedTexts, LimitsAndWildTypes) {
    for (const events::TypedRow& row : events::TypedRows()) {
        for (unsigned seed = 1; seed <= 60; ++seed) {
            const TextOptions options{seed % 2 == 0 ? Values::Limits : Values::Wild, seed, 1 + seed % 5, 1 + seed % 3};
            const GuardedText text(TypedText(row, options));
            const std::int32_t result = CLIENT_ParseDataByCallback(text.get(), 0, Walk, nullptr);
            ASSERT_TRUE(result == 0 || result == 1) << row.name;
        }
    }
}

TEST(TypedTexts, EveryAllocationMayFail) {
    for (const events::TypedRow& row : events::TypedRows()) {
        const std::string text = TypedText(row, {});
        CLIENT_ParseDataByCallback(text.c_str(), 0, Walk, nullptr); // what a process makes once is there already
        for (const bool onwards : {false, true}) {
            for (std::size_t n = 1; n < 60; ++n) {
                HeapWatch heap;
                onwards ? heap.FailFrom(n) : heap.FailOnly(n);
                CLIENT_ParseDataByCallback(text.c_str(), 0, Walk, nullptr);
                const bool failed = heap.failures() > 0;
                heap.FailNone();
                ASSERT_LE(heap.liveBlocks(), 0) << row.name << " without allocation " << n;
                if (!failed) break;
            }
        }
    }
}

// ---- Templates -----------------------------------------------------------------------------------------------------

constexpr std::int32_t kClass = CFG_RULE_CLASS_TRAFFIC;

std::string TemplateText(const TemplateRow& row, const TextOptions& options) {
    std::string params;
    if (row.table->items != nullptr) {
        const ItemType type =
            row.table->items->typeAt(static_cast<std::uint32_t>(options.seed) % row.table->items->typeCount);
        JsonTree rule = RecordTree(*type.table, options);
        if (rule.kind() == JsonTree::Kind::Object) {
            rule.Add("Type", JsonTree::String(std::string(type.name)));
            rule.Add("Class", JsonTree::String("Normal"));
        }
        params = R"({"Traffic":{"rule":)" + rule.Text() + "}}";
    } else {
        params = RecordTree(*row.table, options).Text();
        if (row.isByClass) params = R"({"Traffic":)" + params + "}";
    }
    return R"({"result":true,"params":)" + params + "}";
}

// A call with a record and items that end at an unreadable page.
struct TemplateCall {
    explicit TemplateCall(const TemplateRow& itsRow) : row(itsRow), record(itsRow.table->size), items(600 << 10) {}

    std::int32_t Run(const char* text) {
        std::memset(record.data(), 0xA5, record.size());
        if (row.table->items != nullptr) {
            rules = {-7, reinterpret_cast<std::uint8_t*>(items.data()), static_cast<std::int32_t>(items.size())};
            std::memcpy(record.data(), &rules, sizeof rules);
        }
        const int reserved = 0;
        return CLIENT_ParseVideoInAnalyse(std::string(row.name).c_str(), kClass, text, &reserved, record.data(),
                                          static_cast<std::uint32_t>(record.size()));
    }
    bool isClear() const { return record.view().find_first_not_of('\0') == std::string_view::npos; }

    const TemplateRow& row;
    GuardedBuffer record;
    GuardedBuffer items;
    CFG_ANALYSERULES_INFO rules{};
};

TEST(TemplateTexts, EveryMethodTakesTheReplyMadeFromItsTable) {
    for (const TemplateRow& row : Templates()) {
        TemplateCall call(row);
        const GuardedText text(TemplateText(row, {}));
        EXPECT_EQ(call.Run(text.get()), 1) << row.name << text.get();
        EXPECT_FALSE(call.isClear()) << row.name;
    }
}

TEST(TemplateTexts, CutsAreNoJsonAndLeaveAClearRecord) {
    for (const TemplateRow& row : Templates()) {
        TemplateCall call(row);
        const std::string whole = TemplateText(row, {.most = 1});
        for (std::size_t size = 0; size < whole.size(); size += 1 + whole.size() / 200) {
            const GuardedText text(std::string_view(whole).substr(0, size));
            ASSERT_EQ(call.Run(text.get()), 0) << row.name << " cut at " << size;
            ASSERT_TRUE(row.table->items != nullptr || call.isClear()) << row.name;
        }
    }
}

TEST(TemplateTexts, LimitsAndWildTypes) {
    for (const TemplateRow& row : Templates()) {
        TemplateCall call(row);
        for (unsigned seed = 1; seed <= 40; ++seed) {
            const TextOptions options{seed % 2 == 0 ? Values::Limits : Values::Wild, seed, 1 + seed % 5, 1 + seed % 3};
            const GuardedText text(TemplateText(row, options));
            const std::int32_t result = call.Run(text.get());
            ASSERT_TRUE(result == 0 || result == 1) << row.name;
        }
    }
}

TEST(TemplateTexts, EveryAllocationMayFail) {
    for (const TemplateRow& row : Templates()) {
        TemplateCall call(row);
        const std::string text = TemplateText(row, {});
        for (const bool onwards : {false, true}) {
            for (std::size_t n = 1; n < 60; ++n) {
                HeapWatch heap;
                onwards ? heap.FailFrom(n) : heap.FailOnly(n);
                const std::int32_t result = call.Run(text.c_str());
                const bool failed = heap.failures() > 0;
                heap.FailNone();
                ASSERT_LE(heap.liveBlocks(), 0) << row.name << " without allocation " << n;
                ASSERT_EQ(result, failed ? 0 : 1) << row.name << " without allocation " << n;
                ASSERT_TRUE(!failed || row.table->items != nullptr || call.isClear()) << row.name;
                if (!failed) break;
            }
        }
    }
}

} // namespace
} // namespace orrery

// The stack that calls need, as orrery.h tells it, for every command and every event, on a thread that has no more than
// 96 KB of it: what runs past that ends the program at an unreadable page.
#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "frame/PackedItems.h"
#include "orrery/alarm_input.h"
#include "orrery/analyse_rules.h"
#include "support/CommandCalls.h"
#include "support/Events.h"
#include "support/Locales.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(coverage_sanitizer)
#define SANITIZED 1
#endif
#endif

#if !defined(SANITIZED) && defined(__OPTIMIZE__) // without, frames are larger than those of the library that ships

namespace orrery {
namespace {

using namespace test;

// What orrery.h tells.
constexpr std::size_t kParse = std::size_t{40} << 10;
constexpr std::size_t kPack = std::size_t{28} << 10;
constexpr std::size_t kEvents = std::size_t{56} << 10;
#if defined(__aarch64__)
constexpr std::size_t kTyped = std::size_t{80} << 10;
#else
constexpr std::size_t kTyped = std::size_t{72} << 10;
#endif

class SmallThread {
  public:
    SmallThread() {
        memory_ = static_cast<unsigned char*>(
            mmap(nullptr, kGuard + size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        if (memory_ == MAP_FAILED || mprotect(memory_, kGuard, PROT_NONE) != 0) std::abort();
        const std::function<void()> nothing = [] {};
        std::memset(memory_ + kGuard, kPaint, size_);
        ownUse_ = Depth(nothing);
    }
    SmallThread(const SmallThread&) = delete;
    SmallThread& operator=(const SmallThread&) = delete;
    ~SmallThread() { munmap(memory_, kGuard + size_); }

    // The bytes of stack that the call has written, beyond those of a thread that does nothing.
    std::size_t Run(const std::function<void()>& call) {
        const std::size_t depth = Depth(call);
        return depth > ownUse_ ? depth - ownUse_ : 0;
    }

  private:
    static constexpr std::size_t kGuard = std::size_t{64} << 10;
    static constexpr unsigned char kPaint = 0xC7;

    std::size_t Depth(const std::function<void()>& call) {
        pthread_attr_t attributes;
        pthread_attr_init(&attributes);
        if (pthread_attr_setstack(&attributes, memory_ + kGuard, size_) != 0) std::abort();
        pthread_t thread;
        const auto run = [](void* what) -> void* {
            (*static_cast<const std::function<void()>*>(what))();
            return nullptr;
        };
        if (pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&call)) != 0) std::abort();
        pthread_join(thread, nullptr);
        pthread_attr_destroy(&attributes);
        unsigned char* const end = memory_ + kGuard + size_;
        unsigned char* const deepest = std::find_if(memory_ + kGuard, end, [](unsigned char b) { return b != kPaint; });
        std::memset(deepest, kPaint, static_cast<std::size_t>(end - deepest));
        return static_cast<std::size_t>(end - deepest);
    }

    // As much as is wanted, or the least that a thread has: 128 KB on Arm.
    const std::size_t size_ =
        std::max(std::size_t{96} << 10, static_cast<std::size_t>(std::max(sysconf(_SC_THREAD_STACK_MIN), 0L)));
    unsigned char* memory_;
    std::size_t ownUse_ = 0;
};

// With GBK around it, texts are converted too, which needs more.
class StackIn : public CompiledLocales {
  protected:
    void SetUp() override {
        CompiledLocales::SetUp();
        Compile("GBK", "zh_CN.GBK");
        locale_.emplace("zh_CN.GBK");
        ASSERT_TRUE(locale_->isThere());
        // The first use of a converter loads it, by a stack of the dynamic linker's.
        char field[8];
        StackArena<64> arena;
        LocalText(arena).ConvertUtf8ToLocal("\xE4\xB8\xAD", 3, field, sizeof field);
        LocalText(arena).ConvertLocalToUtf8("\xD6\xD0", 2, field, sizeof field);
    }
    void TearDown() override {
        locale_.reset();
        CompiledLocales::TearDown();
    }
    std::optional<ProcessLocale> locale_;
};

TEST_F(StackIn, ParsesAndPacks) {
    SmallThread thread;
    std::size_t parse = 0, pack = 0;
    std::vector<char> room(std::size_t{8} << 20);
    for (const Command& command : DistinctCommands()) {
        for (const Values values : {Values::Typical, Values::Limits}) {
            std::vector<std::byte> buffer(2 * std::size_t{command.table->size});
            CallerMemory memory;
            memory.PrepareBuffer(command, buffer.data(), buffer.size());
            if (command.parses()) {
                const std::string text = ReplyText(command, {.values = values, .most = 3});
                parse = std::max(parse, thread.Run([&] {
                    RunParse(command,
                             {text.c_str(), buffer.data(), static_cast<std::uint32_t>(buffer.size()), nullptr});
                }));
            }
            if (!command.packs()) continue;
            pack = std::max(pack, thread.Run([&] {
                RunPack(command, {buffer.data(), static_cast<std::uint32_t>(buffer.size()), room.data(),
                                  static_cast<std::uint32_t>(room.size())});
            }));
        }
    }
    RecordProperty("parse", static_cast<int>(parse));
    RecordProperty("pack", static_cast<int>(pack));
    EXPECT_LE(parse, kParse);
    EXPECT_GT(parse, kParse / 2) << "much less than is told";
    EXPECT_LE(pack, kPack);
    EXPECT_GT(pack, kPack / 2) << "much less than is told";
}

TEST_F(StackIn, AnalysisRules) {
    SmallThread thread;
    const Command* const command = FindCommand("VideoAnalyseRule");
    ASSERT_NE(command, nullptr);
    std::size_t parse = 0, pack = 0;
    std::vector<char> room(std::size_t{8} << 20);
    for (const RuleBody& body : RuleBodies()) {
        const std::string_view name = RuleNameOf(static_cast<std::int32_t>(body.code), false);
        JsonTree rule = RecordTree(*body.table, {});
        rule.Add("Type", JsonTree::String(name));
        rule.Add("Class", JsonTree::String("Normal"));
        const std::string text = R"({"result":true,"params":{"table":[)" + rule.Text() + "]}}";
        CFG_ANALYSERULES_INFO rules = {};
        std::vector<std::byte> items(sizeof(CFG_RULE_INFO) + body.size);
        rules.pRuleBuf = reinterpret_cast<std::uint8_t*>(items.data());
        rules.nRuleLen = static_cast<std::int32_t>(items.size());
        parse = std::max(parse, thread.Run([&] { RunParse(*command, {text.c_str(), &rules, sizeof rules, nullptr}); }));
        pack = std::max(pack, thread.Run([&] {
            RunPack(*command, {&rules, sizeof rules, room.data(), static_cast<std::uint32_t>(room.size())});
        }));
    }
    EXPECT_LE(parse, kParse);
    EXPECT_LE(pack, kPack);
}

TEST_F(StackIn, EventsAndCallsOutOfTheirCallback) {
    SmallThread thread;
    std::size_t events = 0, nestedParse = 0, nestedPack = 0;
    struct Nested {
        std::unique_ptr<CFG_ALARM_INPUT_INFO> alarm = std::make_unique<CFG_ALARM_INPUT_INFO>();
        std::vector<char> room = std::vector<char>(std::size_t{1} << 20);
        std::string reply = ReplyText(*FindCommand("Alarm"));
    } nested;
    const auto nothing = [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) { return 0; };
    const auto parses = [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void* user) {
        auto& to = *static_cast<Nested*>(user);
        return CLIENT_ParseData("Alarm", to.reply.c_str(), to.alarm.get(), sizeof *to.alarm, nullptr);
    };
    const auto packs = [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void* user) {
        auto& to = *static_cast<Nested*>(user);
        return CLIENT_PacketData("Alarm", to.alarm.get(), sizeof *to.alarm, to.room.data(),
                                 static_cast<std::uint32_t>(to.room.size()));
    };
    for (const events::EventRow& row : events::Events()) {
        if (row.name.empty()) continue;
        const std::string text = EventText(row.name, RecordTree(*row.table, {}).Text());
        events =
            std::max(events, thread.Run([&] { CLIENT_ParseAnalyzerEventData(text.c_str(), 0, nothing, nullptr); }));
        nestedParse =
            std::max(nestedParse, thread.Run([&] { CLIENT_ParseAnalyzerEventData(text.c_str(), 0, parses, &nested); }));
        nestedPack =
            std::max(nestedPack, thread.Run([&] { CLIENT_ParseAnalyzerEventData(text.c_str(), 0, packs, &nested); }));
    }
    RecordProperty("events", static_cast<int>(events));
    RecordProperty("nestedParse", static_cast<int>(nestedParse));
    EXPECT_LE(events, kEvents);
    EXPECT_GT(events, kEvents / 2) << "much less than is told";
    EXPECT_LE(nestedParse, kEvents + kParse);
    EXPECT_LE(nestedPack, kEvents + kPack);
}

// Each key of a typed text alone, one with all kinds of rules in turn, and every template under a class of its own.
TEST_F(StackIn, TypedTextsAndTemplates) {
    SmallThread thread;
    std::size_t typed = 0, nested = 0, templates = 0;
    auto alarm = std::make_unique<CFG_ALARM_INPUT_INFO>();
    const std::string reply = ReplyText(*FindCommand("Alarm"));
    struct User {
        CFG_ALARM_INPUT_INFO* alarm;
        const char* reply;
    } user{alarm.get(), reply.c_str()};
    const auto nothing = [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) { return 0; };
    const auto parses = [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void* what) {
        const auto& to = *static_cast<const User*>(what);
        return CLIENT_ParseData("Alarm", to.reply, to.alarm, sizeof *to.alarm, nullptr);
    };
    const auto valueOf = [](const record::Table& table, std::uint32_t turn, bool asList) {
        if (table.items == nullptr) return RecordTree(table, {}).Text();
        const ItemType type = table.items->typeAt(turn % table.items->typeCount);
        JsonTree rule = RecordTree(*type.table, {});
        rule.Add("Type", JsonTree::String(std::string(type.name)));
        rule.Add("Class", JsonTree::String("Normal"));
        return asList ? "[" + rule.Text() + "]" : "{\"a\":" + rule.Text() + "}";
    };
    const auto deliver = [&](const std::string& text) {
        typed = std::max(typed, thread.Run([&] { CLIENT_ParseDataByCallback(text.c_str(), 0, nothing, nullptr); }));
        nested = std::max(nested, thread.Run([&] { CLIENT_ParseDataByCallback(text.c_str(), 0, parses, &user); }));
    };
    for (const events::TypedRow& row : events::TypedRows()) {
        for (std::uint32_t turn = 0; turn < (row.table->items != nullptr ? row.table->items->typeCount : 1); ++turn) {
            const std::string value = valueOf(*row.table, turn, true);
            deliver("{\"" + std::string(row.name) + "\":" + (row.isList ? "[" + value + "]" : value) + "}");
        }
    }
    for (const events::EventRow& row : events::Events()) {
        if (!row.name.empty()) deliver(EventText(row.name, RecordTree(*row.table, {}).Text()));
    }
    for (const TemplateRow& row : Templates()) {
        std::vector<std::byte> buffer(row.table->size);
        CallerMemory memory;
        for (std::uint32_t turn = 0; turn < (row.table->items != nullptr ? row.table->items->typeCount : 1); ++turn) {
            memory.Reset();
            memory.PrepareRecord(*row.table, buffer.data());
            const bool isRead = row.table->items == nullptr || row.table->items->typeAt(turn).isRead;
            const std::string value = valueOf(*row.table, turn, false);
            const std::string text =
                R"({"result":true,"params":)" + (row.isByClass ? "{\"Traffic\":" + value + "}" : value) + "}";
            std::int32_t done = -1;
            templates = std::max(templates, thread.Run([&] {
                done = CLIENT_ParseVideoInAnalyse(row.name.data(), CFG_RULE_CLASS_TRAFFIC, text.c_str(), &user,
                                                  buffer.data(), row.table->size);
            }));
            EXPECT_EQ(done, isRead ? 1 : 0) << text.substr(0, 200);
        }
    }
    RecordProperty("typed", static_cast<int>(typed));
    RecordProperty("nested", static_cast<int>(nested));
    RecordProperty("templates", static_cast<int>(templates));
    EXPECT_LE(typed, kTyped);
    EXPECT_GT(typed, kTyped / 2) << "much less than is told";
    EXPECT_LE(nested, kTyped + kParse);
    EXPECT_LE(templates, kParse);
}

} // namespace
} // namespace orrery

#endif

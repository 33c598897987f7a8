// Explaining while there is no memory: each allocation fails in turn, be it the library's or a text's beside it.
#include "explain/Explained.h"

#include "support/FailingAllocator.h"

#include "orrery/alarm_input.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>

namespace orrery::test {
namespace {

// What is told goes to memory of its own, which does not fail.
struct Told {
    static constexpr std::size_t kRoom = 64;
    std::int32_t kinds[kRoom] = {};
    std::uint64_t offsets[kRoom] = {};
    std::size_t count = 0;

    bool operator==(const Told&) const = default;

    static std::int32_t Take(const ORRERY_FINDING* finding, void* user) {
        auto& told = *static_cast<Told*>(user);
        if (told.count == kRoom) return 0;
        told.kinds[told.count] = finding->nKind;
        told.offsets[told.count] = finding->nOffset;
        ++told.count;
        return 1;
    }
    static std::int32_t TakeFit(const ORRERY_FIT* fit, void* user) {
        auto& told = *static_cast<Told*>(user);
        if (told.count == kRoom) return 0;
        told.kinds[told.count] = static_cast<std::int32_t>(fit->nRead);
        ++told.count;
        return 1;
    }
};

using Call = std::function<std::int32_t(Told&)>;

// Calls with the first allocation failing, then the second, until none has failed; `attempt` answers whether one did.
// Either all is told, or that there was no memory and nothing. Answers how many times there was none.
template <class Attempt>
std::size_t FailsInTurn(const Call& call, const char* what, const Attempt& attempt) {
    Told whole;
    const std::int32_t expected = call(whole);
    EXPECT_GT(expected, 0);
    std::size_t failures = 0;
    constexpr std::size_t kMost = 20'000;
    std::size_t n = 1;
    for (bool isEnd = false; !isEnd && n < kMost; ++n) {
        Told told;
        std::int32_t count = 0;
        isEnd = !attempt(n, [&] { count = call(told); });
        if (count == ORRERY_EXPLAIN_NO_MEMORY) {
            ++failures;
            EXPECT_EQ(told.count, 0u) << what << ' ' << n;
        } else {
            EXPECT_EQ(count, expected) << what << ' ' << n;
            EXPECT_TRUE(told == whole) << what << ' ' << n;
        }
    }
    EXPECT_LT(n, kMost);
    return failures;
}

// Of the library beside the core, and of the core.
std::size_t NewFailsInTurn(const Call& call) {
    return FailsInTurn(call, "new", [](std::size_t n, const auto& run) {
        const NewWatch watch(n);
        run();
        return watch.hasFailed();
    });
}
std::size_t MallocFailsInTurn(const Call& call) {
    return FailsInTurn(call, "malloc", [](std::size_t n, const auto& run) {
        HeapWatch watch;
        watch.FailOnly(n);
        run();
        return watch.failures() > 0;
    });
}
std::size_t FailsInTurn(const Call& call) {
    return NewFailsInTurn(call) + MallocFailsInTurn(call);
}

std::size_t Replies(const char* command, const std::string& text) {
    return FailsInTurn(
        [&](Told& told) { return ORRERY_ExplainReply(command, text.data(), text.size(), 0, Told::Take, &told); });
}

TEST(NoMemory, ForFindingsOfEveryKind) {
    EXPECT_GT(Replies("NTP", R"({"result":true,"params":{"table":{"Prot":1,"Port":"x","Port":"y","Enable":null}}} {})"),
              20u);
    EXPECT_GT(Replies("Alarm", R"({"result":true,"params":{"table":[{"Nmae":1,"SensorType":"none"},[],{"Name":")"
                                   + std::string(200, 'n') + R"("}]}})"),
              5u);
    EXPECT_GT(Replies("NTP", R"({"result":)"), 2u);
}

TEST(NoMemory, WhereFunctionsAreTried) {
    EXPECT_GT(Replies("VideoWidget", R"({"result":true,"params":{"table":[{"Nonsense":1,"Other":2}]}})"), 5u);
    EXPECT_GT(
        Replies("VideoAnalyseRule", R"({"result":true,"params":{"table":[{"Type":"CrossLineDetection","Nmae":1}]}})"),
        5u);
    // A document that is no reply's usual size, so that reading it again takes memory as well.
    std::string list;
    for (int i = 0; i < 6000; ++i)
        list += "1,";
    list.back() = ']';
    EXPECT_GT(Replies("VideoWidget", R"({"result":true,"params":{"table":[{"Nonsense":[)" + list + R"(,"Other":2}]}})"),
              5u);
}

// Pictures in pictures are read by their document, of which each try makes a new one: here with more than fits the
// stack. A try without memory must not pass for one that reads something else.
TEST(NoMemory, InsideATry) {
    std::string list;
    for (int i = 0; i < 2000; ++i)
        list += "[1,2],";
    list.back() = ']';
    const std::string text =
        R"({"id":[)" + list + R"(,"result":true,"params":{"table":{"PIP1":[{"Nonsense":1,"Other":2}]}}})";
    EXPECT_GT(MallocFailsInTurn([&](Told& told) {
                  return ORRERY_ExplainReply("PicInPic", text.data(), text.size(), 0, Told::Take, &told);
              }),
              5u);
}

TEST(NoMemory, ForADocumentThatIsLargerThanTheStack) {
    std::string list;
    for (int i = 0; i < 3000; ++i)
        list += R"({"Name":"alarm","Nothing":[1,2,3]},)";
    list.back() = ']';
    // Not each of thousands of findings: the first and the last allocations of the document are those that matter.
    const std::string text = R"({"result":true,"params":{"table":[)" + list + "}}";
    for (std::size_t n = 1; n < 12; ++n) {
        Told told;
        HeapWatch watch;
        watch.FailOnly(n);
        const std::int32_t count = ORRERY_ExplainReply("Alarm", text.data(), text.size(), 0, Told::Take, &told);
        if (watch.failures() > 0) {
            EXPECT_EQ(count, ORRERY_EXPLAIN_NO_MEMORY) << n;
        }
    }
}

TEST(NoMemory, ForEvents) {
    const std::string text = R"({"Event":[{"Code":"NoSuchEvent"},{"Code":"AlarmLocal","Data":{},"Actoin":1}]})";
    EXPECT_GT(
        FailsInTurn([&](Told& told) { return ORRERY_ExplainEvents(text.data(), text.size(), Told::Take, &told); }), 5u);
}

TEST(NoMemory, ForRecords) {
    const auto alarm = std::make_unique<CFG_ALARM_INPUT_INFO>();
    alarm->nChannel = 3;
    EXPECT_GT(FailsInTurn([&](Told& told) {
                  return ORRERY_ExplainRecord("Alarm", alarm.get(), sizeof *alarm, Told::Take, &told);
              }),
              5u);
}

TEST(NoMemory, ForFits) {
    const std::string text = R"({"result":true,"params":{"table":{"Port":123,"UpdatePeriod":10}}})";
    Told whole;
    const std::int32_t expected = ORRERY_FindFits(text.data(), text.size(), Told::TakeFit, &whole);
    for (std::size_t n = 1; n < 400; n += 7) {
        Told told;
        const NewWatch watch(n);
        const std::int32_t count = ORRERY_FindFits(text.data(), text.size(), Told::TakeFit, &told);
        if (count != ORRERY_EXPLAIN_NO_MEMORY || !watch.hasFailed()) {
            EXPECT_EQ(count, expected) << n;
        }
    }
}

} // namespace
} // namespace orrery::test

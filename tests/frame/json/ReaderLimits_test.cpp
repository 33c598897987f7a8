// What a hostile sender may try: depth, length, order, and a heap that gives nothing.
#include "frame/json/Reader.h"

#include "support/FailingAllocator.h"
#include "support/GuardedBuffer.h"
#include "support/JsonText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <map>
#include <numeric>
#include <random>
#include <vector>

namespace orrery::json {
namespace {

using test::Document;

std::string Repeated(std::string_view piece, std::size_t count) {
    std::string text;
    text.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

constexpr std::size_t kMillion = 1000000;

TEST(ReaderLimits, RefusesAMillionOpenArrays) {
    const Document document(std::string(kMillion, '['));
    EXPECT_FALSE(document.ok);
    EXPECT_EQ(document.error.offset, kMillion);
    EXPECT_FALSE(document.arena.failed());
}

TEST(ReaderLimits, ReadsAMillionLevelsOfArrays) {
    const Document document(std::string(kMillion, '[') + std::string(kMillion, ']'));
    ASSERT_TRUE(document.ok);
    const Value* value = &document.root;
    std::size_t levels = 1;
    for (; value->size() == 1; value = &(*value)[0U])
        ++levels;
    EXPECT_EQ(levels, kMillion);
    EXPECT_EQ(value->size(), 0U);
}

TEST(ReaderLimits, ReadsDeepObjectsWhetherSortedOrNot) {
    constexpr std::size_t kLevels = 300000;
    const std::string text = Repeated(R"({"b":0,"a":)", kLevels) + "1" + Repeated(R"(,"c":2})", kLevels);
    const Document document(text);
    ASSERT_TRUE(document.ok);
    const Value* value = &document.root;
    std::size_t levels = 0;
    for (; value->size() == 3; value = &(*value)["a"]) {
        ASSERT_EQ((*value)["b"].asInt(), 0);
        ASSERT_EQ((*value)["c"].asInt(), 2);
        ++levels;
    }
    EXPECT_EQ(levels, kLevels);
    EXPECT_EQ(value->asInt(), 1);
}

TEST(ReaderLimits, ReadsAMillionDigits) {
    EXPECT_TRUE(std::isinf(Document(std::string(kMillion, '9')).root.asDouble()));
    EXPECT_EQ(Document("0." + std::string(kMillion, '9')).root.asDouble(), 1.0);
    EXPECT_EQ(Document("0." + std::string(kMillion, '0') + "1").root.asDouble(), 0.0);
    EXPECT_EQ(Document(std::string(kMillion, '0') + "7").root.asInt(), 7);
    EXPECT_TRUE(std::isinf(Document("1e" + std::string(kMillion, '9')).root.asDouble()));
    EXPECT_EQ(Document("1e-" + std::string(kMillion, '9')).root.asDouble(), 0.0);
    // The exponent takes back what the digits add.
    EXPECT_EQ(Document("1" + std::string(kMillion, '0') + "e-1000000").root.asDouble(), 1.0);
    EXPECT_EQ(Document("0." + std::string(kMillion - 1, '0') + "1e1000000").root.asDouble(), 1.0);
    EXPECT_FALSE(Document(std::string(kMillion, '-')).ok);
}

TEST(ReaderLimits, ReadsLongStringsCommentsAndBlanks) {
    const std::string body(kMillion, 'x');
    EXPECT_EQ(Document("\"" + body + "\"").root.asString(), body);
    EXPECT_EQ(Document("\"" + Repeated("\\n", kMillion) + "\"").root.asString(), std::string(kMillion, '\n'));
    EXPECT_EQ(Document(std::string(kMillion, ' ') + "/*" + std::string(kMillion, '*') + "*/" + "//" + body + "\n1")
                  .root.asInt(),
              1);
    EXPECT_EQ(Document(Repeated("/**/", kMillion) + "1").root.asInt(), 1);
    EXPECT_FALSE(Document(Repeated("/*", kMillion)).ok);
}

// Objects of `count` members named by `keyOf(i)`, in that order, against a map that was given the same.
template <class KeyOf>
void ExpectSorted(std::size_t count, KeyOf keyOf) {
    std::map<std::string, std::int32_t> expected;
    std::string text = "{";
    for (std::size_t i = 0; i < count; ++i) {
        const std::string key = keyOf(i);
        expected[key] = static_cast<std::int32_t>(i);
        text += (i > 0 ? ",\"" : "\"") + key + "\":" + std::to_string(i);
    }
    text += "}";
    const Document document(text);
    ASSERT_TRUE(document.ok);
    ASSERT_EQ(document.root.size(), expected.size());
    auto next = expected.begin();
    for (const Member& member : document.root.members()) {
        ASSERT_EQ(member.key(), next->first);
        ASSERT_EQ(member.value.asInt(), next->second);
        ++next;
    }
}

TEST(ReaderLimits, SortsWhateverOrderTheKeysComeIn) {
    std::mt19937 random(46);
    for (const std::size_t count : {0, 1, 2, 3, 7, 8, 9, 15, 16, 17, 31, 33, 100, 1000, 100000}) {
        SCOPED_TRACE(count);
        const auto numbered = [](std::size_t i) { return "key" + std::to_string(10000000 + i); };
        ExpectSorted(count, numbered);
        ExpectSorted(count, [&](std::size_t i) { return numbered(count - i); });
        ExpectSorted(count, [&](std::size_t i) { return numbered(i % 2 == 0 ? i : count - i); });
        ExpectSorted(count, [&](std::size_t i) { return numbered(i < count / 2 ? 2 * i : 2 * (count - i) + 1); });
        ExpectSorted(count, [&](std::size_t) { return numbered(random() % (count + 1)); });
        ExpectSorted(count, [&](std::size_t i) { return numbered(i % 5); });
        ExpectSorted(count, [&](std::size_t) { return std::string("same"); });
        ExpectSorted(count, [&](std::size_t) { return std::to_string(random() % 1000); });
    }
}

TEST(ReaderLimits, LoadsNothingBeyondTheTextsEnd) {
    const std::string text =
        R"( { "a" : [ 1, -2.5e3, true, false, null ], "bcdefghijklmnop" : "0123456789abcdef0123", )"
        R"("esc\n\u0041\ud83d\ude00" : "\\", "x" : { } , "w":"y"/* end */, "":"" } )";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        const test::GuardedBuffer front(std::string_view(text).substr(0, length));
        EXPECT_EQ(Document(front.view()).ok, length >= text.size() - 1) << length;
        // Every piece of the text, too: as the beginning of a text and inside an array and an object.
        for (const char* opening : {"", "[", "{\"k\":", "{\"k\":1,"}) {
            const test::GuardedBuffer back(opening + text.substr(length));
            Document(back.view());
        }
    }
}

TEST(ReaderLimits, ReadsSmallReplysWithoutTheHeap) {
    std::string table;
    for (int i = 0; table.size() < 3900; ++i) {
        table += (i > 0 ? ", " : "") + std::string(R"({ "Address" : "192.168.1.108", "Enable" : true, "Port" : 123, )")
                 + R"("TimeSection" : [ "1 08:00:00-17:30:00", "0 00:00:00-23:59:59" ] })";
    }
    const std::string reply = R"({ "params" : { "table" : [ )" + table + R"( ] }, "result" : true })";
    ASSERT_GT(reply.size(), 3900U);
    const std::string densest = "[" + Repeated("1,", 1000) + "1]"; // 16 bytes of memory for every two of text
    for (const std::string& text : {reply, densest}) {
        test::HeapWatch heap;
        StackArena<16384> arena;
        Value root;
        EXPECT_TRUE(Parse(text, arena, root));
        EXPECT_EQ(heap.allocations(), 0U);
    }
}

std::string LargeText() {
    std::string text = "{\"z\":[";
    for (int i = 0; i < 4000; ++i)
        text += R"({"b":"te\nxt","a":[1,2,3],"\u0063":{}},)";
    return text + "[1]],\"y\":[" + Repeated("[1],", 20000) + "[1]],\"a\":" + std::string(5000, '[')
           + std::string(5000, ']') + "}";
}

TEST(ReaderLimits, FailsQuietlyWhicheverAllocationFails) {
    const std::string text = LargeText();
    std::size_t allocations = 0;
    {
        test::HeapWatch heap;
        {
            StackArena<64> arena;
            Value root;
            ASSERT_TRUE(Parse(text, arena, root));
            EXPECT_FALSE(arena.failed());
        }
        allocations = heap.allocations();
        EXPECT_EQ(heap.liveBlocks(), 0);
        EXPECT_EQ(heap.liveBytes(), 0);
    }
    ASSERT_GT(allocations, 5U);
    for (std::size_t n = 1; n <= allocations; ++n) {
        for (const bool onwards : {false, true}) {
            test::HeapWatch heap;
            onwards ? heap.FailFrom(n) : heap.FailOnly(n);
            {
                StackArena<64> arena;
                Value root;
                SyntaxError error;
                EXPECT_FALSE(Parse(text, arena, root, &error));
                EXPECT_TRUE(arena.failed());
                EXPECT_EQ(error.message, nullptr);
            }
            EXPECT_EQ(heap.failures(), 1U);
            EXPECT_EQ(heap.liveBlocks(), 0);
        }
    }
}

TEST(ReaderLimits, RefusesATextTooLongToBeCounted) {
    constexpr std::size_t kSize = (std::size_t{1} << 32) + 8;
    void* const memory = mmap(nullptr, kSize, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(memory, MAP_FAILED) << "no room for a text of 4 GiB";
    const Document document(std::string_view(static_cast<const char*>(memory), kSize));
    EXPECT_FALSE(document.ok);
    EXPECT_STREQ(document.error.message, "Text of four gigabytes or more");
    munmap(memory, kSize);
}

TEST(ReaderLimits, TakesTimeInProportionToTheText) {
    // Not a benchmark: a quadratic step would take minutes of the processor here, however busy the machine is.
    const std::clock_t started = std::clock();
    constexpr std::size_t kMany = 4 * kMillion;
    EXPECT_FALSE(Document(std::string(kMany, '[')).ok);
    EXPECT_FALSE(Document(Repeated("{\"\":", kMany)).ok);
    EXPECT_TRUE(Document("[" + Repeated("[],", kMany) + "1]").ok);
    EXPECT_TRUE(Document("{" + Repeated("\"\":{},", kMany) + "\"\":1}").ok);
    EXPECT_FALSE(Document(Repeated("/*", kMany)).ok);
    EXPECT_LT(std::clock() - started, 30 * CLOCKS_PER_SEC);
}

} // namespace
} // namespace orrery::json

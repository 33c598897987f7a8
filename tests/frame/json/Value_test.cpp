#include "frame/json/Value.h"

#include "support/FailingAllocator.h"
#include "support/JsonText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace orrery::json {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Conversion {
    Value value;
    bool asBool;
    std::int32_t asInt;
    std::uint32_t asUInt;
    double asDouble;
    const char* asString;
};

TEST(Value, ConvertsFromEveryTypeToEveryType) {
    Value one = Value::OfInt(1);
    Member member{"k", 1, Value{}};
    const Conversion rows[] = {
        {Value{}, false, 0, 0, 0.0, ""},
        {Value::OfInt(0), false, 0, 0, 0.0, ""},
        {Value::OfInt(7), true, 7, 7, 7.0, ""},
        {Value::OfInt(-7), true, -7, 0, -7.0, ""},
        {Value::OfInt(2147483647), true, 2147483647, 2147483647U, 2147483647.0, ""},
        {Value::OfInt(-2147483647 - 1), true, -2147483647 - 1, 0, -2147483648.0, ""},
        {Value::OfUInt(0), false, 0, 0, 0.0, ""},
        {Value::OfUInt(2147483646U), true, 2147483646, 2147483646U, 2147483646.0, ""},
        {Value::OfUInt(2147483647U), true, 0, 2147483647U, 2147483647.0, ""},
        {Value::OfUInt(4294967295U), true, 0, 4294967295U, 4294967295.0, ""},
        {Value::OfReal(0.0), false, 0, 0, 0.0, ""},
        {Value::OfReal(-0.0), false, 0, 0, 0.0, ""},
        {Value::OfReal(0.5), true, 0, 0, 0.5, ""},
        {Value::OfReal(2.9), true, 2, 2, 2.9, ""},
        {Value::OfReal(-2.9), true, -2, 0, -2.9, ""},
        {Value::OfReal(-0.5), true, 0, 0, -0.5, ""},
        {Value::OfReal(2147483647.0), true, 2147483647, 2147483647U, 2147483647.0, ""},
        {Value::OfReal(2147483647.5), true, 0, 2147483647U, 2147483647.5, ""},
        {Value::OfReal(-2147483648.0), true, -2147483647 - 1, 0, -2147483648.0, ""},
        {Value::OfReal(-2147483648.5), true, 0, 0, -2147483648.5, ""},
        {Value::OfReal(4294967295.0), true, 0, 4294967295U, 4294967295.0, ""},
        {Value::OfReal(4294967295.5), true, 0, 0, 4294967295.5, ""},
        {Value::OfReal(kInfinity), true, 0, 0, kInfinity, ""},
        {Value::OfReal(-kInfinity), true, 0, 0, -kInfinity, ""},
        {Value::OfString(""), false, 0, 0, 0.0, ""},
        {Value::OfString("12"), true, 0, 0, 0.0, "12"},
        {Value::OfString("false"), true, 0, 0, 0.0, "false"},
        {Value::OfBool(true), true, 1, 1, 1.0, "true"},
        {Value::OfBool(false), false, 0, 0, 0.0, "false"},
        {Value::OfArray(nullptr, 0), false, 0, 0, 0.0, ""},
        {Value::OfArray(&one, 1), true, 0, 0, 0.0, ""},
        {Value::OfObject(nullptr, 0), false, 0, 0, 0.0, ""},
        {Value::OfObject(&member, 1), true, 0, 0, 0.0, ""},
    };
    for (const Conversion& row : rows) {
        SCOPED_TRACE(test::TextOf(row.value));
        EXPECT_EQ(row.value.asBool(), row.asBool);
        EXPECT_EQ(row.value.asInt(), row.asInt);
        EXPECT_EQ(row.value.asUInt(), row.asUInt);
        EXPECT_EQ(row.value.asDouble(), row.asDouble);
        EXPECT_EQ(row.value.asString(), row.asString);
    }
}

TEST(Value, TakesNotANumberForTrueAndForNoInteger) {
    const Value value = Value::OfReal(kNaN);
    EXPECT_TRUE(value.asBool());
    EXPECT_EQ(value.asInt(), 0);
    EXPECT_EQ(value.asUInt(), 0U);
    EXPECT_TRUE(std::isnan(value.asDouble()));
}

struct TypeRow {
    Value value;
    bool isNull, isArray, isObject, isString, isBool, isInt, isUInt, isIntegral;
};

TEST(Value, TellsItsTypeAndTakesNullForAnEmptyArrayAndObject) {
    const TypeRow rows[] = {
        {Value{}, true, true, true, false, false, false, false, false},
        {Value::OfInt(1), false, false, false, false, false, true, false, true},
        {Value::OfUInt(1), false, false, false, false, false, false, true, true},
        {Value::OfReal(1), false, false, false, false, false, false, false, false},
        {Value::OfString("a"), false, false, false, true, false, false, false, false},
        {Value::OfBool(true), false, false, false, false, true, false, false, true},
        {Value::OfArray(nullptr, 0), false, true, false, false, false, false, false, false},
        {Value::OfObject(nullptr, 0), false, false, true, false, false, false, false, false},
    };
    for (const TypeRow& row : rows) {
        SCOPED_TRACE(test::TextOf(row.value));
        EXPECT_EQ(row.value.isNull(), row.isNull);
        EXPECT_EQ(row.value.isArray(), row.isArray);
        EXPECT_EQ(row.value.isObject(), row.isObject);
        EXPECT_EQ(row.value.isString(), row.isString);
        EXPECT_EQ(row.value.isBool(), row.isBool);
        EXPECT_EQ(row.value.isInt(), row.isInt);
        EXPECT_EQ(row.value.isUInt(), row.isUInt);
        EXPECT_EQ(row.value.isIntegral(), row.isIntegral);
    }
}

TEST(Value, YieldsNullForEveryLookUpThatMisses) {
    const test::Document document(R"({"list":[1,[2]],"text":"abc"})");
    const Value& root = document.root;
    EXPECT_EQ(root["list"][0U].asInt(), 1);
    EXPECT_EQ(root["list"][1U][0U].asInt(), 2);
    for (const Value* miss : {&root["none"], &root["none"]["deeper"][3U], &root[0U], &root["list"]["key"],
                              &root["list"][2U], &root["text"]["a"], &root["text"][0U], &kNull[4294967295U]}) {
        EXPECT_EQ(miss, &kNull);
    }
    EXPECT_EQ(root["text"].size(), 0U);
    EXPECT_EQ(root["list"].size(), 2U);
    EXPECT_EQ(root.size(), 2U);
    EXPECT_TRUE(root.elements().empty());
    EXPECT_TRUE(root["list"].members().empty());
}

TEST(Value, FindsEveryMemberOfObjectsOfAnySize) {
    for (std::uint32_t count = 0; count < 40; ++count) {
        std::string text = "{";
        for (std::uint32_t i = 0; i < count; ++i)
            text += (i == 0 ? "\"key" : ",\"key") + std::to_string(i) + "\":" + std::to_string(i);
        text += "}";
        const test::Document document(text);
        const Value& object = document.root;
        ASSERT_EQ(object.size(), count);
        for (std::uint32_t i = 0; i < count; ++i) {
            EXPECT_EQ(object["key" + std::to_string(i)].asInt(), static_cast<std::int32_t>(i));
        }
        EXPECT_TRUE(object["key"].isNull());
        EXPECT_TRUE(object["key0x"].isNull());
        EXPECT_TRUE(object["zzz"].isNull());
        EXPECT_TRUE(object[""].isNull());
    }
}

TEST(Value, KeepsMembersInByteOrderHoweverTheyCome) {
    const test::Document document("{\"b\":0,\"\x80\":1,\"a\":2,\"Z\":3,\"\":4,\"ab\":5,\"b\":6,\"\xff\":7,\"\x7f\":8}");
    ASSERT_TRUE(document.ok);
    EXPECT_EQ(test::TextOf(document.root), "{ \"\" : 4, \"Z\" : 3, \"a\" : 2, \"ab\" : 5, \"b\" : 6, "
                                           "\"\x7f\" : 8, \"\x80\" : 1, \"\xff\" : 7 }");
}

// --- ArrayDepth ---

int Depth(std::string_view text, unsigned sampleShift = 4) {
    test::Document document(text);
    EXPECT_TRUE(document.ok) << text;
    return ArrayDepth(document.root, sampleShift, document.arena);
}

TEST(ArrayDepth, CountsLevelsOfArrays) {
    EXPECT_EQ(Depth("null"), -1);
    EXPECT_EQ(Depth("1"), 0);
    EXPECT_EQ(Depth("{}"), 0);
    EXPECT_EQ(Depth(R"({"a":[[1]]})"), 0);
    EXPECT_EQ(Depth("[]"), 0);
    EXPECT_EQ(Depth("[null]"), 0);
    EXPECT_EQ(Depth("[1]"), 1);
    EXPECT_EQ(Depth("[{},{}]"), 1);
    EXPECT_EQ(Depth("[[]]"), 1);
    EXPECT_EQ(Depth("[[1]]"), 2);
    EXPECT_EQ(Depth("[[{}],[{}]]"), 2);
    EXPECT_EQ(Depth("[[[[7]]]]"), 4);
    EXPECT_EQ(Depth("[[[1]],[1]]"), 2); // the lesser of the two
    EXPECT_EQ(Depth("[[1],2]"), 1);
    EXPECT_EQ(Depth("[[1],null]"), 0);
    EXPECT_EQ(Depth("[1,null]"), 0);   // a leading scalar settles nothing
    EXPECT_EQ(Depth("[1,2,null]"), 1); // a later one does
    EXPECT_EQ(Depth("[null,1]"), 1);
    EXPECT_EQ(Depth("[[],[[1]]]"), 1);
}

TEST(ArrayDepth, LooksAtSamplesOnly) {
    // 16 elements: every second one. 15: each. With shift 31 each, too.
    const std::string pair = "[1],";
    std::string fifteen = "[";
    for (int i = 0; i < 14; ++i)
        fifteen += pair;
    EXPECT_EQ(Depth(fifteen + "0]"), 1);
    std::string sixteen = "[";
    for (int i = 0; i < 15; ++i)
        sixteen += pair;
    EXPECT_EQ(Depth(sixteen + "0]"), 2); // index 15 lies between two samples
    EXPECT_EQ(Depth(sixteen + "0]", 31), 1);
    EXPECT_EQ(Depth(sixteen + "0]", 40), 1);
    EXPECT_EQ(Depth("[[1],0]", 0), 2); // step 3 of 2
}

// The rule in its plainest form.
int NaiveDepth(const Value& value, unsigned shift) {
    if (value.type() == Type::Null) return -1;
    if (value.type() != Type::Array) return 0;
    const std::uint32_t size = value.size();
    const std::uint32_t step = (size >> shift) + 1;
    int depth = NaiveDepth(value[0U], shift);
    if (step >= size) return depth + 1;
    for (std::uint32_t i = step; i < size; i += step) {
        const int d = NaiveDepth(value[i], shift);
        if (d == 0) return 1;
        depth = std::min(depth, d);
    }
    return depth + 1;
}

Value RandomTree(Arena& arena, std::mt19937& random, int levels) {
    const auto kind = static_cast<unsigned>(random() % 12);
    if (levels == 0 || kind < 2) {
        if (kind == 0) return Value{};
        return kind % 2 == 0 ? Value::OfInt(1) : Value::OfObject(nullptr, 0);
    }
    const auto size = static_cast<std::uint32_t>(kind == 2 ? 16 + random() % 30 : random() % 5);
    auto* const elements = arena.Array<Value>(size);
    for (std::uint32_t i = 0; i < size; ++i)
        new (elements + i) Value(RandomTree(arena, random, levels - 1));
    return Value::OfArray(elements, size);
}

TEST(ArrayDepth, AgreesWithThePlainRecursionOnRandomTrees) {
    std::mt19937 random(20240501);
    int seen[6] = {};
    for (int round = 0; round < 20000; ++round) {
        StackArena<16384> arena;
        const Value tree = RandomTree(arena, random, static_cast<int>(random() % 6));
        for (const unsigned shift : {4U, 2U, 0U, 31U}) {
            const int expected = NaiveDepth(tree, shift);
            ASSERT_EQ(ArrayDepth(tree, shift, arena), expected) << test::TextOf(tree);
            if (expected >= 0 && expected < 6) ++seen[expected];
        }
    }
    for (int depth = 0; depth < 4; ++depth)
        EXPECT_GT(seen[depth], 50) << depth;
}

TEST(ArrayDepth, WalksAMillionLevelsAndFailsQuietlyWithoutMemory) {
    constexpr std::size_t kLevels = 1000000;
    const std::string text = std::string(kLevels, '[') + "1" + std::string(kLevels, ']');
    test::Document document(text);
    ASSERT_TRUE(document.ok);
    EXPECT_EQ(ArrayDepth(document.root, 4, document.arena), 1000000);
    StackArena<64> small;
    test::HeapWatch heap;
    heap.FailFrom(3);
    EXPECT_EQ(ArrayDepth(document.root, 4, small), 0);
    EXPECT_TRUE(small.failed());
}

} // namespace
} // namespace orrery::json

// What is printed of a record, and the way back.
#include "orrery/FillRecord.h"
#include "orrery/PrintRecord.h"
#include "orrery/Tables.h"
#include "support/JsonText.h"
#include "tools/SampleRecord.h"

#include <array>
#include <charconv>
#include <cstring>
#include <gmock/gmock.h>
#include <limits>
#include <random>

namespace orrery::tool {
namespace {

using record::Cell;
using record::Field;
using record::Table;
using testing::HasSubstr;

template <class R>
std::byte* BytesOf(R& record) {
    return reinterpret_cast<std::byte*>(&record);
}

std::string Printed(SAMPLE_INFO record, PrintOptions options = {}) {
    return PrintRecord(kSample, BytesOf(record), options).Print();
}

// Fills a sample from a text and prints it; the reason when it is refused.
std::string Refusal(std::string_view json) {
    const test::Document document(json);
    if (!document.ok) return "no JSON";
    SAMPLE_INFO record;
    Memory memory;
    try {
        FillRecord(kSample, document.root, BytesOf(record), memory);
    } catch (const FillError& error) {
        return error.what();
    }
    return "taken";
}

struct Filled {
    explicit Filled(std::string_view json) : document(json) {
        std::memset(&record, 0xaa, sizeof record);
        FillRecord(kSample, document.root, BytesOf(record), memory);
    }
    test::Document document;
    Memory memory;
    SAMPLE_INFO record;
};

TEST(PrintRecord, PrintsCodesWithNames) {
    SAMPLE_INFO record{};
    record.emColor = 2;
    EXPECT_THAT(Printed(record), HasSubstr(R"("emColor": { "code": 2, "name": "Green" })"));
    record.emColor = 9;
    EXPECT_THAT(Printed(record), HasSubstr(R"("emColor": { "code": 9 })"));
    record.nSplit = 9;
    EXPECT_THAT(Printed(record), HasSubstr(R"("nSplit": { "code": 9, "name": "Split9" })"));
    record.nSplit = -1;
    EXPECT_THAT(Printed(record), HasSubstr(R"("nSplit": { "code": -1 })"));
}

TEST(PrintRecord, CutsListsAtTheirCounts) {
    SAMPLE_INFO record{};
    record.nNumbers[0] = 7;
    record.nNumbers[1] = 8;
    record.nNumberCount = 1;
    EXPECT_THAT(Printed(record), HasSubstr("\"nNumbers\": [7],"));
    EXPECT_THAT(Printed(record, {.all = true}), HasSubstr("\"nNumbers\": [7, 8, 0, 0],"));
    record.nNumberCount = -5;
    EXPECT_THAT(Printed(record), HasSubstr("\"nNumbers\": [],"));
    record.nNumberCount = 1000; // ends at the array
    EXPECT_THAT(Printed(record), HasSubstr("\"nNumbers\": [7, 8, 0, 0],"));
}

TEST(PrintRecord, PrintsTextsAndBytes) {
    SAMPLE_INFO record{};
    std::memcpy(record.szName, "\xc3\xa9\"", 3);
    EXPECT_THAT(Printed(record), HasSubstr("\"szName\": \"\xc3\xa9\\\"\""));
    std::memcpy(record.szName, "abcdef", 6); // no terminator
    EXPECT_THAT(Printed(record), HasSubstr("\"szName\": \"abcdef\""));
    std::memcpy(record.szName, "a\xff\0\0\0\0", 6);
    EXPECT_THAT(Printed(record), HasSubstr("\"szName\": { \"bytes\": \"61ff\" }"));
    std::memcpy(record.szName, "a\0b\0\0\0", 6); // something behind the terminator
    EXPECT_THAT(Printed(record), HasSubstr("\"szName\": { \"bytes\": \"610062\" }"));
}

TEST(PrintRecord, PrintsNumbersSoThatTheyComeBack) {
    SAMPLE_INFO record{};
    record.fReal = 0.1f;
    record.dReal = 0.1;
    EXPECT_THAT(Printed(record), HasSubstr("\"fReal\": 0.1,"));
    EXPECT_THAT(Printed(record), HasSubstr("\"dReal\": 0.1,"));
    record.dReal = -0.0;
    EXPECT_THAT(Printed(record), HasSubstr("\"dReal\": -0.0,"));
    record.dReal = -std::numeric_limits<double>::infinity();
    EXPECT_THAT(Printed(record), HasSubstr("\"dReal\": \"-inf\","));
    record.nLong = std::numeric_limits<std::int64_t>::min();
    record.dwLong = 18446744073709551615U;
    EXPECT_THAT(Printed(record), HasSubstr("\"nLong\": \"-9223372036854775808\","));
    EXPECT_THAT(Printed(record), HasSubstr("\"dwLong\": \"18446744073709551615\","));
    record.nLong = 9007199254740992; // the largest that a double holds exactly with all below it
    EXPECT_THAT(Printed(record), HasSubstr("\"nLong\": 9007199254740992,"));
}

TEST(PrintRecord, FollowsPointersAsFarAsCountAndCapacityAllow) {
    SAMPLE_ITEM items[3] = {{16, 1, "one"}, {16, 2, "two"}, {16, 3, "three"}};
    SAMPLE_INFO record{};
    EXPECT_THAT(Printed(record), HasSubstr("\"pstuItems\": null"));
    record.pstuItems = items;
    record.nMaxItems = 3;
    record.nItemCount = 1;
    EXPECT_THAT(Printed(record), HasSubstr("\"szName\": \"one\" }\n  ]"));
    record.nItemCount = 50;
    EXPECT_THAT(Printed(record), HasSubstr("\"szName\": \"three\" }\n  ]"));
    record.nItemCount = 0;
    EXPECT_THAT(Printed(record, {.all = true}), HasSubstr("\"szName\": \"three\" }\n  ]"));
}

TEST(FillRecord, ClearsAndSetsSizeWords) {
    const Filled filled("{}");
    SAMPLE_INFO expected{};
    expected.dwSize = sizeof(SAMPLE_INFO);
    for (auto& row : expected.stuGrid) {
        for (SAMPLE_ITEM& item : row)
            item.dwSize = sizeof(SAMPLE_ITEM);
    }
    EXPECT_EQ(Printed(filled.record, {.all = true}), Printed(expected, {.all = true}));
}

TEST(FillRecord, TakesPlainCodesAndNames) {
    EXPECT_EQ(Filled(R"({"emColor": 2})").record.emColor, 2);
    EXPECT_EQ(Filled(R"({"emColor": "green"})").record.emColor, 2);
    EXPECT_EQ(Filled(R"({"emColor": {"code": 77}})").record.emColor, 77);
    EXPECT_EQ(Filled(R"({"emColor": {"name": "Blue"}})").record.emColor, -3);
    EXPECT_EQ(Filled(R"({"emColor": {"code": 1, "name": "Red"}})").record.emColor, 1);
    EXPECT_EQ(Filled(R"({"nSplit": "Split16"})").record.nSplit, 16);
    EXPECT_EQ(Filled(R"({"nSplit": {"code": 3, "name": "Split3"}})").record.nSplit, 3); // though "Split3" reads as 10
    EXPECT_EQ(Filled(R"({"bEnable": true})").record.bEnable, 1);
    EXPECT_EQ(Filled(R"({"nLong": "-9223372036854775808"})").record.nLong, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(Filled(R"({"nLong": 5000000000})").record.nLong, 5000000000);
    EXPECT_EQ(Filled(R"({"dwLong": "18446744073709551615"})").record.dwLong, 18446744073709551615U);
    EXPECT_EQ(Filled(R"({"nTiny": -128})").record.nTiny, -128);
    EXPECT_EQ(Filled(R"({"wShort": 65535.0})").record.wShort, 65535);
    EXPECT_STREQ(Filled(R"({"szTexts": ["", "abc"]})").record.szTexts[1], "abc");
}

TEST(FillRecord, MakesRoomBehindPointers) {
    const Filled filled(R"({"pstuItems": [{"nValue": 5}, {"szName": "x"}], "nItemCount": 2})");
    ASSERT_NE(filled.record.pstuItems, nullptr);
    EXPECT_EQ(filled.record.nMaxItems, 2);
    EXPECT_EQ(filled.record.pstuItems[0].nValue, 5);
    EXPECT_EQ(filled.record.pstuItems[0].dwSize, sizeof(SAMPLE_ITEM));
    EXPECT_STREQ(filled.record.pstuItems[1].szName, "x");
    // What count and capacity promise is there, too.
    const Filled promised(R"({"pstuItems": [], "nItemCount": 4, "nMaxItems": 100})");
    EXPECT_EQ(promised.record.pstuItems[99].dwSize, sizeof(SAMPLE_ITEM));
    EXPECT_EQ(Filled(R"({"pstuItems": null})").record.pstuItems, nullptr);
}

TEST(FillRecord, RefusesWithThePath) {
    EXPECT_EQ(Refusal("[]"), "an object with the fields of SAMPLE_INFO expected, not a list");
    EXPECT_EQ(Refusal(R"({"emColr": 1})"), "emColr: no such field in SAMPLE_INFO; did you mean emColor?");
    EXPECT_EQ(Refusal(R"({"stuGrid": [[], [{}, {"nvalu": 1}]]})"),
              "stuGrid[1][1].nvalu: no such field in SAMPLE_ITEM; did you mean nValue?");
    EXPECT_EQ(Refusal(R"({"pstuItems": [{}, {"nValue": "1"}]})"),
              "pstuItems[1].nValue: a whole number expected, not a text");
    EXPECT_EQ(Refusal(R"({"nTiny": 128})"), "nTiny: 128 is out of range for i8 (-128 to 127)");
    EXPECT_EQ(Refusal(R"({"nTiny": -129})"), "nTiny: -129 is out of range for i8 (-128 to 127)");
    EXPECT_EQ(Refusal(R"({"byTiny": -1})"), "byTiny: -1 is out of range for u8 (0 to 255)");
    EXPECT_EQ(Refusal(R"({"dwLong": "18446744073709551616"})"),
              "dwLong: a whole number, or one as a text, expected, not a text");
    EXPECT_EQ(Refusal(R"({"nLong": "9223372036854775808"})"),
              "nLong: 9223372036854775808 is out of range for i64 (-9223372036854775808 to 9223372036854775807)");
    EXPECT_EQ(Refusal(R"({"nLong": 1e300})"), "nLong: not a whole number, or too large for one (write it as a text)");
    EXPECT_EQ(Refusal(R"({"nShort": 1.5})"), "nShort: not a whole number, or too large for one");
    EXPECT_EQ(Refusal(R"({"nShort": null})"), "nShort: a whole number expected, not null");
    EXPECT_EQ(Refusal(R"({"nShort": true})"), "nShort: a whole number expected, not true");
    EXPECT_EQ(Refusal(R"({"fReal": 1e39})"), "fReal: out of range for f32");
    EXPECT_EQ(Refusal(R"({"dReal": "much"})"), "dReal: a number expected, not a text");
    EXPECT_EQ(Refusal(R"({"szName": "abcdefg"})"), "szName: a text of 7 bytes; there is room for 6");
    EXPECT_EQ(Refusal(R"({"szName": {"bytes": "00112233445566"}})"), "szName: 7 bytes; there is room for 6");
    EXPECT_EQ(Refusal(R"({"szName": {"bytes": "0"}})"), "szName: an odd number of hex digits");
    EXPECT_EQ(Refusal(R"({"szName": {"bytes": "0x"}})"), "szName: not all hex digits");
    EXPECT_EQ(Refusal(R"({"szName": {"byte": "00"}})"), "szName: an object here is { \"bytes\": \"hex digits\" }");
    EXPECT_EQ(Refusal(R"({"nNumbers": [1, 2, 3, 4, 5]})"), "nNumbers: a list of 5; there is room for 4");
    EXPECT_EQ(Refusal(R"({"nNumbers": 1})"), "nNumbers: a list expected, not a number");
    EXPECT_EQ(Refusal(R"({"emColor": "Gren"})"), "emColor: no such name as \"Gren\"; did you mean Green or Red?");
    EXPECT_EQ(Refusal(R"({"emColor": "blue"})"), "emColor: no such name as \"blue\"; did you mean Blue?");
    EXPECT_EQ(Refusal(R"({"emColor": {"code": 1, "name": "Green"}})"),
              "emColor: \"Green\" is code 2, not 1; leave one of the two away");
    EXPECT_EQ(Refusal(R"({"emColor": {}})"), "emColor: neither \"code\" nor \"name\"");
    EXPECT_EQ(Refusal(R"({"nItemCount": 2000000000, "pstuItems": []})"),
              "pstuItems: a list of 2000000000 is more than this program makes");
    EXPECT_EQ(Refusal(R"({"nShort": 1})"), "taken");
}

// ---- There and back, bit by bit ----

void ClearPointers(const Table& table, std::byte* record) {
    for (const Field& field : table) {
        if (field.size == 0 || field.alias) continue;
        if (field.cell == Cell::Pointer) std::memset(record + field.offset, 0, field.size);
        if (field.cell != Cell::Record) continue;
        for (std::uint32_t i = 0; i < field.size / field.elementSize; ++i)
            ClearPointers(*field.table, record + field.offset + std::size_t{i} * field.elementSize);
    }
}

// Compares members only: what lies between them is nobody's.
void ExpectSame(const Table& table, const std::byte* left, const std::byte* right, const std::string& path) {
    for (const Field& field : table) {
        if (field.size == 0 || field.alias) continue;
        const std::string place = path + "." + field.name;
        if (field.cell != Cell::Record) {
            ASSERT_EQ(std::memcmp(left + field.offset, right + field.offset, field.size), 0) << place;
            continue;
        }
        for (std::uint32_t i = 0; i < field.size / field.elementSize; ++i) {
            const std::size_t at = field.offset + std::size_t{i} * field.elementSize;
            ASSERT_NO_FATAL_FAILURE(ExpectSame(*field.table, left + at, right + at, place));
        }
    }
}

void ExpectComesBack(const Table& table, const std::byte* record) {
    const std::string text = PrintRecord(table, record, {.all = true}).Print();
    const test::Document document(text);
    ASSERT_TRUE(document.ok) << table.record;
    std::vector<std::byte> back(table.size, std::byte{0x55});
    Memory memory;
    ASSERT_NO_THROW(FillRecord(table, document.root, back.data(), memory)) << table.record;
    ExpectSame(table, record, back.data(), table.record);
}

std::vector<const Table*> AllTables() {
    std::vector<const Table*> tables = Tables().all;
    tables.push_back(&kSample);
    return tables;
}

TEST(RoundTrip, RandomBytesOfEveryRecordComeBack) {
    std::mt19937 random(20261120);
    for (const Table* table : AllTables()) {
        const int rounds = table->size > 100000 ? 1 : table->size > 1000 ? 8 : 200;
        for (int round = 0; round < rounds; ++round) {
            std::vector<std::byte> record(table->size);
            for (std::byte& byte : record) {
                // Mostly extremes, where signs and terminators are.
                const auto number = static_cast<std::uint32_t>(random());
                byte = static_cast<std::byte>(number % 4 == 0 ? 0 : number % 4 == 1 ? 0xff : number >> 8);
            }
            ClearPointers(*table, record.data());
            ASSERT_NO_FATAL_FAILURE(ExpectComesBack(*table, record.data()));
        }
    }
}

// Lines are put together of prepared parts, trees of the members one by one.
TEST(Lines, AreTheTreesOfTheirRecords) {
    std::mt19937 random(20261122);
    for (const Table* table : AllTables()) {
        const bool isLarge = table->size > 100000;
        for (int round = isLarge ? 1 : 0; round < (isLarge ? 2 : 12); ++round) {
            std::vector<std::byte> record(table->size);
            // None at first; then a few, also counts, flags and the beginnings of texts.
            for (const Field& field : *table) {
                if (round == 0 || field.size == 0 || random() % 4 != 0) continue;
                const std::size_t at = random() % 3 == 0 ? random() % field.size : 0;
                record[field.offset + at] = static_cast<std::byte>(random() % 3 == 0 ? random() : 1 + random() % 3);
            }
            ClearPointers(*table, record.data());
            for (const PrintOptions options : {PrintOptions{}, {.all = true}, {.brief = true}}) {
                if (isLarge && options.all) continue; // megabytes of zeros
                LineWriter line;
                AppendRecord(line, *table, record.data(), options);
                ASSERT_EQ(line.Take(), PrintRecord(*table, record.data(), options).OneLine())
                    << table->record << ' ' << options.all << options.brief;
            }
        }
    }
}

// Reals of few digits are written by hand: as short as any, and the same number.
TEST(RoundTrip, RealsArePrintedInAsFewDigitsAsTheyTake) {
    std::vector<double> numbers = {0.5,
                                   1.5,
                                   42949.83,
                                   1e6,
                                   1000000.5,
                                   0.1 + 0.2,
                                   1.005,
                                   2.0005,
                                   123456789012.125,
                                   999999999999.999,
                                   9999999999999.99,
                                   1e15,
                                   4294967.295,
                                   3.3,
                                   1.0000000000000002,
                                   100.1,
                                   5e-324,
                                   1.7976931348623157e308};
    std::mt19937_64 random(11);
    for (int i = 0; i < 20000; ++i)
        numbers.push_back(static_cast<double>(random() % (std::uint64_t{1} << (i % 50 + 1)))
                          / (i % 3 == 0 ? 1024 : 1000));
    Field field{};
    field.cell = Cell::F64;
    field.kind = record::Kind::Real;
    for (double number : numbers) {
        for (const double each : {number, -number}) {
            std::array<char, 40> room;
            const auto end = std::to_chars(room.data(), room.data() + room.size(), each).ptr;
            const std::string expected(room.data(), end);
            ASSERT_EQ(PrintCell(field, reinterpret_cast<const std::byte*>(&each)).OneLine(),
                      expected == "-0" ? "-0.0" : expected);
        }
    }
}

TEST(RoundTrip, EveryFloatPatternComesBack) {
    std::mt19937 random(7);
    SAMPLE_INFO record{};
    for (int i = 0; i < 20000; ++i) {
        const auto bits = static_cast<std::uint32_t>(random());
        const std::uint64_t more = std::uint64_t{random()} << 32 | random();
        std::memcpy(&record.fReal, &bits, sizeof bits);
        std::memcpy(&record.dReal, &more, sizeof more);
        ASSERT_NO_FATAL_FAILURE(ExpectComesBack(kSample, BytesOf(record))) << bits << " " << more;
    }
}

} // namespace
} // namespace orrery::tool

#include "frame/Platform/ParamConvert.h"

#include "frame/Log.h"
#include "support/FrameCalls.h"
#include "support/Records.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace record;

// Keeps the lines and positions in the order in which they come.
class LineSink : public LogSink {
  public:
    LineSink() : former_(LogOne_SetSink(this)) {}
    ~LineSink() override { LogOne_SetSink(former_); }

    std::vector<std::string> lines;

    void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
        lines.push_back(std::string(file) + " " + std::to_string(line) + " " + std::to_string(level));
    }
    void TraceOut(int, int code, const char* format, char*& arguments) override {
        char text[200];
        const int head = std::snprintf(text, sizeof text, "%x ", static_cast<unsigned>(code));
        std::vsnprintf(text + head, sizeof text - static_cast<std::size_t>(head), format, LogOne_VaList(arguments));
        lines.push_back(text);
    }
    void TraceOutAllW(E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&) override { lines.push_back("?"); }
    void TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char*, char*&) override { lines.push_back("?"); }
    void TraceOutW(int, int, const wchar_t*, char*&) override { lines.push_back("?"); }
    void SetMaxSizeKB(int) override {}
    void SetFileCount(int) override {}
    void SetPrintLevel(E_LOG_LEVEL) override {}
    void SetPrintStrategy(int) override {}

  private:
    LogSink* former_;
};

const std::vector<std::string> kRefusal = {"Platform/ParamConvert 103 0", "9000001e _ParamConvert: invalid dwSize"};

struct Versioned {
    std::uint32_t dwSize;
    std::int32_t id;
    char name[4];
    char tags[2][4];
    std::int32_t level;
    CFG_POINT point;
};

constexpr std::uint32_t kSize = 32;
static_assert(sizeof(Versioned) == kSize);

TABLE(kVersioned, Versioned,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(id, "Id", Int),
          FIELD(name, "Name", Text),
          FIELD(tags, "Tags", Text),
          FIELD(level, "Level", Int),
          FIELD(point, "Point", Record(kPoint)),
      });

const std::byte* Bytes(const Versioned& record) {
    return reinterpret_cast<const std::byte*>(&record);
}
std::byte* Bytes(Versioned& record) {
    return reinterpret_cast<std::byte*>(&record);
}

const Versioned kSource = {kSize, 1, "ab", {"c", "de"}, 3, {4, 5}};
const Versioned kDestination = {99, 11, "AB", {"C", "DE"}, 33, {44, 55}};

bool SameBehindTheWord(const Versioned& left, const Versioned& right) {
    return std::memcmp(&left.id, &right.id, kSize - 4) == 0;
}

// ---- As one block ----

TEST(ParamConvert, EqualSizesMoveEverythingButTheWord) {
    Versioned to = kDestination;
    EXPECT_TRUE(ParamConvert(Bytes(kSource), kSize, Bytes(to), kSize));
    EXPECT_EQ(to.dwSize, 99u);
    EXPECT_TRUE(SameBehindTheWord(to, kSource));
}

TEST(ParamConvert, TheShorterSideEndsTheCommonPart) {
    for (std::uint32_t size = 4; size <= kSize; ++size) {
        for (const bool shortSource : {true, false}) {
            Versioned expected = kDestination;
            std::memcpy(&expected.id, &kSource.id, size - 4);
            Versioned to = kDestination;
            EXPECT_TRUE(
                ParamConvert(Bytes(kSource), shortSource ? size : kSize, Bytes(to), shortSource ? kSize : size));
            EXPECT_TRUE(SameBehindTheWord(to, expected)) << size;
            EXPECT_EQ(to.dwSize, 99u);
        }
    }
}

TEST(ParamConvert, ALargerSizeMovesOnlyWhatTheOtherHas) {
    Versioned to = kDestination;
    EXPECT_TRUE(ParamConvert(Bytes(kSource), 4096, Bytes(to), 12));
    EXPECT_EQ(to.id, 1);
    EXPECT_STREQ(to.name, "ab");
    EXPECT_EQ(to.level, 33);
}

TEST(ParamConvert, NothingMovesAtTheSizeOfTheWordAlone) {
    LineSink sink;
    Versioned to = kDestination;
    EXPECT_TRUE(ParamConvert(Bytes(kSource), 4, Bytes(to), kSize));
    EXPECT_TRUE(SameBehindTheWord(to, kDestination));
    EXPECT_TRUE(sink.lines.empty());
}

TEST(ParamConvert, SizesBelowTheWordAreRefusedAndLogged) {
    for (const std::uint32_t size : {0u, 1u, 3u}) {
        for (const bool badSource : {true, false}) {
            LineSink sink;
            Versioned to = kDestination;
            EXPECT_FALSE(ParamConvert(Bytes(kSource), badSource ? size : kSize, Bytes(to), badSource ? kSize : size));
            EXPECT_EQ(sink.lines, kRefusal) << size;
            EXPECT_TRUE(SameBehindTheWord(to, kDestination));
        }
    }
}

// ---- Field by field ----

TEST(ConvertFields, EachFieldNeedsBothSizesToReachPastItsEnd) {
    // Ends of the fields behind the word: 8, 12, 20, 24, 32.
    for (std::uint32_t size = 1; size <= kSize + 8; ++size) {
        for (const bool shortSource : {true, false}) {
            Versioned expected = kDestination;
            if (size >= 8) expected.id = kSource.id;
            if (size >= 12) std::memcpy(expected.name, kSource.name, sizeof expected.name);
            if (size >= 20) std::memcpy(expected.tags, kSource.tags, sizeof expected.tags);
            if (size >= 24) expected.level = kSource.level;
            if (size >= 32) expected.point = kSource.point;
            Versioned to = kDestination;
            ConvertFields(kVersioned, Bytes(kSource), shortSource ? size : kSize, Bytes(to),
                          shortSource ? kSize : size);
            EXPECT_TRUE(SameBehindTheWord(to, expected)) << size;
            EXPECT_EQ(to.dwSize, 99u);
        }
    }
}

TEST(ConvertFields, NullRecordsAndSizesOfZeroDoNothing) {
    LineSink sink;
    Versioned to = kDestination;
    ConvertFields(kVersioned, nullptr, kSize, Bytes(to), kSize);
    ConvertFields(kVersioned, Bytes(kSource), kSize, nullptr, kSize);
    ConvertFields(kVersioned, Bytes(kSource), 0, Bytes(to), kSize);
    ConvertFields(kVersioned, Bytes(kSource), kSize, Bytes(to), 0);
    EXPECT_TRUE(SameBehindTheWord(to, kDestination));
    EXPECT_TRUE(sink.lines.empty());
}

TEST(ConvertFields, TextsAreClearedAndTerminated) {
    Versioned from = kSource;
    std::memcpy(from.name, "wxyz", 4); // no terminator
    std::memcpy(from.tags, "a\0zz1234", 8);
    Versioned to{};
    std::memset(static_cast<void*>(&to), 0xCD, sizeof to);
    ConvertFields(kVersioned, Bytes(from), kSize, Bytes(to), kSize);
    EXPECT_EQ(std::string(to.name, 4), std::string("wxy\0", 4));
    EXPECT_EQ(std::string(to.tags[0], 4), std::string("a\0\0\0", 4)); // nothing behind the terminator comes along
    EXPECT_EQ(std::string(to.tags[1], 4), std::string("123\0", 4));
}

// ---- In a call ----

TEST(ParamConvert, ASizeWordBelowItsOwnSizeEndsTheCallAndIsLoggedOnce) {
    const std::string text = test::Reply(R"({ "Id" : 7 })");
    for (const std::uint32_t word : {1u, 3u}) {
        LineSink sink;
        Versioned record = kDestination;
        record.dwSize = word;
        const ParseFrame frame = ParseFrame().Strides(Stride::SizeWord);
        EXPECT_EQ(ParseFamily(kVersioned, frame, {text.c_str(), &record, sizeof record, nullptr}),
                  Outcome::BufferTooSmall);
        EXPECT_TRUE(SameBehindTheWord(record, kDestination));
        EXPECT_EQ(sink.lines, kRefusal);
    }
    LineSink sink;
    Versioned record = kSource;
    record.dwSize = 3;
    const auto written = test::Pack(kVersioned, PackFrame().Strides(Stride::SizeWord), &record, sizeof record);
    EXPECT_EQ(written.outcome, Outcome::RecordTooSmall);
    EXPECT_TRUE(written.isUntouched());
    EXPECT_EQ(sink.lines, kRefusal);
}

TEST(ParamConvert, NoOtherSizeWordIsLogged) {
    LineSink sink;
    const std::string text = test::Reply(R"({ "Id" : 7 })");
    for (const Stride stride : {Stride::SizeWord, Stride::SizeWordByField}) {
        for (const std::uint32_t word : {0u, 3u, 4u, 5u, 0x7FFFFFFFu}) {
            if (word == 3 && stride == Stride::SizeWord) continue;
            Versioned record = kSource;
            record.dwSize = word;
            ParseFamily(kVersioned, ParseFrame().Strides(stride), {text.c_str(), &record, sizeof record, nullptr});
            test::Pack(kVersioned, PackFrame().Strides(stride), &record, sizeof record);
        }
    }
    EXPECT_TRUE(sink.lines.empty());
}

} // namespace
} // namespace orrery

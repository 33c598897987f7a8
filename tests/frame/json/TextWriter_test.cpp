#include "frame/json/Pen.h"

#include "support/FailingAllocator.h"
#include "support/GuardedBuffer.h"
#include "support/JsonText.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <random>
#include <unistd.h>

namespace orrery::json {
namespace {

using test::TextOf;

// What `write` writes into ample room; of that it may touch `behind` bytes behind its end.
template <class Write>
std::string Written(Write write, std::size_t behind = 0) {
    std::string buffer(4096, '?');
    TextWriter writer(buffer.data(), buffer.size());
    write(writer);
    EXPECT_TRUE(writer.fits());
    EXPECT_EQ(buffer.find_first_not_of('?', writer.length() + behind), std::string::npos)
        << "touched more than it wrote";
    buffer.resize(writer.length());
    return buffer;
}

std::string WrittenReal(double number) {
    return Written([&](TextWriter& writer) { writer.Real(number); });
}

TEST(TextWriter, WritesTheTextThatDevicesExpect) {
    EXPECT_EQ(Written([](TextWriter& w) {
                  w.BeginObject();
                  w.Key("Enable");
                  w.Bool(true);
                  w.Key("Name");
                  w.String("Door/1");
                  w.RawKey("\"SensorType\" : ");
                  w.String("NO");
                  w.EndObject();
                  w.EndText();
              }),
              "{ \"Enable\" : true, \"Name\" : \"Door\\/1\", \"SensorType\" : \"NO\" }\n");
}

TEST(TextWriter, SeparatesOnEveryLevel) {
    EXPECT_EQ(Written([](TextWriter& w) {
                  w.BeginArray();
                  w.BeginArray();
                  w.EndArray();
                  w.BeginObject();
                  w.EndObject();
                  w.BeginObject();
                  w.Key("a");
                  w.BeginArray();
                  w.Int(-1);
                  w.UInt(1);
                  w.Null();
                  w.EndArray();
                  w.Key("b");
                  w.Bool(false);
                  w.EndObject();
                  w.Real(0.5);
                  w.EndArray();
              }),
              "[ [  ], {  }, { \"a\" : [ -1, 1, null ], \"b\" : false }, 0.5000000000000000 ]");
}

TEST(TextWriter, WritesIntegersInDecimal) {
    const auto written = [](auto number) {
        const auto write = [&](TextWriter& w) {
            if constexpr (std::is_signed_v<decltype(number)>) {
                w.Int(number);
            } else {
                w.UInt(number);
            }
        };
        return Written(write, 3); // digits go out four at a time
    };
    EXPECT_EQ(written(std::int32_t{0}), "0");
    EXPECT_EQ(written(std::int32_t{-1}), "-1");
    EXPECT_EQ(written(std::numeric_limits<std::int32_t>::max()), "2147483647");
    EXPECT_EQ(written(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ(written(std::uint32_t{0}), "0");
    EXPECT_EQ(written(std::numeric_limits<std::uint32_t>::max()), "4294967295");
}

TEST(TextWriter, TouchesNothingBehindAWholeValue) {
    for (const char* const text : {"7", "42", "365", "8000", "65535", "-1", "2147483647", "[ 3 ]", "{ \"a\" : 5 }"}) {
        StackArena<1024> arena;
        Value value;
        ASSERT_TRUE(Parse(text, arena, value));
        EXPECT_EQ(Written([&](TextWriter& w) { EXPECT_TRUE(w.Write(value, arena)); }), text);
    }
}

TEST(TextWriter, WritesRealsWithSixteenDigits) {
    EXPECT_EQ(WrittenReal(1.0), "1.000000000000000");
    EXPECT_EQ(WrittenReal(0.5), "0.5000000000000000");
    EXPECT_EQ(WrittenReal(static_cast<double>(0.1f)), "0.1000000014901161");
    EXPECT_EQ(WrittenReal(0.0), "0.000000000000000");
    EXPECT_EQ(WrittenReal(-0.0), "-0.000000000000000");
    EXPECT_EQ(WrittenReal(-12.25), "-12.25000000000000");
    EXPECT_EQ(WrittenReal(0.0001), "0.0001000000000000000");
    EXPECT_EQ(WrittenReal(0.00001), "1.000000000000000e-05");
    EXPECT_EQ(WrittenReal(1234567890123456.0), "1234567890123456.");
    EXPECT_EQ(WrittenReal(1e16), "1.000000000000000e+16");
    EXPECT_EQ(WrittenReal(1e100), "1.000000000000000e+100");
    EXPECT_EQ(WrittenReal(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(WrittenReal(-std::numeric_limits<double>::infinity()), "-inf");
}

void ExpectAsPrintf(double number) {
    char expected[64];
    std::snprintf(expected, sizeof expected, "%#.16g", number);
    char text[64];
    TextWriter writer(text, sizeof text);
    writer.Real(number);
    ASSERT_EQ(std::string_view(text, writer.length()), expected);
}

TEST(TextWriter, WritesRealsAsPrintfDoesForRandomBitPatterns) {
    std::mt19937_64 random(42);
    for (int i = 0; i < 1000000; ++i)
        ExpectAsPrintf(std::bit_cast<double>(random()));
}

TEST(TextWriter, WritesRealsAsPrintfDoesForEverydayNumbersAndRoundingEdges) {
    std::mt19937_64 random(43);
    for (int i = 0; i < 200000; ++i) {
        ExpectAsPrintf(static_cast<double>(static_cast<std::int64_t>(random() % 2000001) - 1000000) / 1000);
        ExpectAsPrintf(static_cast<double>(static_cast<float>(random() % 100000) / 7));
        ExpectAsPrintf(std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 120) - 90));
    }
    for (int exponent = -320; exponent <= 308; ++exponent) {
        const double power = std::pow(10, exponent);
        for (const double number : {power, std::nextafter(power, 0.0), 9.99999999999999995 * power}) {
            ExpectAsPrintf(number);
        }
    }
    ExpectAsPrintf(std::numeric_limits<double>::quiet_NaN());
    ExpectAsPrintf(-std::numeric_limits<double>::quiet_NaN());
    ExpectAsPrintf(std::numeric_limits<double>::denorm_min());
    ExpectAsPrintf(std::numeric_limits<double>::max());
}

// Quarters and their like are laid out without a search for their digits, up to a limit.
TEST(TextWriter, WritesBinaryFractionsAsPrintfDoes) {
    for (const double whole :
         {0.0, 1.0, 2.0, 9.0, 10.0, 99.0, 12345.0, 999999999.0, 1000000000.0, 4294967295.0, 1e15}) {
        for (int part = 0; part < 64; ++part) {
            ExpectAsPrintf(whole + part / 32.0);
            ExpectAsPrintf(-whole - part / 32.0);
        }
    }
    EXPECT_EQ(WrittenReal(48.25), "48.25000000000000");
    EXPECT_EQ(WrittenReal(999999999.9375), "999999999.9375000");
    EXPECT_EQ(WrittenReal(0.0625), "0.06250000000000000");
}

// Switches the whole program to a locale that writes 1,5; made on the spot where the machine has none.
class CommaLocale {
  public:
    CommaLocale() : before_(std::setlocale(LC_ALL, nullptr)) {
        const auto folder = std::filesystem::path(testing::TempDir()) / ("locale" + std::to_string(getpid()));
        std::filesystem::create_directories(folder);
        const std::string command =
            "localedef -i de_DE -f UTF-8 '" + (folder / "de_DE.UTF-8").string() + "' >/dev/null 2>&1";
        if (std::system(command.c_str()) == 0) setenv("LOCPATH", folder.c_str(), 1);
        std::setlocale(LC_ALL, "de_DE.UTF-8");
        unsetenv("LOCPATH");
        std::filesystem::remove_all(folder);
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() { std::setlocale(LC_ALL, before_.c_str()); }

    bool active() const { return *std::localeconv()->decimal_point == ','; }

  private:
    std::string before_;
};

TEST(TextWriter, WritesAndReadsAPointInALocaleThatHasACommaThere) {
    const CommaLocale locale;
    ASSERT_TRUE(locale.active()) << "the package with the sources of locales is missing: scripts/install-deps.sh";
    EXPECT_EQ(WrittenReal(1.5), "1.500000000000000");
    EXPECT_EQ(test::Document("1.5").root.asDouble(), 1.5);
    EXPECT_EQ(test::Document("1.25e1").root.asDouble(), 12.5);
}

// The rule for strings, byte by byte.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char byte : text) {
        switch (byte) {
        case '"':
            quoted += "\\\"";
            break;
        case '\\':
            quoted += "\\\\";
            break;
        case '/':
            quoted += "\\/";
            break;
        case 8:
            quoted += "\\b";
            break;
        case 9:
            quoted += "\\t";
            break;
        case 10:
            quoted += "\\n";
            break;
        case 12:
            quoted += "\\f";
            break;
        case 13:
            quoted += "\\r";
            break;
        default:
            quoted += byte;
        }
    }
    return quoted + '"';
}

TEST(TextWriter, EscapesEightBytesAndNoOthersAtEveryPlace) {
    for (int byte = 0; byte < 256; ++byte) {
        for (std::size_t length = 1; length < 40; ++length) {
            for (std::size_t place = 0; place < length; ++place) {
                std::string text(length, 'x');
                text[place] = static_cast<char>(byte);
                char buffer[128];
                TextWriter writer(buffer, sizeof buffer);
                writer.String(text);
                ASSERT_EQ(std::string(buffer, writer.length()), Quoted(text)) << byte << " at " << place;
            }
        }
    }
    EXPECT_EQ(Written([](TextWriter& w) { w.String(""); }), "\"\"");
    EXPECT_EQ(Written([](TextWriter& w) { w.String("\"\\/\b\t\n\f\r\v\x01\x7f\x80\xff"); }),
              "\"\\\"\\\\\\/\\b\\t\\n\\f\\r\v\x01\x7f\x80\xff\"");
    EXPECT_EQ(Written([](TextWriter& w) {
                  w.BeginObject();
                  w.Key("a/b");
                  w.Null();
                  w.EndObject();
              }),
              "{ \"a\\/b\" : null }");
}

TEST(TextWriter, ReadsNoByteBeyondAString) {
    for (std::size_t size = 0; size < 70; ++size) {
        const test::GuardedBuffer text(std::string(size, 'y'));
        EXPECT_EQ(Written([&](TextWriter& w) { w.String(text.view()); }), Quoted(text.view()));
    }
}

TEST(TextWriter, WritesNoByteBeyondItsRoomAndCountsOn) {
    test::Document document(
        R"({"a/b":[1,-22,4294967289,0.25,true,null,"0123456789abcdef/0123456789abcdef///////////"],)"
        R"("c":{},"d":[],"e":{"f":"\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n"}})");
    ASSERT_TRUE(document.ok);
    const std::string whole = TextOf(document.root) + "\n";
    for (std::size_t capacity = 0; capacity <= whole.size() + 20; ++capacity) {
        const test::GuardedBuffer room(capacity);
        TextWriter writer(room.data(), capacity);
        ASSERT_TRUE(writer.Write(document.root, document.arena));
        writer.EndText();
        EXPECT_EQ(writer.length(), whole.size());
        EXPECT_EQ(writer.fits(), capacity >= whole.size());
        const std::size_t kept = std::min(capacity, whole.size());
        EXPECT_EQ(std::string_view(room.data(), kept), std::string_view(whole).substr(0, kept));
    }
    TextWriter nowhere(nullptr, 0);
    EXPECT_TRUE(nowhere.Write(document.root, document.arena));
    nowhere.EndText();
    EXPECT_EQ(nowhere.length(), whole.size());
    EXPECT_FALSE(nowhere.fits());
}

// Elements that are like the one before.
TEST(Pen, RepeatsElementsWithinItsRoom) {
    const std::string element = "\"08:30:00-17\"";
    const std::string whole = "[ \"08:30:00-17\", \"08:30:00-17\", \"08:30:00-17\" ]";
    for (std::size_t capacity = 0; capacity <= whole.size() + 20; ++capacity) {
        const test::GuardedBuffer room(capacity);
        TextWriter writer(room.data(), capacity);
        writer.BeginArray();
        std::size_t length = 0;
        for (int i = 0; i < 3; ++i) {
            Pen pen(writer);
            if (length > 0 && pen.has(length)) {
                pen.Again(length);
                pen.Return(writer);
                continue;
            }
            writer.CleanString("08:30:00-17");
            length = writer.fits() ? Pen(writer).LengthOfElementSince(pen) : 0;
            if (length > 0) {
                EXPECT_EQ(length, element.size());
            }
        }
        writer.EndArray();
        EXPECT_EQ(writer.length(), whole.size());
        const std::size_t kept = std::min(capacity, whole.size());
        EXPECT_EQ(std::string_view(room.data(), kept), std::string_view(whole).substr(0, kept)) << capacity;
    }
}

// A text of unknown length moves on into larger blocks, up to what its reader has room for.
TEST(TextWriter, GrowsUpToItsBound) {
    const auto write = [](TextWriter& writer) {
        writer.BeginArray();
        for (int i = 0; i < 300; ++i) {
            writer.Int(i);
            writer.String("a\"b");
        }
        writer.EndArray();
    };
    std::string whole(8192, '?');
    TextWriter ample(whole.data(), whole.size());
    write(ample);
    whole.resize(ample.length());
    for (const std::size_t most :
         {std::size_t{0}, std::size_t{8}, std::size_t{100}, whole.size() - 1, whole.size(), std::size_t{1} << 20}) {
        StackArena<16> arena;
        char nearby[16];
        TextWriter writer(nearby, sizeof nearby, arena, most);
        write(writer);
        EXPECT_EQ(writer.length(), whole.size()) << most;
        EXPECT_EQ(writer.fits(), most >= whole.size()) << most;
        EXPECT_FALSE(arena.failed());
        const std::size_t kept = std::min(std::max(most, sizeof nearby), whole.size());
        EXPECT_EQ(std::string_view(writer.text(), kept), std::string_view(whole).substr(0, kept)) << most;
    }
}

TEST(TextWriter, TellsTheArenaOfATextThatNoMemoryHolds) {
    StackArena<16> arena;
    char nearby[16];
    TextWriter writer(nearby, sizeof nearby, arena, 4096);
    test::HeapWatch heap;
    heap.FailFrom(1);
    for (int i = 0; i < 30; ++i)
        writer.String("0123456789");
    EXPECT_TRUE(arena.failed());
    EXPECT_FALSE(writer.fits());
}

TEST(TextWriter, EscapesAtEveryPlaceOfAShortText) {
    for (std::size_t size = 1; size <= 40; ++size) {
        for (std::size_t at = 0; at < size; ++at) {
            std::string text(size, 'x');
            text[at] = '/';
            const std::string due = '"' + std::string(at, 'x') + "\\/" + std::string(size - at - 1, 'x') + '"';
            EXPECT_EQ(Written([&](TextWriter& writer) { writer.String(text); }), due);
        }
    }
}

TEST(TextWriter, WritesWholeValues) {
    for (const char* text : {"null", "true", "false", "-5", "4294967289", "1.500000000000000", "\"a\"", "[  ]", "{  }",
                             "[ 1, [ 2, [ 3 ] ], { \"a\" : {  }, \"b\" : [ null ] } ]"}) {
        EXPECT_EQ(TextOf(test::Document(text).root), text);
    }
}

TEST(TextWriter, WritesAMillionLevelsAndFailsQuietlyWithoutMemory) {
    constexpr std::size_t kLevels = 1000000;
    std::string text;
    std::string expected;
    for (std::size_t i = 0; i < kLevels; ++i)
        text += '[', expected += "[ ";
    for (std::size_t i = 0; i < kLevels; ++i)
        text += ']', expected += " ]";
    test::Document document(text);
    ASSERT_TRUE(document.ok);
    EXPECT_EQ(TextOf(document.root), expected);
    StackArena<64> small;
    test::HeapWatch heap;
    heap.FailFrom(3);
    TextWriter writer(nullptr, 0);
    EXPECT_FALSE(writer.Write(document.root, small));
    EXPECT_TRUE(small.failed());
}

} // namespace
} // namespace orrery::json

// The scanned and printed texts against the C library itself, over millions of texts that no device should send.
#include "frame/JsonParserSupport.h"

#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <random>

namespace orrery {
namespace {

constexpr int kTexts = 1500000; // a format
constexpr std::int32_t kBefore = 0x5A5A5A5A;

using Fields = std::int32_t[7];

struct Format {
    const char* name;
    const char* sample; // 0 for a number, else the separator
    const char* scanned;
    int count;
    bool (*read)(const json::Value& value, void* record);
    void (*write)(json::TextWriter& out, const void* record);
    const char* printed;
};

bool ReadCell(const json::Value& value, void* record) {
    json::Value cell = value;
    json::Value row = json::Value::OfArray(&cell, 1);
    return JsonParser::GetTimeSchedule(json::Value::OfArray(&row, 1), static_cast<CFG_TIME_SECTION*>(record), 1, 1,
                                       nullptr);
}

// A clock time lies in the last three words of its record.
NET_TIME* OfClock(const void* clock) {
    return reinterpret_cast<NET_TIME*>(static_cast<char*>(const_cast<void*>(clock)) - offsetof(NET_TIME, dwHour));
}

const Format kFormats[] = {
    {"narrow section", "0 0:0:0-0:0:0", "%d %02d:%02d:%02d-%02d:%02d:%02d", 7,
     [](const json::Value& v, void* r) { return JsonParser::GetTimeSection(v, static_cast<CFG_TIME_SECTION*>(r)); },
     [](json::TextWriter& out, const void* r) {
         JsonParser::SetTimeSection(out, static_cast<const CFG_TIME_SECTION*>(r));
     },
     "\"%d %02d:%02d:%02d-%02d:%02d:%02d\""},
    {"wide section", "0 0:0:0-0:0:0", "%d %d:%d:%d-%d:%d:%d", 7, ReadCell,
     [](json::TextWriter& out, const void* r) {
         JsonParser::SetTimeSchedule(out, static_cast<const CFG_TIME_SECTION*>(r), 1, 1);
     },
     "[ [ \"%d %02d:%02d:%02d-%02d:%02d:%02d\" ] ]"},
    {"date and time", "0-0-0 0:0:0", "%04d-%02d-%02d %02d:%02d:%02d", 6,
     [](const json::Value& v, void* r) { return JsonParser::GetNetTime(v, static_cast<NET_TIME*>(r)); },
     [](json::TextWriter& out, const void* r) { JsonParser::SetNetTime(out, static_cast<const NET_TIME*>(r)); },
     "\"%04d-%02d-%02d %02d:%02d:%02d\""},
    {"date and time with milliseconds", "0-0-0 0:0:0.0", "%04d-%02d-%02d %02d:%02d:%02d.%d", 7,
     [](const json::Value& v, void* r) { return JsonParser::GetNetTimeEx(v, static_cast<NET_TIME_EX*>(r)); },
     [](json::TextWriter& out, const void* r) { JsonParser::SetNetTimeEx(out, static_cast<const NET_TIME_EX*>(r)); },
     "\"%04d-%02d-%02d %02d:%02d:%02d.%d\""},
    {"date", "0-0-0", "%04d-%02d-%02d", 3,
     [](const json::Value& v, void* r) { return JsonParser::GetDate(v, static_cast<NET_TIME*>(r)); }, nullptr, nullptr},
};

const Format kClock = {"clock",
                       "0:0:0",
                       "%02d:%02d:%02d",
                       3,
                       [](const json::Value& v, void* r) { return JsonParser::GetClockTime(v, OfClock(r)); },
                       [](json::TextWriter& out, const void* r) { JsonParser::SetClockTime(out, OfClock(r)); },
                       "\"%02d:%02d:%02d\""};

// Texts of a format, from usual to absurd.
class Generator {
  public:
    explicit Generator(unsigned seed) : random_(seed) {}

    std::string Text(const char* sample) {
        // One text in three is what a device would send but for its numbers, the others may hold anything.
        const bool usual = Below(3) == 0;
        std::string text;
        for (; *sample != '\0'; ++sample) {
            if (*sample == '0') {
                text += usual ? TwoDigits() : Number();
            } else if (usual || Below(24) != 0) {
                text += *sample;
            } else {
                text += Odd();
            }
        }
        for (unsigned changes = Below(4) == 0 ? 1 + Below(3) : 0; changes > 0; --changes)
            Change(text);
        return text;
    }

    std::int32_t Field() {
        constexpr std::int32_t kLimits[] = {INT_MIN, INT_MIN + 1, INT_MAX, -1, -9, -10, -99, -100, -999, -1000,
                                            -10000,  0,           9,       10, 99, 100, 999, 1000, 9999, 10000};
        switch (Below(4)) {
        case 0:
            return kLimits[Below(std::size(kLimits))];
        case 1:
            return static_cast<std::int32_t>(random_()) >> Below(32);
        default:
            return static_cast<std::int32_t>(Below(100));
        }
    }

    unsigned Below(std::size_t bound) { return static_cast<unsigned>(random_() % bound); }

  private:
    std::string TwoDigits() {
        const unsigned number = Below(100);
        return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
    }

    std::string Number() {
        static const char* const kHostile[] = {"2147483647",
                                               "2147483648",
                                               "-2147483648",
                                               "-2147483649",
                                               "4294967295",
                                               "4294967296",
                                               "4294967297",
                                               "9223372036854775807",
                                               "9223372036854775808",
                                               "9223372036854775809",
                                               "-9223372036854775807",
                                               "-9223372036854775808",
                                               "-9223372036854775809",
                                               "18446744073709551615",
                                               "18446744073709551616",
                                               "99999999999999999999999",
                                               "-99999999999999999999",
                                               "00000000000000000000000000000007",
                                               "-0",
                                               "+0",
                                               "0x1F",
                                               "1e3",
                                               "-",
                                               "+",
                                               "--1",
                                               "+-1",
                                               "- 1",
                                               "",
                                               "\t8",
                                               "\v\f\r\n 8",
                                               "\xC2\xA0"
                                               "8",
                                               "\x85"
                                               "8",
                                               "\x1C"
                                               "8"};
        switch (Below(10)) {
        case 0:
            return kHostile[Below(std::size(kHostile))];
        case 1:
            return std::to_string(static_cast<std::int64_t>(random_()) >> Below(64));
        case 2:
            return std::string(Below(4), ' ') + std::to_string(Below(100));
        case 3:
            return (Below(2) != 0 ? "-" : "+") + std::to_string(Below(1000));
        case 4:
            return std::to_string(Below(1000000));
        case 5:
            return std::to_string(Below(10));
        default:
            return TwoDigits();
        }
    }

    char Odd() {
        constexpr std::string_view kOdd("0123456789 +-:.\t\n\v\f\r/xX,eE\0\x80\xA0\xFF", 31);
        return kOdd[Below(kOdd.size())];
    }

    void Change(std::string& text) {
        const std::size_t at = Below(text.size() + 1);
        switch (Below(4)) {
        case 0:
            text.resize(at);
            break;
        case 1:
            text.insert(at, 1, Odd());
            break;
        case 2:
            if (at < text.size()) text[at] = Odd();
            break;
        default:
            if (at < text.size()) text.erase(at, 1);
        }
    }

    std::mt19937_64 random_;
};

// Our reading and the C library's of the same text; true when result and every field agree.
bool ReadsAlike(const Format& format, const std::string& text, bool& matched) {
    Fields theirs;
    for (std::int32_t& field : theirs)
        field = kBefore;
    const int count = std::sscanf(text.c_str(), format.scanned, &theirs[0], &theirs[1], &theirs[2], &theirs[3],
                                  &theirs[4], &theirs[5], &theirs[6]);
    matched = count == format.count;

    // At the very end of a block of its own size, so that a sanitizer sees a byte too many; and at an odd address.
    const std::vector<char> exact(text.begin(), text.end());
    constexpr std::size_t kFront = sizeof(NET_TIME) + 1;
    char record[kFront + sizeof(Fields)];
    Fields ours;
    for (std::int32_t& field : ours)
        field = kBefore;
    std::memcpy(record + kFront, ours, sizeof ours);
    const bool result = format.read(json::Value::OfString({exact.data(), exact.size()}), record + kFront);
    std::memcpy(ours, record + kFront, sizeof ours);
    return result == matched && std::memcmp(ours, theirs, sizeof ours) == 0;
}

void CompareReading(const Format& format, unsigned seed) {
    Generator generator(seed);
    int matches = 0;
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = generator.Text(format.sample);
        bool matched = false;
        ASSERT_TRUE(ReadsAlike(format, text, matched)) << format.name << ": " << testing::PrintToString(text);
        matches += matched;
    }
    // Both kinds have to be there in numbers, or the comparison says little.
    EXPECT_GT(matches, kTexts / 10) << format.name;
    EXPECT_LT(matches, kTexts - kTexts / 10) << format.name;
}

void CompareWriting(const Format& format, unsigned seed) {
    Generator generator(seed);
    for (int i = 0; i < kTexts; ++i) {
        Fields fields = {};
        for (std::int32_t& field : fields)
            field = generator.Field();
        char expected[160];
        const int size = std::snprintf(expected, sizeof expected, format.printed, fields[0], fields[1], fields[2],
                                       fields[3], fields[4], fields[5], fields[6]);
        constexpr std::size_t kFront = sizeof(NET_TIME) + 1;
        char record[kFront + sizeof fields];
        std::memcpy(record + kFront, fields, sizeof fields);
        char text[160];
        json::TextWriter out(text, sizeof text);
        format.write(out, record + kFront);
        ASSERT_EQ(std::string_view(text, out.length()), std::string_view(expected, static_cast<std::size_t>(size)));
    }
}

TEST(AgainstTheCLibrary, SectionsReadAlike) {
    CompareReading(kFormats[0], 1);
    CompareReading(kFormats[1], 2);
}

TEST(AgainstTheCLibrary, DatesReadAlike) {
    CompareReading(kFormats[2], 3);
    CompareReading(kFormats[3], 4);
    CompareReading(kFormats[4], 5);
}

TEST(AgainstTheCLibrary, ClockTimesReadAlike) {
    CompareReading(kClock, 6);
}

TEST(AgainstTheCLibrary, SectionsAreWrittenAlike) {
    CompareWriting(kFormats[0], 7);
    CompareWriting(kFormats[1], 8);
}

TEST(AgainstTheCLibrary, DatesAreWrittenAlike) {
    CompareWriting(kFormats[2], 9);
    CompareWriting(kFormats[3], 10);
    CompareWriting(kClock, 11);
}

// Every byte in every place of a usual text: the quick way through one and the slow way must not part.
TEST(AgainstTheCLibrary, EveryByteInEveryPlace) {
    const std::pair<const Format*, std::string> kUsual[] = {{&kFormats[0], "1 08:09:10-17:38:59"},
                                                            {&kFormats[1], "1 08:09:10-17:38:59"},
                                                            {&kFormats[2], "2026-11-20 09:38:59"},
                                                            {&kFormats[3], "2026-11-20 09:38:59.250"}};
    for (const auto& [format, usual] : kUsual) {
        for (std::size_t at = 0; at < usual.size(); ++at) {
            for (int c = 0; c < 256; ++c) {
                std::string text = usual;
                text[at] = static_cast<char>(c);
                bool matched = false;
                ASSERT_TRUE(ReadsAlike(*format, text, matched)) << format->name << ' ' << at << ' ' << c;
            }
        }
    }
}

} // namespace
} // namespace orrery

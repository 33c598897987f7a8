// Weeks are read from the text where they are written as most are, into each row that takes them; whatever else comes
// in their place reads as it does from a document.
#include "frame/Frames.h"
#include "frame/TextRoad.h"
#include "frame/record/Table.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orrery {
namespace {

using namespace record;

struct Plan {
    std::uint8_t hasSchedule;
    std::uint8_t hasWeek;
    std::uint8_t reserved[2];
    std::int32_t count;
    CFG_TIME_SCHEDULE schedule;
    CFG_TIME_SECTION week[7][6];
    CFG_TIME_SECTION wide[3][4];
    CFG_TIME_SECTION whole[2][2];
    CFG_TIME_SECTION few[1][2];
    CFG_TIME_SECTION more[3][2];
};

// A key for nobody but the writer stands between those that read.
constexpr CustomCodec kWrittenAlone{nullptr, [](const Field&, const std::byte*, WriteCall&) {}};

TABLE(kPlan, Plan,
      {
          FIELD(hasSchedule),
          FIELD(hasWeek),
          FIELD(reserved),
          FIELD(count),
          FIELD(schedule, "Week", HolidaySchedule).SetsAndNeeds(AT(hasSchedule)).ReadOnly(),
          FIELD(week, "Week", TimeSection).SetsAndNeeds(AT(hasWeek)).ReadOnly().Count(AT(count)),
          FIELD(wide, "Wide", TimeSection),
          FIELD(whole, "Wide", Schedule).ReadOnly(),
          FIELD(few, "Few", TimeSection),
          FIELD(more, "Few", Schedule).ReadOnly(),
          MakeVirtual("Week", Custom(kWrittenAlone)),
      });

// What the text does not tell stays.
constexpr ParseFrame kKeeping = ParseFrame().Clears(Clearing::Kept);

struct Result {
    Plan plan;
    Outcome outcome;
    bool tookText;
};
Result Read(const std::string& value, bool documentOnly) {
    Result result;
    std::memset(static_cast<void*>(&result.plan), 0x11, sizeof result.plan);
    ReadRoad road{.documentOnly = documentOnly};
    const std::string text = "{ \"params\" : { \"table\" : " + value + " }, \"result\" : true }";
    std::uint32_t length = 0;
    result.outcome = ParseFamily(kPlan, kKeeping, {text.c_str(), &result.plan, sizeof result.plan, &length, &road});
    result.tookText = road.tookText;
    return result;
}

// `days` days of `cells` sections, no two alike: the flag counts them.
std::string Days(int days, int cells, const char* separator = ", ") {
    std::string text = "[ ";
    int number = 0;
    for (int day = 0; day < days; ++day) {
        text += day == 0 ? "[ " : std::string(separator) + "[ ";
        for (int cell = 0; cell < cells; ++cell, ++number) {
            char section[96];
            std::snprintf(section, sizeof section, "%d %02d:%02d:%02d-%02d:%02d:%02d", number, day, cell, day + 1,
                          cell + 10, 99 - day, 50 + cell);
            text += (cell == 0 ? "\"" : std::string(separator) + "\"") + section + "\"";
        }
        text += " ]";
    }
    return text + " ]";
}
CFG_TIME_SECTION Cell(int number, int day, int cell) {
    return {number, day, cell, day + 1, cell + 10, 99 - day, 50 + cell};
}
bool Equal(const CFG_TIME_SECTION& a, const CFG_TIME_SECTION& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

TEST(ReadWeek, EachRowOfAKeyTakesTheWeek) {
    for (const char* const separator : {", ", ",", " ,\n\t", " /* a comment */ , "}) {
        const Result read = Read("{ \"Week\" : " + Days(8, 6, separator) + " }", false);
        EXPECT_TRUE(read.tookText);
        EXPECT_EQ(read.outcome, Outcome::Done);
        EXPECT_EQ(read.plan.hasSchedule, 1);
        EXPECT_EQ(read.plan.hasWeek, 1);
        EXPECT_EQ(read.plan.schedule.bEnableHoliday, 1);
        EXPECT_EQ(read.plan.count, 7);
        for (int day = 0; day < 8; ++day) {
            for (int cell = 0; cell < 6; ++cell) {
                const auto wanted = Cell(day * 6 + cell, day, cell);
                EXPECT_TRUE(Equal(read.plan.schedule.stuTimeSection[day][cell], wanted)) << day << " " << cell;
                if (day < 7) {
                    EXPECT_TRUE(Equal(read.plan.week[day][cell], wanted)) << day << " " << cell;
                }
            }
        }
    }
}

TEST(ReadWeek, AScheduleOfSevenDaysHasNoHolidayAndOneOfSixIsNone) {
    EXPECT_EQ(Read("{ \"Week\" : " + Days(7, 6) + " }", false).plan.schedule.bEnableHoliday, 0);
    const Result six = Read("{ \"Week\" : " + Days(6, 6) + " }", false);
    EXPECT_EQ(six.plan.schedule.bEnableHoliday, 0);
    EXPECT_TRUE(Equal(six.plan.schedule.stuTimeSection[5][5], Cell(35, 5, 5)));
    EXPECT_TRUE(Equal(six.plan.schedule.stuTimeSection[6][0], CFG_TIME_SECTION{}));
    EXPECT_EQ(six.plan.count, 6);
    const Result nine = Read("{ \"Week\" : " + Days(9, 6) + " }", false);
    EXPECT_EQ(nine.plan.schedule.bEnableHoliday, 1);
    EXPECT_EQ(nine.plan.count, 7);
}

TEST(ReadWeek, DaysThatAreNotFullLeaveWhatStoodBehindThem) {
    const Result read = Read("{ \"Week\" : " + Days(7, 2) + " }", false);
    EXPECT_TRUE(read.tookText);
    EXPECT_TRUE(Equal(read.plan.schedule.stuTimeSection[6][1], Cell(13, 6, 1)));
    EXPECT_TRUE(Equal(read.plan.schedule.stuTimeSection[6][2], CFG_TIME_SECTION{})); // a schedule is cleared first
    EXPECT_TRUE(Equal(read.plan.week[6][1], Cell(13, 6, 1)));
    EXPECT_EQ(read.plan.week[6][2].dwMask, 0x11111111);
}

TEST(ReadWeek, RowsOfOtherSizesReadForThemselves) {
    const Result read = Read("{ \"Wide\" : " + Days(3, 5) + " }", false);
    EXPECT_TRUE(read.tookText);
    for (int day = 0; day < 3; ++day) {
        for (int cell = 0; cell < 4; ++cell) {
            const auto wanted = Cell(day * 5 + cell, day, cell);
            EXPECT_TRUE(Equal(read.plan.wide[day][cell], wanted)) << day << " " << cell;
            if (day < 2 && cell < 2) {
                EXPECT_TRUE(Equal(read.plan.whole[day][cell], wanted)) << day << " " << cell;
            }
        }
    }
}

TEST(ReadWeek, ALongerRowReadsTheDaysThatAShorterOneHasNoPlaceFor) {
    const Result read = Read("{ \"Few\" : " + Days(4, 2) + " }", false);
    EXPECT_TRUE(read.tookText);
    EXPECT_TRUE(Equal(read.plan.few[0][1], Cell(1, 0, 1)));
    for (int day = 0; day < 3; ++day)
        EXPECT_TRUE(Equal(read.plan.more[day][1], Cell(2 * day + 1, day, 1))) << day;
}

// Both roads, over everything that may stand where a week is wanted.
TEST(ReadWeek, AnythingElseReadsAsFromADocument) {
    const std::string full = Days(8, 6);
    std::vector<std::string> values = {
        "[]",
        "[ ]",
        "[[]]",
        "[[],[],[],[],[],[],[],[]]",
        "null",
        "{}",
        "[null]",
        "[{}]",
        "7",
        "\"1 08:00:00-17:30:00\"",
        "[ \"1 08:00:00-17:30:00\" ]",
        "[[\"1 08:00:00-17:30:00\"],null,[\"2 08:00:00-17:30:00\"]]",
        "[[\"1 08:00:00-17:30:00\"],{},[\"2 08:00:00-17:30:00\"]]",
        "[[\"1 08:00:00-17:30:00\",null,\"3 08:00:00-17:30:00\"],[\"2 08:00:00-17:30:00\"]]",
        "[[\"1 08:00:00-17:30:00\",\"3 8:00:00-17:30:00\"],[\"2 08:00:00-17:30:00\"]]",
        "[[\"1 08:00:00-17:30:00\",\"no section\"],[\"2 08:00:00-17:30:00\"]]",
        "[[\"10 08:00:00-17:30:00\",\"123 08:00:00-17:30:00\"],[\"99 08:00:00-17:30:00\"]]",
        "[[\"1 08:00:00-17:30:00\",\"\\u0032 08:00:00-17:30:00\"],[\"99 08:00:00-17:30:00\"]]",
        "[[\"1 08:00:00-17:30:00\",[]],[\"2 08:00:00-17:30:00\"]]",
        Days(8, 7),
        Days(9, 5),
        Days(1, 1)};
    // A full week with one byte changed, each in turn: cells that are none, and texts that are no JSON.
    for (std::size_t at = 0; at < full.size(); at += 7) {
        for (const char other : {'x', '0', '"', ']'}) {
            values.push_back(full);
            values.back()[at] = other;
        }
    }
    for (const std::string& value : values) {
        for (const char* const key : {"Week", "Wide", "Few"}) {
            const std::string object = std::string("{ \"") + key + "\" : " + value + " }";
            const Result text = Read(object, false), document = Read(object, true);
            EXPECT_EQ(text.outcome, document.outcome) << object;
            EXPECT_EQ(std::memcmp(&text.plan, &document.plan, sizeof(Plan)), 0) << object;
        }
    }
}

} // namespace
} // namespace orrery

#include "frame/json/Pen.h"

#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

namespace orrery::json {
namespace {

TEST(Pen, WritesElementsWhereTheWriterStands) {
    std::string buffer(256, '?');
    TextWriter out(buffer.data(), buffer.size());
    out.BeginObject();
    out.Key("List");
    out.BeginArray();
    Pen pen(out);
    pen.Element([](char* at) { return PutDigits(at, 7); });
    EXPECT_FALSE(pen.TryElement([](char* at) { return PutText(at, "a\xC3", 3, true); }));
    EXPECT_TRUE(pen.TryElement([](char* at) { return PutText(at, "a/b", 4, true); }));
    pen.Element([](char* at) { return PutReal(at, 0.5); });
    pen.Element([](char* at) { return Pen::PutBool(at, true); });
    pen.Element([](char* at) { return Pen::PutBool(at, false); });
    pen.Element([](char* at) { return Pen::PutNull(at); });
    pen.Return(out);
    out.Int(9);
    out.EndArray();
    out.EndObject();
    EXPECT_EQ(std::string_view(buffer.data(), out.length()),
              "{ \"List\" : [ 7, \"a\\/b\", 0.5000000000000000, true, false, null, 9 ] }");
}

TEST(Pen, HasWhatTheWriterHasLessASeparator) {
    char room[16];
    const TextWriter out(room, sizeof room);
    EXPECT_TRUE(Pen(out).has(14));
    EXPECT_FALSE(Pen(out).has(15));
    const TextWriter nowhere(nullptr, 0);
    EXPECT_FALSE(Pen(nowhere).has(0));
}

TEST(Pen, PutsPairsOfNumbersInTheirRoom) {
    for (const std::int32_t number : {0, -7, 1000, 2147483647, -2147483647 - 1}) {
        const test::GuardedBuffer room(Pen::kPairRoom);
        const char* const end = Pen::PutPair(room.data(), number, -5);
        const std::string due = "[ " + std::to_string(number) + ", -5 ]";
        EXPECT_EQ(std::string_view(room.data(), static_cast<std::size_t>(end - room.data())), due);
        const char* const last = Pen::PutPair(room.data(), -2147483647, number);
        EXPECT_EQ(std::string_view(room.data(), static_cast<std::size_t>(last - room.data())),
                  "[ -2147483647, " + std::to_string(number) + " ]");
    }
}

// Two keys as a table keeps them: a separator in front of each, something to be read behind the last.
constexpr char kKeys[] = ", \"Enable\" : , \"AKeyOfMoreThanThirtyTwoLettersInAll\" : 01234567890123456789012345678901";
constexpr std::size_t kLongSize = sizeof("\"AKeyOfMoreThanThirtyTwoLettersInAll\" : ") - 1;

TEST(Hand, PutsMembersUnderABracketThatComesLast) {
    std::string buffer(256, '?');
    TextWriter out(buffer.data(), buffer.size());
    out.BeginObject();
    const Hand hand(out);
    EXPECT_TRUE(hand.isFirst());
    char* at = hand.Take();
    EXPECT_EQ(at, buffer.data()); // over the bracket
    const std::size_t first = hand.OffsetOf(at);
    at = Pen::PutBool(Hand::PutKey(at, kKeys + 2, 11), true);
    at = Hand::PutKey(at, kKeys + 15, kLongSize);
    hand.GiveForValue(at);
    out.Int(5);
    at = hand.Take();
    // The writer goes on as a member's, and the hand again.
    hand.Give(at, first, "{ ");
    EXPECT_FALSE(hand.isFirst());
    out.Key("K");
    out.Null();
    at = hand.Take();
    std::memcpy(hand.PlaceOf(first), "{ ", 2);
    at = hand.Close(at, " }");
    hand.GiveBehindValue(at);
    EXPECT_EQ(std::string_view(buffer.data(), out.length()),
              "{ \"Enable\" : true, \"AKeyOfMoreThanThirtyTwoLettersInAll\" : 5, \"K\" : null }");
}

TEST(Hand, HandsBackAnObjectThatIsBareAsTheWriterOpenedIt) {
    std::string buffer(64, '?');
    TextWriter out(buffer.data(), buffer.size());
    out.BeginArray();
    out.Null();
    const Hand hand(out);
    char* const at = hand.TakeForValue(); // behind a separator of its own
    const std::size_t first = hand.OffsetOf(at);
    hand.Give(at, first, "{ ");
    EXPECT_TRUE(hand.isFirst());
    EXPECT_EQ(hand.Take(), at);
    out.Key("K");
    out.UInt(1);
    EXPECT_EQ(hand.PlaceOf(first), at);
    hand.GiveBehindValue(hand.Close(hand.Take(), " }"));
    out.EndArray();
    EXPECT_EQ(std::string_view(buffer.data(), out.length()), "[ null, { \"K\" : 1 } ]");
}

TEST(Hand, ClosesThroughTheWriterWhereThereIsNoRoom) {
    char room[9];
    TextWriter out(room, sizeof room);
    const Hand hand(out);
    EXPECT_TRUE(hand.HasBehind(9));
    EXPECT_FALSE(hand.HasBehind(10));
    EXPECT_EQ(hand.LimitFor(4), room + 5);
    char* const at = hand.TakeForValue();
    std::memcpy(at, "[ 1234567", 8);
    EXPECT_TRUE(hand.Has(at + 8, 1));
    EXPECT_FALSE(hand.Has(at + 8, 2));
    EXPECT_EQ(hand.Close(at + 8, " ]"), room + 9); // one byte of two
    EXPECT_EQ(std::string_view(room, 9), "[ 123456 ");
    EXPECT_EQ(out.length(), 10u);
}

// Both ways out of a text: as escapes written one by one, and as the whole-text functions write them.
std::string Escaped(std::string_view text) {
    std::string escaped = "\"";
    for (const char c : text) {
        const std::size_t at = std::string_view("\"\\/\b\t\n\f\r").find(c);
        if (at != std::string_view::npos) escaped += '\\';
        escaped += at != std::string_view::npos ? "\"\\/btnfr"[at] : c;
    }
    return escaped + '"';
}

// Every length in a field of every capacity, with each odd byte at each place, alone and in a row; nothing outside the
// field is read and nothing outside its room is written.
TEST(PutText, EscapesWhatNeedsItAndRefusesWhatIsNoAscii) {
    for (std::size_t capacity = 1; capacity <= 53; ++capacity) {
        const test::GuardedBuffer field(capacity);
        const test::GuardedBuffer room(TextRoom(capacity));
        for (std::size_t size = 0; size <= capacity; ++size) {
            const auto fill = [&] {
                std::memset(field.data(), '/', capacity); // behind the terminator anything may stand
                for (std::size_t i = 0; i < size; ++i)
                    field.data()[i] = static_cast<char>('a' + i % 26);
                if (size < capacity) field.data()[size] = '\0';
            };
            const auto text = [&](bool asciiOnly) {
                const char* const end = PutText(room.data(), field.data(), capacity, asciiOnly);
                return end == nullptr ? std::string("refused")
                                      : std::string(room.data(), static_cast<std::size_t>(end - room.data()));
            };
            fill();
            ASSERT_EQ(text(true), '"' + std::string(field.data(), size) + '"') << size << " of " << capacity;
            for (std::size_t at = 0; at < size; at += 1 + at / 8) {
                for (const char odd : {'"', '\\', '/', '\b', '\t', '\n', '\v', '\f', '\r', '\x07', '\x0E', '\xC3'}) {
                    for (const std::size_t count : {std::size_t{1}, std::size_t{3}, size - at}) {
                        fill();
                        std::memset(field.data() + at, odd, std::min(count, size - at));
                        const std::string due = Escaped({field.data(), size});
                        ASSERT_EQ(text(true), odd == '\xC3' ? "refused" : due) << at << " of " << size;
                        ASSERT_EQ(text(false), due) << at << " of " << size;
                    }
                }
            }
        }
    }
}

// The same through the writer, in a room that is just enough, whether or not there is room for twice the text.
TEST(TextWriter, EscapesTextsOfEveryLengthInAnyRoom) {
    for (std::size_t size = 0; size <= 53; ++size) {
        for (std::size_t at = 0; at <= size; ++at) {
            std::string text(size, 'x');
            if (at < size) text[at] = '/';
            if (at + 1 < size) text[at + 1] = '\0'; // a byte like any other
            const std::string due = Escaped(text);
            for (const std::size_t more : {std::size_t{0}, std::size_t{1}, 2 * size + 8}) {
                const test::GuardedBuffer room(due.size() + more);
                TextWriter out(room.data(), due.size() + more);
                out.String(text);
                ASSERT_EQ(std::string_view(room.data(), out.length()), due);
                ASSERT_TRUE(out.fits());
            }
            const test::GuardedBuffer room(due.size() + 3);
            TextWriter out(room.data(), due.size() + 3);
            out.Key(text);
            ASSERT_EQ(std::string_view(room.data(), out.length()), due + " : ");
        }
    }
}

TEST(TextWriter, TakesBackWhatItWrote) {
    std::string buffer(12, '?');
    TextWriter out(buffer.data(), buffer.size());
    out.BeginArray();
    out.Int(1);
    const TextWriter::Place place = out.place();
    out.String("longer than there is room");
    EXPECT_FALSE(out.fits());
    out.TakeBack(place);
    EXPECT_TRUE(out.fits());
    out.Int(2);
    out.EndArray();
    EXPECT_EQ(std::string_view(buffer.data(), out.length()), "[ 1, 2 ]");
}

TEST(PutDigits, WritesWhatPrintfDoes) {
    const auto check = [](std::uint32_t number) {
        char text[kIntegerRoom], due[16];
        std::snprintf(due, sizeof due, "%u", number);
        ASSERT_EQ(std::string_view(text, static_cast<std::size_t>(PutDigits(text, number) - text)), due);
        const auto asSigned = static_cast<std::int32_t>(number);
        std::snprintf(due, sizeof due, "%d", asSigned);
        ASSERT_EQ(std::string_view(text, static_cast<std::size_t>(PutDigits(text, asSigned) - text)), due);
    };
    for (std::uint32_t number = 0; number < 12000; ++number)
        check(number);
    for (std::uint64_t ten = 1; ten <= 1000000000; ten *= 10) {
        for (const std::uint64_t times : {1, 2, 5, 9, 10}) {
            for (const std::uint64_t more : {0u, 1u, 7u, 4294967295u})
                check(static_cast<std::uint32_t>(ten * times + more));
        }
    }
    std::uint32_t any = 1;
    for (int i = 0; i < 100000; ++i, any = any * 1664525 + 1013904223)
        check(any >> any % 32);
}

} // namespace
} // namespace orrery::json

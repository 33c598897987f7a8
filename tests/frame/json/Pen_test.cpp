#include "frame/json/Pen.h"

#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace orrery::json {
namespace {

// Two keys as a table keeps them: a separator in front of each, something to be read behind the last.
constexpr char kKeys[] = ", \"Enable\" : , \"AKeyOfMoreThanThirtyTwoLettersInAll\" : 01234567890123456789012345678901";
constexpr std::size_t kLongSize = sizeof("\"AKeyOfMoreThanThirtyTwoLettersInAll\" : ") - 1;

TEST(Pen, WritesMembersAndElementsWhereTheWriterStands) {
    std::string buffer(256, '?');
    TextWriter out(buffer.data(), buffer.size());
    out.BeginObject();
    Pen pen(out);
    EXPECT_TRUE(pen.isFirst());
    pen.PaddedKey(kKeys + 2, 11);
    pen.Value([](char* at) { return Pen::PutBool(at, true); });
    EXPECT_FALSE(pen.isFirst());
    pen.PaddedKey(kKeys + 2, 11);
    pen.Value([](char* at) { return Pen::PutBool(at, false); });
    pen.PaddedKey(kKeys + 15, kLongSize);
    EXPECT_FALSE(pen.TryValue([](char* at) { return PutCleanText(at, "a/b", 4, false); }));
    EXPECT_TRUE(pen.TryValue([](char* at) { return PutCleanText(at, "ab", 3, false); }));
    pen.Return(out);
    out.Key("List");
    out.BeginArray();
    Pen inner(out);
    inner.Element([](char* at) { return PutDigits(at, 7); });
    EXPECT_FALSE(inner.TryElement([](char*) { return static_cast<char*>(nullptr); }));
    inner.Element([](char* at) { return PutReal(at, 0.5); });
    inner.Return(out);
    out.Int(9);
    out.EndArray();
    out.EndObject();
    EXPECT_EQ(std::string_view(buffer.data(), out.length()),
              "{ \"Enable\" : true, \"Enable\" : false, \"AKeyOfMoreThanThirtyTwoLettersInAll\" : \"ab\", "
              "\"List\" : [ 7, 0.5000000000000000, 9 ] }");
}

TEST(Pen, HasWhatTheWriterHasLessASeparator) {
    char room[16];
    const TextWriter out(room, sizeof room);
    EXPECT_TRUE(Pen(out).has(14));
    EXPECT_FALSE(Pen(out).has(15));
    const TextWriter nowhere(nullptr, 0);
    EXPECT_FALSE(Pen(nowhere).has(0));
}

// Every length in a field of every capacity, with each odd byte at each place; nothing outside the field is read and
// nothing outside its room is written.
TEST(PutCleanText, TakesTextsThatNeedNoEscape) {
    for (std::size_t capacity = 1; capacity <= 70; ++capacity) {
        const test::GuardedBuffer field(capacity);
        const test::GuardedBuffer room(capacity + kCleanTextRoom);
        for (std::size_t size = 0; size <= capacity; ++size) {
            const auto fill = [&] {
                std::memset(field.data(), '/', capacity); // behind the terminator anything may stand
                for (std::size_t i = 0; i < size; ++i)
                    field.data()[i] = static_cast<char>('a' + i % 26);
                if (size < capacity) field.data()[size] = '\0';
            };
            fill();
            const char* const end = PutCleanText(room.data(), field.data(), capacity, true);
            ASSERT_NE(end, nullptr) << size << " of " << capacity;
            const std::string quoted = '"' + std::string(field.data(), size) + '"';
            ASSERT_EQ(std::string_view(room.data(), static_cast<std::size_t>(end - room.data())), quoted);
            for (std::size_t at = 0; at < size; at += 1 + at / 8) {
                for (const char odd : {'"', '\\', '/', '\b', '\r', '\xC3'}) {
                    fill();
                    field.data()[at] = odd;
                    ASSERT_EQ(PutCleanText(room.data(), field.data(), capacity, true), nullptr);
                    const bool isClean = PutCleanText(room.data(), field.data(), capacity, false) != nullptr;
                    ASSERT_EQ(isClean, odd == '\xC3') << at << " of " << size;
                }
            }
        }
    }
}

} // namespace
} // namespace orrery::json

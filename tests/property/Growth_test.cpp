// Texts that a hostile device makes to cost more than their length. The bound is processor time that only work beyond
// linear comes near: a linear pass over the longest of these texts takes milliseconds, a quadratic one minutes.
#include "events/EventMap.h"
#include "frame/record/Engine.h"
#include "orrery/events_intelligent_crossing.h"
#include "support/CommandCalls.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/Locales.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <ctime>
#include <gtest/gtest.h>
#include <set>
#include <span>
#include <tuple>

namespace orrery {
namespace {

using namespace test;

constexpr double kBound = 5; // seconds

// Heap that a call takes for a text: a little in any event, and so much for each byte.
constexpr std::ptrdiff_t kAnyway = std::ptrdiff_t{256} << 10;
constexpr std::ptrdiff_t kPerByte = 160; // half of it is the last and largest piece of memory, of which little is used

double Seconds() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void Finishes(const Command& command, const std::string& text, std::string_view what) {
    std::size_t allocations = 0;
    std::ptrdiff_t left = 0;
    std::ptrdiff_t peak = 0;
    const double start = Seconds();
    Outcome outcome = Outcome::Done;
    {
        HeapWatch heap;
        std::vector<std::byte> buffer(command.table->size);
        CallerMemory memory;
        memory.PrepareBuffer(command, buffer.data(), buffer.size());
        const std::size_t before = heap.allocations();
        const std::ptrdiff_t live = heap.liveBytes();
        heap.ResetPeak();
        outcome = RunParse(command, {text.c_str(), buffer.data(), command.table->size, nullptr});
        allocations = heap.allocations() - before;
        left = heap.liveBlocks();
        peak = heap.peakBytes() - live;
    }
    EXPECT_LT(Seconds() - start, kBound) << command.name << ": " << what;
    EXPECT_LT(allocations, 100u) << command.name << ": " << what; // chunks double, so they are few
    EXPECT_LE(peak, kAnyway + kPerByte * static_cast<std::ptrdiff_t>(text.size())) << command.name << ": " << what;
    EXPECT_LE(left, 0) << command.name << ": " << what;
    EXPECT_NE(outcome, Outcome::OutOfMemory) << command.name << ": " << what;
}

std::string Repeated(std::string_view text, std::size_t count) {
    std::string all;
    all.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

struct HostileValue {
    const char* what;
    std::string text;
};

std::vector<HostileValue> HostileValues(std::size_t many) {
    std::string falling = "{";
    for (std::size_t i = many; i > 0; --i)
        falling += "\"" + std::to_string(many + i) + "\":1,";
    falling += "\"Enable\":1}";
    return {
        {"open arrays", Repeated("[", many)},
        {"arrays in arrays", Repeated("[", many) + Repeated("]", many)},
        {"objects in objects", Repeated("{\"a\":", many) + "1" + Repeated("}", many)},
        {"digits", "[" + Repeated("7", many) + ",1e" + Repeated("9", many) + ",0." + Repeated("3", many) + "]"},
        {"elements", "[" + Repeated("1,", many) + "1]"},
        {"empty lists", "[" + Repeated("[],", many) + "[]]"},
        {"one key again and again", "{" + Repeated("\"Enable\":true,", many) + "\"Enable\":true}"},
        {"comments", Repeated("/**/", many) + "{}"},
        {"comments without an end", "[" + Repeated("/*", many)},
        {"escapes", "\"" + Repeated("\\u4e2d", many) + "\""},
        {"keys in falling order", falling},
    };
}

// A million of everything for each way that a frame walks a document, fewer for every command.
TEST(Growth, DepthLengthAndRepetition) {
    const auto longest = HostileValues(1'000'000);
    const auto shorter = HostileValues(20'000);
    std::set<std::tuple<Command::Frame, bool, int>> seen;
    const SweepBudget budget;
    const std::size_t some = budget.Rounds(200'000, 2, shorter.size());
    Spread spread(shorter.size(), some, 0);
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        const GenericFrame& frame = command.genericFrame;
        const bool first = seen.emplace(command.parse, frame.arrayForm, frame.dimension).second;
        for (const HostileValue& value : first ? longest : shorter) {
            if (first || spread.Takes()) Finishes(command, Envelope(command, JsonTree(value.text)).Text(), value.what);
        }
    }
}

void MakeEveryValueLong(std::span<const std::string> values) {
    std::set<const record::Table*> seen;
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.parses() || !seen.insert(command.table).second) continue;
        JsonTree tree = ReplyTree(command, {.most = 1, .records = 1});
        std::size_t turn = 0;
        const std::vector<JsonTree*> places = tree.Places();
        const std::size_t bytes = 2 * values[0].size() + 2 * std::size_t{command.table->size};
        Spread spread(places.size(), budget.Rounds(bytes, 4, places.size()), places.size() / 2);
        for (JsonTree* const place : places) {
            if (place->kind() == JsonTree::Kind::Object || !spread.Takes()) continue;
            JsonTree kept = std::move(*place);
            *place = JsonTree(values[turn++ % values.size()]);
            Finishes(command, tree.Text(), "a value in " + kept.Text());
            *place = std::move(kept);
        }
    }
}

TEST(Growth, EveryValueMadeLong) {
    constexpr std::size_t kLong = 50'000;
    const std::string values[] = {"[" + Repeated("1,", kLong) + "1]", "[" + Repeated("{},", kLong) + "{}]",
                                  "\"" + Repeated("x\\n", kLong) + "\""};
    MakeEveryValueLong(values);
}

class GrowthIn : public CompiledLocales {};

// Characters that the codeset lacks, which cost its converter most.
TEST_F(GrowthIn, EveryTextMadeLongUnderALocaleThatConverts) {
    Compile("GBK", "zh_CN.GBK");
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    const std::string values[] = {"\"" + Repeated("\xF0\x9F\x98\x80", 10'000) + "\""};
    MakeEveryValueLong(values);
}

// ---- Events ----

// What the decoded events of a call may take, and the document that they are read from.
std::ptrdiff_t MostFor(const std::string& text) {
    const auto size = static_cast<std::ptrdiff_t>(text.size());
    return (std::ptrdiff_t{64} << 20) + 64 * size + kAnyway + kPerByte * size;
}

std::ptrdiff_t PeakOf(const std::string& text, int& delivered) {
    HeapWatch heap;
    const auto count = [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void* user) {
        ++*static_cast<int*>(user);
        return 0;
    };
    delivered = 0;
    CLIENT_ParseAnalyzerEventData(text.c_str(), 0, count, &delivered);
    EXPECT_EQ(heap.liveBlocks(), 0);
    return heap.peakBytes();
}

// Two bytes of the list make an object of hundreds.
TEST(Growth, EventsOfManyObjectsEndAtTheirBound) {
    const std::string list = "[" + Repeated("0,", 2'000'000) + "0]";
    int delivered = 0;
    for (const char* const code : {"CrossLineDetection", "ObjectDetection"}) {
        const std::string text = EventText(code, "{\"Objects\":" + list + "}");
        const double start = Seconds();
        EXPECT_LE(PeakOf(text, delivered), MostFor(text)) << code;
        EXPECT_LT(Seconds() - start, kBound) << code;
        EXPECT_EQ(delivered, 1) << code << ": without its objects";
    }
    // Past the bound it is as if memory had run out, for that block alone: what stands behind it has its objects.
    const std::string text = "{\"Event\":[{\"Code\":\"CrossLineDetection\",\"Data\":{\"Objects\":" + list
                             + "}},{\"Code\":\"CrossLineDetection\",\"Data\":{\"Objects\":[{\"ObjectID\":7}]}}]}";
    std::vector<std::int32_t> counts;
    Decode(text, [&](const Delivered& event) {
        const auto& record = event.as<DEV_EVENT_CROSSLINE_EX_INFO>();
        counts.push_back(record.nObjectNum);
        EXPECT_EQ(record.nObjectNum == 0, record.pObjects == nullptr);
    });
    EXPECT_EQ(counts, (std::vector<std::int32_t>{0, 1}));
}

// As many events as are read, each with a list that alone is allowed: some are left out, in the order of the text.
TEST(Growth, ManyEventsTogetherEndAtTheirBound) {
    const std::string event = "{\"Code\":\"ObjectDetection\",\"Data\":{\"Objects\":[" + Repeated("0,", 9'999) + "0]}}";
    std::string text = "{\"Event\":[" + event;
    for (int i = 1; i < 128; ++i)
        text += "," + event;
    text += "]}";
    int delivered = 0;
    EXPECT_LE(PeakOf(text, delivered), MostFor(text));
    EXPECT_GT(delivered, 0);
}

// Each list of each event, for lists that own memory of which nobody thought.
TEST(Growth, EveryListOfEveryEventMadeLong) {
    const std::string list = "[" + Repeated("0,", 400'000) + "0]";
    int total = 0;
    std::set<std::string> seen; // what looks alike in another event is read alike
    for (const events::EventRow& row : events::Events()) {
        if (row.name.empty()) continue;
        JsonTree tree = RecordTree(*row.table, {.most = 1, .records = 1});
        for (JsonTree* const place : tree.Places()) {
            if (place->kind() != JsonTree::Kind::Array || !seen.insert(place->Text()).second) continue;
            JsonTree kept = std::move(*place);
            *place = JsonTree(list);
            const std::string text = EventText(row.name, tree.Text());
            int delivered = 0;
            ASSERT_LE(PeakOf(text, delivered), MostFor(text)) << row.name << " at " << kept.Text();
            total += delivered;
            *place = std::move(kept);
        }
    }
    EXPECT_GT(total, 20);
}

// ---- Packing ----

// What it takes beside the caller's buffers: room for texts and, of records under their names or of another layout, for
// as much as the caller handed in.
TEST(Growth, PackingTakesNoMoreThanTheRecords) {
    for (const Command& command : DistinctCommands()) {
        if (!command.packs() || HasPointers(*command.table)) continue;
        const std::size_t count = std::min<std::size_t>(200, 1 + 1'000'000 / command.table->size);
        std::vector<std::byte> records(count * command.table->size, std::byte{'a'});
        for (std::size_t i = 0; i < count; ++i)
            record::SetSizeWords(*command.table, records.data() + i * command.table->size);
        std::vector<char> room(std::size_t{16} << 20);
        HeapWatch heap;
        const double start = Seconds();
        RunPack(command, {records.data(), static_cast<std::uint32_t>(records.size()), room.data(),
                          static_cast<std::uint32_t>(room.size())});
        EXPECT_LT(Seconds() - start, kBound) << command.name;
        EXPECT_LE(heap.peakBytes(), kAnyway + 8 * static_cast<std::ptrdiff_t>(records.size())) << command.name;
        EXPECT_EQ(heap.liveBlocks(), 0) << command.name;
    }
}

} // namespace
} // namespace orrery

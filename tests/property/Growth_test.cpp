// Texts that a hostile device makes to cost more than their length. The bound is processor time that only work beyond
// linear comes near: a linear pass over the longest of these texts takes milliseconds, a quadratic one minutes.
#include "support/CommandCalls.h"
#include "support/FailingAllocator.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <ctime>
#include <gtest/gtest.h>
#include <set>
#include <tuple>

namespace orrery {
namespace {

using namespace test;

constexpr double kBound = 5; // seconds

double Seconds() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void Finishes(const Command& command, const std::string& text, std::string_view what) {
    std::size_t allocations = 0;
    std::ptrdiff_t left = 0;
    const double start = Seconds();
    Outcome outcome = Outcome::Done;
    {
        HeapWatch heap;
        std::vector<std::byte> buffer(command.table->size);
        CallerMemory memory;
        memory.PrepareBuffer(command, buffer.data(), buffer.size());
        const std::size_t before = heap.allocations();
        outcome = RunParse(command, {text.c_str(), buffer.data(), command.table->size, nullptr});
        allocations = heap.allocations() - before;
        left = heap.liveBlocks();
    }
    EXPECT_LT(Seconds() - start, kBound) << command.name << ": " << what;
    EXPECT_LT(allocations, 100u) << command.name << ": " << what; // chunks double, so they are few
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
        const TableFrame& frame = command.tableFrame;
        const bool first = seen.emplace(command.parse, frame.arrayForm, frame.dimension).second;
        for (const HostileValue& value : first ? longest : shorter) {
            if (first || spread.Takes()) Finishes(command, Envelope(command, JsonTree(value.text)).Text(), value.what);
        }
    }
}

TEST(Growth, EveryValueMadeLong) {
    constexpr std::size_t kLong = 50'000;
    const std::string values[] = {"[" + Repeated("1,", kLong) + "1]", "[" + Repeated("{},", kLong) + "{}]",
                                  "\"" + Repeated("x\\n", kLong) + "\""};
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
            *place = JsonTree(values[turn++ % std::size(values)]);
            Finishes(command, tree.Text(), "a value in " + kept.Text());
            *place = std::move(kept);
        }
    }
}

} // namespace
} // namespace orrery

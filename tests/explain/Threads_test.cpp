// Any number of threads explain at once.
#include "explain/Explained.h"

#include <gtest/gtest.h>
#include <sstream>
#include <thread>

namespace orrery::test {
namespace {

std::string AllOf(const std::vector<Found>& all) {
    std::ostringstream told;
    for (const Found& found : all)
        told << found << '\n';
    return told.str();
}

// What one thread does in a turn: replies, events and rules, with findings of many kinds.
std::string Turn(int turn) {
    const std::string name = "Nonsense" + std::to_string(turn % 7);
    std::string told = AllOf(ExplainTable("NTP", R"({"Port":"x",")" + name + R"(":1,"UpdatePeriod":100000})"));
    told += AllOf(ExplainTable("VideoWidget", R"([{")" + name + R"(":1}])"));
    told +=
        AllOf(ExplainTable("VideoInAnalyseRule", R"([{"Rules":{"FireDetection":{"Rule":[{")" + name + R"(":1}]}}}])"));
    told += AllOf(ExplainEvents(R"({"Event":[{"Code":"AlarmLocal","Data":{")" + name + R"(":1}}]})"));
    return told;
}

TEST(ExplainThreads, TellTheSameAsOne) {
    constexpr int kThreads = 8, kTurns = 25;
    // The first calls of all, which make what is kept for the later ones, come at once.
    std::vector<std::string> told(kThreads);
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&told, i] {
            for (int turn = 0; turn < kTurns; ++turn)
                told[static_cast<std::size_t>(i)] += Turn(turn);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    std::string expected;
    for (int turn = 0; turn < kTurns; ++turn)
        expected += Turn(turn);
    EXPECT_NE(expected.find("Nonsense6"), std::string::npos);
    for (const std::string& each : told)
        EXPECT_EQ(each, expected);
}

} // namespace
} // namespace orrery::test

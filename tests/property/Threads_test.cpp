// Every command on eight threads at once gives what it gives on one.
#include "support/CommandCalls.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>

namespace orrery {
namespace {

using namespace test;

struct Answer {
    Outcome parsed = Outcome::Done;
    std::vector<std::byte> record;
    Packed packed{Outcome::Done, {}};
};

Answer RunOnce(const Command& command, const std::string& text) {
    Answer run;
    run.record.resize(command.table->size);
    CallerMemory memory;
    memory.PrepareBuffer(command, run.record.data(), run.record.size());
    std::uint32_t length = 0;
    if (command.parses())
        run.parsed = RunParse(command, {text.c_str(), run.record.data(), command.table->size, &length});
    if (command.packs()) {
        std::vector<char> room(std::size_t{256} << 10);
        run.packed.outcome = RunPack(
            command, {run.record.data(), command.table->size, room.data(), static_cast<std::uint32_t>(room.size())});
        run.packed.text.assign(room.data(), strnlen(room.data(), room.size()));
    }
    return run;
}

TEST(PropertyThreads, EightGiveWhatOneGives) {
    const auto& commands = DistinctCommands();
    std::vector<std::string> texts;
    std::vector<Answer> alone;
    for (const Command& command : commands) {
        texts.push_back(command.parses() ? ReplyText(command, {.values = Values::Limits, .seed = 9}) : "");
        alone.push_back(RunOnce(command, texts.back()));
    }
    std::vector<int> wrong(8);
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number < wrong.size(); ++number) {
        threads.emplace_back([&, number] {
            for (std::size_t turn = 0; turn < 3 * commands.size(); ++turn) {
                const std::size_t i = (turn + number * 5) % commands.size();
                const Answer run = RunOnce(commands[i], texts[i]);
                // Where a record points to differs; what stands there is in the text.
                const bool same = run.parsed == alone[i].parsed && run.packed.outcome == alone[i].packed.outcome
                                  && run.packed.text == alone[i].packed.text
                                  && (HasPointers(*commands[i].table) || run.record == alone[i].record);
                if (!same) ++wrong[number];
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, std::vector<int>(8));
}

} // namespace
} // namespace orrery

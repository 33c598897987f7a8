// What an empty table gives: every command's defaults, on every kind of number.
#include "frame/record/Engine.h"
#include "support/CommandCalls.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace test;
using record::Cell;
using record::Field;

double NumberAt(const Field& field, const std::byte* at) {
    if (field.cell == Cell::F32) return static_cast<double>(record::Load<float>(at));
    if (field.cell == Cell::F64) return record::Load<double>(at);
    return static_cast<double>(record::LoadInteger(field.cell, at));
}

TEST(Defaults, StandInEveryRecordOfAnEmptyReply) {
    for (const Command& command : DistinctCommands()) {
        if (!command.parses() || TakesMany(command) || command.parse == Command::Frame::Own) continue;
        if (command.parse == Command::Frame::Family && command.parseFrame.take != Take::One) continue;
        ParseCalls calls(command);
        const std::string text = Envelope(command, JsonTree::Object()).Text();
        const Outcome outcome = calls.Run(text.c_str(), command.table->size, std::byte{0});
        if (outcome == Outcome::RowRefused) continue; // of a command that fails without its keys
        ASSERT_EQ(outcome, Outcome::Done) << command.name;
        for (const Field& field : *command.table) {
            if (!field.hasDefault) continue;
            EXPECT_EQ(NumberAt(field, calls.record() + field.offset), field.defaultValue)
                << command.name << "." << field.name;
        }
    }
}

} // namespace
} // namespace orrery

// The schema against what the compiler itself says of the public headers: its debug information.
#include "orrery/Documents.h"
#include "orrery/Schema.h"
#include "tools/DebugInfo.h"

#include "Commands.h"
#include "events/EventMap.h"
#include "events/TypedText.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <json/json.h>
#include <map>
#include <set>

namespace orrery::tool {
namespace {

// Read with a reader other than the library's own.
Json::Value ReadSchema() {
    Json::Value root;
    std::string errors;
    const std::string text = Schema();
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    EXPECT_TRUE(reader->parse(text.data(), text.data() + text.size(), &root, &errors)) << errors;
    return root;
}

TEST(Schema, ListsEveryCommandWithARecordOfTheList) {
    const Json::Value schema = ReadSchema();
    EXPECT_EQ(schema["version"], ORRERY_VERSION);
    std::set<std::string> records;
    for (const Json::Value& record : schema["records"]) {
        EXPECT_TRUE(records.insert(record["name"].asString()).second) << record["name"] << " is listed twice";
    }
    ASSERT_EQ(schema["commands"].size(), Commands().size());
    for (Json::ArrayIndex i = 0; i < schema["commands"].size(); ++i) {
        const Json::Value& command = schema["commands"][i];
        EXPECT_EQ(command["name"], std::string(Commands()[i].name));
        EXPECT_EQ(command["parse"], Commands()[i].parses());
        EXPECT_EQ(command["pack"], Commands()[i].packs());
        EXPECT_TRUE(records.contains(command["record"].asString())) << command["name"];
    }
    for (const Json::Value& record : schema["records"]) {
        for (const Json::Value& field : record["fields"]) {
            const std::string type = field["type"].asString();
            if (type != "record" && type != "ptr") continue;
            if (field.isMember("to")) continue; // a pointer to a text or to numbers
            EXPECT_TRUE(records.contains(field["record"].asString())) << record["name"] << field["name"];
        }
    }
}

TEST(Schema, ListsEveryEventWithARecordOfTheList) {
    const Json::Value schema = ReadSchema();
    std::map<std::string, Json::Value> sizes;
    for (const Json::Value& record : schema["records"])
        sizes[record["name"].asString()] = record["size"];
    const auto events = events::Events();
    ASSERT_EQ(schema["events"].size(), events.size());
    for (Json::ArrayIndex i = 0; i < schema["events"].size(); ++i) {
        const Json::Value& event = schema["events"][i];
        EXPECT_EQ(event["code"].asUInt(), events[i].code);
        EXPECT_EQ(event["name"], std::string(events[i].name));
        EXPECT_EQ(event["size"].asUInt(), events[i].reportedSize);
        ASSERT_TRUE(sizes.contains(event["record"].asString())) << event["name"];
        EXPECT_EQ(sizes[event["record"].asString()].asUInt(), events[i].recordSize) << event["name"];
    }
}

TEST(Schema, ListsWhatTypedTextsCarry) {
    const Json::Value typed = ReadSchema()["typed"];
    const auto rows = events::TypedRows();
    ASSERT_EQ(typed.size(), rows.size());
    for (Json::ArrayIndex i = 0; i < typed.size(); ++i) {
        EXPECT_EQ(typed[i]["code"].asUInt(), rows[i].code);
        EXPECT_EQ(typed[i]["name"], std::string(rows[i].name));
        EXPECT_EQ(typed[i]["record"], rows[i].table->record);
        EXPECT_EQ(typed[i]["list"].asBool(), rows[i].isList);
    }
}

// "i32", "char", "record:CFG_POINT", "ptr:CFG_ITEM" with all dimensions.
std::string TypeInSchema(const Json::Value& field) {
    std::string type = field["type"].asString();
    if (field.isMember("to")) {
        const std::string to = field["to"].asString();
        type += to == "i32" ? ":int" : to == "u32" ? ":unsigned int" : to == "u8" ? ":unsigned char" : ":" + to;
    }
    const bool isBytes = field["bytes"].asBool(); // the record is only the first of what stands there
    if (field.isMember("record")) type += ":" + (isBytes ? "unsigned char" : field["record"].asString());
    for (const Json::Value& dim : field["dims"])
        type += "[" + dim.asString() + "]";
    return type;
}

TEST(Schema, AgreesWithTheDebugInformation) {
    const Json::Value schema = ReadSchema();
    const std::string source = ORRERY_SCRATCH_DIR "/schema_probe.cpp";
    {
        std::ofstream probe(source);
        probe << "#include \"orrery/orrery.h\"\n";
        for (const Json::Value& record : schema["records"]) {
            const std::string name = record["name"].asString();
            probe << name << " of_" << name << ";\n";
        }
    }
    const auto compiled = test::RecordsOf(source);
    ASSERT_FALSE(compiled.empty()) << "no debug information";
    std::size_t compared = 0;
    for (const Json::Value& record : schema["records"]) {
        const std::string name = record["name"].asString();
        ASSERT_TRUE(compiled.contains(name)) << name << " is in no public header";
        const test::CompiledRecord& truth = compiled.at(name);
        EXPECT_EQ(record["size"].asUInt64(), truth.size) << name;
        std::set<std::string> listed;
        for (const Json::Value& field : record["fields"]) {
            const std::string member = field["name"].asString();
            listed.insert(member);
            const auto found = truth.members.find(member);
            ASSERT_NE(found, truth.members.end()) << name << " has no member " << member;
            EXPECT_EQ(field["offset"].asUInt64(), found->second.offset) << name << "." << member;
            EXPECT_EQ(TypeInSchema(field), found->second.type) << name << "." << member;
            ++compared;
        }
        for (const auto& [member, unused] : truth.members)
            EXPECT_TRUE(listed.contains(member)) << name << "." << member << " is not in the schema";
    }
    EXPECT_GT(compared, 200U);
}

// Takes a group of words apart: a new one does not compile here until it is asked for below.
void AllWordsAreAskedFor() {
    [[maybe_unused]] const auto [always, only, anyShape, exactly, zeroed, allOrNone, counted, nulls, refused,
                                 readCondition, firstBytes, atLeast, owned, toBytes, failure] = record::ReadingWords{};
    [[maybe_unused]] const auto [trueAtOne, hasUnless, unless, notNegative, atMost, condition, when, untilEmpty,
                                 linkage, empty, skipped, unlessBare, keepsObject, fullCapacity, convertedRoom] =
        record::WritingWords{};
    [[maybe_unused]] const auto [count, countUncapped, capacity, lent, single, keyed, amongKeys] = record::ListWords{};
}

TEST(Schema, TellsEachWordOfARow) {
    using record::Field;
    AllWordsAreAskedFor();
    const record::Table& table = *FindCommand("Alarm")->table;
    const Field number = *std::find_if(table.begin(), table.end(),
                                       [](const Field& row) { return std::string_view(row.name) == "nPole"; });
    const record::Slot slot{0, record::Cell::I32};
    Field counted = number;
    counted.count = slot;
    Field pointer = number;
    pointer.cell = record::Cell::Pointer;
    pointer.table = &table;
    pointer.count = pointer.capacity = slot;
    const auto differs = [&](const Field& plain, const char* word, auto set) {
        Field field = plain;
        set(field);
        EXPECT_NE(RowNode(table, field).Print(), RowNode(table, plain).Print()) << word;
    };
    // `failure` alone is no word of the text: what the log hears.
    differs(number, "always", [](Field& row) { row.always = true; });
    differs(number, "only", [](Field& row) { row.only = record::OnlyType::String; });
    differs(number, "anyShape", [](Field& row) { row.anyShape = true; });
    differs(number, "exactly", [](Field& row) { row.exactly = true; });
    differs(number, "zeroed", [](Field& row) { row.zeroed = true; });
    differs(number, "allOrNone", [](Field& row) { row.allOrNone = true; });
    differs(counted, "counted", [](Field& row) { row.counted = true; });
    differs(number, "nulls", [](Field& row) { row.nulls = record::Nulls::Stop; });
    differs(number, "refused", [](Field& row) { row.refused = record::Nulls::CloseUp; });
    differs(number, "readCondition", [&](Field& row) { row.readCondition = slot; });
    differs(number, "firstBytes", [](Field& row) { row.firstBytes = 16; });
    differs(number, "atLeast", [](Field& row) { row.atLeast = 2; });
    differs(pointer, "owned", [](Field& row) { row.owned = true; });
    differs(pointer, "toBytes", [](Field& row) { row.toBytes = true; });
    differs(number, "trueAtOne", [](Field& row) { row.trueAtOne = true; });
    differs(number, "unless", [](Field& row) { row.hasUnless = true; });
    differs(number, "notNegative", [](Field& row) { row.notNegative = true; });
    differs(number, "atMost", [](Field& row) { row.atMost = 9; });
    differs(number, "condition", [&](Field& row) { row.condition = slot; });
    differs(number, "when", [](Field& row) { row.when = [](const std::byte*) { return true; }; });
    differs(number, "untilEmpty", [](Field& row) { row.untilEmpty = true; });
    differs(number, "linkage", [](Field& row) { row.linkage = true; });
    differs(number, "empty", [](Field& row) { row.empty = record::Empty::Null; });
    differs(number, "skipped", [](Field& row) { row.skipped = record::Skipped::Hole; });
    differs(number, "unlessBare", [](Field& row) { row.unlessBare = true; });
    differs(number, "keepsObject", [](Field& row) { row.keepsObject = true; });
    differs(number, "convertedRoom", [](Field& row) { row.convertedRoom = 127; });
    differs(number, "fullCapacity", [](Field& row) { row.fullCapacity = true; });
    differs(number, "count", [&](Field& row) { row.count = slot; });
    differs(counted, "countUncapped", [](Field& row) { row.countUncapped = true; });
    differs(number, "capacity", [&](Field& row) { row.capacity = slot; });
    differs(counted, "lent", [&](Field& row) { row.capacity = slot, row.lent = true; });
    differs(pointer, "single", [](Field& row) { row.single = true; });
    differs(number, "keyed", [](Field& row) { row.keyed = true; });
    differs(number, "amongKeys", [](Field& row) { row.amongKeys = true; });
    differs(number, "default", [](Field& row) { row.hasDefault = true; });
    differs(number, "flag", [&](Field& row) { row.flag = slot; });
    differs(number, "readable", [](Field& row) { row.readable = false; });
    differs(number, "writable", [](Field& row) { row.writable = false; });
    differs(number, "fromRoot", [](Field& row) { row.fromRoot = true; });
    differs(number, "writtenAs", [](Field& row) { row.writtenAs = record::Kind::Bool; });
    // Lent is not what the caller's room is.
    Field room = counted;
    room.capacity = slot;
    differs(room, "lent", [](Field& row) { row.lent = true; });
}

} // namespace
} // namespace orrery::tool

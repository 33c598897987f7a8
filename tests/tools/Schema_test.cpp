// The schema against what the compiler itself says of the public headers: its debug information.
#include "orrery/Documents.h"
#include "tools/DebugInfo.h"

#include "Commands.h"
#include "events/EventMap.h"
#include "events/TypedText.h"

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
        type += to == "i32" ? ":int" : to == "u32" ? ":unsigned int" : ":" + to;
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

} // namespace
} // namespace orrery::tool

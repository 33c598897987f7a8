// The public headers are a second source: what a member's comment quotes is held against the row that reads and writes
// it. Neither is made from the other.
//
//     int32_t nPort;    /* "Port": the first quoted name is the member's key */
//     int32_t nSlot;    /* "Address"."Slot": of the object "Address" */
//     int32_t nLinks;   /* entries of stuLinks in use: without a key no comment begins with a quote */
//     int32_t bIsOpen;  /* "IsOpen" or, of older devices, "Open": a second key stands behind the first */
#include "tools/HeaderTexts.h"

#include "orrery/orrery.h"

#include "Commands.h"
#include "events/EventMap.h"
#include "orrery/Tables.h"
#include "orrery/Words.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>

namespace orrery::tool {
namespace {

using record::Field;
using record::Kind;
using record::Slot;
using record::Table;

// A row whose value stands in the text.
bool HasKey(const Field& field) {
    return field.key != nullptr && field.key[0] != '\0';
}

// Members that other rows use, and those without meaning: their kind says all that there is to say.
bool IsOfNamedKind(const Table& table, const Field& field) {
    if (field.kind == Kind::Size || table.shape != record::Shape::Object) return true;
    if (std::string_view(field.name).find("Reserved") != std::string_view::npos) return true;
    return std::any_of(table.begin(), table.end(), [&](const Field& other) {
        const Slot slots[] = {other.flag, other.count, other.capacity};
        return std::any_of(std::begin(slots), std::end(slots), [&](const Slot& slot) {
            return slot.exists() && slot.offset == field.offset && field.size != 0;
        });
    });
}

// Whether a comment's key is the row's.
bool Names(const std::string& quoted, const Table& table, const Field& field) {
    const std::string_view key = field.key;
    if (quoted == key) return true;
    // What functions read inside the value of a row.
    if (field.kind == Kind::Custom && quoted.starts_with(std::string(key) + "/")) return true;
    // "params/channel", read beside the table, is the reply's "channel".
    if (field.fromRoot && key.ends_with("/" + quoted)) return true;
    // Told once above the records of rules: what is not the rule's own stands in its "Config".
    return std::string_view(table.record).starts_with("CFG_RULE_") && "Config/" + quoted == key;
}

// Whether another table of the record reads the member by another key, as the two forms of one setting do.
bool HasAnotherKey(const Tables& tables, const Table& table, const Field& field) {
    return std::any_of(tables.all.begin(), tables.all.end(), [&](const Table* other) {
        return std::string_view(other->record) == table.record
               && std::any_of(other->begin(), other->end(), [&](const Field& row) {
                      return HasKey(row) && !row.alias && std::string_view(row.name) == field.name
                             && std::string_view(row.key) != field.key;
                  });
    });
}

void Compare(const Tables& tables, const Table& table, std::vector<std::string>& findings) {
    const headers::Record* const found = headers::FindRecord(table.record);
    if (found == nullptr) {
        findings.push_back(std::string(table.record) + " stands in no header");
        return;
    }
    // Where no row has one, a function of the record's fills it.
    const bool hasKeys = std::any_of(table.begin(), table.end(), HasKey);
    for (const Field& field : table) {
        if (field.size == 0 || field.name[0] == '\0') continue; // no member
        const std::string place = std::string(table.record) + "." + field.name;
        const headers::Member* const member = found->Find(field.name);
        if (member == nullptr) {
            findings.push_back(place + " stands in no header");
            continue;
        }
        const std::string_view word = member->doc;
        const std::vector<std::string> quoted = test::QuotedKeys(word);
        if (HasKey(field)) {
            const bool isSecond = field.alias || field.kind == Kind::Presence || member->name != field.name
                                  || HasAnotherKey(tables, table, field);
            const bool named = isSecond
                                   ? std::any_of(quoted.begin(), quoted.end(),
                                                 [&](const std::string& each) { return Names(each, table, field); })
                                   : !quoted.empty() && Names(quoted.front(), table, field);
            if (!named) {
                findings.push_back(place + " has the key \"" + field.key + "\", but its comment says: " + member->doc);
            }
        } else if (word.empty()) {
            if (!IsOfNamedKind(table, field)) {
                findings.push_back(place + " has neither key nor comment");
            }
        } else if (word.starts_with('"') && hasKeys) {
            // It may tell of the key of another row, whose function or flag it is.
            const bool isOfTable = std::any_of(table.begin(), table.end(), [&](const Field& other) {
                return HasKey(other)
                       && (Names(quoted.front(), table, other)
                           || std::string_view(other.key).starts_with(quoted.front() + "/"));
            });
            if (!isOfTable) findings.push_back(place + " has no key, but its comment says: " + member->doc);
        }
    }
}

TEST(Headers, QuoteKeysWithinKeys) {
    EXPECT_EQ(test::QuotedKeys(R"("Address"."Slot", "Old")"), (std::vector<std::string>{"Address/Slot", "Old"}));
    EXPECT_EQ(test::QuotedKeys(R"("Lists"[..]."Channel")"), std::vector<std::string>{"Lists/Channel"});
}

TEST(Headers, QuoteEachMembersKey) {
    ASSERT_GT(headers::Records().size(), 200U);
    std::vector<std::string> findings;
    const Tables tables;
    for (const Table* const table : tables.all)
        Compare(tables, *table, findings);
    std::sort(findings.begin(), findings.end()); // several tables may describe one record
    findings.erase(std::unique(findings.begin(), findings.end()), findings.end());
    for (const std::string& finding : findings)
        ADD_FAILURE() << finding;
}

// Events have constants of their own; each tells the event's name and record.
TEST(Headers, NameEachEvent) {
    std::ifstream file(std::string(ORRERY_SOURCE_DIR) + "/include/orrery/event_codes.h");
    std::string text(std::istreambuf_iterator<char>(file), {});
    std::map<std::uint32_t, std::string> told;
    for (std::size_t at = 0; (at = text.find("ORRERY_EVENT_", at)) != std::string::npos; ++at) {
        const std::size_t equals = text.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789", at);
        const std::size_t comment = text.find("/* ", at);
        if (text.compare(equals, 2, " =") != 0) continue;
        told[static_cast<std::uint32_t>(std::stoul(text.substr(equals + 2)))] =
            text.substr(comment + 3, text.find("*/", comment) - comment - 1);
    }
    EXPECT_EQ(told.size(), events::Events().size());
    for (const events::EventRow& event : events::Events()) {
        const std::string& word = told[event.code];
        EXPECT_TRUE(word.ends_with(": " + std::string(event.table->record) + " */")) << event.code << ": " << word;
        EXPECT_TRUE(event.name.empty() || word.starts_with("\"" + std::string(event.name) + "\":")) << word;
    }
}

TEST(Headers, AreOfTheProjectsVersion) {
    const std::string numbers = std::to_string(ORRERY_VERSION_MAJOR) + "." + std::to_string(ORRERY_VERSION_MINOR) + "."
                                + std::to_string(ORRERY_VERSION_PATCH);
    EXPECT_EQ(numbers, ORRERY_VERSION);
    EXPECT_EQ(ORRERY_VERSION_NUMBER, 100U); // 0.1.0
    EXPECT_EQ(ORRERY_Version(), static_cast<std::uint32_t>(ORRERY_VERSION_NUMBER));
}

// Also in records that no table describes, such as those that functions read.
TEST(Headers, SayAWordOfEachMember) {
    const Tables tables;
    for (const headers::Record& record : headers::Records()) {
        if (!tables.Of(record.name).empty()) continue;
        for (const headers::Member& member : record.members) {
            const std::string name = member.name;
            const bool isFlag = name.starts_with("ab") && record.Find("n" + name.substr(2)) != nullptr;
            if (isFlag || name.find("Reserved") != std::string::npos || name == "dwSize") continue;
            EXPECT_STRNE(member.doc, "") << record.name << "." << name;
        }
    }
}

// Who looks for a command finds its record, and there what the command does otherwise than all.
TEST(Headers, NameEachCommandAboveItsRecord) {
    for (const Command& command : Commands()) {
        const headers::Record* const record = headers::FindRecord(command.table->record);
        ASSERT_NE(record, nullptr) << command.name;
        EXPECT_NE(std::string_view(record->doc).find("\"" + std::string(command.name) + "\""), std::string::npos)
            << command.table->record << " serves \"" << command.name
            << "\", but the comment above it says: " << record->doc;
    }
}

} // namespace
} // namespace orrery::tool

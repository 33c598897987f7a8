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
    const auto found = test::Headers().records.find(table.record);
    if (found == test::Headers().records.end()) {
        findings.push_back(std::string(table.record) + " stands in no header");
        return;
    }
    // Where no row has one, a function of the record's fills it.
    const bool hasKeys = std::any_of(table.begin(), table.end(), HasKey);
    for (const Field& field : table) {
        if (field.size == 0 || field.name[0] == '\0') continue; // no member
        const std::string place = std::string(table.record) + "." + field.name;
        const test::HeaderMember* const member =
            found->second.Find(std::string_view(field.name).substr(0, std::string_view(field.name).find('.')));
        if (member == nullptr) {
            findings.push_back(place + " stands in no header");
            continue;
        }
        const std::string word = test::WordOf(found->second, *member);
        const std::vector<std::string> quoted = test::QuotedKeys(word);
        if (HasKey(field)) {
            const bool isSecond = field.alias || field.kind == Kind::Presence || member->name != field.name
                                  || HasAnotherKey(tables, table, field);
            const bool named = isSecond
                                   ? std::any_of(quoted.begin(), quoted.end(),
                                                 [&](const std::string& each) { return Names(each, table, field); })
                                   : !quoted.empty() && Names(quoted.front(), table, field);
            if (!named) {
                findings.push_back(place + " has the key \"" + field.key + "\", but its comment says: " + word);
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
            if (!isOfTable) findings.push_back(place + " has no key, but its comment says: " + word);
        }
    }
}

TEST(Headers, AreReadAsWritten) {
    const test::HeaderScanner scanner(R"(
extern "C" {
/*
 * nShared, nOther  "Told once",
 *                  on two lines */
# 7 "file.h"
/* "Command": first
 * and second line. */
typedef struct FIRST_INFO {
    int32_t nPort; /* "Port": 1 to
                      65535 */
    /* Above. */
    char szName[64 /* of a constant */];
    int32_t nSlot[2]; /* "Address"."Slot", "Old" */ uint8_t bLast /* of a macro's last member */;
    const char* pszText;
} FIRST_INFO;
typedef struct SECOND_INFO { int32_t nChannels[4][2]; /* "Lists"[..]."Channel" */ } SECOND_INFO;
}
)");
    ASSERT_EQ(scanner.records.size(), 2U);
    const test::HeaderRecord& first = scanner.records[0];
    EXPECT_EQ(first.name, "FIRST_INFO");
    EXPECT_TRUE(first.comment.ends_with("\"Command\": first and second line."));
    ASSERT_EQ(first.members.size(), 5U);
    EXPECT_EQ(first.Find("nPort")->behind, "\"Port\": 1 to 65535");
    EXPECT_EQ(first.Find("szName")->behind, "");
    EXPECT_EQ(first.Find("szName")->above, "Above.");
    EXPECT_EQ(test::QuotedKeys(first.Find("nSlot")->behind), (std::vector<std::string>{"Address/Slot", "Old"}));
    EXPECT_EQ(first.Find("bLast")->behind, "of a macro's last member");
    EXPECT_EQ(first.Find("pszText")->behind, "");
    EXPECT_EQ(test::QuotedKeys(scanner.records[1].Find("nChannels")->behind),
              std::vector<std::string>{"Lists/Channel"});
    EXPECT_EQ(scanner.shared.at("nShared"), "\"Told once\", on two lines");
    EXPECT_EQ(scanner.shared.at("nOther"), "\"Told once\", on two lines");
}

TEST(Headers, QuoteEachMembersKey) {
    ASSERT_GT(test::Headers().records.size(), 200U);
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
    for (const auto& [name, record] : test::Headers().records) {
        const bool isOurs = name.starts_with("CFG_") || name.starts_with("EVENT_") || name.starts_with("NET_");
        if (!isOurs || !tables.Of(name).empty()) continue;
        for (const test::HeaderMember& member : record.members) {
            const bool isFlag = member.name.starts_with("ab") && record.Find("n" + member.name.substr(2)) != nullptr;
            if (isFlag || member.name.find("Reserved") != std::string::npos || member.name == "dwSize") continue;
            EXPECT_NE(test::WordOf(record, member), "") << name << "." << member.name;
        }
    }
}

// Who looks for a command finds its record, and there what the command does otherwise than all.
TEST(Headers, NameEachCommandAboveItsRecord) {
    for (const Command& command : Commands()) {
        const auto record = test::Headers().records.find(command.table->record);
        ASSERT_NE(record, test::Headers().records.end()) << command.name;
        EXPECT_NE(record->second.comment.find("\"" + std::string(command.name) + "\""), std::string::npos)
            << command.table->record << " serves \"" << command.name
            << "\", but the comment above it says: " << record->second.comment;
    }
}

} // namespace
} // namespace orrery::tool

// Every field of every table with values of its own, in both directions. What a value becomes follows from the member's
// C type, its name's prefix and the words of its comment in the public header; the row has no say in it. What neither
// tells stands in the list of exceptions with its reason.
#include "events/EventContext.h"
#include "frame/JsonParser.h"
#include "frame/record/Engine.h"
#include "orrery/Tables.h"
#include "orrery/Words.h"
#include "support/JsonText.h"
#include "support/JsonTree.h"
#include "support/Locales.h"
#include "tools/HeaderTexts.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace orrery::tool {
namespace {

using record::Cell;
using record::Field;
using record::Kind;
using record::Slot;
using record::Table;
using test::JsonTree;

enum class Way { Bool, Int, UInt, Real, Text, RawText, FullText, Names, None };

const char* NameOf(Way way) {
    constexpr const char* kNames[] = {"Bool", "Int", "UInt", "Real", "Text", "RawText", "FullText", "Names", "None"};
    return kNames[static_cast<int>(way)];
}

// Fields that their type, prefix and comment tell wrongly.
const std::map<std::string, Way>& Exceptions() {
    static const std::map<std::string, Way> exceptions = {
        // Read as numbers that pass through, written as bools.
        {"CFG_NETWORK_INTERFACE.bDhcpEnable", Way::Int},
        {"CFG_NETWORK_INTERFACE.bDnsAutoGet", Way::Int},
        {"CFG_NETWORK_INTERFACE.bEnable", Way::Int},
        {"CFG_NETWORK_INTERFACE.bReservedIP", Way::Int},
        // A switch with a third state, -1, named like a number.
        {"CFG_NETWORK_INTERFACE.nBonding", Way::Bool},
        // Yes, no, and 2 for not told.
        {"EVENT_GPS_STATUS.byAntennasStatus", Way::Bool},
        {"EVENT_GPS_STATUS.byPositioningResult", Way::Bool},
        // Counts of frames, named like a switch.
        {"EVENT_OBJECT_INFO.bShotFrame", Way::Int},
        {"EVENT_OBJECT_INFO_EX.bShotFrame", Way::Int},
        // Whole numbers of trackers in fields that hold fractions.
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fExpectMultiple", Way::Int},
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fExpectMultipleEngleX", Way::Int},
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fExpectMultipleEngleY", Way::Int},
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fMaxFocus", Way::Int},
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fMaxZoom", Way::Int},
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fMinFocus", Way::Int},
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fMinZoom", Way::Int},
        {"CFG_MASTER_SLAVE_GLOBAL_INFO.fTargetFaceSize", Way::Int},
        // Places to the west and the south, below zero in fields without a sign.
        {"CFG_ANALYSEGLOBAL_INFO.nLatitude", Way::Int},
        {"CFG_ANALYSEGLOBAL_INFO.nLongitude", Way::Int},
        {"CFG_TIME_PERIOD_INFO.nLatitude", Way::Int},
        {"CFG_TIME_PERIOD_INFO.nLongitude", Way::Int},
        // Read as unsigned, written as signed numbers.
        {"CFG_METERING_ITEM.nRegions", Way::UInt},
        {"CFG_VIDEO_ENCODE_ROI_INFO.nRegions", Way::UInt},
        // A number of the device's own, without names.
        {"CFG_LOWER_MATRIX_OUTPUT.emMode", Way::Int},
        // Unsigned numbers in fields too narrow to show it.
        {"CFG_ENCRYPT_ITEM.nLength", Way::UInt},
        {"CFG_EVENT_HANDLER_INFO.byDestination", Way::UInt},
    };
    return exceptions;
}

bool HasPrefix(std::string_view name, std::string_view prefix) {
    return name.starts_with(prefix) && name.size() > prefix.size()
           && std::isupper(static_cast<unsigned char>(name[prefix.size()])) != 0;
}

// Whether a comment tells of codes: `"Color": CFG_COLOR_...`, `"Color": CFG_COLOR`, `"NC" 0`.
bool TellsCodes(std::string_view comment) {
    for (std::size_t at = 0; at < comment.size(); ++at) {
        const std::string_view rest = comment.substr(at);
        for (const std::string_view codes : {"\": CFG_", "\": EVENT_", "\": EM_"}) {
            if (rest.starts_with(codes)) return true;
        }
        const bool isNumber = std::isdigit(static_cast<unsigned char>(comment[at])) != 0;
        if (isNumber && at >= 2 && comment.substr(at - 2, 2) == "\" ") return true;
        if (isNumber && (comment.substr(at + 1, 2) == " \"" || comment.substr(at + 1, 6) == " for \"")) return true;
    }
    return false;
}

Way ExpectedWay(const Table& table, const Field& field) {
    const auto exception = Exceptions().find(std::string(table.record) + "." + field.name);
    if (exception != Exceptions().end()) return exception->second;
    const std::string comment = test::CommentOf(table.record, field.name);
    const std::string_view name = field.name;
    switch (field.cell) {
    case Cell::Char:
        if (comment.find("raw bytes") != std::string::npos || comment.find("bytes as they stand") != std::string::npos)
            return Way::RawText;
        return comment.find(", full") != std::string::npos || comment.find("full;") != std::string::npos ? Way::FullText
                                                                                                         : Way::Text;
    case Cell::F32:
    case Cell::F64:
        return comment.find("whole number") != std::string::npos ? Way::Int : Way::Real;
    case Cell::Pointer:
    case Cell::Record:
        return Way::None;
    default:
        break;
    }
    if (HasPrefix(name, "em")) return Way::Names;
    if (HasPrefix(name, "b")) return Way::Bool;
    if (TellsCodes(comment)) return Way::Names;
    if (comment.find("read as unsigned") != std::string::npos) return Way::UInt;
    return field.cell == Cell::U32 ? Way::UInt : Way::Int;
}

Way RowsWay(const Field& field) {
    switch (field.kind) {
    case Kind::Bool:
        return Way::Bool;
    case Kind::Int:
        return Way::Int;
    case Kind::UInt:
        return Way::UInt;
    case Kind::Real:
        return Way::Real;
    case Kind::Text:
        return Way::Text;
    case Kind::RawText:
        return Way::RawText;
    case Kind::FullText:
        return Way::FullText;
    case Kind::Names:
        return Way::Names;
    default:
        return Way::None; // functions, and kinds whose C type leaves no choice
    }
}

TEST(FieldValues, FollowTypePrefixAndComment) {
    const Tables tables;
    std::size_t compared = 0;
    for (const Table* const table : tables.all) {
        if (table->shape != record::Shape::Object) continue;
        for (const Field& field : *table) {
            const Way way = RowsWay(field);
            if (way == Way::None || field.key == nullptr) continue;
            // The last of several rows for a member and its key has the last word.
            const bool isOverruled = std::any_of(&field + 1, table->end(), [&](const Field& later) {
                return later.key != nullptr && std::strcmp(later.key, field.key) == 0 && later.offset == field.offset;
            });
            if (isOverruled) continue;
            ++compared;
            EXPECT_STREQ(NameOf(way), NameOf(ExpectedWay(*table, field)))
                << table->record << "." << field.name << ", /* " << test::CommentOf(table->record, field.name) << " */";
        }
    }
    EXPECT_GT(compared, 1500U);
}

// ---- Values ----

// A table's fields whose values are told by the rules, each with a number of its own.
struct Place {
    const Field* field;
    Way way;
    unsigned number;
};

bool IsOneOf(const std::set<std::string, std::less<>>& keys, std::string_view key) {
    if (keys.contains(key)) return true;
    return std::any_of(keys.begin(), keys.end(), [&](const std::string& other) {
        return other.starts_with(std::string(key) + "/") || key.starts_with(other + "/");
    });
}

std::vector<Place> PlacesOf(const Table& table) {
    std::vector<Place> places;
    std::set<std::string, std::less<>> keys;
    for (const Field& field : table) {
        if (RowsWay(field) == Way::None || field.key == nullptr || field.key[0] == '\0' || field.fromRoot) continue;
        if (field.keyed || field.cell == Cell::Pointer || IsOneOf(keys, field.key)) continue;
        keys.insert(field.key);
        places.push_back({&field, ExpectedWay(table, field), static_cast<unsigned>(places.size())});
    }
    return places;
}

// Below zero, above 2^31, above 2^32, a number that is no bool, and a bool that is no number.
enum class Round { Negative, Unsigned, Huge, Two, True };

std::string NumberText(Round round, unsigned number) {
    switch (round) {
    case Round::Negative:
        return "-" + std::to_string(1000 + number) + ".25";
    case Round::Unsigned:
        return std::to_string(3000000000U + number);
    case Round::Huge:
        return std::to_string(5000000000 + number);
    case Round::Two:
        return "2";
    case Round::True:
        return "true";
    }
    return "";
}
double RealOf(Round round, unsigned number) {
    constexpr double kBase[] = {-1000.25, 3000000000.0, 5000000000.0, 2.0, 1.0};
    if (round == Round::Negative) return kBase[0] - number;
    return kBase[static_cast<int>(round)] + (round == Round::Two || round == Round::True ? 0 : number);
}
// Fractions are dropped; what is out of the type's range is 0, and only then the field's width cuts.
std::int64_t IntegerOf(Way way, Round round, unsigned number) {
    if (way == Way::Bool) return 1;
    switch (round) {
    case Round::Negative:
        return way == Way::Int ? -1000 - static_cast<int>(number) : 0;
    case Round::Unsigned:
        return way == Way::UInt ? 3000000000 + number : 0;
    case Round::Huge:
        return 0;
    case Round::Two:
        return 2;
    case Round::True:
        return 1;
    }
    return 0;
}

bool IsText(Way way) {
    return way == Way::Text || way == Way::RawText || way == Way::FullText;
}
// "中", in UTF-8 and in GBK.
constexpr const char* kUtf8 = "\xe4\xb8\xad";
constexpr const char* kGbk = "\xd6\xd0";

// The name that a field gets: one of its table's, in letters of the other case where case does not count.
const record::Name& NameFor(const Field& field, unsigned number) {
    return field.names->rows[number % field.names->count];
}
// Of names that several rows have, the first row's code counts, or the last one's.
std::int32_t CodeFor(const Field& field, unsigned number) {
    const record::NameTable& names = *field.names;
    const std::string_view text = NameFor(field, number).text;
    std::int32_t code = 0;
    bool found = false;
    for (const record::Name* row = names.rows; row != names.rows + names.count; ++row) {
        if (!EqualsFolded(row->text, text) || (found && !names.lastWins)) continue;
        code = row->code;
        found = true;
    }
    return code;
}
std::string TurnedCase(std::string text) {
    for (char& c : text) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) c = static_cast<char>(c ^ 0x20);
    }
    return text;
}

// As many as the field takes, nested as its dimensions are.
JsonTree Listed(const Field& field, const JsonTree& value) {
    JsonTree tree = value;
    for (int level = field.rank; level-- > 0;) {
        JsonTree list = JsonTree::Array();
        const unsigned size = level == 0 ? std::max<unsigned>(field.exactly ? field.dims[0] : 1, field.atLeast) : 1;
        for (unsigned i = 0; i < size; ++i)
            list.Add(tree);
        tree = list;
    }
    return tree;
}

JsonTree ValueFor(const Place& place, Round round) {
    const Field& field = *place.field;
    if (IsText(place.way)) {
        if (round == Round::Negative) return JsonTree("\"" + (kUtf8 + std::to_string(place.number)) + "\"");
        return JsonTree("\"" + std::string(field.elementSize + 3, static_cast<char>('a' + place.number % 26)) + "\"");
    }
    if (place.way == Way::Names) {
        const record::Name& name = NameFor(field, place.number);
        const bool folds = field.names->compare == record::Compare::Folded && name.compare == record::Compare::Folded;
        return JsonTree("\"" + (folds ? TurnedCase(std::string(name.text)) : std::string(name.text)) + "\"");
    }
    return JsonTree(NumberText(round, place.number));
}

bool IsTaken(const Field& field, Round round, Way way) {
    using record::OnlyType;
    if (field.only == OnlyType::Any || IsText(way) || way == Way::Names) return true;
    switch (field.only) {
    case OnlyType::Bool:
        return round == Round::True;
    case OnlyType::Integer:
        return round == Round::Two;
    case OnlyType::Unsigned:
        return round == Round::Unsigned;
    case OnlyType::Integral:
        return round == Round::Unsigned || round == Round::Two || round == Round::True;
    case OnlyType::Array:
        return field.rank > 0;
    default:
        return false;
    }
}

std::string Hex(const std::byte* at, std::size_t size) {
    std::string hex;
    for (std::size_t i = 0; i < size; ++i) {
        constexpr const char* kDigits = "0123456789abcdef";
        hex += kDigits[static_cast<unsigned>(at[i]) >> 4];
        hex += kDigits[static_cast<unsigned>(at[i]) & 15];
    }
    return hex;
}

// What the first element of the member holds after reading.
std::vector<std::byte> ExpectedBytes(const Place& place, Round round) {
    const Field& field = *place.field;
    std::vector<std::byte> bytes(field.elementSize);
    if (IsText(place.way)) {
        std::string text = (place.way == Way::RawText ? kUtf8 : kGbk) + std::to_string(place.number);
        if (round != Round::Negative) text = std::string(field.elementSize, static_cast<char>('a' + place.number % 26));
        const std::size_t room = field.elementSize - (place.way == Way::FullText ? 0 : 1); // for the terminator
        std::memcpy(bytes.data(), text.data(), std::min(text.size(), room));
    } else if (place.way == Way::Real) {
        record::StoreReal(field.cell, bytes.data(), RealOf(round, place.number));
    } else if (place.way == Way::Names) {
        record::StoreInteger(field.cell, bytes.data(), CodeFor(field, place.number));
    } else {
        record::StoreNumber(field.cell, bytes.data(), IntegerOf(place.way, round, place.number));
    }
    return bytes;
}

class FieldValuesInGbk : public test::CompiledLocales {};

// Arrays of the caller's, without room: some records are not read or written without them.
void GiveArrays(const Table& table, std::byte* record) {
    static std::byte none[1];
    for (const Field& field : table) {
        if (field.cell == Cell::Pointer && field.capacity.exists())
            record::Store<std::byte*>(record + field.offset, none);
    }
}

TEST_F(FieldValuesInGbk, AreReadByTheirOwnRules) {
    Compile("GBK", "zh_CN.GBK");
    const test::ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    const Tables tables;
    std::size_t compared = 0;
    for (const Table* const table : tables.all) {
        if (table->shape != record::Shape::Object || table->takesFirst) continue;
        if (table->afterRead != nullptr) continue; // may change any field: its own tests hold it
        const std::vector<Place> places = PlacesOf(*table);
        for (const Round round : {Round::Negative, Round::Unsigned, Round::Huge, Round::Two, Round::True}) {
            JsonTree tree = JsonTree::Object();
            for (const Place& place : places)
                tree.At(place.field->key) = Listed(*place.field, ValueFor(place, round));
            const std::string text = tree.Text();
            const test::Document document(text);
            ASSERT_TRUE(document.ok) << text;
            std::vector<std::byte> record(table->size);
            record::SetSizeWords(*table, record.data());
            GiveArrays(*table, record.data());
            StackArena<4096> arena;
            LocalText local(arena);
            JsonParser parser(local);
            const events::EventSourceInfo source{};
            const events::EventCall event{{}, &source, &document.root};
            record::ReadCall call{parser, document.root};
            // Functions of events look at the event that is around them.
            const std::string_view name = table->record;
            if (name.starts_with("EVENT_") || name.starts_with("DEV_EVENT_")) call.context = &event;
            record::ReadFields(*table, document.root, record.data(), call);
            for (const Place& place : places) {
                const Field& field = *place.field;
                if (!field.readable || !IsTaken(field, round, place.way)) continue;
                if (field.firstBytes != 0 && field.firstBytes < field.elementSize) continue;
                if (field.readCondition.exists() && record::LoadSlot(field.readCondition, record.data()) == 0) continue;
                const auto expected = ExpectedBytes(place, round);
                ++compared;
                EXPECT_EQ(Hex(record.data() + field.offset, field.elementSize), Hex(expected.data(), expected.size()))
                    << table->record << "." << field.name << " as " << NameOf(place.way) << " from "
                    << ValueFor(place, round).Text();
            }
        }
    }
    EXPECT_GT(compared, 7000U);
}

// What is written for a field is told by its comment: numbers that stand as true or false, and those that are true at
// exactly 1.
bool IsWrittenAsBool(const Table& table, const Place& place) {
    const std::string comment = test::CommentOf(table.record, place.field->name);
    if (comment.find("written as the number") != std::string::npos) return false;
    return place.way == Way::Bool || HasPrefix(place.field->name, "b")
           || comment.find("written true") != std::string::npos
           || comment.find("as nMatrixEnable") != std::string::npos;
}

TEST_F(FieldValuesInGbk, AreWrittenByTheirOwnRules) {
    Compile("GBK", "zh_CN.GBK");
    const test::ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    const Tables tables;
    std::size_t compared = 0;
    for (const Table* const table : tables.all) {
        const std::string_view name = table->record;
        if (table->shape != record::Shape::Object || name.starts_with("EVENT_") || name.starts_with("DEV_EVENT_"))
            continue;
        std::vector<std::byte> record(table->size);
        record::SetSizeWords(*table, record.data());
        GiveArrays(*table, record.data());
        const std::vector<Place> places = PlacesOf(*table);
        const auto elements = [](const Field& field) { return field.exactly ? field.dims[0] : 1; };
        for (const Place& place : places) {
            const Field& field = *place.field;
            std::byte* const at = record.data() + field.offset;
            const std::string text = (place.way == Way::RawText ? kUtf8 : kGbk) + std::to_string(place.number);
            if (IsText(place.way)) {
                std::memcpy(at, text.data(), std::min<std::size_t>(text.size(), field.elementSize));
            } else if (place.way == Way::Real) {
                record::StoreReal(field.cell, at, 1000.25 + place.number);
            } else if (place.way == Way::Names) {
                record::StoreInteger(field.cell, at, NameFor(field, place.number).code);
            } else if (place.way == Way::Bool) {
                record::StoreInteger(field.cell, at, 2);
            } else {
                const std::int64_t number =
                    place.way == Way::UInt ? 3000000000 + place.number : -1000 - int(place.number);
                record::StoreNumber(field.cell, at, field.notNegative ? 1000 + place.number : number);
            }
        }
        for (const Field& field : *table) {
            for (const Slot& slot : {field.flag, field.condition, field.count}) {
                if (slot.exists() && record::LoadSlot(slot, record.data()) <= 0)
                    record::StoreSlot(slot, record.data(), slot == field.count ? elements(field) : 1);
            }
        }
        StackArena<4096> arena;
        LocalText local(arena);
        JsonParser parser(local);
        std::vector<char> room(4 << 20);
        json::TextWriter out(room.data(), room.size());
        record::WriteCall call{parser, out, nullptr, false, {}};
        call.linked = false;
        record::WriteRecord(*table, record.data(), call);
        const test::Document document(std::string_view(room.data(), out.length()));
        ASSERT_TRUE(document.ok) << table->record;
        for (const Place& place : places) {
            const Field& field = *place.field;
            if (!field.writable || field.when != nullptr) continue;
            const json::Value* value = &document.root;
            for (std::string_view key = field.key; !key.empty();) {
                const std::size_t slash = std::min(key.find('/'), key.size());
                value = &(*value)[key.substr(0, slash)];
                key.remove_prefix(std::min(slash + 1, key.size()));
            }
            for (int level = 0; level < field.rank; ++level)
                value = &(*value)[0];
            std::string expected;
            const std::byte* const at = record.data() + field.offset;
            if (place.way == Way::Names) {
                const record::Name* const row = field.names->RowOf(NameFor(field, place.number).code);
                expected = "\"" + std::string(row->text) + "\"";
                if (field.writtenAs != field.kind) continue;
            } else if (IsText(place.way)) {
                const std::string whole = kUtf8 + std::to_string(place.number);
                if (field.elementSize <= whole.size()) continue; // cut, maybe within a character
                expected = "\"" + whole + "\"";
            } else if (place.way == Way::Int && (field.cell == Cell::F32 || field.cell == Cell::F64)) {
                continue; // a real on the way out: the commands' own tests tell
            } else if (IsWrittenAsBool(*table, place)) {
                const bool atOne = test::CommentOf(table->record, field.name).find("exactly 1") != std::string::npos
                                   || field.trueAtOne;
                expected = atOne && record::LoadInteger(field.cell, at) != 1 ? "false" : "true";
            } else if (place.way == Way::Real) {
                EXPECT_EQ(value->asDouble(), 1000.25 + place.number) << table->record << "." << field.name;
                ++compared;
                continue;
            } else if (place.way == Way::Int && field.cell == Cell::U32) {
                expected = std::to_string(record::Load<std::int32_t>(at)); // what is below zero comes out as it went in
            } else {
                expected = std::to_string(std::min(record::LoadInteger(field.cell, at), field.atMost));
            }
            ++compared;
            EXPECT_EQ(test::TextOf(*value), expected)
                << table->record << "." << field.name << " as " << NameOf(place.way);
        }
    }
    EXPECT_GT(compared, 500U);
}

} // namespace
} // namespace orrery::tool

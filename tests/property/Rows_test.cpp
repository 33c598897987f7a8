// Every row of every table by itself, through the engine: a key touches what its row names and nothing else.
#include "frame/JsonParser.h"
#include "frame/record/Engine.h"
#include "support/CommandCalls.h"
#include "support/GuardedBuffer.h"
#include "support/JsonText.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <span>

namespace orrery {
namespace {

using namespace test;
using record::Cell;
using record::Field;
using record::Kind;
using record::Table;

// Every table that a command reaches.
void Reach(const Table& table, std::set<const Table*>& tables) {
    if (!tables.insert(&table).second) return;
    for (const Field& field : table) {
        if (field.kind == Kind::Record) Reach(*field.table, tables);
    }
}

std::set<const Table*> AllTables() {
    std::set<const Table*> tables;
    for (const Command& command : AllCommands())
        Reach(*command.table, tables);
    return tables;
}

std::vector<std::byte> ReadAlone(const Table& table, const std::string& text, std::byte filling) {
    std::vector<std::byte> bytes(table.size, filling);
    record::SetSizeWords(table, bytes.data());
    for (const Field& field : table) {
        if (field.cell == Cell::Pointer) record::Store<std::byte*>(bytes.data() + field.offset, nullptr);
    }
    test::Document document(text);
    EXPECT_TRUE(document.ok) << text;
    StackArena<4096> arena;
    LocalText local(arena);
    JsonParser parser(local);
    record::ReadCall call{parser, document.root};
    record::ReadFields(table, document.root, bytes.data(), call);
    return bytes;
}

std::string_view FirstPart(const Field& field) {
    const std::string_view key = field.key;
    return key.substr(0, key.find('/'));
}

// The bytes that the rows of a key, or of the group that it begins, may write.
std::vector<bool> BytesOf(const Table& table, std::string_view key) {
    std::vector<bool> bytes(table.size);
    const auto mark = [&](std::size_t offset, std::size_t size) {
        std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), size, true);
    };
    for (const Field& field : table) {
        // What is read in every case is written in every case.
        const bool own = field.key != nullptr && !field.fromRoot && FirstPart(field) == key;
        if (!own && !field.always && !field.fromRoot) continue;
        mark(field.offset, field.size);
        for (const record::Slot& slot : {field.flag, field.count}) {
            if (!slot.exists()) continue;
            const auto neighbour = std::find_if(table.begin(), table.end(), [&](const Field& other) {
                return other.offset == slot.offset && other.size != 0;
            });
            EXPECT_NE(neighbour, table.end()) << table.record << "." << field.name;
            mark(slot.offset, neighbour->size);
        }
    }
    return bytes;
}

TEST(Rows, AKeyTouchesItsRowsAndNothingElse) {
    const std::set<const Table*> all = AllTables();
    const SweepBudget budget(std::size_t{600} << 20, all.size());
    for (const Table* const table : all) {
        if (table->shape != record::Shape::Object || table->afterRead != nullptr) continue;
        // Bits that are set show on zeros only.
        const std::array<std::byte, 2> fillings{kUntouched, std::byte{0}};
        const std::array<std::vector<std::byte>, 2> untouched{ReadAlone(*table, "{}", fillings[0]),
                                                              ReadAlone(*table, "{}", fillings[1])};
        std::set<std::string_view> done;
        for (const Field& field : *table) {
            if (field.key == nullptr || field.key[0] == '\0' || field.fromRoot) continue;
            // Functions of a row's own may look after its neighbours as well.
            const bool roams = std::any_of(table->begin(), table->end(), [&](const Field& other) {
                return other.key != nullptr && other.kind == Kind::Custom && FirstPart(other) == FirstPart(field);
            });
            if (roams || !done.insert(FirstPart(field)).second) continue;
            const std::vector<bool> own = BytesOf(*table, FirstPart(field));
            // Three kinds of values over two fillings.
            const std::size_t rounds = budget.Rounds(4 * std::size_t{table->size} * table->rowCount, 2, 12);
            for (unsigned seed = 1; seed <= rounds; ++seed) {
                JsonTree whole = RecordTree(*table, {seed % 3 == 0 ? Values::Wild : Values::Limits, seed, 3, 1});
                const JsonTree* const value = whole.Find(FirstPart(field));
                if (value == nullptr) continue;
                JsonTree one = JsonTree::Object();
                one.Add(std::string(FirstPart(field)), *value);
                const auto read = ReadAlone(*table, one.Text(), fillings[seed % 2]);
                const auto& before = untouched[seed % 2];
                std::size_t at = 0;
                while (at < read.size() && (own[at] || read[at] == before[at]))
                    ++at;
                ASSERT_EQ(at, read.size()) << table->record << "." << field.name << " touches another: " << one.Text();
            }
        }
    }
}

// Texts end inside their field, whatever the reply held.
void CheckTexts(const Table& table, const std::byte* record, const std::string& text) {
    for (const Field& field : table) {
        if (field.cell == Cell::Pointer) continue;
        const bool isText = field.kind == Kind::Text || field.kind == Kind::RawText || field.kind == Kind::MemberName;
        const std::size_t size = isText ? field.elementSize : field.kind == Kind::Record ? field.table->size : 0;
        for (std::size_t at = 0; size != 0 && at < field.size; at += size) {
            const std::byte* const element = record + field.offset + at;
            if (field.kind == Kind::Record) {
                CheckTexts(*field.table, element, text);
            } else {
                ASSERT_LT(record::TextAt(element, size).size(), size) << table.record << "." << field.name << text;
            }
        }
    }
}

// A row's function that puts a short value in place writes what the one for any room writes, and no byte more than it
// asks room for.
TEST(Rows, ValuesThatArePutInPlaceAreThoseThatAreWritten) {
    std::mt19937 random(11);
    std::size_t rows = 0, left = 0;
    for (const Table* table : AllTables()) {
        for (const Field& field : *table) {
            if (field.kind != Kind::Custom || field.custom->put == nullptr) continue;
            ++rows;
            ASSERT_NE(field.custom->write, nullptr) << table->record << "." << field.name;
            const GuardedBuffer room(field.custom->room);
            std::vector<std::byte> bytes(table->size);
            for (unsigned round = 0; round < 200; ++round) {
                for (std::byte& byte : std::span(bytes).subspan(field.offset, field.size)) {
                    const auto drawn = static_cast<std::byte>(random());
                    byte = round % 4 == 0 ? drawn : drawn & (random() % 4 == 0 ? std::byte{3} : std::byte{0});
                }
                if (field.count.exists()) {
                    const auto most = static_cast<std::uint32_t>(field.dims[0]) + 2;
                    record::StoreSlot(field.count, bytes.data(), static_cast<std::int64_t>(random() % most) - 1);
                }
                std::string text(8192, '\0');
                json::TextWriter out(text.data(), text.size());
                StackArena<4096> arena;
                LocalText local(arena);
                JsonParser parser(local);
                record::OpenObject object;
                record::WriteCall call{parser, out, &object, false, R"("K" : )"};
                field.custom->write(field, bytes.data(), call);
                text.resize(out.length());
                const char* const end = field.custom->put(field, bytes.data(), room.data());
                left += end == nullptr;
                if (end == nullptr) continue;
                ASSERT_EQ(R"({ "K" : )" + std::string(room.data(), static_cast<std::size_t>(end - room.data())), text)
                    << table->record << "." << field.name << " " << round;
            }
        }
    }
    EXPECT_GE(rows, 9u);
    EXPECT_GT(left, 0u); // no value at all, or numbers of more digits
}

TEST(Rows, TextsEndInsideTheirFields) {
    for (const Command& command : DistinctCommands()) {
        if (!command.parses() || !ClearsBuffer(command)) continue;
        ParseCalls calls(command);
        for (unsigned seed = 1; seed <= 10; ++seed) {
            const std::string text = ReplyText(command, {Values::Limits, seed, 3, 1});
            if (calls.Run(text.c_str()) == Outcome::Done) CheckTexts(*command.table, calls.record(), text);
        }
    }
}

// Every name of every table: found in the case that counts, and in no other.
TEST(Rows, NamesAreFoundInTheCaseThatCounts) {
    for (const Table* const table : AllTables()) {
        for (const Field& field : *table) {
            if (field.names == nullptr) continue;
            const record::NameTable& names = *field.names;
            for (const record::Name* row = names.rows; row != names.rows + names.count; ++row) {
                const bool exact = names.compare == record::Compare::Exact || row->compare == record::Compare::Exact;
                std::string flipped(row->text);
                bool hasLetters = false;
                for (char& c : flipped) {
                    if ((c < 'a' || c > 'z') && (c < 'A' || c > 'Z')) continue;
                    c = static_cast<char>(c ^ 0x20);
                    hasLetters = true;
                }
                const auto outside = names.unknownLeaves ? std::nullopt : std::optional(names.unknownCode);
                const record::Name* read = row; // of equal texts the last one where the table says so
                for (const record::Name* later = row; names.lastWins && later != names.rows + names.count; ++later) {
                    if (later->text == row->text) read = later;
                }
                EXPECT_EQ(names.CodeOf(row->text), read->code) << table->record << "." << field.name << row->text;
                if (hasLetters) {
                    EXPECT_EQ(names.CodeOf(flipped), exact ? outside : read->code) << field.name << flipped;
                }
                EXPECT_EQ(names.CodeOf(std::string(row->text) + " "), outside) << field.name << row->text;
            }
        }
    }
}

} // namespace
} // namespace orrery

#include "support/TableText.h"

#include "frame/JsonParser.h"
#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstdio>

namespace orrery::test {

namespace {

using record::Field;
using record::Kind;
using record::NameTable;
using record::OnlyType;
using record::Shape;
using record::Table;

// The name of the i-th record of an object: of its own, or the i-th name of a code.
std::string MemberNameOf(const Table& table, const char* prefix, std::uint32_t i) {
    const Field* const name = table.memberName;
    if (name != nullptr && name->kind == Kind::MemberCode && i < name->names->count)
        return std::string(name->names->rows[i].text);
    return prefix + std::to_string(i);
}

class Maker {
  public:
    explicit Maker(const TextOptions& options) : options_(options), state_(options.seed * 2 + 1) {}

    JsonTree OneRecord(const Table& table) {
        if (IsWildHere()) return JsonTree(AnyValue());
        JsonTree value = JsonTree::Object();
        if (table.shape != Shape::Object) {
            value = JsonTree::Array();
            for (const Field& field : table) {
                if (IsKey(field, "")) value.Add(One(field));
            }
            if (options_.values != Values::Typical && Next() % 4 == 0) value.Add(JsonTree("7"));
            return value;
        }
        // Where several rows share a key, the one that knows most about its value speaks first, functions of a row's
        // own after the named kinds, and a mere presence last; a whole object comes before a key inside it.
        for (const int turn : {0, 1, 2, 3}) {
            for (const Field& field : table) {
                if (field.key == nullptr || field.fromRoot || !field.readable || TurnOf(field) != turn) continue;
                if (field.amongKeys) {
                    AddElements(value, field);
                } else if (field.key[0] == '\0') {
                    if (value.isEmpty()) value = Member(field);
                } else {
                    Put(value, field);
                }
            }
        }
        return value;
    }

    void FromRoot(const Table& table, JsonTree& root) {
        for (const Field& field : table) {
            if (field.fromRoot && field.readable && field.key != nullptr) Put(root, field);
            if (field.kind == Kind::Record) FromRoot(*field.table, root);
        }
    }

  private:
    std::uint32_t Next() {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<std::uint32_t>(state_ >> 33);
    }
    bool IsWildHere() { return options_.values == Values::Wild && Next() % 5 == 0; }

    static bool IsKey(const Field& field, std::string_view key) { return field.key != nullptr && field.key == key; }
    static int TurnOf(const Field& field) {
        if (field.kind == Kind::Record && field.rank == 0) return 0;
        return field.kind == Kind::Presence ? 3 : field.kind == Kind::Custom ? 2 : 1;
    }

    void Put(JsonTree& object, const Field& field) {
        if (object.kind() != JsonTree::Kind::Object) return;
        JsonTree& place = object.At(field.key);
        if (place.kind() == JsonTree::Kind::Scalar && place.Text() == "null") place = Member(field);
    }

    JsonTree Member(const Field& field) {
        if (IsWildHere()) return JsonTree(AnyValue());
        switch (field.kind) {
        case Kind::Schedule:
            return Sections(field.dims[0], field.dims[1]);
        case Kind::SectionList:
            return List(field.dims[0], [&] { return JsonTree::String(Section()); });
        case Kind::BitMask:
        case Kind::BitMaskLoose:
            return Numbers(field.dims[0] * 32);
        case Kind::Switches:
            return Numbers(field.dims[0]);
        case Kind::Custom:
            if (field.table != nullptr && field.cell == record::Cell::Record
                && BareItemsBehind(*field.table) != nullptr)
                return ItemLists(field);
            if (field.custom->sample != nullptr) return JsonTree(field.custom->sample);
            return JsonTree(Next() % 2 == 0 ? "2" : "[1,2]");
        default:
            break;
        }
        if (field.single || (field.rank == 0 && field.cell != record::Cell::Pointer)) return One(field);
        return Level(field, 0);
    }

    // Descriptors of items without heads: an object whose members have the names of types.
    JsonTree ItemLists(const Field& field) {
        constexpr std::uint32_t kStep = 5; // the types of one object lie apart
        const PackedItems& items = *BareItemsBehind(*field.table);
        const bool typical = options_.values == Values::Typical;
        const auto rows = std::find_if(field.table->begin(), field.table->end(),
                                       [&](const Field& row) { return row.offset == items.pointer && row.size > 0; });
        std::uint32_t count = std::min(field.dims[0], options_.most);
        if (!typical) count = Next() % 3 == 0 ? field.dims[0] + 2 : Next() % (count + 1);
        JsonTree object = JsonTree::Object();
        for (std::uint32_t index = Next(); count > 0; index += kStep) {
            const ItemType type = items.typeAt(index % items.typeCount);
            if (type.name.empty()) continue;
            --count;
            JsonTree member = OneRecord(*field.table);
            const std::uint32_t most = typical ? std::min(options_.most, 2U) : Next() % 6;
            if (member.kind() == JsonTree::Kind::Object)
                member.At(rows->key) = List(most, [&] { return OneRecord(*type.table); });
            object.Add(typical || Next() % 8 != 0 ? std::string(type.name) : "NoSuchType", std::move(member));
        }
        return object;
    }

    JsonTree Level(const Field& field, int level) {
        const bool isPointer = field.cell == record::Cell::Pointer;
        const bool innermost = isPointer || level + 1 == field.rank;
        const std::uint32_t room = isPointer ? std::max(4U, options_.most) : field.dims[level];
        std::uint32_t count = std::min(room, options_.most);
        if (field.exactly) count = room;
        count = std::max<std::uint32_t>(count, field.atLeast);
        if (options_.values != Values::Typical) count = Next() % 3 == 0 ? room + 2 : Next() % (count + 1);
        if (!field.keyed) return List(count, [&] { return innermost ? One(field) : Level(field, level + 1); });
        JsonTree object = JsonTree::Object();
        AddElements(object, field, count);
        return object;
    }

    void AddElements(JsonTree& object, const Field& field, std::uint32_t count) {
        if (object.kind() != JsonTree::Kind::Object) return;
        // A name that stands for no code does not come back.
        const Field* const name = field.table->memberName;
        const bool isCode = name != nullptr && name->kind == Kind::MemberCode;
        if (isCode && options_.values == Values::Typical) count = std::min<std::uint32_t>(count, name->names->count);
        for (std::uint32_t i = 0; i < count; ++i)
            object.Add(MemberNameOf(*field.table, "Item", i), One(field));
    }
    void AddElements(JsonTree& object, const Field& field) {
        AddElements(object, field, std::min(field.dims[0], options_.most));
    }

    template <class Make>
    JsonTree List(std::uint32_t count, Make make) {
        JsonTree list = JsonTree::Array();
        for (std::uint32_t i = 0; i < count; ++i)
            list.Add(options_.values != Values::Typical && Next() % 8 == 0 ? JsonTree("null") : make());
        return list;
    }

    JsonTree Sections(std::uint32_t rows, std::uint32_t columns) {
        return List(rows, [&] { return List(columns, [&] { return JsonTree::String(Section()); }); });
    }

    // Ascending and without repeats, as they are written.
    JsonTree Numbers(std::uint32_t bound) {
        JsonTree list = JsonTree::Array();
        const std::uint32_t step = std::max<std::uint32_t>(1, bound / 4);
        for (std::uint32_t number = Next() % step; number < bound; number += 1 + Next() % (2 * step))
            list.Add(JsonTree(std::to_string(number)));
        if (list.isEmpty() && bound > 0) list.Add(JsonTree("0"));
        if (options_.values != Values::Typical) {
            for (int i = 0; i < 4; ++i)
                list.Add(Number());
            for (const std::uint32_t edge : {bound - 1, bound, bound + 1})
                list.Add(JsonTree(std::to_string(edge)));
        }
        return list;
    }

    // One element of a field.
    JsonTree One(const Field& field) {
        if (IsWildHere()) return JsonTree(AnyValue());
        const bool typical = options_.values == Values::Typical;
        switch (field.kind) {
        case Kind::Record:
            return OneRecord(*field.table);
        case Kind::Bool:
            return JsonTree(options_.seed == 1 || Next() % 2 == 0 ? "true" : "false");
        case Kind::Int:
        case Kind::UInt: {
            if (field.only == OnlyType::Bool || field.writtenAs == Kind::Bool) return JsonTree("true");
            if (!typical) return Number();
            return JsonTree(std::to_string(TypicalNumber(field)));
        }
        case Kind::Real:
            return typical ? JsonTree(std::to_string(1 + Next() % 99) + ".25") : Number();
        case Kind::Text:
        case Kind::RawText:
        case Kind::FullText:
            return Words(field);
        case Kind::Names:
            return typical || Next() % 2 == 0 ? NameOf(*field.names) : JsonTree::String("no such name");
        case Kind::TimeSection:
            return JsonTree::String(Section());
        case Kind::HolidaySchedule:
            return Sections(ORRERY_SCHEDULE_DAYS, ORRERY_DAY_SECTIONS);
        case Kind::NetTime:
            return JsonTree::String("2026-11-20 09:30:" + TwoDigits());
        case Kind::NetTimeEx:
            return JsonTree::String("2026-11-20 09:30:" + TwoDigits() + ".250");
        case Kind::ClockTime:
            return JsonTree::String("09:30:" + TwoDigits());
        case Kind::Date:
            return JsonTree::String("2026-11-20");
        case Kind::UtcTime:
            return JsonTree("17951670" + TwoDigits());
        case Kind::SplitMode:
            return JsonTree::String("Split" + std::to_string(16 + Next() % 9));
        case Kind::Custom:
            return Member(field);
        default:
            return JsonTree("1");
        }
    }

    // Of any size that the field holds.
    std::int64_t TypicalNumber(const Field& field) {
        // A bound is the size of something else in the record, which shows whole only at the bound.
        if (field.atMost != Field::kNoLimit) return field.atMost;
        if (field.only == OnlyType::Unsigned) return std::int64_t{INT32_MAX} + 1 + Next() % INT32_MAX;
        std::int64_t most = INT32_MAX;
        switch (field.cell) {
        case record::Cell::I8:
            most = INT8_MAX;
            break;
        case record::Cell::U8:
            most = UINT8_MAX;
            break;
        case record::Cell::I16:
            most = INT16_MAX;
            break;
        case record::Cell::U16:
            most = UINT16_MAX;
            break;
        case record::Cell::F32:
            most = 1 << 24;
            break;
        default:
            if (field.kind == Kind::UInt) most = UINT32_MAX;
            break;
        }
        const bool isSmall = Next() % 2 == 0;
        std::int64_t number = 1 + Next() % (isSmall ? std::min<std::int64_t>(most, 99) : most);
        const bool isNarrow = field.cell == record::Cell::U8 || field.cell == record::Cell::U16;
        if (field.kind == Kind::Int && !field.notNegative && Next() % 4 == 0 && !isNarrow) number = -number;
        return field.hasUnless && number == field.unless ? number - 1 : number;
    }

    JsonTree Words(const Field& field) {
        const std::size_t room = field.elementSize;
        std::string text = "T" + std::to_string(Next() % 1000) + "/" + field.name;
        if (options_.values != Values::Typical) {
            text.resize(room + Next() % 3 - std::min<std::size_t>(room, 1), 'x');
            if (Next() % 2 == 0) return JsonTree("\"" + text + "\\u4e2d\\ud83d\\ude00\xe4\xb8\xad\"");
            return JsonTree::String(text);
        }
        return JsonTree::String(std::string_view(text).substr(0, room - std::min<std::size_t>(room, 1)));
    }

    // A text whose code is written as the same text again.
    JsonTree NameOf(const NameTable& names) {
        for (int attempt = 0; attempt < 64 && names.count > 0; ++attempt) {
            const record::Name& row = names.rows[Next() % names.count];
            const auto code = names.CodeOf(row.text);
            const record::Name* const back = code ? names.RowOf(*code) : nullptr;
            if (back != nullptr && back->text == row.text) return JsonTree::String(row.text);
        }
        return JsonTree::String("");
    }

    std::string TwoDigits() {
        const unsigned number = Next() % 60;
        return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
    }

    std::string Section() {
        constexpr const char* kHostile[] = {"",
                                            "1",
                                            "-1 -1:-1:-1--1:-1:-1",
                                            "99999999999999999999 08:00:00-17:30:00",
                                            "  1   8:0:0-17:30:0",
                                            "1 008:00:00-17:30:00",
                                            "1 08:00:00-17:30:00 and more",
                                            "0 24:60:60-99:99:99"};
        if (options_.values != Values::Typical && Next() % 2 == 0) return kHostile[Next() % std::size(kHostile)];
        return "1 08:" + TwoDigits() + ":" + TwoDigits() + "-17:" + TwoDigits() + ":" + TwoDigits();
    }

    JsonTree Number() {
        constexpr const char* kLimits[] = {
            "0",           "-0",         "-1",         "1",          "127",
            "128",         "255",        "256",        "-31",        "-32",
            "65535",       "65536",      "2147483647", "2147483648", "-2147483648",
            "-2147483649", "4294967295", "4294967296", "1e9",        "-1.5",
            "1e308",       "1e999",      "-1e999",     "5e-324",     "18446744073709551616"};
        return JsonTree(kLimits[Next() % std::size(kLimits)]);
    }

    std::string AnyValue() {
        constexpr const char* kValues[] = {"null", "true",     "false", "-1",           "2147483648", "0.5",
                                           "\"\"", "\"text\"", "[]",    "[1,\"a\",{}]", "{}",         "{\"a\":[{}]}"};
        return kValues[Next() % std::size(kValues)];
    }

    const TextOptions options_;
    std::uint64_t state_;
};

} // namespace

bool TakesMembers(const Command& command) {
    return command.parse == Command::Frame::Family
           && (command.parseFrame.take == Take::ByMember || command.parseFrame.take == Take::ByMemberOrNone);
}

bool TakesMany(const Command& command) {
    if (command.parse == Command::Frame::Generic) return command.genericFrame.arrayForm;
    return command.parses() && !TakesOneRecord(command.parseFrame.take);
}

JsonTree RecordTree(const Table& table, const TextOptions& options) {
    return Maker(options).OneRecord(table);
}

JsonTree ReplyTree(const Command& command, const TextOptions& options) {
    Maker maker(options);
    JsonTree value;
    if (const PackedItems* const items = ItemsBehind(*command.table)) {
        // Types in turn; each value of one item is that of its type's record.
        constexpr unsigned kMostItems = 3;
        value = JsonTree::Array();
        for (unsigned i = 0; i < std::min(options.records, kMostItems); ++i) {
            const auto index = static_cast<std::uint32_t>((options.seed * 7 + i) % items->typeCount);
            const ItemType type = items->typeAt(index);
            JsonTree item = maker.OneRecord(*type.table);
            if (item.kind() == JsonTree::Kind::Object) {
                item.At("Type") = JsonTree::String(type.name);
                item.At("Class") = JsonTree::String("Normal");
            }
            value.Add(std::move(item));
        }
    } else if (!TakesMany(command)) {
        value = maker.OneRecord(*command.table);
    } else if (TakesMembers(command)) {
        value = JsonTree::Object();
        for (unsigned i = 0; i < options.records; ++i)
            value.Add(MemberNameOf(*command.table, "Record", i), maker.OneRecord(*command.table));
    } else {
        value = JsonTree::Array();
        for (unsigned i = 0; i < options.records; ++i)
            value.Add(maker.OneRecord(*command.table));
    }
    JsonTree reply = Envelope(command, std::move(value));
    maker.FromRoot(*command.table, reply);
    return reply;
}

JsonTree Envelope(const Command& command, JsonTree value) {
    JsonTree reply = JsonTree::Object();
    reply.At("result") = JsonTree("true");
    std::string path = "params/table";
    if (command.parse == Command::Frame::Family) {
        const std::string name = command.parseFrame.name;
        switch (command.parseFrame.source) {
        case Source::Table:
            break;
        case Source::Caps:
        case Source::CapsOrParams:
            path = "params/caps";
            break;
        case Source::Params:
            path = "params/" + name;
            break;
        case Source::Top:
            path = name;
            break;
        case Source::Result:
            path = "result";
            break;
        }
    }
    reply.At(path) = std::move(value);
    return reply;
}

std::string ReplyAround(const Command& command, std::string_view packed) {
    const std::string_view quotedKey =
        command.pack == Command::Frame::Family ? command.packFrame.quotedKey : std::string_view{};
    if (!quotedKey.empty()) {
        packed.remove_prefix(2 + quotedKey.size()); // "{ " and the key
        packed.remove_suffix(3);                    // " }" and the newline
    }
    return Envelope(command, JsonTree(std::string(packed))).Text();
}

} // namespace orrery::test

// Records: their fields, where each stands in memory and in the text, and the rules of its way in and out.
#include "orrery/Docs.h"
#include "orrery/Samples.h"
#include "orrery/Schema.h"
#include "orrery/Words.h"

#include "events/EventCodecs.h"
#include "events/EventContext.h"
#include "frame/PackedItems.h"

#include <cstddef>
#include <utility>

namespace orrery::tool {

using namespace record;

namespace {

template <class Enum, std::size_t N>
std::string WordOf(Enum value, const char* const (&words)[N]) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? words[index] : "?";
}

Node Names(const std::vector<std::string>& names) {
    Node list = Node::InlineArray();
    for (const std::string& name : names)
        list.Add(Node::Text(name));
    return list;
}

// What an event's text has of a member that its own data has not.
std::string SourceOf(const Field& field) {
    using events::EventContext;
    switch (field.suppliedFrom) {
    case offsetof(EventContext, stuFileInfo):
        return "group"; // "CountInGroup", "IndexInGroup", "GroupID" of this event's data or of one before
    case offsetof(EventContext, byEventAction):
    case offsetof(EventContext, nAction):
    case offsetof(EventContext, dwAction):
        return "action"; // "Action" beside the data
    default:
        return "notification"; // around the events
    }
}

// Where the value stands: what the key starts at.
const char* RelativeTo(const Table& table, const Field& field) {
    if (field.fromRoot) return "reply";
    if (field.amongKeys) return "members"; // each a member of the record's own object
    if (field.key[0] == '\0') return table.shape == Shape::Object ? "value" : "element";
    return "record";
}

void AddPlace(Node& node, const Tables& tables, const Field& field) {
    node.Add("name", Node::Text(field.name)).Add("type", Node::Text(TypeWord(field.cell)));
    if (PointsToText(field) || PointsToNumbers(field))
        node.Add("to", Node::Text(PointsToText(field) ? "char" : TypeWord(NumberBehind(field))));
    else if (field.cell == Cell::Record || field.cell == Cell::Pointer) {
        AddRecord(node, tables, *field.table);
        // A pointer to bytes: the record stands at its beginning, others follow it.
        if (field.toBytes) node.Add("bytes", Node::Bool(true));
    }
    Node dims = Node::InlineArray();
    for (const std::uint32_t dim : DimsOf(field))
        dims.Add(Node::Unsigned(dim));
    node.Add("offset", Node::Unsigned(field.offset)).Add("dims", std::move(dims));
}

void AddReading(Node& node, const Table& table, const Field& field) {
    constexpr const char* kOnly[] = {"any", "string", "bool", "integer", "unsigned", "integral", "array"};
    constexpr const char* kNulls[] = {"counts", "leavesHole", "closesUp", "stops", "named"};
    const auto flag = [&](const char* word, bool holds) {
        if (holds) node.Add(word, Node::Bool(true));
    };
    flag("always", field.always);
    if (field.hasDefault) node.Add("default", Node::Number(field.defaultValue));
    if (field.only != OnlyType::Any) node.Add("only", Node::Text(WordOf(field.only, kOnly)));
    if (field.readCondition.exists()) node.Add("readIf", Node::Text(SlotName(table, field.readCondition)));
    if (field.firstBytes != 0) node.Add("firstBytes", Node::Unsigned(field.firstBytes));
    if (field.atLeast != 0) node.Add("atLeast", Node::Unsigned(field.atLeast));
    flag("anyShape", field.anyShape);
    flag("exactly", field.exactly);
    flag("zeroed", field.zeroed);
    flag("allOrNone", field.allOrNone);
    if (field.nulls != Nulls::Count) node.Add("nullElement", Node::Text(WordOf(field.nulls, kNulls)));
    if (field.refused != Nulls::Count) node.Add("refusedElement", Node::Text(WordOf(field.refused, kNulls)));
}

void AddWriting(Node& node, const Table& table, const Field& field) {
    constexpr const char* kEmpty[] = {"noKey", "array", "null"};
    constexpr const char* kSkipped[] = {"staysNull", "hole", "closesUp"};
    const auto flag = [&](const char* word, bool holds) {
        if (holds) node.Add(word, Node::Bool(true));
    };
    flag("trueAtOne", field.trueAtOne);
    if (field.hasUnless) node.Add("unless", Node::Number(field.unless));
    flag("notNegative", field.notNegative);
    if (field.atMost != Field::kNoLimit) node.Add("atMost", Node::Number(field.atMost));
    if (field.condition.exists()) node.Add("writeIf", Node::Text(SlotName(table, field.condition)));
    flag("writeIfFunction", field.when != nullptr);
    flag("writeIfLinked", field.linkage);
    flag("untilEmpty", field.untilEmpty);
    if (field.empty != Empty::NoKey) node.Add("writeEmpty", Node::Text(WordOf(field.empty, kEmpty)));
    if (field.skipped != Skipped::StaysNull) node.Add("writeSkipped", Node::Text(WordOf(field.skipped, kSkipped)));
    flag("unlessBare", field.unlessBare);
    flag("keepsObject", field.keepsObject);
    flag("writesCapacity", field.fullCapacity);
    if (field.convertedRoom != 0) node.Add("convertedRoom", Node::Number(field.convertedRoom));
}

// Lists, and who owns the room behind a pointer.
void AddList(Node& node, const Table& table, const Field& field) {
    if (field.count.exists()) {
        node.Add("count", Node::Text(SlotName(table, field.count)));
        if (field.countUncapped) node.Add("countUncapped", Node::Bool(true));
        if (field.counted) node.Add("countsWithoutArray", Node::Bool(true));
    }
    if (field.capacity.exists() && field.cell != Cell::Pointer)
        node.Add(field.lent ? "asked" : "room", Node::Text(SlotName(table, field.capacity)));
    if (field.keyed) node.Add("keyed", Node::Bool(true));
    if (field.cell != Cell::Pointer) return;
    // What the caller may not change is the library's.
    const headers::Member* const member = headers::FindMember(table.record, field.name);
    const bool isLibrarys = field.owned || (member != nullptr && std::string_view(member->type).starts_with("const "));
    Node pointer = Node::Inline();
    pointer.Add("owner", Node::Text(isLibrarys ? "library" : "caller"));
    pointer.Add("elements", Node::Text(PointsToText(field)  ? "text"
                                       : field.toBytes      ? "bytes"
                                       : PointsToOne(field) ? "one"
                                                            : "list"));
    if (field.capacity.exists()) pointer.Add("room", Node::Text(SlotName(table, field.capacity)));
    if (const PackedItems* const items = ItemsBehind(table); items != nullptr && items->pointer == field.offset) {
        pointer.Add("items", Node::Text(SlotName(table, items->count)));
        pointer.Add("bytes", Node::Text(SlotName(table, items->bytes)));
    }
    node.Add("pointer", std::move(pointer));
}

// What functions that many rows share make of a value; empty for those of a row alone.
const char* CodecWord(const CustomCodec* codec) {
    const std::pair<const CustomCodec*, const char*> kShared[] = {
        {&kNamedBits, "namedBits"},
        {&kFromOne, "fromOne"},
        {&kSplitName, "splitName"},
        {&events::kPackedColor, "packedColor"},
        {&events::kWholeReal, "wholeReal"},
        {&events::kDegrees, "degrees"},
        {&events::kThousandths, "thousandths"},
        {&events::kSignedThousandths, "signedThousandths"},
        {&events::kAnyInteger, "anyInteger"},
        {&events::kFirstNumber, "firstNumber"},
        {&events::kSecondNumber, "secondNumber"},
        {&events::kCountedFromOne, "countedFromOne"},
        {&events::kOwnedText, "ownedText"},
        {&events::kOwnedRecord, "ownedRecord"},
        {&events::kByKeys, "byKeys"},
    };
    for (const auto& [shared, word] : kShared) {
        if (shared == codec) return word;
    }
    return "";
}

void AddFunction(Node& node, const Table& table, const Field& field) {
    if (field.kind != Kind::Custom && field.writtenAs != Kind::Custom) return;
    Node function = Node::Inline();
    function.Add("read", Node::Bool(field.custom->read != nullptr))
        .Add("write", Node::Bool(field.custom->write != nullptr));
    if (CodecWord(field.custom)[0] != '\0') function.Add("codec", Node::Text(CodecWord(field.custom)));
    node.Add("function", std::move(function));
    if (const char* const sample = SampleOf(table, field)) node.Add("sample", Node::Token(sample));
}

// What a row says of the text. A row that stores nothing has no place.
void AddRow(Node& node, const Table& table, const Field& field) {
    if (field.key != nullptr)
        node.Add("key", Node::Text(field.key)).Add("relativeTo", Node::Text(RelativeTo(table, field)));
    node.Add("kind", Node::Text(SchemaWord(KindWord(field.kind))));
    if (field.writtenAs != field.kind) node.Add("writtenAs", Node::Text(SchemaWord(KindWord(field.writtenAs))));
    if (field.kind == Kind::Text || field.kind == Kind::RawText || field.kind == Kind::FullText)
        node.Add("terminator", Node::Bool(field.kind != Kind::FullText));
    if (field.kind == Kind::Supplied) node.Add("supplied", Node::Text(SourceOf(field)));
    if (field.key != nullptr && !field.readable) node.Add("writeOnly", Node::Bool(true));
    if (field.key != nullptr && !field.writable) node.Add("readOnly", Node::Bool(true));
    if (field.flag.exists()) node.Add("flag", Node::Text(SlotName(table, field.flag)));
    AddList(node, table, field);
    AddReading(node, table, field);
    AddWriting(node, table, field);
    AddFunction(node, table, field);
    AddCodes(node, table.record, field);
}

void AddWords(Node& node, const std::vector<const Table*>& same, const Field& field) {
    const MemberRole role = RoleOf(same, field);
    if (role.role != Role::None) node.Add("role", Node::Text(RoleWord(role.role)));
    if (!role.of.empty()) node.Add("of", Names(role.of));
    node.Add("doc", Node::Text(DocOf(same, field)));
    const headers::Member* const member = headers::FindMember(same.front()->record, field.name);
    if (member == nullptr) return;
    if (member->unit[0] != '\0') node.Add("unit", Node::Text(member->unit));
    if (member->hasRange)
        node.Add("range",
                 std::move(Node::InlineArray().Add(Node::Number(member->low)).Add(Node::Number(member->high))));
}

struct Row {
    const Table* table;
    const Field* field;
};

// A member's row in the first of the record's tables that gives it a key.
Row RowThatTells(const std::vector<const Table*>& same, const Table& table, const Field& field) {
    if (!IsStored(field) || field.key != nullptr) return {&table, &field};
    for (const Table* const other : same) {
        for (const Field& row : *other) {
            if (IsStored(row) && row.offset == field.offset && row.key != nullptr) return {other, &row};
        }
    }
    return {&table, &field};
}

// The rows of a table: those of the members, and those beside them. `same` are all tables of the record; a record that
// is told of as a whole, not as one of its forms, has the words of all.
void AddFields(Node& node, const Tables& tables, const Table& table, const std::vector<const Table*>& same,
               bool isForm) {
    constexpr const char* kShapes[] = {"object", "tuple", "looseTuple", "longTuple"};
    node.Add("shape", Node::Text(WordOf(table.shape, kShapes)));
    const auto flag = [&](const char* word, bool holds) {
        if (holds) node.Add(word, Node::Bool(true));
    };
    flag("guarded", table.guarded);
    flag("takesFirst", table.takesFirst);
    flag("clearsFlags", table.clearsFlags);
    flag("startsWhenRead", table.startsWhenRead);
    flag("writesFunction", table.writes != nullptr);
    flag("afterRead", table.afterRead != nullptr);
    if (const PackedItems* const items = ItemsBehind(table)) {
        Node packed = Node::Object();
        // Without heads the descriptor itself tells the type.
        const Table& telling = items->head != nullptr ? *items->head : table;
        if (items->head != nullptr) packed.Add("head", Node::Text(items->head->record));
        packed.Add("code", Node::Text(SlotName(telling, items->code)))
            .Add("size", Node::Text(SlotName(telling, items->size)));
        if (items->most != 0) packed.Add("most", Node::Unsigned(items->most));
        if (items->head != nullptr) packed.Add("typeKey", Node::Text("Type")).Add("classKey", Node::Text("Class"));
        node.Add("items", std::move(packed));
    }
    Node fields = Node::Array();
    Node second = Node::Array();
    Node more = Node::Array();
    for (const Field& field : table) {
        Node row = Node::Object();
        if (field.size > 0) AddPlace(row, tables, field);
        const Row telling = isForm ? Row{&table, &field} : RowThatTells(same, table, field);
        AddRow(row, *telling.table, *telling.field);
        if (IsStored(field)) AddWords(row, same, field);
        (IsStored(field) ? fields : field.size > 0 ? second : more).Add(std::move(row));
    }
    node.Add("fields", std::move(fields));
    if (second.size() > 0) node.Add("secondKeys", std::move(second));
    if (more.size() > 0) node.Add("otherKeys", std::move(more));
}

} // namespace

Node RowNode(const Table& table, const Field& field) {
    Node node = Node::Object();
    AddRow(node, table, field);
    return node;
}

void AddRecord(Node& node, const Tables& tables, const Table& table, std::string_view key) {
    node.Add(key, Node::Text(table.record));
    if (tables.Of(table.record).size() > 1)
        node.Add(key == "record" ? "form" : "otherForm", Node::Text(tables.LabelOf(table)));
}

Node RecordNodes(const Tables& tables) {
    Node records = Node::Array();
    for (const std::string_view name : tables.Records()) {
        const auto same = tables.Of(name);
        Node record = Node::Object();
        record.Add("name", Node::Text(name)).Add("size", Node::Unsigned(same.front()->size));
        const headers::Record* const header = headers::FindRecord(name);
        if (header != nullptr && header->doc[0] != '\0') record.Add("doc", Node::Text(header->doc));
        AddFields(record, tables, *same.front(), same, false);
        if (same.size() > 1) {
            Node forms = Node::Array();
            for (const Table* const table : same) {
                Node form = Node::Object();
                form.Add("name", Node::Text(tables.LabelOf(*table)));
                AddFields(form, tables, *table, same, true);
                forms.Add(std::move(form));
            }
            record.Add("forms", std::move(forms));
        }
        records.Add(std::move(record));
    }
    return records;
}

} // namespace orrery::tool

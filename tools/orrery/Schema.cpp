#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Tables.h"
#include "orrery/Words.h"

#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "frame/PackedItems.h"

#include <set>

namespace orrery::tool {

using namespace record;

namespace {

// The key of a field in the first of the record's tables that gives it one.
const char* KeyOf(const std::vector<const Table*>& tables, const Field& field) {
    for (const Table* table : tables) {
        for (const Field& row : *table) {
            if (IsStored(row) && row.offset == field.offset && row.key != nullptr) return row.key;
        }
    }
    return nullptr;
}

Node FieldNode(const std::vector<const Table*>& tables, const Field& field) {
    Node node = Node::Object();
    node.Add("name", Node::Text(field.name)).Add("type", Node::Text(TypeWord(field.cell)));
    if (PointsToText(field) || PointsToNumbers(field))
        node.Add("to", Node::Text(PointsToText(field) ? "char" : TypeWord(NumberBehind(field))));
    else if (field.cell == Cell::Record || field.cell == Cell::Pointer) {
        node.Add("record", Node::Text(field.table->record));
        // A pointer to bytes: the record stands at its beginning, others follow it.
        if (field.toBytes) node.Add("bytes", Node::Bool(true));
    }
    Node dims = Node::InlineArray();
    for (const std::uint32_t dim : DimsOf(field))
        dims.Add(Node::Unsigned(dim));
    node.Add("offset", Node::Unsigned(field.offset)).Add("dims", std::move(dims));
    if (const char* const key = KeyOf(tables, field)) node.Add("key", Node::Text(key));
    return node;
}

// The types of all packed buffers.
Node RuleNodes() {
    Node rules = Node::Array();
    std::set<const PackedItems*> seen;
    for (const Command& command : Commands()) {
        const PackedItems* const items = command.table == nullptr ? nullptr : ItemsBehind(*command.table);
        if (items == nullptr || !seen.insert(items).second) continue;
        for (std::uint32_t i = 0; i < items->typeCount; ++i) {
            const ItemType type = items->typeAt(i);
            rules.Add(std::move(Node::Object()
                                    .Add("code", Node::Unsigned(type.code))
                                    .Add("name", Node::Text(type.name))
                                    .Add("record", Node::Text(type.table->record))));
        }
    }
    return rules;
}

} // namespace

std::string Schema() {
    const Tables tables;
    Node commands = Node::Array();
    for (const Command& command : Commands()) {
        Node node = Node::Object();
        node.Add("name", Node::Text(command.name))
            .Add("parse", Node::Bool(command.parses()))
            .Add("pack", Node::Bool(command.packs()));
        if (command.table != nullptr) node.Add("record", Node::Text(command.table->record));
        if (command.otherTable != nullptr) node.Add("otherRecord", Node::Text(command.otherTable->record));
        node.Add("frame", Node::Text(FrameWord(command)));
        commands.Add(std::move(node));
    }
    Node records = Node::Array();
    for (const std::string_view name : tables.Records()) {
        const auto same = tables.Of(name);
        Node fields = Node::Array();
        for (const Field& field : *same.front()) {
            if (IsStored(field)) fields.Add(FieldNode(same, field));
        }
        records.Add(std::move(Node::Object()
                                  .Add("name", Node::Text(name))
                                  .Add("size", Node::Unsigned(same.front()->size))
                                  .Add("fields", std::move(fields))));
    }
    Node events = Node::Array();
    for (const events::EventRow& event : events::Events()) {
        events.Add(std::move(Node::Object()
                                 .Add("code", Node::Unsigned(event.code))
                                 .Add("name", Node::Text(event.name))
                                 .Add("record", Node::Text(event.table->record))
                                 .Add("size", Node::Unsigned(event.reportedSize))));
    }
    Node typed = Node::Array();
    for (const events::TypedRow& row : events::TypedRows()) {
        typed.Add(std::move(Node::Object()
                                .Add("code", Node::Unsigned(row.code))
                                .Add("name", Node::Text(row.name))
                                .Add("record", Node::Text(row.table->record))
                                .Add("list", Node::Bool(row.isList))));
    }
    Node templates = Node::Array();
    for (const TemplateRow& row : Templates()) {
        templates.Add(std::move(Node::Object()
                                    .Add("name", Node::Text(row.name))
                                    .Add("record", Node::Text(row.table->record))
                                    .Add("class", Node::Bool(row.isByClass))));
    }
    Node schema = Node::Object();
    schema.Add("version", Node::Text(ORRERY_VERSION))
        .Add("commands", std::move(commands))
        .Add("records", std::move(records))
        .Add("rules", RuleNodes())
        .Add("events", std::move(events))
        .Add("typed", std::move(typed))
        .Add("templates", std::move(templates));
    return schema.Print();
}

} // namespace orrery::tool

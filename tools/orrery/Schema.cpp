#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Tables.h"
#include "orrery/Words.h"

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
    if (field.cell == Cell::Record || field.cell == Cell::Pointer) {
        node.Add("record", Node::Text(field.table->record));
    }
    Node dims = Node::InlineArray();
    for (const std::uint32_t dim : DimsOf(field))
        dims.Add(Node::Unsigned(dim));
    node.Add("offset", Node::Unsigned(field.offset)).Add("dims", std::move(dims));
    if (const char* const key = KeyOf(tables, field)) node.Add("key", Node::Text(key));
    return node;
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
    Node schema = Node::Object();
    schema.Add("version", Node::Text(ORRERY_VERSION))
        .Add("commands", std::move(commands))
        .Add("records", std::move(records))
        .Add("events", Node::Array());
    return schema.Print();
}

} // namespace orrery::tool

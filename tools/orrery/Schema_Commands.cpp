// Commands with their frames, and the texts that no command reads: events, typed texts, templates.
#include "orrery/Schema.h"
#include "orrery/Words.h"

#include "Commands.h"
#include "analyse/RuleClasses.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "frame/PackedItems.h"

#include <set>

namespace orrery::tool {

using namespace record;

namespace {

template <class Enum, std::size_t N>
Node WordOf(Enum value, const char* const (&words)[N]) {
    const auto index = static_cast<std::size_t>(value);
    return Node::Text(index < N ? words[index] : "?");
}

void Flag(Node& node, const char* word, bool holds) {
    if (holds) node.Add(word, Node::Bool(true));
}

constexpr const char* kStrides[] = {"record", "sizeWord", "sizeWordByField"};

// What a value of each shape gives.
Node ShapesOf(const char* array, const char* object, const char* other) {
    return std::move(Node::Inline()
                         .Add("array", Node::Text(array))
                         .Add("object", Node::Text(object))
                         .Add("other", Node::Text(other)));
}

Node ShapesOf(Take take) {
    switch (take) {
    case Take::One:
        return ShapesOf("record", "record", "record");
    case Take::OneOrMany:
        return ShapesOf("records", "record", "fails");
    case Take::AnyOrMany:
        return ShapesOf("records", "record", "record");
    case Take::Many:
        return ShapesOf("records", "fails", "fails");
    case Take::ManyOrNone:
        return ShapesOf("records", "nothing", "nothing");
    case Take::List:
        return ShapesOf("record", "fails", "fails");
    case Take::ListOrNone:
        return ShapesOf("record", "nothing", "nothing");
    case Take::ListOrLists:
        return ShapesOf("recordOrRecords", "nothing", "nothing");
    case Take::ListOrListsOrBlank:
        return ShapesOf("recordOrRecords", "blank", "blank");
    case Take::ByMember:
        return ShapesOf("fails", "members", "fails");
    case Take::ByMemberOrNone:
        return ShapesOf("nothing", "members", "nothing");
    case Take::Text:
        return ShapesOf("fails", "fails", "text");
    }
    return Node::Null();
}

// Where the value stands, as paths that are tried in turn.
Node PlaceOf(Source source, std::string_view name) {
    Node places = Node::InlineArray();
    switch (source) {
    case Source::Table:
        places.Add(Node::Text("params/table"));
        break;
    case Source::Caps:
        places.Add(Node::Text("params/caps"));
        break;
    case Source::CapsOrParams:
        places.Add(Node::Text("params/caps")).Add(Node::Text("params"));
        break;
    case Source::Params:
        places.Add(Node::Text("params/" + std::string(name)));
        break;
    case Source::Top:
        places.Add(Node::Text(name));
        break;
    case Source::Result:
        places.Add(Node::Text("result"));
        break;
    }
    return places;
}

void AddGeneric(Node& node, const GenericFrame& frame) {
    node.Add("dimension", Node::Unsigned(frame.dimension));
    node.Add("arrayForm", Node::Bool(frame.arrayForm));
}

Node ReadingOf(const Command& command) {
    constexpr const char* kFrames[] = {"none", "generic", "family", "own"};
    Node node = Node::Object();
    node.Add("frame", WordOf(command.parse, kFrames));
    if (command.parse == Command::Frame::Generic) {
        const GenericFrame& frame = command.genericFrame;
        AddGeneric(node, frame);
        return std::move(node.Add("value", PlaceOf(Source::Table, ""))
                             .Add("result", Node::Text("mustBeTrue"))
                             .Add("shapes", ShapesOf(frame.arrayForm ? "records" : "record", "record", "record"))
                             .Add("null", Node::Text("lengthUntouched"))
                             .Add("clears", Node::Text(frame.zeroBuffer ? "buffer" : "kept"))
                             .Add("length", Node::Text("added"))
                             .Add("stride", Node::Text("record")));
    }
    const ParseFrame& frame = command.parseFrame;
    constexpr const char* kResults[] = {"mustBeTrue",     "falseRefuses", "notTested", "exactBool",
                                        "integerNonZero", "textTrue",     "verdict"};
    constexpr const char* kTakes[] = {
        "one",        "oneOrMany",   "anyOrMany",          "many",     "manyOrNone",     "list",
        "listOrNone", "listOrLists", "listOrListsOrBlank", "byMember", "byMemberOrNone", "text"};
    constexpr const char* kNulls[] = {"fails", "lengthZero", "lengthUntouched", "oneRecord"};
    constexpr const char* kClears[] = {"buffer", "record", "read", "kept"};
    constexpr const char* kLengths[] = {"oneRecord", "perRecord", "perFilled", "oneOfList", "told", "none"};
    node.Add("value", PlaceOf(frame.source, frame.name))
        .Add("result", WordOf(frame.result, kResults))
        .Add("takes", WordOf(frame.take, kTakes))
        .Add("shapes", ShapesOf(frame.take))
        .Add("null", WordOf(frame.nullValue, kNulls))
        .Add("clears", WordOf(frame.clearing, kClears))
        .Add("length", WordOf(frame.length, kLengths))
        .Add("stride", WordOf(frame.stride, kStrides));
    Flag(node, "exactSize", frame.exactSize);
    Flag(node, "anySize", frame.anySize);
    Flag(node, "zeroesLength", frame.zeroesLength);
    Flag(node, "needsText", frame.needsText);
    Flag(node, "takesNoJson", frame.takesNoJson);
    Flag(node, "takesEmptyLists", frame.takesEmptyLists);
    Flag(node, "readsNulls", frame.readsNulls);
    Flag(node, "rootKeysFirst", frame.rootKeysFirst);
    Flag(node, "allMustFit", frame.allMustFit);
    Flag(node, "acceptsFunction", frame.accepts != nullptr);
    Flag(node, "takesFunction", frame.takesBy != nullptr);
    Flag(node, "lengthFunction", frame.lengthBy != nullptr);
    Flag(node, "parsedFunction", frame.parsed != nullptr);
    return node;
}

Node WritingOf(const Command& command) {
    constexpr const char* kFrames[] = {"none", "generic", "family", "own"};
    Node node = Node::Object();
    node.Add("frame", WordOf(command.pack, kFrames));
    if (command.pack == Command::Frame::Generic) {
        AddGeneric(node, command.genericFrame);
        Flag(node, "alwaysArray", command.genericFrame.alwaysArray);
        return node;
    }
    const PackFrame& frame = command.packFrame;
    constexpr const char* kForms[] = {"one", "array", "bareIfOne", "bareIfExact", "byMember", "nothing", "noText"};
    constexpr const char* kCapacities[] = {"strict", "loose", "raw", "oneBefore", "bare"};
    if (command.pack == Command::Frame::Family) {
        node.Add("form", WordOf(frame.form, kForms))
            .Add("capacity", WordOf(frame.capacity, kCapacities))
            .Add("stride", WordOf(frame.stride, kStrides));
        std::string_view key = frame.quotedKey; // with its quotes and colon
        if (!key.empty()) node.Add("under", Node::Text(key.substr(1, key.find('"', 1) - 1)));
        Flag(node, "exactSize", frame.exactSize);
        Flag(node, "keepsText", frame.keepsText);
        Flag(node, "acceptsFunction", frame.accepts != nullptr);
        Flag(node, "formFunction", frame.formBy != nullptr);
    }
    return node;
}

} // namespace

Node CommandNodes(const Tables& tables) {
    Node commands = Node::Array();
    for (const Command& command : Commands()) {
        Node node = Node::Object();
        node.Add("name", Node::Text(command.name))
            .Add("parse", Node::Bool(command.parses()))
            .Add("pack", Node::Bool(command.packs()));
        if (command.table != nullptr) AddRecord(node, tables, *command.table);
        if (command.otherTable != nullptr) AddRecord(node, tables, *command.otherTable, "otherRecord");
        node.Add("frame", Node::Text(FrameWord(command)));
        if (command.parses()) node.Add("reading", ReadingOf(command));
        if (command.packs()) node.Add("writing", WritingOf(command));
        commands.Add(std::move(node));
    }
    return commands;
}

// The types of all packed buffers.
Node RuleNodes(const Tables& tables) {
    Node rules = Node::Array();
    std::set<const PackedItems*> seen;
    for (const Command& command : Commands()) {
        const PackedItems* const items = command.table == nullptr ? nullptr : ItemsBehind(*command.table);
        if (items == nullptr || !seen.insert(items).second) continue;
        for (std::uint32_t i = 0; i < items->typeCount; ++i) {
            const ItemType type = items->typeAt(i);
            Node node = Node::Object();
            node.Add("code", Node::Unsigned(type.code)).Add("name", Node::Text(type.name));
            AddRecord(node, tables, *type.table);
            node.Add("size", Node::Unsigned(type.table->size)).Add("descriptor", Node::Text(command.table->record));
            Flag(node, "writeOnly", !type.isRead);
            rules.Add(std::move(node));
        }
    }
    return rules;
}

Node EventNodes(const Tables& tables) {
    Node events = Node::Array();
    for (const events::EventRow& event : events::Events()) {
        Node node = Node::Object();
        node.Add("code", Node::Unsigned(event.code)).Add("name", Node::Text(event.name));
        AddRecord(node, tables, *event.table);
        node.Add("size", Node::Unsigned(event.reportedSize)).Add("recordSize", Node::Unsigned(event.recordSize));
        Flag(node, "needsNoData", event.needsNoData);
        // The data tells under which code it is delivered.
        Flag(node, "codeFunction", event.rename != nullptr);
        events.Add(std::move(node));
    }
    return events;
}

Node TypedNodes(const Tables& tables) {
    Node typed = Node::Array();
    for (const events::TypedRow& row : events::TypedRows()) {
        Node node = Node::Object();
        node.Add("code", Node::Unsigned(row.code)).Add("name", Node::Text(row.name));
        AddRecord(node, tables, *row.table);
        typed.Add(std::move(node.Add("list", Node::Bool(row.isList))));
    }
    return typed;
}

Node TemplateNodes(const Tables& tables) {
    Node templates = Node::Array();
    for (const TemplateRow& row : Templates()) {
        Node node = Node::Object();
        node.Add("name", Node::Text(row.name));
        AddRecord(node, tables, *row.table);
        templates.Add(std::move(node.Add("class", Node::Bool(row.isByClass))));
    }
    return templates;
}

Node TextNodes() {
    Node events = Node::Object();
    events.Add("list", std::move(Node::InlineArray().Add(Node::Text("Event")).Add(Node::Text("EventList"))))
        .Add("name", Node::Text("Code"))
        .Add("action", Node::Text("Action"))
        .Add("data", Node::Text("Data"));
    Node classes = Node::Array();
    for (const Name* row = kTemplateClasses.rows; row != kTemplateClasses.rows + kTemplateClasses.count; ++row) {
        Node one = Node::Object();
        one.Add("code", Node::Number(row->code)).Add("name", Node::Text(row->text));
        classes.Add(std::move(one));
    }
    Node templates = Node::Object();
    templates.Add("value", std::move(Node::InlineArray().Add(Node::Text("params"))))
        .Add("items", Node::Text("members"))
        .Add("classes", std::move(classes));
    return std::move(Node::Object().Add("events", std::move(events)).Add("templates", std::move(templates)));
}

} // namespace orrery::tool

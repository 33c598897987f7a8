// A JSON Schema of a command's text, as a device sends it: what the tables read, and of which type it should be. Keys
// that no row reads are allowed, as devices send them too, and so is null, which is as good as no key.
#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Samples.h"
#include "orrery/Schema.h"
#include "orrery/Words.h"

#include "Commands.h"
#include "explain/headers/HeaderWords.h"
#include "frame/PackedItems.h"

#include <cctype>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace orrery::tool {

using namespace record;

namespace {

Node TypeOrNull(const char* type) {
    Node types = Node::InlineArray();
    types.Add(Node::Text(type)).Add(Node::Text("null"));
    return std::move(Node::Object().Add("type", std::move(types)));
}

std::string Escaped(std::string_view text, bool folded) {
    std::string pattern;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (folded && std::isalpha(byte) != 0) {
            pattern += '[';
            pattern += static_cast<char>(std::toupper(byte));
            pattern += static_cast<char>(std::tolower(byte));
            pattern += ']';
        } else {
            if (std::string_view("\\^$.|?*+()[]{}/").find(c) != std::string_view::npos) pattern += '\\';
            pattern += c;
        }
    }
    return pattern;
}

// The texts of codes; others are read too, but as what the table says of unknown ones.
Node CodeTexts(const NameTable& names) {
    std::string pattern;
    for (const Name* row = names.rows; row != names.rows + names.count; ++row)
        pattern += (pattern.empty() ? "^(" : "|") + Escaped(row->text, row->compare == Compare::Folded);
    Node node = TypeOrNull("string");
    if (!pattern.empty()) node.Add("pattern", Node::Text(pattern + ")$"));
    return node;
}

Node Pattern(const char* pattern) {
    return std::move(TypeOrNull("string").Add("pattern", Node::Text(pattern)));
}

// `most` elements at the most; 0: any number.
Node ListOf(Node items, std::uint32_t most = 0, std::uint32_t least = 0) {
    Node node = TypeOrNull("array");
    node.Add("items", std::move(items));
    if (least != 0) node.Add("minItems", Node::Unsigned(least));
    if (most != 0) node.Add("maxItems", Node::Unsigned(most));
    return node;
}

Node AnyOf(std::vector<Node> nodes) {
    if (nodes.size() == 1) return std::move(nodes.front());
    Node list = Node::Array();
    for (Node& node : nodes)
        list.Add(std::move(node));
    return std::move(Node::Object().Add("anyOf", std::move(list)));
}

constexpr const char* kClock = R"([0-9]{1,2}:[0-9]{1,2}:[0-9]{1,2})";

Node SectionText() {
    return Pattern((std::string("^[0-9]+ ") + kClock + "-" + kClock + "$").c_str());
}

class Writer {
  public:
    explicit Writer(const Tables& tables) : tables_(tables) {}

    // A reference to what is said of the table's record once.
    Node Reference(const Table& table) {
        const std::string& label = tables_.LabelOf(table);
        if (!known_.contains(label)) {
            known_.emplace(label, Node::Null()); // records do not contain themselves; but the order is the first need's
            order_.push_back(label);
            known_.at(label) = Record(table);
        }
        return std::move(Node::Object().Add("$ref", Node::Text("#/$defs/" + label)));
    }

    Node Definitions() {
        Node all = Node::Object();
        for (const std::string& label : order_)
            all.Add(label, std::move(known_.at(label)));
        return all;
    }

    // What keys at the whole reply hold, those of records inside the table's included.
    struct Keys {
        std::string key;
        std::vector<Node> values; // of the place itself
        std::vector<Keys> inside; // of objects

        Keys& At(std::string_view wanted) {
            for (Keys& keys : inside) {
                if (keys.key == wanted) return keys;
            }
            inside.push_back({std::string(wanted), {}, {}});
            return inside.back();
        }
        Keys& Path(std::string_view path) {
            Keys* keys = this;
            while (!path.empty()) {
                const std::size_t slash = std::min(path.find('/'), path.size());
                keys = &keys->At(path.substr(0, slash));
                path.remove_prefix(std::min(slash + 1, path.size()));
            }
            return *keys;
        }
    };

    void AddReplyKeys(const Table& table, Keys& reply) {
        for (const Field& field : table) {
            if (field.fromRoot && field.key != nullptr) reply.Path(field.key).values.push_back(Value(table, field));
            const bool isInside = field.kind == Kind::Record && field.table != nullptr && !PointsToNumbers(field);
            if (isInside) AddReplyKeys(*field.table, reply);
        }
    }

    // `more`: what members of other names are.
    Node Object(Keys keys, std::vector<Node> more = {}) {
        Node properties = Node::Object();
        for (Keys& each : keys.inside) {
            const std::string key = each.key;
            properties.Add(key, Place(std::move(each)));
        }
        Node node = TypeOrNull("object");
        node.Add("properties", std::move(properties));
        if (!more.empty()) node.Add("additionalProperties", AnyOf(std::move(more)));
        return node;
    }

  private:
    Node Place(Keys keys) {
        const bool isObject = !keys.inside.empty();
        Node values = keys.values.empty() ? Node::Object() : AnyOf(std::exchange(keys.values, {}));
        if (!isObject) return values;
        Node object = Object(std::move(keys));
        if (values.size() == 0) return object;
        std::vector<Node> both;
        both.push_back(std::move(values));
        both.push_back(std::move(object));
        return AnyOf(std::move(both));
    }

    Node Record(const Table& table) {
        const headers::Record* const header = headers::FindRecord(table.record);
        Node node = table.shape == Shape::Object ? ObjectRecord(table) : Tuple(table);
        if (header != nullptr && header->doc[0] != '\0') node.Add("description", Node::Text(header->doc));
        if (!table.takesFirst) return node;
        std::vector<Node> both;
        Node list = ListOf(node);
        both.push_back(std::move(node));
        both.push_back(std::move(list));
        return AnyOf(std::move(both));
    }

    Node Tuple(const Table& table) {
        Node items = Node::Array();
        std::uint32_t count = 0;
        for (const Field& field : table) {
            if (field.key == nullptr || field.key[0] != '\0') continue;
            items.Add(One(table, field));
            ++count;
        }
        Node node = TypeOrNull("array");
        node.Add("prefixItems", std::move(items));
        if (table.shape != Shape::LooseTuple) node.Add("minItems", Node::Unsigned(count));
        if (table.shape == Shape::Tuple) node.Add("maxItems", Node::Unsigned(count));
        return node;
    }

    Node ObjectRecord(const Table& table) {
        Keys keys;
        std::vector<Node> whole;
        std::vector<Node> members;
        for (const Field& field : table) {
            if (field.key == nullptr || field.fromRoot) continue;
            if (field.amongKeys)
                members.push_back(Inner(field));
            else if (field.key[0] == '\0')
                whole.push_back(Value(table, field));
            else
                keys.Path(field.key).values.push_back(Value(table, field));
        }
        if (keys.inside.empty() && members.empty() && !whole.empty()) return AnyOf(std::move(whole));
        if (!members.empty()) { // names that are no keys may also be what no row reads
            members.push_back(Node::Object());
        }
        return Object(std::move(keys), std::move(members));
    }

    // A member's value with its lists.
    Node Value(const Table& table, const Field& field) {
        Node node = Untold(table, field);
        const headers::Member* const member = headers::FindMember(table.record, field.name);
        if (member != nullptr && member->doc[0] != '\0') node.Add("description", Node::Text(member->doc));
        return node;
    }

    Node Untold(const Table& table, const Field& field) {
        switch (field.kind) {
        case Kind::Custom:
            return Sample(table, field);
        case Kind::Presence:
            return Node::Object();
        case Kind::Schedule:
            return ListOf(ListOf(SectionText(), field.dims[1]), field.dims[0]);
        case Kind::SectionList:
            return ListOf(SectionText());
        case Kind::BitMask:
        case Kind::BitMaskLoose:
        case Kind::Switches:
            return ListOf(TypeOrNull("integer"));
        default:
            break;
        }
        if (field.single || (field.rank == 0 && field.cell != Cell::Pointer) || PointsToText(field))
            return One(table, field);
        const bool isPointer = field.cell == Cell::Pointer;
        Node node = One(table, field);
        for (int level = field.rank - 1; level > 0; --level)
            node = ListOf(std::move(node), field.dims[level]);
        if (field.keyed) {
            Node object = TypeOrNull("object");
            object.Add("additionalProperties", std::move(node));
            return object;
        }
        return ListOf(std::move(node), isPointer ? 0 : field.dims[0], field.exactly ? field.dims[0] : field.atLeast);
    }

    static Node Sample(const Table& table, const Field& field) {
        Node node = Node::Object();
        const char* const sample = SampleOf(table, field);
        if (sample == nullptr) return node;
        Node examples = Node::Array();
        examples.Add(Node::Token(sample));
        node.Add("examples", std::move(examples));
        return node;
    }

    Node Inner(const Field& field) { return PointsToNumbers(field) ? TypeOrNull("integer") : Reference(*field.table); }

    Node Integer(const Table& table, const Field& field) {
        if (field.only == OnlyType::Bool) return TypeOrNull("boolean");
        Node node = TypeOrNull(field.cell == Cell::F32 || field.cell == Cell::F64 ? "number" : "integer");
        const headers::Member* const member = headers::FindMember(table.record, field.name);
        if (member != nullptr && member->hasRange)
            node.Add("minimum", Node::Number(member->low)).Add("maximum", Node::Number(member->high));
        return node;
    }

    // One element.
    Node One(const Table& table, const Field& field) {
        switch (field.kind) {
        case Kind::Record:
            return Inner(field);
        case Kind::Bool:
            return TypeOrNull("boolean");
        case Kind::Int:
        case Kind::UInt:
            return Integer(table, field);
        case Kind::Real:
            return TypeOrNull("number");
        case Kind::Text:
        case Kind::RawText:
        case Kind::FullText: {
            Node node = TypeOrNull("string");
            const std::uint32_t room = field.elementSize - (field.kind == Kind::FullText ? 0 : 1);
            if (field.cell == Cell::Char) node.Add("maxLength", Node::Unsigned(room));
            return node;
        }
        case Kind::Names:
            return CodeTexts(*field.names);
        case Kind::TimeSection:
            return SectionText();
        case Kind::HolidaySchedule:
            return ListOf(ListOf(SectionText(), ORRERY_DAY_SECTIONS), ORRERY_SCHEDULE_DAYS);
        case Kind::NetTime:
            return Pattern("^[0-9]{4}-[0-9]{1,2}-[0-9]{1,2} [0-9]{1,2}:[0-9]{1,2}:[0-9]{1,2}$");
        case Kind::NetTimeEx:
            return Pattern("^[0-9]{4}-[0-9]{1,2}-[0-9]{1,2} [0-9]{1,2}:[0-9]{1,2}:[0-9]{1,2}(\\.[0-9]+)?$");
        case Kind::ClockTime:
            return Pattern("^[0-9]{1,2}:[0-9]{1,2}:[0-9]{1,2}$");
        case Kind::Date:
            return Pattern("^[0-9]{4}-[0-9]{1,2}-[0-9]{1,2}$");
        case Kind::UtcTime:
            return std::move(TypeOrNull("integer").Add("minimum", Node::Number(0)));
        case Kind::SplitMode:
            return Pattern("^(Split|PIP|Free|CompositeSplit)");
        case Kind::Custom:
            return Sample(table, field);
        default:
            return Node::Object();
        }
    }

    const Tables& tables_;
    std::map<std::string, Node> known_;
    std::vector<std::string> order_;
};

// Rules of a list: which record it is, the type tells.
Node ItemList(Writer& writer, const PackedItems& items) {
    Node names = Node::Array();
    Node cases = Node::Array();
    for (std::uint32_t i = 0; i < items.typeCount; ++i) {
        const ItemType type = items.typeAt(i);
        if (!type.isRead || type.name.empty()) continue;
        names.Add(Node::Text(type.name));
        const auto isOfType = [&] {
            Node name = Node::Object();
            name.Add("const", Node::Text(type.name));
            Node properties = Node::Object();
            properties.Add("Type", std::move(name));
            Node condition = Node::Object();
            return std::move(condition.Add("properties", std::move(properties)));
        };
        Node one = Node::Object();
        cases.Add(std::move(one.Add("if", isOfType()).Add("then", writer.Reference(*type.table))));
    }
    Node type = Node::Object();
    type.Add("enum", std::move(names));
    Node properties = Node::Object();
    properties.Add("Type", std::move(type));
    Node required = Node::InlineArray();
    required.Add(Node::Text("Type"));
    Node item = TypeOrNull("object");
    item.Add("required", std::move(required)).Add("properties", std::move(properties)).Add("allOf", std::move(cases));
    return ListOf(std::move(item), items.most);
}

Node ResultSchema(ResultTest test) {
    Node node = Node::Object();
    switch (test) {
    case ResultTest::MustBeTrue:
    case ResultTest::ExactBool:
    case ResultTest::TextTrue:
        return std::move(node.Add("const", Node::Bool(true)));
    case ResultTest::IntegerNonZero: {
        Node zero = Node::Object();
        return std::move(node.Add("not", std::move(zero.Add("const", Node::Number(0)))));
    }
    case ResultTest::FalseRefuses:
    case ResultTest::Verdict: {
        Node no = Node::Object();
        return std::move(node.Add("not", std::move(no.Add("const", Node::Bool(false)))));
    }
    case ResultTest::NotTested:
        break;
    }
    return node;
}

// The value that holds the record or the records.
Node ValueOf(const Command& command, Writer& writer) {
    const Table& table = *command.table;
    if (const PackedItems* const items = ItemsBehind(table); items != nullptr && items->head != nullptr)
        return ItemList(writer, *items);
    std::vector<Node> shapes;
    if (command.parse == Command::Frame::Generic) {
        shapes.push_back(writer.Reference(table));
        if (command.genericFrame.arrayForm) shapes.push_back(ListOf(writer.Reference(table)));
        return AnyOf(std::move(shapes));
    }
    switch (command.parseFrame.take) {
    case Take::Many:
    case Take::ManyOrNone:
        shapes.push_back(ListOf(writer.Reference(table)));
        break;
    case Take::OneOrMany:
    case Take::AnyOrMany:
    case Take::ListOrLists:
    case Take::ListOrListsOrBlank:
        shapes.push_back(writer.Reference(table));
        shapes.push_back(ListOf(writer.Reference(table)));
        break;
    case Take::ByMember:
    case Take::ByMemberOrNone: {
        Node object = TypeOrNull("object");
        shapes.push_back(std::move(object.Add("additionalProperties", writer.Reference(table))));
        break;
    }
    default:
        shapes.push_back(writer.Reference(table));
    }
    if (command.otherTable != nullptr) shapes.push_back(writer.Reference(*command.otherTable));
    return AnyOf(std::move(shapes));
}

} // namespace

std::optional<std::string> JsonSchema(std::string_view name) {
    const Command* const command = FindCommand(name);
    if (command == nullptr) return std::nullopt;
    const Tables tables;
    Writer writer(tables);
    Node schema = Node::Object();
    schema.Add("$schema", Node::Text("https://json-schema.org/draft/2020-12/schema"))
        .Add("title", Node::Text(std::string(command->name)
                                 + (command->parses() ? ": the reply of a device" : ": what a device is sent")));
    Node body = Node::Object();
    if (command->parses()) {
        const ParseFrame& frame = command->parseFrame;
        const bool isGeneric = command->parse == Command::Frame::Generic;
        std::string path = "params/table";
        if (!isGeneric && frame.source == Source::Caps) path = "params/caps";
        if (!isGeneric && frame.source == Source::CapsOrParams) path = "params/caps";
        if (!isGeneric && frame.source == Source::Params) path = std::string("params/") + frame.name;
        if (!isGeneric && frame.source == Source::Top) path = frame.name;
        if (!isGeneric && frame.source == Source::Result) path = "result";
        const ResultTest test = isGeneric ? ResultTest::MustBeTrue : frame.result;
        Writer::Keys reply;
        if (path != "result") reply.Path("result").values.push_back(ResultSchema(test));
        reply.Path(path).values.push_back(ValueOf(*command, writer));
        writer.AddReplyKeys(*command->table, reply);
        body = writer.Object(std::move(reply));
        Node required = Node::InlineArray();
        const bool needsResult =
            test != ResultTest::NotTested && test != ResultTest::FalseRefuses && test != ResultTest::Verdict;
        if (needsResult) required.Add(Node::Text("result"));
        schema.Add("required", std::move(required));
    } else {
        std::vector<Node> forms;
        forms.push_back(writer.Reference(*command->table));
        forms.push_back(ListOf(writer.Reference(*command->table)));
        body = AnyOf(std::move(forms));
    }
    Node all = Node::Array();
    all.Add(std::move(body));
    schema.Add("allOf", std::move(all)).Add("$defs", writer.Definitions());
    return schema.Print();
}

} // namespace orrery::tool

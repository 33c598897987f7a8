#include "explain/Walk.h"

#include "events/EventCodecs.h"
#include "frame/json/Reader.h"

#include <algorithm>

namespace orrery::explain {

using namespace record;
using json::Type;
using json::Value;

namespace {

bool IsNestedObject(const Field& field) {
    return field.kind == Kind::Record && (field.cell == Cell::Record || field.single) && field.rank == 0
           && field.table != nullptr;
}

const char* RuleOfNull(const Field& field) {
    switch (field.nulls) {
    case Nulls::Count:
        return "null in a list: its element stays empty";
    case Nulls::LeaveHole:
        return "null in a list: its element stays empty and is not counted";
    case Nulls::CloseUp:
        return "null in a list: it is passed over";
    case Nulls::Stop:
        return "null in a list: it ends here";
    default:
        return "null in a list";
    }
}

const char* OnlyWords(OnlyType only) {
    switch (only) {
    case OnlyType::String:
        return "a text";
    case OnlyType::Bool:
        return "true or false";
    case OnlyType::Integer:
        return "a whole number below 2147483647";
    case OnlyType::Unsigned:
        return "a whole number above 2147483646";
    case OnlyType::Integral:
        return "a whole number";
    case OnlyType::Array:
        return "a list";
    default:
        return "a value";
    }
}

bool IsOfType(OnlyType only, const Value& value) {
    switch (only) {
    case OnlyType::String:
        return value.isString();
    case OnlyType::Bool:
        return value.isBool();
    case OnlyType::Integer:
        return value.isInt();
    case OnlyType::Unsigned:
        return value.isUInt();
    case OnlyType::Integral:
        return value.isIntegral();
    case OnlyType::Array:
        return value.type() == Type::Array;
    default:
        return true;
    }
}

std::string Plural(std::uint64_t count, const char* one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

// The key's own part of a row's key: "B" of "A/B" below "A/".
std::string_view PartBelow(std::string_view key, std::string_view prefix) {
    if (!key.starts_with(prefix)) return {};
    key.remove_prefix(prefix.size());
    return key.substr(0, key.find('/'));
}

void RootKeys(const Table& table, std::string_view prefix, std::vector<std::string_view>& keys, int depth = 0) {
    for (const Field& field : table) {
        if (field.fromRoot && field.key != nullptr) {
            if (const auto part = PartBelow(field.key, prefix); !part.empty()) keys.push_back(part);
        }
        if (field.table != nullptr && (field.cell != Cell::Pointer || field.single) && depth < 16)
            RootKeys(*field.table, prefix, keys, depth + 1);
    }
}

// All keys of the object that a table's records stand in; those of records that share the object too.
void KeysOf(const Table& table, NodeRange range, std::vector<std::string_view>& keys) {
    for (std::uint16_t i = 0; i < range.count; ++i)
        keys.push_back(table.keyOf(table.nodes[range.first + i]));
    if (range.first != table.members.first || range.count != table.members.count) return;
    for (std::uint16_t i = 0; i < table.self.count; ++i) {
        const Field& field = table.rows[table.nodes[table.self.first + i].row];
        if (IsNestedObject(field) && field.table->shape == Shape::Object)
            KeysOf(*field.table, field.table->members, keys);
    }
}

bool HasKey(const Table& table, NodeRange range, std::string_view key) {
    for (std::uint16_t i = 0; i < range.count; ++i)
        if (table.keyOf(table.nodes[range.first + i]) == key) return true;
    return false;
}

// Whether a row of a record that shares the object reads the key.
bool SharesKey(const Table& table, const json::Member& member) {
    if (table.amongKeys != nullptr && member.value.members().size() > 0) return true;
    for (std::uint16_t i = 0; i < table.self.count; ++i) {
        const Field& field = table.rows[table.nodes[table.self.first + i].row];
        if (field.keyed && !field.amongKeys) return true; // its elements are the object's members
        if (!IsNestedObject(field) || field.table->shape != Shape::Object) continue;
        if (HasKey(*field.table, field.table->members, member.key()) || SharesKey(*field.table, member)) return true;
    }
    return false;
}

std::int64_t Cut(Cell cell, std::int64_t number) {
    switch (cell) {
    case Cell::I8:
        return static_cast<std::int8_t>(number);
    case Cell::U8:
        return static_cast<std::uint8_t>(number);
    case Cell::I16:
        return static_cast<std::int16_t>(number);
    case Cell::U16:
        return static_cast<std::uint16_t>(number);
    case Cell::I32:
        return static_cast<std::int32_t>(number);
    case Cell::U32:
        return static_cast<std::uint32_t>(number);
    default:
        return number;
    }
}

unsigned Bits(Cell cell) {
    switch (cell) {
    case Cell::I8:
    case Cell::U8:
        return 8;
    case Cell::I16:
    case Cell::U16:
        return 16;
    default:
        return 32;
    }
}

} // namespace

bool LooksAround(const Table& table) {
    if (table.afterRead != nullptr) return true;
    for (std::uint16_t i = 0; i < table.self.count; ++i)
        if (table.rows[table.nodes[table.self.first + i].row].kind == Kind::Custom) return true;
    return false;
}

Finding& Walk::Add(int kind, int gravity, const Value& value, const Path& path, std::string message) {
    Finding& finding = findings_.emplace_back();
    finding.kind = kind;
    finding.gravity = gravity;
    finding.at = &value;
    finding.record = record;
    finding.path = TextOf(path);
    finding.message = std::move(message);
    return finding;
}

Finding& Walk::Add(int kind, int gravity, const Value& value, const Site& site, std::string message) {
    Finding& finding = Add(kind, gravity, value, site.path, std::move(message));
    finding.field = FieldName(site.table, site.field);
    return finding;
}

bool Walk::WrongType(const Value& value, const Site& site, const char* wanted, std::string consequence) {
    if (value.isNull()) return false;
    Add(ORRERY_FINDING_WRONG_TYPE, ORRERY_FINDING_LOST, value, site,
        Shown(value) + " where " + wanted + " is read: " + (consequence.empty() ? "it is not read" : consequence));
    return false;
}

// ---- Records -----------------------------------------------------------------------------------------------------

void Walk::Top(const Table& table, const Value& value, const Path& path, std::string_view memberName, bool isSingle) {
    functionsAround_ = 0;
    if (const Field* const name = table.memberName; name != nullptr && !memberName.empty()) {
        const Site site{table, *name, path};
        if (name->kind == Kind::MemberCode)
            Code(site, value, *name->names, memberName);
        else
            Text(site, value, memberName);
    }
    Record(table, value, path, true, nullptr, isSingle);
}

bool Walk::Record(const Table& table, const Value& value, const Path& path, bool ownsObject, const Site* site,
                  bool isTop) {
    if (table.takesFirst && value.type() == Type::Array) {
        const auto elements = value.elements();
        if (elements.size() > 1) {
            Finding& finding = Add(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, value, path,
                                   "a list of " + std::to_string(elements.size())
                                       + " where one record is read: the first is taken, the others are dropped");
            finding.lost = static_cast<std::uint32_t>(elements.size() - 1);
        }
        if (elements.empty() || elements[0].type() == Type::Array) return true;
        return Record(table, elements[0], path.Element(0), ownsObject, site, isTop);
    }
    if (table.shape != Shape::Object) {
        const std::uint32_t want = table.self.count;
        if (value.type() != Type::Array) {
            if (value.isNull()) return table.shape == Shape::LooseTuple;
            Finding& finding = Add(ORRERY_FINDING_WRONG_TYPE, ORRERY_FINDING_LOST, value, path,
                                   Shown(value) + " where a list of " + Plural(want, "element") + " is read: it is not read");
            if (site != nullptr) finding.field = FieldName(site->table, site->field);
            return false;
        }
        const bool tooMany = value.size() > want, tooFew = value.size() < want;
        const bool isRead = table.shape == Shape::LooseTuple || (table.shape == Shape::LongTuple ? !tooFew : !tooFew && !tooMany);
        if (tooMany || tooFew) {
            const bool drops = tooMany && isRead;
            Finding& finding =
                Add(drops ? ORRERY_FINDING_ELEMENTS_DROPPED : ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, path,
                    "a list of " + std::to_string(value.size()) + " where " + Plural(want, "element") + " are read: "
                        + (!isRead   ? "none is read"
                           : tooMany ? "the others are dropped"
                                     : "those that are missing read as nothing"));
            if (drops) finding.lost = value.size() - want;
            if (site != nullptr) finding.field = FieldName(site->table, site->field);
        }
        if (isRead) Tuple(table, value, path);
        return isRead;
    }
    const bool looks = LooksAround(table);
    functionsAround_ += looks;
    for (std::uint16_t i = 0; i < table.self.count; ++i) {
        const Field& field = table.rows[table.nodes[table.self.first + i].row];
        const Site self{table, field, path};
        if (field.kind == Kind::Custom) continue; // a function's own look at the object
        if (IsNestedObject(field) && field.only == OnlyType::Any) {
            // Shares the object, whose keys are reported here alone.
            if (value.type() == Type::Object || table.members.count == 0)
                Record(*field.table, value, path, false, &self, isTop && table.members.count == 0);
        } else if (!field.amongKeys || value.type() == Type::Object) {
            Row(self, value);
        }
    }
    if (value.type() == Type::Object) {
        Nodes(table, table.members, value, path, ownsObject);
    } else if (!value.isNull() && table.members.count > 0 && table.self.count == 0) {
        const bool isList = value.type() == Type::Array;
        const bool ofRecords = isList && value.size() > 0 && (value[0u].type() == Type::Object || value[0u].isNull());
        std::string message = isList ? "a list of " + std::to_string(value.size()) + " where one record is read"
                                     : Shown(value) + " where an object is read";
        Finding& finding = Add(isTop && ofRecords ? ORRERY_FINDING_LIST_FOR_RECORD : ORRERY_FINDING_WRONG_TYPE,
                               ORRERY_FINDING_LOST, value, path, message + ": nothing of it is read");
        if (site != nullptr) finding.field = FieldName(site->table, site->field);
    }
    functionsAround_ -= looks;
    return true;
}

void Walk::Tuple(const Table& table, const Value& value, const Path& path) {
    const auto elements = value.elements();
    for (std::uint32_t i = 0; i < table.self.count && i < elements.size(); ++i) {
        const Field& field = table.rows[table.nodes[table.self.first + i].row];
        const Path inner = path.Element(i);
        const Site site{table, field, inner};
        if (elements[i].isNull())
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, elements[i], site, "null: it reads as 0 or nothing");
        else
            Element(site, elements[i]);
    }
}

// The same merge as the engine's: the nodes of the object and the members that came, both in key order.
void Walk::Nodes(const Table& table, NodeRange range, const Value& object, const Path& path, bool reportsUnknown) {
    const record::Node* node = table.nodes + range.first;
    const record::Node* const end = node + range.count;
    for (const json::Member& member : object.members()) {
        const std::uint64_t prefix = json::KeyPrefix(member);
        const auto order = [&](const record::Node& each) {
            if (each.prefix != prefix) return each.prefix < prefix ? -1 : 1;
            return json::CompareKeys(table.keyOf(each), member.key());
        };
        while (node != end && order(*node) < 0)
            ++node;
        const record::Node* const first = node;
        while (node != end && order(*node) == 0)
            ++node;
        if (first == node) {
            if (reportsUnknown && !IsReadBeside(object, member)) Unknown(table, range, member, path);
            continue;
        }
        ++read;
        const Path inner = path.Member(member.key());
        if (node - first == 1)
            Node(table, *first, member.value, inner);
        else
            Shared(table, first, node, member.value, inner);
    }
}

namespace {

// Whether the way to `inner` leads through `outer`.
bool IsBelow(std::string_view inner, std::string_view outer) {
    return inner.starts_with(outer)
           && (inner.size() == outer.size() || inner[outer.size()] == '.' || inner[outer.size()] == '[');
}

} // namespace

bool Walk::IsReadBeside(const Value& object, const json::Member& member) const {
    if (sharing_.object != &object) return false;
    const Table& table = *sharing_.table;
    for (const record::Node* node = sharing_.first; node != sharing_.end; ++node) {
        const Field& field = table.rows[node->row];
        if (node->childCount > 0) {
            if (HasKey(table, {node->firstChild, node->childCount, node->childLastAbsent}, member.key())) return true;
        } else if (field.readable && field.kind == Kind::Record && field.table->shape == Shape::Object) {
            if (HasKey(*field.table, field.table->members, member.key()) || SharesKey(*field.table, member)) return true;
        }
    }
    return false;
}

// Of several rows with one key each takes what it knows: only what none of them takes whole is told.
void Walk::Shared(const Table& table, const record::Node* first, const record::Node* end, const Value& value,
                  const Path& path) {
    const std::size_t before = findings_.size();
    const std::uint32_t leftBefore = left;
    std::vector<std::vector<Finding>> readers;
    bool hasFunction = false;
    const Sharing outer = sharing_;
    sharing_ = {&value, &table, first, end};
    for (const record::Node* node = first; node != end; ++node) {
        const Field& field = table.rows[node->row];
        if (node->childCount == 0 && !field.readable) continue;
        if (node->childCount == 0 && field.kind == Kind::Custom && field.custom->read == nullptr) continue;
        Node(table, *node, value, path);
        std::vector<Finding> own(std::make_move_iterator(findings_.begin() + static_cast<std::ptrdiff_t>(before)),
                                 std::make_move_iterator(findings_.end()));
        findings_.resize(before);
        if (own.empty() && node->childCount == 0 && field.kind == Kind::Custom)
            hasFunction = true;
        else
            readers.push_back(std::move(own));
    }
    sharing_ = outer;
    left = leftBefore;
    if (std::all_of(readers.begin(), readers.end(), [](const auto& own) { return own.empty(); })) return;
    const std::string here = TextOf(path);
    for (std::size_t i = 0; i < readers.size(); ++i) {
        for (Finding& finding : readers[i]) {
            bool isTold = true;
            for (std::size_t k = 0; k < readers.size() && isTold; ++k) {
                if (k == i) continue;
                const auto covers = [&](const Finding& other) {
                    if (other.kind == ORRERY_FINDING_UNKNOWN_KEY && IsBelow(finding.path, other.path)) return true;
                    return other.at == finding.at && other.kind == finding.kind;
                };
                isTold = std::any_of(readers[k].begin(), readers[k].end(), covers);
                // The first that tells of a value tells for all.
                const auto same = [&](const Finding& other) {
                    return other.at == finding.at && other.kind == finding.kind;
                };
                if (isTold && k < i) isTold = !std::any_of(readers[k].begin(), readers[k].end(), same);
            }
            if (hasFunction && finding.kind == ORRERY_FINDING_UNKNOWN_KEY) finding.isTried = true;
            if (hasFunction && finding.path == here) isTold = false;
            if (!isTold) continue;
            left += finding.kind == ORRERY_FINDING_UNKNOWN_KEY;
            findings_.push_back(std::move(finding));
            finding.path = findings_.back().path; // those behind it still look at it
        }
    }
}

void Walk::Node(const Table& table, const record::Node& node, const Value& value, const Path& path) {
    if (node.childCount == 0) return Row({table, table.rows[node.row], path}, value);
    if (value.type() == Type::Object)
        return Nodes(table, {node.firstChild, node.childCount, node.childLastAbsent}, value, path, true);
    if (value.isNull())
        Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, value, path, "null: as if the key were absent");
    else
        Add(ORRERY_FINDING_WRONG_TYPE, ORRERY_FINDING_LOST, value, path,
            Shown(value) + " where an object is read: nothing of it is read");
}

void Walk::Unknown(const Table& table, NodeRange range, const json::Member& member, const Path& path) {
    const bool isObject = range.first == table.members.first && range.count == table.members.count;
    if (isObject && SharesKey(table, member)) return;
    if (isObject && std::find(also_.begin(), also_.end(), member.key()) != also_.end()) return;
    const Path inner = path.Member(member.key());
    Finding& finding = Add(ORRERY_FINDING_UNKNOWN_KEY, ORRERY_FINDING_LOST, member.value, inner, "nothing reads this key");
    finding.atKey = true;
    finding.isTried = triesAll_ || functionsAround_ > 0;
    finding.field = table.record;
    finding.key = member.key();
    finding.table = &table;
    finding.range = range;
    ++left;
}

void AddNearest(Finding& finding) {
    if (finding.table == nullptr) return;
    std::vector<std::string_view> keys;
    KeysOf(*finding.table, finding.range, keys);
    const auto near = Nearest(finding.key, keys);
    if (near.empty()) return;
    finding.nearest = near.front();
    finding.message += "; the nearest that is read is " + Quoted(near.front());
}

void Walk::FromRoot(const Table& table, const Value& root, const Path& path) {
    if (table.fromRoot.count == 0) return;
    // What stands beside these keys is no business of this record.
    const NodeRange range = table.fromRoot;
    for (std::uint16_t i = 0; i < range.count; ++i) {
        const record::Node& node = table.nodes[range.first + i];
        const Value& value = root[table.keyOf(node)];
        const Path inner = path.Member(table.keyOf(node));
        if (value.isNull()) continue;
        if (node.childCount == 0) {
            Node(table, node, value, inner);
            continue;
        }
        for (std::uint16_t k = 0; k < node.childCount; ++k) {
            const record::Node& child = table.nodes[node.firstChild + k];
            const Value& held = value[table.keyOf(child)];
            if (!held.isNull()) Node(table, child, held, inner.Member(table.keyOf(child)));
        }
    }
}

void Walk::Around(const Value& object, const std::vector<std::string_view>& known, const Table* table,
                  std::string_view prefix, const Path& path) {
    std::vector<std::string_view> keys;
    for (const json::Member& member : object.members()) {
        if (std::find(known.begin(), known.end(), member.key()) != known.end()) continue;
        if (keys.empty()) {
            keys = known;
            if (table != nullptr) RootKeys(*table, prefix, keys);
        }
        if (std::find(keys.begin(), keys.end(), member.key()) != keys.end()) continue;
        Finding& finding =
            Add(ORRERY_FINDING_UNKNOWN_KEY, ORRERY_FINDING_LOST, member.value, path.Member(member.key()), "nothing reads this key");
        finding.atKey = true;
        finding.isTried = true;
        if (const auto near = Nearest(member.key(), keys); !near.empty()) {
            finding.nearest = near.front();
            finding.message += "; the nearest that is read is " + Quoted(near.front());
        }
        ++left;
    }
}

// ---- Rows --------------------------------------------------------------------------------------------------------

void Walk::Row(const Site& site, const Value& value) {
    const Field& field = site.field;
    if (!field.readable) return;
    if (value.isNull()) {
        Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, value, site, "null: as if the key were absent");
        return;
    }
    if (!IsOfType(field.only, value)) {
        WrongType(value, site, OnlyWords(field.only));
        return;
    }
    if (field.atLeast != 0 && value.elements().size() < field.atLeast) {
        if (value.type() != Type::Array) {
            WrongType(value, site, "a list");
            return;
        }
        Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, site,
            "a list of " + std::to_string(value.size()) + " where " + Plural(field.atLeast, "element")
                + " at least are read: none is read");
        return;
    }
    if (field.kind == Kind::Custom) return Custom(site, value);
    if (field.wholeMember) {
        if (value.type() != Type::Array)
            WrongType(value, site, "a list");
        else
            Element(site, value);
        return;
    }
    if (!field.single && (field.rank > 0 || field.cell == Cell::Pointer)) return List(site, 0, value);
    Element(site, value);
}

void Walk::Dropped(const Site& site, const Value& list, std::uint32_t room, std::uint32_t lost, const char* why) {
    Finding& finding = Add(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, list, site,
                           Plural(list.size(), "element") + ", " + why + " " + std::to_string(room) + ": "
                               + std::to_string(lost) + (lost == 1 ? " is dropped" : " are dropped"));
    finding.lost = lost;
}

void Walk::List(const Site& site, int level, const Value& value) {
    const Field& field = site.field;
    const bool isPointer = field.cell == Cell::Pointer;
    const bool innermost = isPointer || level + 1 == field.rank;
    const std::uint32_t room = isPointer ? UINT32_MAX : field.dims[level];
    if (field.keyed) {
        if (value.type() != Type::Object) {
            WrongType(value, site, "an object of elements");
            return;
        }
        std::uint32_t used = 0, lost = 0;
        for (const json::Member& member : value.members()) {
            const bool isElement = field.amongKeys ? member.value.members().size() > 0
                                                   : !member.value.isNull() || field.nulls == Nulls::Named;
            if (!isElement) continue;
            if (used == room) {
                ++lost;
                continue;
            }
            ++used;
            const Path inner = site.path.Member(member.key());
            Element({site.table, field, inner}, member.value, member.key());
        }
        if (lost > 0) Dropped(site, value, room, lost, "room for");
        return;
    }
    if (value.type() != Type::Array) {
        WrongType(value, site, "a list", field.anyShape ? "it reads as an empty list" : "");
        return;
    }
    if (level == 0 && field.exactly && value.size() != room) {
        Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, site,
            "a list of " + std::to_string(value.size()) + " where exactly " + Plural(room, "element")
                + (room == 1 ? " is" : " are") + " read: none is read");
        return;
    }
    std::uint32_t used = 0, at = 0;
    for (const Value& element : value.elements()) {
        if (used == room) {
            std::uint32_t lost = value.size() - at;
            // Nulls that would be passed over lose nothing.
            if (field.nulls == Nulls::CloseUp)
                for (std::uint32_t i = at; i < value.size(); ++i)
                    lost -= value[i].isNull();
            if (lost > 0) Dropped(site, value, room, lost, "room for");
            break;
        }
        const Path inner = site.path.Element(at++);
        const Site own{site.table, field, inner};
        ++used;
        if (element.isNull()) {
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, element, own, RuleOfNull(field));
            if (field.nulls == Nulls::CloseUp) --used;
            if (field.nulls == Nulls::Stop) {
                if (at < value.size()) Dropped(site, value, used - 1, value.size() - at, "a null ends them after");
                break;
            }
            continue;
        }
        if (!innermost) {
            if (element.type() == Type::Array)
                List(own, level + 1, element);
            else
                WrongType(element, own, "a list");
            continue;
        }
        const Nulls taken = Element(own, element) ? Nulls::Count : field.refused;
        if (taken == Nulls::CloseUp) --used;
        if (taken == Nulls::Stop) {
            if (at < value.size()) Dropped(site, value, used - 1, value.size() - at, "one that is not read ends them after");
            break;
        }
    }
}

bool Walk::Element(const Site& site, const Value& value, std::string_view memberName) {
    const Field& field = site.field;
    switch (field.kind) {
    case Kind::Bool:
        if (value.isBool() || (value.isInt() && (value.asInt() == 0 || value.asInt() == 1))) break;
        WrongType(value, site, "true or false", value.asBool() ? "it reads as true" : "it reads as false");
        break;
    case Kind::Int:
    case Kind::UInt:
    case Kind::Real:
        Number(site, value);
        break;
    case Kind::Text:
    case Kind::RawText:
    case Kind::FullText:
        if (value.isString())
            Text(site, value, value.asString());
        else
            WrongType(value, site, "a text", "the field stays empty");
        break;
    case Kind::Names:
        if (value.isString() || value.isBool())
            Code(site, value, *field.names, value.asString());
        else
            WrongType(value, site, "a text", "it reads as a text that nobody knows");
        break;
    case Kind::Record: {
        if (field.table->memberName != nullptr && !memberName.empty()) {
            const Site name{*field.table, *field.table->memberName, site.path};
            if (name.field.kind == Kind::MemberCode)
                Code(name, value, *name.field.names, memberName);
            else
                Text(name, value, memberName);
        }
        return Record(*field.table, value, site.path, true, &site, false);
    }
    case Kind::TimeSection:
        Section(site, value, false);
        break;
    case Kind::Schedule:
        Schedule(site, value, field.dims[0], field.dims[1]);
        break;
    case Kind::HolidaySchedule:
        Schedule(site, value, ORRERY_SCHEDULE_DAYS, ORRERY_DAY_SECTIONS);
        if (value.type() == Type::Array && value.size() < ORRERY_WEEK_DAYS) {
            Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, site,
                "a week of " + Plural(value.size(), "day") + " where 7 or 8 are read");
        }
        break;
    case Kind::SectionList: {
        std::uint32_t at = 0;
        for (const Value& element : value.elements()) {
            if (at == field.dims[0]) {
                Dropped(site, value, at, value.size() - at, "room for");
                break;
            }
            const Path inner = site.path.Element(at++);
            Section({site.table, field, inner}, element, true);
        }
        break;
    }
    case Kind::NetTime:
    case Kind::NetTimeEx:
    case Kind::ClockTime:
    case Kind::Date:
        Time(site, value);
        break;
    case Kind::UtcTime:
        if (value.type() == Type::Int || value.type() == Type::UInt || value.type() == Type::Real) {
            if (value.asDouble() < 0 || value.asDouble() > 4294967295.0)
                Add(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_LOST, value, site,
                    Shown(value) + " are no seconds since 1970 in 32 bits: it reads as 0");
        } else {
            WrongType(value, site, "a number of seconds since 1970", "it reads as 1970-01-01 00:00:00");
        }
        break;
    case Kind::SplitMode:
        if (!value.isString()) {
            WrongType(value, site, "the name of a split mode");
        } else {
            std::array<char, 32> room;
            const std::int32_t mode = JsonParser::GetSplitMode(value.asString());
            if (!EqualsFolded(JsonParser::SplitModeText(mode, room), value.asString()) && value.asString() != "Split") {
                Add(ORRERY_FINDING_UNKNOWN_TEXT, ORRERY_FINDING_LOST, value, site,
                    Quoted(value.asString()) + " is no split mode: it reads as " + std::to_string(mode));
            }
        }
        break;
    case Kind::BitMask:
    case Kind::BitMaskLoose:
    case Kind::Switches:
        Numbers(site, value);
        break;
    default: // not in the text, or by its name alone
        break;
    }
    return true;
}

// ---- Values ------------------------------------------------------------------------------------------------------

void Walk::Number(const Site& site, const Value& value) {
    const Field& field = site.field;
    const bool isReal = field.cell == Cell::F32 || field.cell == Cell::F64;
    if (value.type() == Type::String || value.size() > 0 || value.type() == Type::Array || value.type() == Type::Object) {
        WrongType(value, site, "a number", "it reads as 0");
        return;
    }
    const double number = value.asDouble();
    std::string reads;
    if (field.kind == Kind::Real) {
        const double most = 3.4028234663852886e38;
        if (field.cell == Cell::F32 && (number > most || number < -most)) reads = "infinity";
    } else {
        const std::int64_t got = field.kind == Kind::UInt ? std::int64_t{value.asUInt()} : value.asInt();
        const std::int64_t stored = isReal ? got : Cut(field.cell, got);
        // A number that is stored bit by bit in an unsigned member comes back the same.
        if (static_cast<double>(stored) != number && !(field.kind == Kind::Int && Bits(field.cell) == 32 && static_cast<double>(got) == number))
            reads = std::to_string(stored);
    }
    if (reads.empty()) return;
    const bool isFraction = static_cast<double>(static_cast<std::int64_t>(number > -9e18 && number < 9e18 ? number : 0)) != number
                            && number > -2147483648.0 && number < 4294967295.0;
    const char* const why = isFraction                 ? " is no whole number"
                            : field.kind == Kind::UInt && number < 0 ? " is below 0"
                            : Bits(field.cell) < 32 && !isReal ? (Bits(field.cell) == 8 ? " does not fit into 8 bits" : " does not fit into 16 bits")
                                                           : " is more than the field takes";
    Add(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_LOST, value, site, Shown(value) + why + ": it reads as " + reads);
}

void Walk::Text(const Site& site, const Value& value, std::string_view text) {
    const Field& field = site.field;
    const std::size_t capacity = field.elementSize;
    const std::size_t most = field.kind == Kind::FullText ? capacity : capacity - 1; // without the terminator
    if (field.firstBytes != 0 && text.size() > field.firstBytes) {
        Finding& finding = Add(ORRERY_FINDING_TEXT_CUT, ORRERY_FINDING_LOST, value, site,
                               "only the first " + Plural(field.firstBytes, "byte") + " of " + Plural(text.size(), "byte") + " are read");
        finding.lost = static_cast<std::uint32_t>(text.size() - field.firstBytes);
        text = text.substr(0, field.firstBytes);
    }
    if (const std::size_t nul = text.find('\0'); nul != std::string_view::npos) {
        Finding& finding = Add(ORRERY_FINDING_TEXT_CUT, ORRERY_FINDING_LOST, value, site,
                               "a NUL inside the text ends it after " + Plural(nul, "byte"));
        finding.lost = static_cast<std::uint32_t>(text.size() - nul);
    }
    LocalText& local = document_.text;
    std::size_t size = text.size();
    // A full text is cut before it is converted.
    if (field.kind != Kind::RawText && field.kind != Kind::FullText && size > 0 && !local.isCopyOf(text)) {
        // No encoding takes more than four bytes for what UTF-8 writes in one.
        std::vector<char> converted(size * 4 + 1);
        size = static_cast<std::size_t>(std::max(0, local.ConvertUtf8ToLocal(text.data(), static_cast<int>(size), converted.data(),
                                                             static_cast<int>(converted.size()))));
    }
    if (size <= most) return;
    Finding& finding = Add(ORRERY_FINDING_TEXT_CUT, ORRERY_FINDING_LOST, value, site,
                           "a text of " + Plural(size, "byte") + " where " + Plural(most, "byte") + " fit: the last "
                               + Plural(size - most, "byte") + (size - most == 1 ? " is lost" : " are lost"));
    finding.lost = static_cast<std::uint32_t>(size - most);
}

void Walk::Code(const Site& site, const Value& value, const NameTable& names, std::string_view text, bool isTried) {
    if (names.Find(text) != nullptr) return;
    constexpr std::uint16_t kMostTold = 12;
    std::vector<std::string_view> all;
    for (std::uint16_t i = 0; i < names.count; ++i)
        all.push_back(names.rows[i].text);
    const auto near = Nearest(text, all);
    std::string known;
    const std::size_t told = all.size() <= kMostTold ? all.size() : near.empty() ? kMostTold : near.size();
    for (std::size_t i = 0; i < told; ++i) {
        if (i > 0) known += ", ";
        known += all.size() <= kMostTold || near.empty() ? all[i] : near[i];
    }
    if (told < all.size()) known += ", ...";
    std::string message = Quoted(text) + " names no code: ";
    message += names.unknownLeaves ? std::string("the field stays as it is") : "it reads as " + std::to_string(names.unknownCode);
    message += "; known are " + known;
    Finding& finding = Add(ORRERY_FINDING_UNKNOWN_TEXT, ORRERY_FINDING_LOST, value, site, std::move(message));
    finding.nearest = std::move(known);
    finding.isTried = isTried;
}

namespace {

struct Clock {
    std::int32_t hour, minute, second;
    // 24:00:00 is how devices write the end of a day.
    bool isOfDay() const {
        if (hour == 24) return minute == 0 && second == 0;
        return hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
    }
};

} // namespace

void Walk::Section(const Site& site, const Value& value, bool anyWidth) {
    if (!value.isString()) {
        WrongType(value, site, "a text like \"1 08:00:00-17:30:00\"");
        return;
    }
    CFG_TIME_SECTION section{};
    bool isSection = false;
    if (anyWidth) {
        Value cell = value;
        Value day = Value::OfArray(&cell, 1);
        isSection = JsonParser::GetTimeSchedule(Value::OfArray(&day, 1), &section, 1, 1, nullptr);
    } else {
        isSection = JsonParser::GetTimeSection(value, &section);
    }
    if (!isSection) {
        Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_LOST, value, site,
            Quoted(value.asString()) + " is no period like \"1 08:00:00-17:30:00\"");
        return;
    }
    const Clock begin{section.nBeginHour, section.nBeginMin, section.nBeginSec};
    const Clock end{section.nEndHour, section.nEndMin, section.nEndSec};
    if (begin.isOfDay() && end.isOfDay()) return;
    Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_NOTE, value, site,
        Quoted(value.asString()) + " is no time of a day; it is stored as it stands");
}

void Walk::Schedule(const Site& site, const Value& value, std::uint32_t rows, std::uint32_t columns) {
    if (value.type() != Type::Array) {
        WrongType(value, site, "a list of days");
        return;
    }
    std::uint32_t day = 0;
    for (const Value& sections : value.elements()) {
        if (day == rows) {
            Dropped(site, value, rows, value.size() - rows, "room for");
            break;
        }
        const Path inner = site.path.Element(day++);
        const Site own{site.table, site.field, inner};
        if (sections.isNull()) {
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, sections, own, "null: the day stays empty");
            continue;
        }
        if (sections.type() != Type::Array) {
            WrongType(sections, own, "a list of periods", "the day stays empty");
            continue;
        }
        std::uint32_t at = 0;
        for (const Value& section : sections.elements()) {
            if (at == columns) {
                Dropped(own, sections, columns, sections.size() - columns, "room for");
                break;
            }
            const Path cell = inner.Element(at++);
            const std::size_t before = findings_.size();
            Section({site.table, site.field, cell}, section, true);
            if (section.isNull())
                Add(ORRERY_FINDING_NULL, ORRERY_FINDING_LOST, section, Site{site.table, site.field, cell}, "null where a period is read");
            // The first that cannot be read ends the whole schedule.
            if (findings_.size() > before && findings_.back().gravity == ORRERY_FINDING_LOST) {
                findings_.back().message += "; the schedule ends here";
                return;
            }
        }
    }
}

void Walk::Time(const Site& site, const Value& value) {
    const Field& field = site.field;
    const char* const like = field.kind == Kind::NetTime     ? "\"2026-11-20 09:30:00\""
                             : field.kind == Kind::NetTimeEx ? "\"2026-11-20 09:30:00.250\""
                             : field.kind == Kind::ClockTime ? "\"09:30:00\""
                                                             : "\"2026-11-20\"";
    if (!value.isString()) {
        WrongType(value, site, (std::string("a text like ") + like).c_str());
        return;
    }
    NET_TIME_EX time{};
    NET_TIME plain{};
    bool isTime = false;
    switch (field.kind) {
    case Kind::NetTime:
        isTime = JsonParser::GetNetTime(value, &plain);
        break;
    case Kind::NetTimeEx:
        isTime = JsonParser::GetNetTimeEx(value, &time);
        std::memcpy(&plain, &time, sizeof plain);
        break;
    case Kind::ClockTime: {
        const std::string_view text = value.asString();
        const auto most = field.firstBytes == 0 ? text.size() : std::min<std::size_t>(text.size(), field.firstBytes);
        isTime = JsonParser::GetClockTime(Value::OfString(text.substr(0, most)), &plain);
        break;
    }
    default:
        isTime = JsonParser::GetDate(value, &plain);
        break;
    }
    if (!isTime) {
        Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_LOST, value, site,
            Quoted(value.asString()) + " is no time like " + like + ": what stands before the mistake is read");
        return;
    }
    const bool hasDate = field.kind != Kind::ClockTime, hasClock = field.kind != Kind::Date;
    // Devices write a time that they do not have as zeros.
    const bool isNone = hasDate && plain.dwYear == 0 && plain.dwMonth == 0 && plain.dwDay == 0;
    const bool isDate = isNone || (plain.dwMonth >= 1 && plain.dwMonth <= 12 && plain.dwDay >= 1 && plain.dwDay <= 31);
    const Clock clock{static_cast<std::int32_t>(plain.dwHour), static_cast<std::int32_t>(plain.dwMinute), static_cast<std::int32_t>(plain.dwSecond)};
    if ((!hasDate || isDate) && (!hasClock || clock.isOfDay())) return;
    Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_NOTE, value, site,
        Quoted(value.asString()) + (hasDate && !isDate ? " is no day of a calendar" : " is no time of a day")
            + "; it is stored as it stands");
}

void Walk::Numbers(const Site& site, const Value& value) {
    const Field& field = site.field;
    const std::uint32_t most = field.kind == Kind::Switches ? field.dims[0] : field.dims[0] * 32;
    const std::int64_t least = field.kind == Kind::BitMaskLoose ? -31 : 0;
    std::uint32_t at = 0;
    for (const Value& element : value.elements()) {
        if (at == most) {
            Dropped(site, value, most, value.size() - most, "room for");
            break;
        }
        const Path inner = site.path.Element(at++);
        const Site own{site.table, field, inner};
        if (element.isNull()) {
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, element, own, "null in a list: it reads as 0");
        } else if (element.type() == Type::String || element.type() >= Type::Array) {
            WrongType(element, own, "a number", "it reads as 0");
        } else if (element.asDouble() < static_cast<double>(least) || element.asDouble() >= most) {
            Add(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_LOST, element, own,
                Shown(element) + " is none of 0 to " + std::to_string(most - 1) + ": it is ignored");
        }
    }
}

// ---- Functions ---------------------------------------------------------------------------------------------------

void Walk::Custom(const Site& site, const Value& value) {
    const Field& field = site.field;
    const CustomCodec* const codec = field.custom;
    if (codec == nullptr || codec->read == nullptr) return; // written only
    const bool isScalarNumber = value.type() != Type::String && value.type() != Type::Array && value.type() != Type::Object;
    if (codec == &events::kOwnedRecord) {
        Record(*field.table, value, site.path, true, &site, false);
    } else if (codec == &events::kOwnedText) {
        if (!value.isString()) WrongType(value, site, "a text");
    } else if (codec == &events::kWholeReal || codec == &events::kThousandths || codec == &events::kSignedThousandths
               || codec == &events::kAnyInteger || codec == &events::kCountedFromOne) {
        if (!isScalarNumber) WrongType(value, site, "a number", "it reads as 0");
    } else if (codec == &events::kDegrees || codec == &events::kFirstNumber || codec == &events::kSecondNumber
               || codec == &events::kPackedColor) {
        if (value.type() != Type::Array) WrongType(value, site, "a list of numbers", "it reads as 0");
    } else if (codec == &events::kByKeys) {
        if (value.type() != Type::Object) {
            WrongType(value, site, "an object of numbers");
            return;
        }
        for (const json::Member& member : value.members()) {
            bool isKnown = false;
            std::vector<std::string_view> keys;
            for (std::uint16_t i = 0; i < field.names->count; ++i) {
                isKnown = isKnown || field.names->rows[i].text == member.key();
                keys.push_back(field.names->rows[i].text);
            }
            if (isKnown) continue;
            Finding& finding = Add(ORRERY_FINDING_UNKNOWN_KEY, ORRERY_FINDING_LOST, member.value, site.path.Member(member.key()),
                                   "nothing reads this key");
            finding.field = FieldName(site.table, field);
            finding.atKey = true;
            if (const auto near = Nearest(member.key(), keys); !near.empty()) {
                finding.nearest = near.front();
                finding.message += "; the nearest that is read is " + Quoted(near.front());
            }
            ++left;
        }
    } else if (field.names != nullptr && value.isString()) {
        Code(site, value, *field.names, value.asString(), true);
    } else if (field.names != nullptr && value.type() == Type::Array) {
        std::uint32_t at = 0;
        for (const Value& element : value.elements()) {
            const Path inner = site.path.Element(at++);
            if (element.isString()) Code({site.table, field, inner}, element, *field.names, element.asString(), codec != &events::kNamedBits);
        }
    } else if (codec->sample != nullptr) {
        // A text of the same type needs no look at the sample.
        const char first = codec->sample[0];
        const bool isSame = (first == '"' && value.isString()) || (isScalarNumber && first != '"' && first != '[' && first != '{');
        if (isSame) return;
        Value sample;
        if (json::Parse(codec->sample, document_.arena, sample)) AsSample(site, value, sample, site.path);
    }
}

// What differs from what devices send may still be read: that is tried.
void Walk::AsSample(const Site& site, const Value& value, const Value& sample, const Path& path) {
    if (value.isNull() || sample.isNull()) return;
    if (value.type() == Type::Object && sample.type() == Type::Object) {
        for (const json::Member& member : value.members()) {
            const Value& known = sample[member.key()];
            const Path inner = path.Member(member.key());
            if (!known.isNull()) {
                AsSample(site, member.value, known, inner);
                continue;
            }
            Finding& finding = Add(ORRERY_FINDING_UNKNOWN_KEY, ORRERY_FINDING_LOST, member.value, inner, "nothing reads this key");
            finding.field = FieldName(site.table, site.field);
            finding.atKey = finding.isTried = true;
            std::vector<std::string_view> keys;
            for (const json::Member& each : sample.members())
                keys.push_back(each.key());
            if (const auto near = Nearest(member.key(), keys); !near.empty()) {
                finding.nearest = near.front();
                finding.message += "; the nearest that is read is " + Quoted(near.front());
            }
        }
        return;
    }
    if (value.type() == Type::Array && sample.type() == Type::Array) {
        if (sample.size() == 0) return;
        std::uint32_t at = 0;
        for (const Value& element : value.elements()) {
            AsSample(site, element, sample[std::min(at, sample.size() - 1)], path.Element(at));
            ++at;
        }
        return;
    }
    const bool isContainer = value.type() >= Type::Array || sample.type() >= Type::Array;
    const bool isText = value.isString() != sample.isString();
    if (!isContainer && !isText) return;
    Finding& finding = Add(ORRERY_FINDING_WRONG_TYPE, ORRERY_FINDING_LOST, value, path,
                           Shown(value) + " where " + TypeName(sample) + " is read: it is not read");
    finding.field = FieldName(site.table, site.field);
    finding.isTried = true;
}

} // namespace orrery::explain

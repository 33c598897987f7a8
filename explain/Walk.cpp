#include "explain/WalkParts.h"

#include <algorithm>

namespace orrery::explain {

using namespace record;
using json::Type;
using json::Value;

namespace {

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

} // namespace

bool IsNestedObject(const Field& field) {
    return field.kind == Kind::Record && (field.cell == Cell::Record || field.single) && field.rank == 0
           && field.table != nullptr;
}

std::string Plural(std::uint64_t count, const char* one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

bool HasKey(const Table& table, NodeRange range, std::string_view key) {
    for (std::uint16_t i = 0; i < range.count; ++i)
        if (table.keyOf(table.nodes[range.first + i]) == key) return true;
    return false;
}

// Whether the text that a function's row stands for has the key, at whatever depth.
static bool SampleHasKey(const CustomCodec& codec, std::string_view key) {
    if (codec.sample == nullptr || codec.read == nullptr || codec.sample[0] != '{') return false;
    const std::string_view sample = codec.sample;
    for (std::size_t at = 0; (at = sample.find(key, at)) != std::string_view::npos; ++at) {
        const bool isQuoted = sample[at - 1] == '"' && sample.substr(at + key.size()).starts_with("\":");
        if (isQuoted) return true;
    }
    return false;
}

bool SharesKey(const Table& table, const json::Member& member) {
    if (table.amongKeys != nullptr && member.value.members().size() > 0) return true;
    for (std::uint16_t i = 0; i < table.self.count; ++i) {
        const Field& field = table.rows[table.nodes[table.self.first + i].row];
        if (field.keyed && !field.amongKeys) return true; // its elements are the object's members
        if (field.kind == Kind::Custom && SampleHasKey(*field.custom, member.key())) return true;
        if (!IsNestedObject(field) || field.table->shape != Shape::Object) continue;
        if (HasKey(*field.table, field.table->members, member.key()) || SharesKey(*field.table, member)) return true;
    }
    return false;
}

bool LooksAround(const Table& table) {
    if (table.afterRead != nullptr) return true;
    for (std::uint16_t i = 0; i < table.self.count; ++i)
        if (table.rows[table.nodes[table.self.first + i].row].kind == Kind::Custom) return true;
    return false;
}

Finding& Walk::Add(int kind, int gravity, const Value& value, const Path& path, std::string message) {
    constexpr std::size_t kUsual = 32;
    if (findings_.capacity() == 0) findings_.reserve(kUsual);
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
        Joined({Shown(value), " where ", wanted, " is read: ", consequence.empty() ? "it is not read" : consequence}));
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
            Finding& finding =
                Add(ORRERY_FINDING_WRONG_TYPE, ORRERY_FINDING_LOST, value, path,
                    Shown(value) + " where a list of " + Plural(want, "element") + " is read: it is not read");
            if (site != nullptr) finding.field = FieldName(site->table, site->field);
            return false;
        }
        const bool tooMany = value.size() > want, tooFew = value.size() < want;
        const bool isRead =
            table.shape == Shape::LooseTuple || (table.shape == Shape::LongTuple ? !tooFew : !tooFew && !tooMany);
        if (tooMany || tooFew) {
            const bool drops = tooMany && isRead;
            Finding& finding = Add(
                drops ? ORRERY_FINDING_ELEMENTS_DROPPED : ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, path,
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
            if (each.keySize == member.keySize && member.keySize <= sizeof prefix) return 0; // it is all of the key
            return json::CompareKeys(table.keyOf(each), member.key());
        };
        int is = -1;
        while (node != end && (is = order(*node)) < 0)
            ++node;
        const record::Node* const first = node;
        if (node != end && is == 0) {
            do
                ++node;
            while (node != end && order(*node) == 0);
        }
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
            if (HasKey(*field.table, field.table->members, member.key()) || SharesKey(*field.table, member))
                return true;
        }
    }
    return false;
}

// Of several rows with one key each takes what it knows: only what none of them takes whole is told.
void Walk::Shared(const Table& table, const record::Node* first, const record::Node* end, const Value& value,
                  const Path& path) {
    const std::size_t before = findings_.size();
    const std::uint32_t leftBefore = left;
    std::vector<std::vector<Finding>> readers; // those that leave something
    bool hasFunction = false, isTaken = false; // whole, by one of them
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
        if (!own.empty())
            readers.push_back(std::move(own));
        else if (node->childCount == 0 && field.kind == Kind::Custom)
            hasFunction = true;
        else
            isTaken = true;
    }
    sharing_ = outer;
    left = leftBefore;
    if (isTaken || readers.empty()) return;
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
    if (node.childCount == 0) {
        if (!IsPlainlyRead(table, node, value)) Row({table, table.rows[node.row], path}, value);
        return;
    }
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
    Finding& finding = UnknownKey(member, inner, table.record, triesAll_ || functionsAround_ > 0);
    finding.table = &table;
    finding.range = range;
    ++left;
}

Finding& Walk::UnknownKey(const json::Member& member, const Path& path, std::string field, bool isTried) {
    Finding& finding =
        Add(ORRERY_FINDING_UNKNOWN_KEY, ORRERY_FINDING_LOST, member.value, path, "nothing reads this key");
    finding.field = std::move(field);
    finding.key = member.key();
    finding.atKey = true;
    finding.isTried = isTried;
    return finding;
}

void AddNearest(Finding& finding, const std::vector<std::string_view>& keys) {
    const auto near = Nearest(finding.key, keys);
    if (near.empty()) return;
    finding.nearest = near.front();
    finding.message += "; the nearest that is read is " + Quoted(near.front());
}

void AddNearest(Finding& finding) {
    if (finding.table == nullptr) return;
    std::vector<std::string_view> keys;
    KeysOf(*finding.table, finding.range, keys);
    AddNearest(finding, keys);
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

void Walk::Around(const Value& object, std::span<const std::string_view> known, const Table* table,
                  std::string_view prefix, const Path& path) {
    std::vector<std::string_view> keys;
    for (const json::Member& member : object.members()) {
        if (std::find(known.begin(), known.end(), member.key()) != known.end()) continue;
        if (keys.empty()) {
            keys.assign(known.begin(), known.end());
            if (table != nullptr) RootKeys(*table, prefix, keys);
        }
        if (std::find(keys.begin(), keys.end(), member.key()) != keys.end()) continue;
        AddNearest(UnknownKey(member, path.Member(member.key()), {}, true), keys);
        ++left;
    }
}

} // namespace orrery::explain

// A record table: all fields of one record, in record order, made when the library is compiled.
//
//     TABLE(kAlarmInput, CFG_ALARM_INPUT_INFO,
//           {
//               FIELD(nChannel, "params/channel", Int).FromRoot(),
//               FIELD(bEnable, "Enable", Bool),
//               FIELD(szName, "Name", Text),
//               FIELD(nSlot, "Slot", Int).Absent(-1).WriteUnless(-1),
//           });
//
// The rows must tile the record from its first byte to its last: a forgotten field does not compile.
#pragma once

#include "frame/record/Check.h"
#include "frame/record/Rows.h"
#include "frame/record/Ways.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace orrery::record {

namespace build {

constexpr int Parts(std::string_view key) {
    int parts = 1;
    for (char c : key)
        parts += c == '/';
    return parts;
}

constexpr std::string_view Part(std::string_view key, int index) {
    while (index-- > 0)
        key.remove_prefix(key.find('/') + 1);
    return key.substr(0, key.find('/'));
}

// Ascending by the bytes of each part; an object's own key before what is inside it.
constexpr bool Before(std::string_view left, std::string_view right) {
    const int leftParts = Parts(left);
    const int rightParts = Parts(right);
    for (int i = 0; i < leftParts && i < rightParts; ++i) {
        const auto a = Part(left, i);
        const auto b = Part(right, i);
        if (a != b) return a < b; // char_traits<char> compares as unsigned bytes
    }
    return leftParts < rightParts;
}

// Whether keys may come in any order without another result, but for those of rows that InOrder tells of.
constexpr bool TakesAnyOrder(const Field& row) {
    if (row.key == nullptr || !row.readable) return true;
    return row.kind != Kind::Custom && !row.readCondition.exists() && !row.capacity.exists();
}
// Whether two rows with different keys store at one place: the later one's value stays.
constexpr bool InOrder(const Field& row, const Field& other) {
    if (row.key == nullptr || other.key == nullptr || row.size == 0 || other.size == 0) return false;
    if (row.offset == other.offset) return true;
    const auto holds = [](const Field& field, const Slot& slot) {
        return slot.exists() && field.offset <= slot.offset && slot.offset < field.offset + field.size;
    };
    return (row.count.exists() && row.count == other.count) || holds(row, other.count) || holds(other, row.count);
}

constexpr std::uint32_t SizeOf(Cell cell) {
    switch (cell) {
    case Cell::I8:
    case Cell::U8:
        return 1;
    case Cell::I16:
    case Cell::U16:
        return 2;
    case Cell::I64:
    case Cell::U64:
        return 8;
    default:
        return 4;
    }
}

struct Limits {
    std::size_t nodes = 1;
    std::size_t text = 1 + kKeyTextSlack;
    std::size_t supplied = 1;
    std::size_t started = 1;
    std::size_t references = 1;
    std::size_t flags = 1;
};

// A row whose record has presence flags of its own.
constexpr bool HasInnerFlags(const Field& row) {
    return row.kind == Kind::Record && row.cell != Cell::Pointer && row.table != nullptr && row.table->flagRunCount > 0;
}

// A row that Prepare has to look at.
constexpr bool IsStarted(const Field& row) {
    const bool isNested = row.cell == Cell::Record && row.table != nullptr;
    return row.kind == Kind::Size || row.hasDefault
           || (isNested && (row.table->hasDefaults || row.table->hasSizeWords));
}

template <class Rows>
consteval Limits LimitsOf() {
    Limits limits;
    for (const Field& row : Rows::rows) {
        limits.supplied += row.kind == Kind::Supplied;
        limits.started += IsStarted(row);
        limits.references += ReferenceOf(row) != nullptr;
        limits.flags += row.flag.exists() + HasInnerFlags(row);
        if (row.key == nullptr) continue;
        const auto parts = static_cast<std::size_t>(Parts(row.key));
        limits.nodes += parts;
        limits.text += std::string_view(row.key).size() + 8 * parts;
    }
    return limits;
}

// What nodes refer to, each once.
template <std::size_t Most>
struct References {
    std::array<const void*, Most> all{};
    std::uint16_t count = 0;

    constexpr std::uint16_t Find(const void* wanted) {
        for (std::uint16_t i = 0; i < count; ++i) {
            if (all[i] == wanted) return i;
        }
        all[count] = wanted;
        return count++;
    }
};

template <Limits Most>
struct Tree {
    std::array<Node, Most.nodes> nodes{};
    std::array<char, Most.text> texts{};
    std::array<Copy, Most.supplied> supplied{};
    std::array<std::uint16_t, Most.started> started{};
    std::array<FlagRun, Most.flags> flagRuns{};
    std::uint16_t flagRunCount = 0;
    std::uint16_t suppliedCount = 0;
    std::uint16_t startedCount = 0;
    std::uint16_t nodeCount = 0;
    std::uint16_t textSize = 0;
    bool anyOrder = true;
    NodeRange members;
    NodeRange fromRoot;
    NodeRange self;

    constexpr Node& Add(std::string_view key) {
        Node& node = nodes[nodeCount++];
        for (char c : std::string_view(", "))
            texts[textSize++] = c;
        node.quotedAt = textSize;
        node.keySize = static_cast<std::uint16_t>(key.size());
        node.prefix = json::KeyPrefix(key);
        texts[textSize++] = '"';
        for (char c : key)
            texts[textSize++] = c;
        for (char c : std::string_view("\" : "))
            texts[textSize++] = c;
        return node;
    }

    // The nodes of one object and, behind them, of the objects inside it. `order` are the rows of the object, sorted.
    constexpr NodeRange AddObject(const Field* rows, const std::uint16_t* order, std::size_t count, int depth) {
        NodeRange range{nodeCount, CountKeys(rows, order, count, depth)};
        for (std::size_t i = 0; i < count;) {
            const std::size_t end = EndOfKey(rows, order, count, depth, i);
            Node& node = Add(Part(rows[order[i]].key, depth));
            node.row = order[i];
            for (std::size_t k = i; k < end; ++k) {
                if (rows[order[k]].always && rows[order[k]].readable) node.needsAbsent = true;
            }
            if (node.needsAbsent) range.lastAbsent = nodeCount;
            const auto sharesWith = [&](std::size_t other) {
                return Part(rows[order[other]].key, depth) == Part(rows[order[i]].key, depth);
            };
            node.shared = (i > 0 && sharesWith(i - 1)) || (end < count && sharesWith(end));
            i = end;
        }
        std::uint16_t index = range.first;
        for (std::size_t i = 0; i < count; ++index) {
            const std::size_t end = EndOfKey(rows, order, count, depth, i);
            if (Parts(rows[order[i]].key) > depth + 1) {
                const NodeRange inside = AddObject(rows, order + i, end - i, depth + 1);
                nodes[index].firstChild = inside.first;
                nodes[index].childCount = inside.count;
                nodes[index].childLastAbsent = inside.lastAbsent;
                for (std::size_t k = i; k < end && depth == 0; ++k)
                    nodes[index].staysNull = nodes[index].staysNull || rows[order[k]].keepsObject;
            } else {
                SetRow(nodes[index], rows[order[i]]);
            }
            i = end;
        }
        return range;
    }

    constexpr void SetRow(Node& node, const Field& row) {
        node.readPlainly = ReadPlainly(row);
        node.way = node.keySize <= kLongestPlainKey ? WayOf(row) : Way::Row;
        node.offset = row.offset;
        node.elementSize = node.way == Way::Mask ? row.size : row.elementSize;
        node.flag = row.flag;
        node.gate = GateOf(row).offset;
        node.gateCell = GateOf(row).cell;
        node.cell = row.cell;
        node.kind = row.kind;
        node.listed = IsPlainList(row);
        node.week = IsPlainWeek(row);
        node.mask = IsPlainMask(row);
        node.staysNull = node.way == Way::Mask && row.empty == Empty::Null;
        node.unlessBare = node.way == Way::Mask ? row.empty == Empty::NoKey : row.unlessBare;
    }

    // In the order of their places, so that neighbours become one run.
    constexpr void AddFlag(FlagRun run) {
        std::uint16_t at = flagRunCount++;
        for (; at > 0 && flagRuns[at - 1u].offset > run.offset; --at)
            flagRuns[at] = flagRuns[at - 1u];
        flagRuns[at] = run;
    }
    constexpr void JoinFlags() {
        std::uint16_t kept = 0;
        for (std::uint16_t i = 0; i < flagRunCount; ++i) {
            const FlagRun run = flagRuns[i];
            if (kept > 0 && run.row == FlagRun::kNone) {
                FlagRun& last = flagRuns[kept - 1u];
                if (last.row == FlagRun::kNone && last.offset + last.size >= run.offset) {
                    last.size = std::max(last.size, run.offset + run.size - last.offset);
                    continue;
                }
            }
            flagRuns[kept++] = run;
        }
        flagRunCount = kept;
    }

    constexpr void AddSupplied(const Field& row) {
        if (suppliedCount > 0) {
            Copy& last = supplied[suppliedCount - 1u];
            if (last.to + last.size == row.offset && last.from + last.size == row.suppliedFrom) {
                last.size += row.size;
                return;
            }
        }
        supplied[suppliedCount++] = {row.offset, row.suppliedFrom, row.size};
    }

  private:
    // A row of its own ends its node; rows inside the same inner object share one.
    static constexpr std::size_t EndOfKey(const Field* rows, const std::uint16_t* order, std::size_t count, int depth,
                                          std::size_t i) {
        if (Parts(rows[order[i]].key) == depth + 1) return i + 1;
        std::size_t end = i + 1;
        while (end < count && Part(rows[order[end]].key, depth) == Part(rows[order[i]].key, depth))
            ++end;
        return end;
    }
    static constexpr std::uint16_t CountKeys(const Field* rows, const std::uint16_t* order, std::size_t count,
                                             int depth) {
        std::uint16_t keys = 0;
        for (std::size_t i = 0; i < count; ++keys)
            i = EndOfKey(rows, order, count, depth, i);
        return keys;
    }
};

template <class Rows>
consteval auto BuildTree() {
    constexpr Limits limits = LimitsOf<Rows>();
    constexpr std::size_t count = sizeof(Rows::rows) / sizeof(Rows::rows[0]);
    const Field* const rows = Rows::rows;
    Tree<limits> tree;
    std::array<std::uint16_t, count> order{};
    for (const bool fromRoot : {false, true}) {
        std::size_t used = 0;
        for (std::size_t i = 0; i < count; ++i) {
            if (rows[i].key == nullptr || rows[i].key[0] == '\0' || rows[i].fromRoot != fromRoot) continue;
            std::size_t at = used++;
            for (; at > 0 && Before(rows[i].key, rows[order[at - 1]].key); --at)
                order[at] = order[at - 1];
            order[at] = static_cast<std::uint16_t>(i);
        }
        (fromRoot ? tree.fromRoot : tree.members) = tree.AddObject(rows, order.data(), used, 0);
    }
    tree.self.first = tree.nodeCount;
    for (std::size_t i = 0; i < count; ++i) {
        if (rows[i].kind == Kind::Supplied) tree.AddSupplied(rows[i]);
        if (IsStarted(rows[i])) tree.started[tree.startedCount++] = static_cast<std::uint16_t>(i);
        if (rows[i].key == nullptr || rows[i].key[0] != '\0') continue;
        Node& node = tree.Add("");
        node.row = static_cast<std::uint16_t>(i);
        tree.SetRow(node, rows[i]);
        node.needsAbsent = true;
        ++tree.self.count;
    }
    References<limits.references> references;
    for (std::size_t i = 0; i < count; ++i) {
        if (rows[i].flag.exists()) tree.AddFlag({rows[i].flag.offset, SizeOf(rows[i].flag.cell)});
        if (HasInnerFlags(rows[i])) tree.AddFlag({rows[i].offset, rows[i].size, static_cast<std::uint16_t>(i)});
        const void* const wanted = ReferenceOf(rows[i]);
        if (wanted == nullptr) continue;
        const std::uint16_t place = references.Find(wanted);
        for (Node& node : tree.nodes) {
            if (node.row == i && node.childCount == 0) node.reference = place;
        }
    }
    tree.JoinFlags();
    // Few rows have a count or another key's place, so that this is far from a comparison of all with all.
    for (std::size_t i = 0; i < count; ++i) {
        if (!rows[i].alias && !rows[i].count.exists()) continue;
        for (std::size_t k = 0; k < count; ++k) {
            if (k == i || !InOrder(rows[i], rows[k])) continue;
            const bool isApart = Parts(rows[i].key) > 1 || Parts(rows[k].key) > 1;
            if (isApart || rows[i].always || rows[k].always) tree.anyOrder = false;
            for (Node& node : tree.nodes) {
                if (node.childCount == 0 && (node.row == i || node.row == k)) node.ordered = true;
            }
        }
    }
    return tree;
}

template <class Rows>
inline constexpr auto kTree = BuildTree<Rows>();

// Apart from the tree, which has no pointers.
template <class Rows>
inline constexpr auto kReferences = [] {
    constexpr Limits limits = LimitsOf<Rows>();
    References<limits.references> references;
    for (const Field& row : Rows::rows) {
        if (const void* const wanted = ReferenceOf(row)) references.Find(wanted);
    }
    return references.all;
}();

} // namespace build

template <class Rows>
consteval TypedTable<typename Rows::R> MakeTable(const char* name) {
    using R = typename Rows::R;
    static_assert(std::is_standard_layout_v<R> && std::is_trivial_v<R>, "records are plain C structures");
    if constexpr (build::kFlaw<Rows>.mistake != build::Mistake::None) build::Tell<build::kFlaw<Rows>>();
    constexpr auto& tree = build::kTree<Rows>;
    TypedTable<R> table;
    table.record = name;
    table.size = sizeof(R);
    table.rows = Rows::rows;
    table.rowCount = sizeof(Rows::rows) / sizeof(Rows::rows[0]);
    table.nodes = tree.nodes.data();
    table.keyTexts = tree.texts.data();
    table.references = build::kReferences<Rows>.data();
    table.flagRuns = tree.flagRuns.data();
    table.flagRunCount = tree.flagRunCount;
    table.members = tree.members;
    table.fromRoot = tree.fromRoot;
    table.self = tree.self;
    table.supplied = tree.supplied.data();
    table.suppliedCount = tree.suppliedCount;
    table.started = tree.started.data();
    table.startedCount = tree.startedCount;
    table.anyOrder = tree.anyOrder;
    for (const Field& row : Rows::rows) {
        if (row.hasDefault || row.kind == Kind::Size) table.hasDefaults = true;
        if (row.kind == Kind::Size) table.hasSizeWords = true;
        if (row.cell == Cell::Pointer) table.hasPointers = true;
        if (row.amongKeys) table.amongKeys = &row;
        if (row.kind == Kind::MemberName || row.kind == Kind::MemberCode) table.memberName = &row;
        if (row.cell == Cell::Record) {
            if (row.table->hasDefaults && !row.amongKeys && !row.table->startsWhenRead) table.hasDefaults = true;
            if (row.table->hasSizeWords) table.hasSizeWords = true;
            if (row.table->hasPointers) table.hasPointers = true;
        }
        const bool hasPart = row.kind == Kind::Record && row.table != nullptr;
        if (hasPart && (row.table->fromRoot.count > 0 || row.table->partsAskRoot)) table.partsAskRoot = true;
        table.anyOrder = table.anyOrder && build::TakesAnyOrder(row);
    }
    const auto* const self = table.nodes + table.self.first;
    table.isNumbers = table.self.count > 0 && std::all_of(self, self + table.self.count, [](const Node& node) {
                          return node.way == Way::Number && !node.isGated();
                      });
    // Rows whose key is "" ask for the object as a whole, as do lists among its keys.
    table.inText = table.amongKeys == nullptr && table.members.count <= kMostInText;
    return table;
}

} // namespace orrery::record

// In brackets, so that a row that follows another without a comma is a call of the one before it, which tells.
#define FIELD(member, ...)                                                                                             \
    (::orrery::record::MakeField<decltype(R::member)>(#member, offsetof(R, member) __VA_OPT__(, ) __VA_ARGS__))
// A member that is copied from `source`, a member of the same type in what the call carries along (a `contextType`).
#define SUPPLIED(contextType, source)                                                                                  \
    ::orrery::record::SuppliedFrom<decltype(contextType::source)> {                                                    \
        offsetof(contextType, source)                                                                                  \
    }
#define AT(member) ::orrery::record::MakeSlot<decltype(R::member)>(offsetof(R, member))

// The table of a record that a command uses, declared `extern const` in the family's header.
#define TABLE(name, recordType, ...)                                                                                   \
    ORRERY_ROWS_OF(name, recordType, __VA_ARGS__);                                                                     \
    constexpr ::orrery::record::TypedTable<recordType> name = ::orrery::record::MakeTable<RowsOf_##name>(#recordType)

// The table of a record that stands inside others: whole in a header, or in the one file that needs it.
#define PART(name, recordType, ...)                                                                                    \
    ORRERY_ROWS_OF(name, recordType, __VA_ARGS__);                                                                     \
    inline constexpr ::orrery::record::TypedTable<recordType> name =                                                   \
        ::orrery::record::MakeTable<RowsOf_##name>(#recordType)

#define ORRERY_ROWS_OF(name, recordType, ...)                                                                          \
    struct RowsOf_##name {                                                                                             \
        using R = recordType;                                                                                          \
        static constexpr ::orrery::record::Field rows[] = __VA_ARGS__;                                                 \
    }

#include "frame/record/SharedRecords.h"

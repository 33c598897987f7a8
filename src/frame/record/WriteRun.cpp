// The short way of writing: values whose rows say nothing of it, one after the other. All that it needs stands in the
// nodes.
#include "frame/json/Pen.h"
#include "frame/record/WriteParts.h"

#include <algorithm>

namespace orrery::record {

namespace {

using json::Pen;
static_assert(kKeyTextSlack >= Pen::kPadding);
constexpr std::size_t kNameRoom = kLongestPlainName + 16; // quotes, and what a store goes beyond

std::int64_t LoadScalar(const Node& node, const std::byte* at) noexcept {
    return LoadInteger(node.cell, at);
}
double LoadFraction(const Node& node, const std::byte* at) noexcept {
    return node.cell == Cell::F32 ? double{Load<float>(at)} : Load<double>(at);
}

char* PutInteger(char* to, const Node& node, const std::byte* at) noexcept {
    const std::int64_t number = LoadScalar(node, at);
    if (node.kind == Kind::Bool) return Pen::PutBool(to, number != 0);
    return node.kind == Kind::Int ? json::PutDigits(to, static_cast<std::int32_t>(number))
                                  : json::PutDigits(to, static_cast<std::uint32_t>(number));
}

[[gnu::always_inline]] inline const Name* NameOf(const Table& table, const Node& node, const std::byte* at) noexcept {
    const auto code = node.cell == Cell::I32 ? Load<std::int32_t>(at) : static_cast<std::int32_t>(LoadScalar(node, at));
    const NameTable& names = table.namesOf(node);
    if (!names.countsUp) return names.RowOf(code);
    const std::int64_t place = std::int64_t{code} - names.rows->code;
    return place >= 0 && place < names.count ? &names.rows[place] : nullptr;
}

// The value of a scalar where there may be little room for it.
void WriteScalar(const Table& table, const Node& node, const std::byte* at, WriteCall& call) noexcept {
    const std::string_view key = table.quotedKeyOf(node);
    switch (node.writePlainly) {
    case Plainly::Switch:
        call.Quoted(key);
        return call.out.Bool(Load<std::int32_t>(at) != 0);
    case Plainly::Number:
        call.Quoted(key);
        return call.out.Int(Load<std::int32_t>(at));
    case Plainly::Integer:
        call.Quoted(key);
        if (node.kind == Kind::Bool) return call.out.Bool(LoadScalar(node, at) != 0);
        if (node.kind == Kind::Int) return call.out.Int(static_cast<std::int32_t>(LoadScalar(node, at)));
        return call.out.UInt(static_cast<std::uint32_t>(LoadScalar(node, at)));
    case Plainly::Fraction:
        call.Quoted(key);
        return call.out.Real(LoadFraction(node, at));
    case Plainly::Local:
    case Plainly::Raw:
        call.Quoted(key);
        call.parser.SetJsonString(call.out, reinterpret_cast<const char*>(at), node.elementSize,
                                  node.writePlainly == Plainly::Local);
        return;
    case Plainly::Named: {
        const Name* const row = NameOf(table, node, at);
        if (row != nullptr) {
            call.Quoted(key);
            return row->clean ? call.out.CleanString(row->text) : call.out.String(row->text);
        }
        const NameTable& names = table.namesOf(node);
        if (names.outside == NameTable::Outside::NoKey) return;
        call.Quoted(key);
        return names.outside == NameTable::Outside::Text ? call.out.String(names.outsideText) : call.out.Null();
    }
    default:
        return;
    }
}

char* PutName(char* to, std::string_view clean) noexcept {
    *to = '"';
    to = json::CopyShort(to + 1, clean.data(), clean.size());
    *to = '"';
    return to + 1;
}

std::int64_t CodeAt(const Node& node, const std::byte* at) noexcept {
    if (node.cell == Cell::I32) [[likely]]
        return Load<std::int32_t>(at);
    return static_cast<std::int32_t>(LoadScalar(node, at));
}

// The text of a code in quotes. Null when it has none or needs an escape.
[[gnu::always_inline]] inline char* PutNamed(char* to, const Table& table, const Node& node,
                                             const std::byte* at) noexcept {
    const NameTable& names = table.namesOf(node);
    const auto place = static_cast<std::uint64_t>(CodeAt(node, at) - names.firstCode);
    if (names.quoted == nullptr) [[unlikely]] {
        const Name* const name = NameOf(table, node, at);
        return name != nullptr && name->clean ? PutName(to, name->text) : nullptr;
    }
    if (place >= names.count) return nullptr;
    std::uint16_t places[2];
    std::memcpy(places, names.quoted + place * QuotedNames::kPlace, sizeof places);
    const char* const from = names.quoted + places[0];
    const std::size_t size = places[1] - places[0];
    std::memcpy(to, from, 16);
    for (std::size_t i = 16; i < size; i += 16)
        std::memcpy(to + i, from + i, 16);
    return to + size;
}

// Null for one that is converted.
char* PutText(char* to, const Node& node, const std::byte* at, const WriteCall& call) noexcept {
    const LocalText& texts = call.parser.text();
    const bool asciiOnly = node.writePlainly == Plainly::Local && !texts.isCopy();
    if (asciiOnly && !texts.isCopyOfAscii()) return nullptr;
    return json::PutText(to, reinterpret_cast<const char*>(at), node.elementSize, asciiOnly);
}

// Where the pen's owner goes on, once the writer itself has written. It takes the pen by value, so that it need not
// leave its registers.
[[gnu::noinline]] Pen Slowly(Pen pen, const Table& table, const Node& node, const std::byte* record,
                             WriteCall& call) noexcept {
    pen.Return(call.out);
    if (IsScalar(node))
        WriteScalar(table, node, record + node.offset, call);
    else
        WriteNode(table, node, record, call);
    return Pen(call.out);
}

// The keys of an object that the pen has just opened, and its end.
[[gnu::noinline]] Pen Inside(Pen pen, const Table& table, NodeRange nodes, const std::byte* record,
                             WriteCall& call) noexcept {
    pen.Return(call.out);
    WriteNodes(table, nodes, record, call);
    Pen after(call.out);
    if (after.isAt(pen)) return after;
    if (after.has(2)) {
        after.EndObject();
        return after;
    }
    call.out.EndObject();
    return Pen(call.out);
}

// Whether the presence flag of the node's row, which has one, lets it out.
[[gnu::always_inline]] inline bool IsFlagSet(const Node& node, const std::byte* record) noexcept {
    const std::byte* const flag = record + node.flag.offset;
    if (node.flag.cell <= Cell::U8) [[likely]]
        return *flag != std::byte{0};
    return IsFlagged(node, record);
}

// Writes the scalars from `node` on as elements of an array, up to the first node that is none or finds no room, is
// converted or has no text, which it answers.
const Node* WriteElements(const Table& table, const Node* node, const Node* end, const std::byte* record,
                          WriteCall& call) noexcept {
    constexpr std::size_t kRoom = std::max(json::kRealRoom, kNameRoom);
    Pen pen(call.out);
    for (; node != end && pen.has(kRoom); ++node) {
        const std::byte* const at = record + node->offset;
        switch (node->writePlainly) {
        case Plainly::Switch:
            pen.Element([=](char* to) { return Pen::PutBool(to, Load<std::int32_t>(at) != 0); });
            continue;
        case Plainly::Number:
            pen.Element([=](char* to) { return json::PutDigits(to, Load<std::int32_t>(at)); });
            continue;
        case Plainly::Integer:
            pen.Element([=](char* to) { return PutInteger(to, *node, at); });
            continue;
        case Plainly::Fraction:
            pen.Element([=](char* to) { return json::PutReal(to, LoadFraction(*node, at)); });
            continue;
        case Plainly::Local:
        case Plainly::Raw:
            if (pen.has(json::TextRoom(node->elementSize))
                && pen.TryElement([&](char* to) { return PutText(to, *node, at, call); }))
                continue;
            break;
        case Plainly::Named:
            if (pen.TryElement([&](char* to) { return PutNamed(to, table, *node, at); })) continue;
            break;
        default:
            break;
        }
        break;
    }
    pen.Return(call.out);
    return node;
}

} // namespace

void WriteNodes(const Table& table, NodeRange range, const std::byte* record, WriteCall& call) noexcept {
    // What a key and any value but a text take at the most; a key's padding lies within the value's room.
    constexpr std::size_t kRoom =
        kLongestPlainKey + kQuotesAndColon + std::max({json::kRealRoom, Pen::kPadding, kNameRoom});
    const Node* node = table.nodes + range.first;
    const Node* const end = node + range.count;
    for (; node != end && !call.object->opened; ++node) {
        if (IsFlagged(*node, record)) Slowly(Pen(call.out), table, *node, record, call);
    }
    Pen pen(call.out);
    for (; node != end; ++node) {
        if (node->flag.exists() && !IsFlagSet(*node, record)) continue;
        const std::byte* const at = record + node->offset;
        if (!pen.has(kRoom)) [[unlikely]] {
            pen = Slowly(pen, table, *node, record, call);
            continue;
        }
        const auto putKey = [&] { pen.PaddedKey(table.keyTexts + node->quotedAt, node->keySize + kQuotesAndColon); };
        const auto putNull = [&] {
            putKey();
            pen.Value([](char* to) { return Pen::PutNull(to); });
        };
        const auto beginOther = [&] {
            pen.Return(call.out);
            call.quotedKey = table.quotedKeyOf(*node);
        };
        switch (node->writePlainly) {
        case Plainly::Switch:
            putKey();
            pen.Value([=](char* to) { return Pen::PutBool(to, Load<std::int32_t>(at) != 0); });
            break;
        case Plainly::Number:
            putKey();
            pen.Value([=](char* to) { return json::PutDigits(to, Load<std::int32_t>(at)); });
            break;
        case Plainly::Integer:
            putKey();
            pen.Value([=](char* to) { return PutInteger(to, *node, at); });
            break;
        case Plainly::Fraction:
            putKey();
            pen.Value([=](char* to) { return json::PutReal(to, LoadFraction(*node, at)); });
            break;
        case Plainly::Local:
        case Plainly::Raw: {
            const Pen before = pen;
            if (pen.has(kRoom + json::TextRoom(node->elementSize))) [[likely]] {
                putKey();
                if (pen.TryValue([&](char* to) { return PutText(to, *node, at, call); })) break;
            }
            pen = Slowly(before, table, *node, record, call);
            break;
        }
        case Plainly::Named: {
            const Pen before = pen;
            putKey();
            if (!pen.TryValue([&](char* to) { return PutNamed(to, table, *node, at); }))
                pen = Slowly(before, table, *node, record, call);
            break;
        }
        case Plainly::Inner: {
            const Table& inner = table.tableOf(*node);
            if (inner.shape != Shape::Object && IsAlwaysWritten(inner)) {
                putKey();
                pen.Return(call.out);
                WriteTuple(inner, at, call);
                pen = Pen(call.out);
                break;
            }
            if (!inner.isPlainObject()) {
                pen = Slowly(pen, table, *node, record, call);
                break;
            }
            const Pen before = pen;
            putKey();
            pen.BeginObject();
            pen = Inside(pen, inner, inner.members, at, call);
            if (!pen.isFirst()) break;
            pen = before;
            if (!node->unlessBare) putNull();
            break;
        }
        case Plainly::Element:
            pen.Return(call.out);
            call.out.RawKey(table.quotedKeyOf(*node));
            WriteElement(table.rows[node->row], at, call);
            pen = Pen(call.out);
            break;
        case Plainly::Function: {
            const Field& field = table.rows[node->row];
            if (field.custom->write == nullptr) break;
            beginOther();
            field.custom->write(field, record, call);
            pen = Pen(call.out);
            break;
        }
        case Plainly::List:
            beginOther();
            WriteList(table.rows[node->row], record, call);
            pen = Pen(call.out);
            break;
        case Plainly::No: {
            if (node->childCount == 0) {
                beginOther();
                WriteField(table.rows[node->row], record, call);
                pen = Pen(call.out);
                break;
            }
            const Pen before = pen;
            putKey();
            pen.BeginObject();
            pen = Inside(pen, table, {node->firstChild, node->childCount}, record, call);
            if (!pen.isFirst()) break;
            pen = before;
            if (node->staysNull) putNull();
            break;
        }
        case Plainly::Nothing:
            break;
        }
    }
    pen.Return(call.out);
}

void WriteTuple(const Table& table, const std::byte* record, WriteCall& call) noexcept {
    const Node* node = table.nodes + table.self.first;
    const Node* const end = node + table.self.count;
    const auto outerKey = call.quotedKey;
    call.out.BeginArray();
    for (;;) {
        node = WriteElements(table, node, end, record, call);
        if (node == end) break;
        const Field& field = table.rows[node->row];
        const std::byte* const at = record + node->offset;
        if (IsElementWritten(field, at))
            WriteElement(field, at, call);
        else
            call.out.Null();
        ++node;
    }
    call.out.EndArray();
    call.quotedKey = outerKey;
}

} // namespace orrery::record

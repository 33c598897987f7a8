// The short way of writing: values whose rows say nothing of it, one after the other. All that it needs stands in the
// nodes.
#include "frame/json/Pen.h"
#include "frame/record/WriteParts.h"

#include <algorithm>

namespace orrery::record {

namespace {

using json::Pen;
static_assert(kKeyTextSlack >= Pen::kPadding);

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

const Name* NameOf(const Table& table, const Node& node, const std::byte* at) noexcept {
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

// A value that is no text of the record's.
[[gnu::always_inline]] inline char* PutScalar(char* to, const Node& node, const Name* name,
                                              const std::byte* at) noexcept {
    switch (node.writePlainly) {
    case Plainly::Switch:
        return Pen::PutBool(to, Load<std::int32_t>(at) != 0);
    case Plainly::Number:
        return json::PutDigits(to, Load<std::int32_t>(at));
    case Plainly::Integer:
        return PutInteger(to, node, at);
    case Plainly::Fraction:
        return json::PutReal(to, LoadFraction(node, at));
    default:
        return PutName(to, name->text);
    }
}

// Null for one that is converted or has something to escape.
char* PutText(char* to, const Node& node, const char* text, const WriteCall& call) noexcept {
    const LocalText& texts = call.parser.text();
    const bool asciiOnly = node.writePlainly == Plainly::Local && !texts.isCopy();
    if (asciiOnly && !texts.isCopyOfAscii()) return nullptr;
    return json::PutCleanText(to, text, node.elementSize, asciiOnly);
}

// Where the pen's owner goes on, once the writer itself has written. They take the pen by value, so that it need not
// leave its registers.
Pen Slowly(Pen pen, const Table& table, const Node& node, const std::byte* at, WriteCall& call) noexcept {
    pen.Return(call.out);
    WriteScalar(table, node, at, call);
    return Pen(call.out);
}
Pen Open(Pen pen, WriteCall& call) noexcept {
    pen.Return(call.out);
    call.OpenObjects();
    return Pen(call.out);
}
// The key stands there already.
Pen ConvertText(Pen pen, const Node& node, const char* text, WriteCall& call) noexcept {
    pen.Return(call.out);
    call.parser.SetJsonString(call.out, text, node.elementSize, node.writePlainly == Plainly::Local);
    return Pen(call.out);
}

} // namespace

const Node* WriteRun(const Table& table, const Node* node, const Node* end, const std::byte* record,
                     WriteCall& call) noexcept {
    // What a key and any value but a text take at the most; a key's padding lies within the value's room.
    constexpr std::size_t kRoom = kQuotesAndColon + std::max(json::kRealRoom, Pen::kPadding);
    Pen pen(call.out);
    for (; node != end && IsScalar(*node); ++node) {
        if (!IsFlagged(*node, record)) continue;
        const std::byte* const at = record + node->offset;
        std::size_t room = kRoom + node->keySize;
        const Name* name = nullptr;
        if (node->writePlainly == Plainly::Named) {
            name = NameOf(table, *node, at);
            if (name == nullptr || !name->clean) {
                pen = Slowly(pen, table, *node, at, call);
                continue;
            }
            room += name->text.size();
        } else if (node->writePlainly >= Plainly::Local) {
            room += node->elementSize;
        }
        if (!call.object->opened) [[unlikely]] {
            pen = Open(pen, call);
        }
        if (!pen.has(room)) [[unlikely]] {
            pen = Slowly(pen, table, *node, at, call);
            continue;
        }
        pen.PaddedKey(table.keyTexts + node->quotedAt, node->keySize + kQuotesAndColon);
        if (node->writePlainly < Plainly::Local || node->writePlainly == Plainly::Named) {
            pen.Value([=](char* to) { return PutScalar(to, *node, name, at); });
            continue;
        }
        const auto* const text = reinterpret_cast<const char*>(at);
        if (!pen.TryValue([&](char* to) { return PutText(to, *node, text, call); })) {
            pen = ConvertText(pen, *node, text, call);
        }
    }
    pen.Return(call.out);
    return node;
}

const Node* WriteElements(const Table& table, const Node* node, const Node* end, const std::byte* record,
                          WriteCall& call) noexcept {
    Pen pen(call.out);
    for (; node != end && IsScalar(*node); ++node) {
        const std::byte* const at = record + node->offset;
        const Name* const name = node->writePlainly == Plainly::Named ? NameOf(table, *node, at) : nullptr;
        const bool isText = node->writePlainly == Plainly::Local || node->writePlainly == Plainly::Raw;
        if (node->writePlainly == Plainly::Named && (name == nullptr || !name->clean)) break;
        if (!pen.has(json::kRealRoom + (name != nullptr ? name->text.size() : isText ? node->elementSize : 0))) break;
        if (isText) {
            const auto* const text = reinterpret_cast<const char*>(at);
            if (!pen.TryElement([&](char* to) { return PutText(to, *node, text, call); })) break;
        } else {
            pen.Element([=](char* to) { return PutScalar(to, *node, name, at); });
        }
    }
    pen.Return(call.out);
    return node;
}

} // namespace orrery::record

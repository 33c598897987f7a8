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
    return table.namesOf(node).RowOf(static_cast<std::int32_t>(LoadScalar(node, at)));
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

} // namespace

const Node* WriteRun(const Table& table, const Node* node, const Node* end, const std::byte* record,
                     WriteCall& call) noexcept {
    // What a key and any value but a text take at the most; a key's padding lies within the value's room.
    constexpr std::size_t kRoom = kQuotesAndColon + std::max(json::kRealRoom, Pen::kPadding);
    Pen pen(call.out);
    const auto slowly = [&](const std::byte* at) {
        pen.Return(call.out);
        WriteScalar(table, *node, at, call);
        pen = Pen(call.out);
    };
    for (; node != end && IsScalar(*node); ++node) {
        if (!IsFlagged(*node, record)) continue;
        const std::byte* const at = record + node->offset;
        std::size_t room = kRoom + node->keySize;
        const Name* name = nullptr;
        if (node->writePlainly == Plainly::Named) {
            name = NameOf(table, *node, at);
            if (name == nullptr || !name->clean) {
                slowly(at);
                continue;
            }
            room += name->text.size();
        } else if (node->writePlainly >= Plainly::Local) {
            room += node->elementSize;
        }
        if (!call.object->opened) [[unlikely]] {
            pen.Return(call.out);
            call.OpenObjects();
            pen = Pen(call.out);
        }
        if (!pen.has(room)) [[unlikely]] {
            slowly(at);
            continue;
        }
        pen.PaddedKey(table.keyTexts + node->quotedAt, node->keySize + kQuotesAndColon);
        switch (node->writePlainly) {
        case Plainly::Switch:
            pen.Value([at](char* to) { return Pen::PutBool(to, Load<std::int32_t>(at) != 0); });
            break;
        case Plainly::Number:
            pen.Value([at](char* to) { return json::PutDigits(to, Load<std::int32_t>(at)); });
            break;
        case Plainly::Integer:
            pen.Value([=](char* to) { return PutInteger(to, *node, at); });
            break;
        case Plainly::Fraction:
            pen.Value([=](char* to) { return json::PutReal(to, LoadFraction(*node, at)); });
            break;
        case Plainly::Named:
            pen.Value([name](char* to) { return PutName(to, name->text); });
            break;
        default: {
            const bool converted = node->writePlainly == Plainly::Local;
            const LocalText& texts = call.parser.text();
            const auto* const text = reinterpret_cast<const char*>(at);
            const bool done = (!converted || texts.isCopyOfAscii()) && pen.TryValue([&](char* to) {
                return json::PutCleanText(to, text, node->elementSize, converted && !texts.isCopy());
            });
            if (done) break;
            pen.Return(call.out);
            call.parser.SetJsonString(call.out, text, node->elementSize, converted);
            pen = Pen(call.out);
            break;
        }
        }
    }
    pen.Return(call.out);
    return node;
}

} // namespace orrery::record

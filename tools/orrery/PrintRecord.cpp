#include "orrery/PrintRecord.h"

#include "orrery/Codes.h"
#include "orrery/Outline.h"
#include "orrery/Words.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <type_traits>
#include <unordered_map>

namespace orrery::tool {

using namespace record;

namespace {

// Larger whole numbers are printed as texts: readers keep numbers as doubles.
constexpr std::int64_t kLargestExact = std::int64_t{1} << 53;

// Bytes up to the last that is not 0.
std::size_t UsedBytes(const std::byte* at, std::size_t size) {
    while (size >= sizeof(std::uint64_t) && Load<std::uint64_t>(at + size - sizeof(std::uint64_t)) == 0)
        size -= sizeof(std::uint64_t);
    while (size > 0 && at[size - 1] == std::byte{0})
        --size;
    return size;
}

// Whether a member says nothing that its record would not say without a text.
bool IsBlank(const Field& field, const std::byte* at) {
    if (field.kind == Kind::Size) return true;
    if (field.hasDefault && field.rank == 0 && field.cell != Cell::F32 && field.cell != Cell::F64)
        return LoadInteger(field.cell, at) == field.defaultValue;
    return IsClear(at, field.size);
}

// The outline of a table's records; `all` as PrintOptions has it.
const Outline& OutlineOf(const Table& table, bool all);

// Puts a record together as a tree.
class TreeSink {
  public:
    using Mark = std::size_t;

    void Open(Brackets brackets) {
        switch (brackets) {
        case Brackets::Array:
            return Push(Node::Array());
        case Brackets::Object:
            return Push(Node::Object());
        case Brackets::Inline:
            return Push(Node::Inline());
        case Brackets::InlineArray:
            return Push(Node::InlineArray());
        }
    }
    void Close(Brackets) {
        Node node = std::move(open_.back().first);
        key_ = std::move(open_.back().second);
        open_.pop_back();
        Put(std::move(node));
    }
    void Key(std::string_view key) { key_ = key; }
    void Next() {}
    void Token(std::string_view token) { Put(Node::Token(std::string(token))); }
    void Integer(std::int64_t number) { Put(Node::Number(number)); }
    void Zeros(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            Integer(0);
    }
    void Text(std::string_view text) { Put(Node::Text(text)); }
    Mark Place() const { return open_.back().first.size(); }
    void GoBack(Mark mark) { open_.back().first.Truncate(mark); }

    Node Take() { return std::move(whole_); }

  private:
    void Push(Node node) { open_.emplace_back(std::move(node), std::exchange(key_, {})); }
    void Put(Node node) {
        if (open_.empty())
            whole_ = std::move(node);
        else if (Node& parent = open_.back().first; parent.isArray())
            parent.Add(std::move(node));
        else
            parent.Add(key_, std::move(node));
    }

    std::vector<std::pair<Node, std::string>> open_; // with the key that each stands under
    std::string key_;
    Node whole_ = Node::Null();
};

template <class Sink>
class Printer {
  public:
    Printer(Sink& sink, PrintOptions options) : sink_(sink), options_(options) {}

    // These answer how many members or elements stand there.
    std::size_t Record(const Table& table, const std::byte* record) {
        if constexpr (std::is_same_v<Sink, LineWriter>) {
            return Lines(OutlineOf(table, options_.all), table, record);
        }
        sink_.Open(Brackets::Object);
        std::size_t count = 0;
        for (const Field& field : table) {
            if (field.alias || field.size == 0) continue; // no storage of its own
            if (options_.brief && IsBlank(field, record + field.offset)) continue;
            count += Member(table, field, field.name, record);
        }
        sink_.Close(Brackets::Object);
        return count;
    }
    std::size_t Records(const Table& table, const std::byte* first, std::size_t count) {
        sink_.Open(Brackets::Array);
        for (std::size_t i = 0; i < count; ++i) {
            sink_.Next();
            Record(table, first + i * table.size);
        }
        sink_.Close(Brackets::Array);
        return count;
    }
    void Behind(const Table& table, const Field& pointer, const std::byte* record) {
        const PackedItems* const items = ItemsBehind(table);
        if (items == nullptr)
            Pointer(pointer, record);
        else if (items->head == nullptr)
            BareItems(*items, record);
        else
            Items(*items, record);
    }
    // All that a field holds, as far as its record's count goes.
    std::size_t Value(const Field& field, const std::byte* record) {
        std::uint32_t count = field.rank > 0 ? field.dims[0] : 1;
        if (field.count.exists() && !options_.all)
            count = static_cast<std::uint32_t>(std::clamp<std::int64_t>(LoadSlot(field.count, record), 0, count));
        return Level(field, 0, record + field.offset, count);
    }
    std::size_t Element(const Field& field, const std::byte* at) {
        switch (field.cell) {
        case Cell::Record:
            return Record(*field.table, at);
        case Cell::Char:
            Text(at, field.elementSize);
            break;
        case Cell::F32:
            Real<float>(at);
            break;
        case Cell::F64:
            Real<double>(at);
            break;
        case Cell::Pointer:
            sink_.Token("null");
            break;
        default:
            Integer(field, at);
            break;
        }
        return 1;
    }

    // The line of a cleared record, with where its members stand in it.
    static Outline Draw(const Table& table, bool all) {
        const std::vector<std::byte> clear(table.size);
        Outline outline;
        LineWriter line;
        Printer<LineWriter> printer(line, {.all = all});
        line.Open(Brackets::Object);
        for (const Field& field : table) {
            if (field.alias || field.size == 0) continue;
            const auto place = [&] { return static_cast<std::uint32_t>(line.size()); };
            const bool isFirst = outline.members.empty();
            const std::uint32_t begin = place() - isFirst; // as if its bracket were a comma
            line.Key(field.name);
            const std::uint32_t value = place();
            printer.Content(table, field, clear.data());
            const bool isItems = field.cell == Cell::Pointer && ItemsBehind(table) != nullptr;
            const bool isDefault = field.hasDefault && field.defaultValue != 0;
            const Outline::Way way = WayOf(field);
            outline.members.push_back({.field = &field,
                                       .name = field.name,
                                       .begin = begin,
                                       .value = value,
                                       .end = place(),
                                       .offset = field.offset,
                                       .size = field.size,
                                       .count = all ? Slot{} : field.count,
                                       .way = way,
                                       .isAlike = !isItems,
                                       .isPlainlyBlank = field.kind != Kind::Size && !isDefault,
                                       .inner = way == Outline::Way::Record ? &OutlineOf(*field.table, all) : nullptr});
        }
        line.Close(Brackets::Object);
        outline.text = line.Take();
        outline.End(table.size);
        return outline;
    }

  private:
    static Outline::Way WayOf(const Field& field) {
        if (field.rank > 0) return Outline::Way::General;
        switch (field.cell) {
        case Cell::Record:
            return Outline::Way::Record;
        case Cell::Char:
            return Outline::Way::Text;
        case Cell::I8:
        case Cell::U8:
        case Cell::I16:
        case Cell::U16:
        case Cell::I32:
        case Cell::U32:
            if (!HasNames(field)) return Outline::Way::Number;
            return field.names != nullptr ? Outline::Way::Code : Outline::Way::General;
        default:
            return Outline::Way::General;
        }
    }

    std::size_t Lines(const Outline& outline, const Table& table, const std::byte* record) {
        return options_.brief ? Brief(outline, table, record) : Splice(outline, table, record);
    }

    // A record between its members' prepared text.
    std::size_t Splice(const Outline& outline, const Table& table, const std::byte* record) {
        std::size_t done = 0; // of the outline's text
        outline.EachTold(record, [&](const Outline::Member& member, bool isSet) {
            const bool isInUse = member.count.exists() && LoadSlot(member.count, record) > 0;
            if (member.isAlike && !isInUse && !isSet) return;
            sink_.Splice(outline.Part(done, member.value));
            Prepared(member, table, record);
            done = member.end;
        });
        sink_.Splice(outline.Part(done, outline.textSize));
        return outline.members.size();
    }

    std::size_t Brief(const Outline& outline, const Table& table, const std::byte* record) {
        sink_.Open(Brackets::Object);
        std::size_t count = 0;
        outline.EachTold(record, [&](const Outline::Member& member, bool isSet) {
            const bool isBlank = member.isPlainlyBlank ? !isSet : IsBlank(*member.field, record + member.offset);
            if (isBlank) return;
            const auto mark = sink_.Place();
            sink_.SpliceMember(outline.Part(member.begin, member.value));
            const bool isNested = member.way == Outline::Way::Record || IsNested(*member.field);
            if (Prepared(member, table, record) > 0 || !isNested)
                ++count;
            else
                sink_.GoBack(mark); // it tells nothing
        });
        sink_.Close(Brackets::Object);
        return count;
    }

    std::size_t Prepared(const Outline::Member& member, const Table& table, const std::byte* record) {
        const std::byte* const at = record + member.offset;
        switch (member.way) {
        case Outline::Way::Number:
            sink_.Integer(LoadInteger(member.field->cell, at));
            return 1;
        case Outline::Way::Code: {
            const std::int64_t code = LoadInteger(member.field->cell, at);
            PutCode(code, NameOfCode(*member.field->names, code));
            return 1;
        }
        case Outline::Way::Text:
            if (!sink_.PlainText(at, member.size)) Text(at, member.size);
            return 1;
        case Outline::Way::Record:
            return Lines(*member.inner, *member.field->table, at);
        default:
            return Content(table, *member.field, record);
        }
    }

    std::size_t Content(const Table& table, const Field& field, const std::byte* record) {
        if (field.cell != Cell::Pointer) return Value(field, record);
        Behind(table, field, record);
        return 1;
    }

    // 0 for a member that tells nothing, which is left out.
    std::size_t Member(const Table& table, const Field& field, std::string_view name, const std::byte* record) {
        const auto mark = sink_.Place();
        sink_.Key(name);
        if (Content(table, field, record) > 0 || !options_.brief || !IsNested(field)) return 1;
        sink_.GoBack(mark);
        return 0;
    }
    static bool IsNested(const Field& field) {
        return field.cell == Cell::Record || (field.cell != Cell::Pointer && field.rank > 0);
    }

    std::size_t Level(const Field& field, int level, const std::byte* at, std::uint32_t count) {
        const int rank = std::min<int>(field.rank, Field::kMaxRank);
        if (level >= rank) return Element(field, at);
        std::size_t stride = field.elementSize;
        for (int i = rank - 1; i > level; --i)
            stride *= field.dims[i];
        sink_.Open(Brackets::Array);
        const bool isWhole = field.cell != Cell::Record && field.cell != Cell::Char && field.cell != Cell::Pointer
                             && field.cell != Cell::F32 && field.cell != Cell::F64 && !HasNames(field);
        if (isWhole && level + 1 == rank && count > 1 && at[0] == std::byte{0}
            && std::memcmp(at, at + 1, count * stride - 1) == 0) {
            sink_.Zeros(count);
            sink_.Close(Brackets::Array);
            return count;
        }
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint32_t inner = level + 1 < rank ? field.dims[level + 1] : 1;
            sink_.Next();
            Level(field, level + 1, at + i * stride, inner);
        }
        sink_.Close(Brackets::Array);
        return count;
    }

    void Bytes(const std::byte* at, std::size_t size) {
        constexpr char kHex[] = "0123456789abcdef";
        std::string hex;
        for (std::size_t i = 0; i < size; ++i) {
            hex += kHex[std::to_integer<unsigned>(at[i]) >> 4];
            hex += kHex[std::to_integer<unsigned>(at[i]) & 15];
        }
        sink_.Open(Brackets::Inline);
        sink_.Key("bytes");
        sink_.Text(hex);
        sink_.Close(Brackets::Inline);
    }

    // The text up to its terminator; as bytes when that would not tell all.
    void Text(const std::byte* at, std::size_t capacity) {
        const std::string_view text = TextAt(at, capacity);
        const std::size_t used = UsedBytes(at, capacity);
        if (used > text.size() || !IsUtf8(text)) return Bytes(at, used);
        sink_.Text(text);
    }

    // The same digits as the shortest that give the number, where there are at most three behind the point: all numbers
    // of up to 15 digits differ. Empty for others.
    static std::string_view OfFewDigits(double number, char* room) {
        constexpr double kMost = 1e15;
        constexpr std::int64_t kThousand = 1000;
        const double scaled = std::abs(number) * kThousand;
        if (scaled >= kMost) return {};
        const auto thousandths = static_cast<std::int64_t>(scaled + 0.5);
        std::int64_t behind = thousandths % kThousand;
        if (thousandths < kThousand || behind == 0) return {};
        if (static_cast<double>(thousandths) / kThousand != std::abs(number)) return {};
        char* at = room;
        if (number < 0) *at++ = '-';
        at = std::to_chars(at, at + 20, thousandths / kThousand).ptr;
        *at++ = '.';
        for (std::int64_t digit = kThousand / 10; behind > 0; behind %= digit, digit /= 10)
            *at++ = static_cast<char>('0' + behind / digit);
        return {room, static_cast<std::size_t>(at - room)};
    }
    // A float has shorter ones.
    static std::string_view OfFewDigits(float, char*) { return {}; }

    template <class Float>
    void Real(const std::byte* at) {
        const auto number = Load<Float>(at);
        if (std::isnan(number)) return Bytes(at, sizeof number);
        if (std::isinf(number)) return sink_.Text(number < 0 ? "-inf" : "inf");
        char room[64];
        const auto shortest = [&](auto value) {
            return std::string_view(room, static_cast<std::size_t>(std::to_chars(room, room + 64, value).ptr - room));
        };
        if (const std::string_view few = OfFewDigits(number, room); !few.empty()) return sink_.Token(few);
        std::string_view token = shortest(number);
        if constexpr (sizeof(Float) < sizeof(double)) {
            double back = 0;
            std::from_chars(token.data(), token.data() + token.size(), back);
            if (static_cast<Float>(back) != number) token = shortest(double{number});
        }
        sink_.Token(token == "-0" ? "-0.0" : token); // the sign belongs to a real only
    }

    void Integer(const Field& field, const std::byte* at) {
        if (field.cell == Cell::U64) {
            const auto number = Load<std::uint64_t>(at);
            if (number > static_cast<std::uint64_t>(kLargestExact)) return sink_.Text(std::to_string(number));
        }
        const std::int64_t number = LoadInteger(field.cell, at);
        if (number > kLargestExact || number < -kLargestExact) return sink_.Text(std::to_string(number));
        if (!HasNames(field)) return sink_.Integer(number);
        PutCode(number, NameOfCode(field, number));
    }

    void PutCode(std::int64_t code, std::string_view name) {
        sink_.Open(Brackets::Inline);
        sink_.Key("code");
        sink_.Integer(code);
        if (!name.empty()) {
            sink_.Key("name");
            sink_.Text(name);
        }
        sink_.Close(Brackets::Inline);
    }

    // The items of a packed buffer, each with its head, its type's name and its type's record; up to the first that is
    // cut off or of no known type.
    void Items(const PackedItems& items, const std::byte* descriptor) {
        const auto* const first = Load<const std::byte*>(descriptor + items.pointer);
        if (first == nullptr) return sink_.Token("null");
        const std::int64_t end = LoadSlot(items.bytes, descriptor);
        const std::int64_t count = LoadSlot(items.count, descriptor);
        sink_.Open(Brackets::Array);
        std::int64_t offset = 0;
        for (std::int64_t i = 0; i < count && offset + items.head->size <= end; ++i) {
            const std::byte* const head = first + offset;
            const ItemType type = items.typeOf(static_cast<std::uint32_t>(LoadSlot(items.code, head)));
            const std::int64_t size = LoadSlot(items.size, head);
            if (type.table == nullptr || size < type.table->size || offset + items.head->size + size > end) break;
            sink_.Next();
            sink_.Open(Brackets::Object);
            sink_.Key("name");
            sink_.Text(type.name);
            sink_.Key("head");
            Record(*items.head, head);
            sink_.Key("record");
            Record(*type.table, head + items.head->size);
            sink_.Close(Brackets::Object);
            offset += items.head->size + size;
        }
        sink_.Close(Brackets::Array);
    }

    // Records without heads, all of the type that their descriptor tells.
    void BareItems(const PackedItems& items, const std::byte* descriptor) {
        const auto* const first = Load<const std::byte*>(descriptor + items.pointer);
        if (first == nullptr) return sink_.Token("null");
        const ItemType type = items.typeOf(static_cast<std::uint32_t>(LoadSlot(items.code, descriptor)));
        const std::int64_t stride = LoadSlot(items.size, descriptor);
        const std::int64_t count = type.table == nullptr || stride <= 0 ? 0 : LoadSlot(items.count, descriptor);
        sink_.Open(Brackets::Array);
        for (std::int64_t i = 0; i < count && i * stride + type.table->size <= LoadSlot(items.bytes, descriptor); ++i) {
            sink_.Next();
            Record(*type.table, first + i * stride);
        }
        sink_.Close(Brackets::Array);
    }

    void Pointer(const Field& field, const std::byte* record) {
        const auto* const first = Load<const std::byte*>(record + field.offset);
        if (first == nullptr) return sink_.Token("null");
        if (PointsToText(field)) return Text(first, std::strlen(reinterpret_cast<const char*>(first)));
        if (PointsToOne(field)) {
            Record(*field.table, first);
            return;
        }
        std::int64_t count = field.count.exists() && !options_.all ? LoadSlot(field.count, record) : INT32_MAX;
        if (field.capacity.exists())
            count = std::min(count, LoadSlot(field.capacity, record));
        else
            count = LoadSlot(field.count, record);
        if (!PointsToNumbers(field)) {
            Records(*field.table, first, static_cast<std::size_t>(std::max<std::int64_t>(count, 0)));
            return;
        }
        sink_.Open(Brackets::InlineArray);
        for (std::int64_t i = 0; i < count; ++i) {
            sink_.Next();
            sink_.Integer(LoadInteger(NumberBehind(field), first + i * field.table->size));
        }
        sink_.Close(Brackets::InlineArray);
    }

    Sink& sink_;
    PrintOptions options_;
};

const Outline& OutlineOf(const Table& table, bool all) {
    // Of each thread its own: what is kept is found without a lock, and what was asked for last without a search.
    thread_local std::unordered_map<const Table*, Outline> kept[2];
    constexpr std::size_t kLast = 64;
    thread_local std::array<std::pair<const Table*, const Outline*>, kLast> last[2];
    auto& [asked, answer] = last[all ? 1 : 0][reinterpret_cast<std::uintptr_t>(&table) / alignof(Table) % kLast];
    if (asked == &table) return *answer;
    auto& outlines = kept[all ? 1 : 0];
    auto found = outlines.find(&table);
    // Records stand inside others, so that this draws those first.
    if (found == outlines.end()) found = outlines.emplace(&table, Printer<LineWriter>::Draw(table, all)).first;
    asked = &table;
    answer = &found->second;
    return *answer;
}

// What `print` tells a printer, as a tree.
template <class Print>
Node TreeOf(PrintOptions options, const Print& print) {
    TreeSink sink;
    Printer<TreeSink> printer(sink, options);
    print(printer);
    return sink.Take();
}

// "[3]": an index at the front of a path, which it is taken from; -1 for anything else.
std::int64_t TakeIndex(std::string_view& path) {
    std::uint32_t index = 0;
    const std::size_t close = path.find(']');
    if (!path.starts_with('[') || close == std::string_view::npos) return -1;
    const auto read = std::from_chars(path.data() + 1, path.data() + close, index);
    if (read.ec != std::errc() || read.ptr != path.data() + close || close == 1) return -1;
    path.remove_prefix(close + 1);
    return index;
}

} // namespace

Node PrintCell(const Field& field, const std::byte* at, PrintOptions options) {
    return TreeOf(options, [&](auto& printer) { printer.Element(field, at); });
}

Node PrintBehind(const Table& table, const Field& pointer, const std::byte* record, PrintOptions options) {
    return TreeOf(options, [&](auto& printer) { printer.Behind(table, pointer, record); });
}

Node PrintRecord(const Table& table, const std::byte* record, PrintOptions options) {
    return TreeOf(options, [&](auto& printer) { printer.Record(table, record); });
}

Node PrintRecords(const Table& table, const std::byte* first, std::size_t count, PrintOptions options) {
    return TreeOf(options, [&](auto& printer) { printer.Records(table, first, count); });
}

std::optional<Node> PrintMember(const Table& table, const std::byte* record, std::string_view path,
                                PrintOptions options) {
    const std::string_view name = path.substr(0, path.find_first_of(".["));
    const Field* const field = std::find_if(table.begin(), table.end(), [&](const Field& each) {
        return !each.alias && each.size > 0 && name == each.name;
    });
    if (name.empty() || field == table.end()) return std::nullopt;
    path.remove_prefix(name.size());
    if (field->cell == Cell::Pointer) {
        const Node whole = PrintBehind(table, *field, record, options);
        const Node* const found = whole.Find(path);
        return found == nullptr ? std::nullopt : std::optional(*found);
    }
    if (path.empty()) return TreeOf(options, [&](auto& printer) { printer.Value(*field, record); });
    const std::byte* at = record + field->offset;
    if (field->rank == 1) {
        const std::int64_t index = TakeIndex(path);
        std::int64_t count = field->dims[0];
        if (field->count.exists() && !options.all) count = std::min(count, LoadSlot(field->count, record));
        if (index < 0 || index >= count) return std::nullopt;
        at += index * field->elementSize;
        if (path.empty()) return PrintCell(*field, at, options);
    }
    if (field->cell == Cell::Record && field->rank <= 1 && path.starts_with('.'))
        return PrintMember(*field->table, at, path.substr(1), options);
    const Node whole = TreeOf(options, [&](auto& printer) { printer.Value(*field, record); });
    const Node* const found = field->rank == 1 ? nullptr : whole.Find(path);
    return found == nullptr ? std::nullopt : std::optional(*found);
}

void AppendRecord(LineWriter& line, const Table& table, const std::byte* record, PrintOptions options) {
    Printer<LineWriter>(line, options).Record(table, record);
}

void AppendRecords(LineWriter& line, const Table& table, const std::byte* first, std::size_t count,
                   PrintOptions options) {
    Printer<LineWriter>(line, options).Records(table, first, count);
}

} // namespace orrery::tool

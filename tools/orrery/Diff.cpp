#include "orrery/Diff.h"

#include "orrery/Check.h"
#include "orrery/Diagnose.h"
#include "orrery/FillRecord.h"
#include "orrery/PrintRecord.h"
#include "orrery/Words.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

namespace orrery::tool {

namespace {

using namespace record;

// A reply and the records that it becomes.
struct Side {
    explicit Side(std::string_view text) : document(text), terminated(document.text) {}

    bool Parse(const Command& command, const char* name) {
        if (!document.ok) {
            error = std::string(name) + ": " + ExplainSyntax(document);
            return false;
        }
        const Table& table = *command.table;
        records = std::max(LookAt(command, document.root).records, 1U);
        if (command.parse == Command::Frame::Family && command.parseFrame.exactSize) records = 1;
        bytes.resize(std::size_t{records} * table.size);
        for (std::uint32_t i = 0; i < records; ++i) {
            std::byte* const at = bytes.data() + std::size_t{i} * table.size;
            if (table.hasSizeWords) SetSizeWords(table, at);
            if (table.hasPointers || ItemsBehind(table) != nullptr) GiveRoom(table, at, kRoom, memory);
        }
        std::uint32_t length = 0;
        const auto read = [&] {
            return RunParse(command,
                            {terminated.c_str(), bytes.data(), static_cast<std::uint32_t>(bytes.size()), &length});
        };
        Outcome outcome = read();
        bool hasMoreRoom = false;
        for (std::uint32_t i = 0; i < records && table.hasPointers && outcome == Outcome::Done; ++i)
            hasMoreRoom |= GiveRoomAsRead(table, bytes.data() + std::size_t{i} * table.size, document.root, memory);
        if (hasMoreRoom) outcome = read();
        if (outcome == Outcome::Done) return true;
        error = std::string(name) + ": "
                + ExplainParse(command, outcome, document, static_cast<std::uint32_t>(bytes.size()));
        return false;
    }

    static constexpr std::uint32_t kRoom = 32; // elements behind a pointer
    Document document;
    std::string terminated;
    Memory memory;
    std::vector<std::byte> bytes;
    std::uint32_t records = 0;
    std::string error;
};

// Bytes that differ together.
struct Part {
    std::size_t offset, size;
};
struct Difference {
    std::string path, left, right;
    std::vector<Part> parts; // with the counts and flags that belong to the member
};

class Compare {
  public:
    Compare(const std::byte* left, const std::byte* right) : left_(left), right_(right) {}

    std::vector<Difference> differences;

    void Records(const Table& table, std::size_t base, const std::string& path) {
        for (const Field& field : table) {
            if (!IsStored(field)) continue;
            // How much room this program gave to each says nothing of them.
            const PackedItems* const items = BareItemsBehind(table);
            if (items != nullptr && field.offset == items->bytes.offset) continue;
            const std::size_t at = base + field.offset;
            if (field.cell == Cell::Pointer) {
                const std::string left = Shown(table, field, left_ + base), right = Shown(table, field, right_ + base);
                if (left != right) Add(table, field, base, at, field.size, path + field.name, left, right);
                continue;
            }
            if (std::memcmp(left_ + at, right_ + at, field.size) == 0) continue;
            const std::uint32_t elements = field.size / field.elementSize;
            for (std::uint32_t i = 0; i < elements; ++i) {
                const std::size_t element = at + std::size_t{i} * field.elementSize;
                if (std::memcmp(left_ + element, right_ + element, field.elementSize) == 0) continue;
                const std::string name = path + field.name + Place(field, i);
                if (field.cell == Cell::Record) {
                    Records(*field.table, element, name + ".");
                    continue;
                }
                Add(table, field, base, element, field.elementSize, name, Line(PrintCell(field, left_ + element)),
                    Line(PrintCell(field, right_ + element)));
            }
        }
    }

  private:
    static std::string Line(const Node& node) {
        std::string line = node.PrintLine();
        line.pop_back();
        return line;
    }
    static std::string Shown(const Table& table, const Field& field, const std::byte* record) {
        return Line(PrintBehind(table, field, record));
    }
    // "[2][0]" for the ninth of char[..][4][..].
    static std::string Place(const Field& field, std::uint32_t index) {
        std::string place;
        for (int level = field.rank - 1; level >= 0; --level) {
            place = "[" + std::to_string(index % field.dims[level]) + "]" + place;
            index /= field.dims[level];
        }
        return place;
    }
    void Add(const Table&, const Field& field, std::size_t base, std::size_t at, std::size_t size, std::string path,
             std::string left, std::string right) {
        Difference difference{std::move(path), std::move(left), std::move(right), {{at, size}}};
        for (const Slot* slot : {&field.count, &field.capacity, &field.flag, &field.condition}) {
            if (slot->exists()) difference.parts.push_back({base + slot->offset, Width(slot->cell)});
        }
        differences.push_back(std::move(difference));
    }
    static std::size_t Width(Cell cell) { return cell == Cell::Record ? 0 : build::SizeOf(cell); }

    const std::byte* left_;
    const std::byte* right_;
};

std::string PackedText(const Command& command, const std::vector<std::byte>& records) {
    std::string text;
    for (std::size_t room = std::size_t{1} << 16; room <= (std::size_t{1} << 28); room *= 8) {
        text.assign(room, '\0');
        const Outcome outcome = RunPack(command, {records.data(), static_cast<std::uint32_t>(records.size()),
                                                  text.data(), static_cast<std::uint32_t>(room)});
        if (outcome == Outcome::TextTooLong) continue;
        text.resize(outcome == Outcome::Done ? std::strlen(text.c_str()) : 0);
        return text;
    }
    return {};
}

Result Diff(const Command& command, std::string_view leftText, std::string_view rightText) {
    const Table& table = *command.table;
    Side left(leftText), right(rightText);
    if (!left.Parse(command, "the first") || !right.Parse(command, "the second"))
        return {kRefused, {}, "orrery: " + (left.error.empty() ? right.error : left.error) + "\n"};
    Result result;
    const std::uint32_t records = std::min(left.records, right.records);
    if (left.records != right.records) {
        result.out += "records: " + std::to_string(left.records) + " -> " + std::to_string(right.records) + "\n";
        result.exit = kFound;
    }
    // So that both are packed alike.
    left.bytes.resize(std::size_t{records} * table.size);
    Compare compare(left.bytes.data(), right.bytes.data());
    for (std::uint32_t i = 0; i < records; ++i)
        compare.Records(table, std::size_t{i} * table.size, records > 1 ? "[" + std::to_string(i) + "]." : "");
    if (compare.differences.empty()) return result;
    result.exit = kFound;
    const std::string packed = command.packs() ? PackedText(command, left.bytes) : std::string();
    for (const Difference& difference : compare.differences) {
        result.out += difference.path + ": " + difference.left + " -> " + difference.right;
        if (!packed.empty()) {
            std::vector<std::byte> changed = left.bytes;
            for (const Part& part : difference.parts)
                std::memcpy(changed.data() + part.offset, right.bytes.data() + part.offset, part.size);
            if (PackedText(command, changed) == packed) result.out += "  (no device would notice)";
        }
        result.out += '\n';
    }
    return result;
}

} // namespace

Result DiffTexts(std::string_view name, std::string_view left, std::string_view right) {
    const Command* const command = FindCommand(name);
    if (command == nullptr) return {kRefused, {}, "orrery: " + UnknownCommand(name) + "\n"};
    if (!command->parses()) {
        return {kRefused, {}, "orrery: " + ExplainParse(*command, Outcome::UnknownCommand, Document({}), 0) + "\n"};
    }
    try {
        return Diff(*command, left, right);
    } catch (const FillError& error) {
        return {kRefused, {}, std::string("orrery: ") + error.what() + "\n"};
    } catch (const std::bad_alloc&) {
        return {kRefused, {}, "orrery: out of memory\n"};
    }
}

} // namespace orrery::tool

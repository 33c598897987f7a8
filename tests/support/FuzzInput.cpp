#include "support/FuzzInput.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <array>
#include <bit>
#include <map>
#include <memory>
#include <new>
#include <sanitizer/asan_interface.h>
#include <vector>

namespace orrery::test {

std::uint32_t FuzzNumberOf(std::string_view commandName) {
    std::uint32_t number = 2166136261u; // FNV-1a
    for (const char c : commandName)
        number = (number ^ static_cast<unsigned char>(c)) * 16777619u;
    return number;
}

const Command& FuzzCommand(std::uint32_t number) {
    static const auto commands = [] {
        std::map<std::uint32_t, Command> byNumber;
        for (const Command& command : AllCommands())
            byNumber.emplace(FuzzNumberOf(command.name), command);
        return byNumber;
    }();
    const auto command = commands.lower_bound(number);
    return command == commands.end() ? commands.begin()->second : command->second;
}

std::optional<std::size_t> FirstItems(const record::Table& table) {
    if (BareItemsBehind(table) != nullptr) return 0;
    for (const record::Field& field : table) {
        if (field.cell != record::Cell::Record) continue;
        if (const auto inside = FirstItems(*field.table)) return field.offset + *inside;
    }
    return std::nullopt;
}

void RaiseCounts(const record::Table& table, std::byte* record) {
    for (const record::Field& field : table) {
        if (field.count.exists() && record::LoadSlot(field.count, record) == 0)
            record::StoreSlot(field.count, record, 1);
        if (field.cell == record::Cell::Record && field.size > 0) RaiseCounts(*field.table, record + field.offset);
    }
}

// Bytes of a power of two, all of them out of bounds but while a block has them.
struct FuzzBlock::Room {
    static constexpr std::size_t kEdge = 64; // on both sides of what is handed out

    explicit Room(unsigned sizeLog2) : log2(sizeLog2), bytes(new (kAligned) std::byte[size()]) { Close(); }
    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;
    ~Room() {
        ASAN_UNPOISON_MEMORY_REGION(bytes, size());
        operator delete[](bytes, kAligned);
    }
    std::size_t size() const { return (std::size_t{1} << log2) + 2 * kEdge; }
    void Close() { ASAN_POISON_MEMORY_REGION(bytes, size()); }

    static constexpr std::align_val_t kAligned{16};
    unsigned log2;
    std::byte* bytes;
};

namespace {

using Rooms = std::vector<std::unique_ptr<FuzzBlock::Room>>;

// Those that no block has, by their size.
std::array<Rooms, 64>& FreeRooms() {
    thread_local std::array<Rooms, 64> rooms;
    return rooms;
}

} // namespace

FuzzBlock::FuzzBlock(std::size_t size, std::size_t skew) {
    const auto log2 = static_cast<unsigned>(std::bit_width(size + skew));
    Rooms& rooms = FreeRooms()[log2];
    if (rooms.empty()) rooms.push_back(std::make_unique<Room>(log2));
    room_ = rooms.back().release();
    rooms.pop_back();
    at_ = room_->bytes + Room::kEdge + skew;
    ASAN_UNPOISON_MEMORY_REGION(at_, size);
}

FuzzBlock::~FuzzBlock() {
    if (room_ == nullptr) return;
    room_->Close();
    FreeRooms()[room_->log2].emplace_back(room_);
}

} // namespace orrery::test

// The second road of reading: members go from the text straight into the record, where a document of them would only be
// made to be read once.
//
// It runs the same tables as the document's road and gives the same records. A value that a table's words do not cover
// becomes a small document of its own; what a table cannot take at all as it comes, a key twice above all, ends the
// road, and whoever took it puts the record back and reads the document.
#pragma once

#include "frame/record/Engine.h"

namespace orrery::record {

struct Asides;

struct TextCall {
    ReadCall& call;
    const char* end; // of the text

    Asides* asides = nullptr;  // of the object that is being read, or of one around it
    Asides* waiting = nullptr; // those that are finished when the reply has turned out good, the last one first
    bool keepsRows = false;    // the record is too large to be kept as a whole: row by row

    Arena& arena() const noexcept { return call.parser.text().arena(); }
};

// The value of a key that no row reads.
struct Unread {
    const Table& table;
    const Field* row;     // that has the key; null for a key of the table's own object that no row has
    std::string_view key; // of no row
    std::byte* record;
};

// Of larger members the elements are kept one by one, as they come.
inline constexpr std::uint32_t kKeptWhole = 2 << 10;

// What of a record is kept at once: all rows but large ones, flags and counts among them.
class KeptRuns {
  public:
    struct Run {
        std::uint32_t offset, size;
    };

    consteval explicit KeptRuns(const Table& table) {
        std::uint32_t end = 0;
        for (std::uint16_t i = 0; i < table.rowCount; ++i) {
            const Field& row = table.rows[i];
            if (row.size > kKeptWhole || row.size == 0) continue;
            if (count_ == 0 || row.offset != end) runs_[count_++] = {row.offset, 0}; // too many do not compile
            runs_[count_ - 1].size += row.size;
            end = row.offset + row.size;
        }
    }
    bool Keep(std::byte* record, const ReadCall& call) const noexcept {
        for (std::uint16_t i = 0; i < count_; ++i) {
            if (!call.Keep(record + runs_[i].offset, runs_[i].size)) return false;
        }
        return true;
    }

  private:
    Run runs_[16]{};
    std::uint16_t count_ = 0;
};

// What a table's afterRead asks of its object, while that is read from the text. It lies in the call's arena.
struct Asides {
    std::byte* record;
    // Takes or skips a value of the object, or of objects inside it. The byte behind it; null when there is no way on.
    const char* (*take)(Asides& asides, const Unread& unread, const char* p, TextCall& text) noexcept;
    // Does what afterRead does.
    void (*finish)(Asides& asides, ReadCall& call) noexcept;
    const KeptRuns* runs; // of the table
    Asides* next = nullptr;
};

// Whether objects of this table are read from the text with the help of what is kept aside.
constexpr bool HasAsides(const Table& table) {
    return table.asides != nullptr && table.shape == Shape::Object && table.self.count == 0 && table.fromRoot.count == 0
           && table.amongKeys == nullptr && !table.guarded && table.members.count <= kMostInText;
}
// Whether what reading such an object touches can be kept row by row.
constexpr bool IsKeptByRow(const Table& table) {
    return HasAsides(table) && !table.hasDefaults && !table.clearsFlags && table.suppliedCount == 0
           && table.memberName == nullptr;
}
// Finishes all that wait for the reply to turn out good.
void FinishAsides(TextCall& text) noexcept;

// The rows alone of the object at `p`, kept where the record around it is; what its table's afterRead does is left to
// whoever asks. Of tables that start at zero.
const char* ReadMembersText(const Table& table, const KeptRuns& runs, const char* p, std::byte* record,
                            TextCall& text) noexcept;

// The value at `p`, whatever it is, as a document. The byte behind it; null when it is no JSON.
const char* ReadAside(const char* p, json::Value& value, TextCall& text) noexcept;

// Whether objects, or tuples, of this table are read from the text. Others become documents one by one.
constexpr bool IsInText(const Table& table) {
    if (table.shape == Shape::Object) return table.inText && table.self.count == 0;
    return table.inText && table.self.count <= kMostInTuple && table.fromRoot.count == 0;
}

// Reads a record from the value at `p`, as ReadRecord does. The byte behind the value; null when there is no way on,
// and any part of the record may have been read.
const char* ReadRecordText(const Table& table, const char* p, std::byte* record, TextCall& text,
                           std::string_view memberName = {}) noexcept;

} // namespace orrery::record

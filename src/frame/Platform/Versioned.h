// The records of one call whose caller may have been compiled with another layout: the first record's size word says
// how far apart they are, and each passes through a local record of this library's own layout.
#pragma once

#include "frame/Frames.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace orrery {

// The caller's size word, which is the stride of all records of a buffer; 0 when no record can be that large. Where
// records move as blocks a word below its own size is told to the log and gives 0 too.
std::uint32_t StrideByWord(Stride how, const std::byte* first, std::uint32_t bufferSize) noexcept;

// What of a caller's record stays as it is when it is read where it stands: its pointers and their room.
struct StayingBytes {
    static constexpr std::uint32_t kMostRuns = 8;
    static constexpr std::uint32_t kMostBytes = 8; // of a run
    struct Run {
        std::uint32_t at, size;
    };
    Run runs[kMostRuns] = {};
    std::uint32_t count = 0;
    std::uint32_t end = 0; // behind the last field
};

class VersionedRecords {
  public:
    VersionedRecords(const record::Table& table, Stride how, std::uint32_t stride) noexcept
        : table_(table), how_(how), stride_(stride) {}

    // Whether records of this stride are read where they stand, once cleared, with the same result as through a local
    // one: they are large, have this library's own layout and no pointers of the caller's, and no row's function can
    // end the call and leave one as it was.
    static bool AreReadInPlace(const record::Table& table, Stride how, std::uint32_t stride) noexcept;

    // The same of records that move field by field, whose texts are ended as that way ends them. None when they are not
    // read where they stand.
    static std::optional<StayingBytes> ReadInPlaceByField(const record::Table& table, Stride how,
                                                          std::uint32_t stride) noexcept;

    // Makes the local record as reading finds it: clear, with its size words, and with the pointers of the caller's
    // record and the room behind them. What else the caller's record holds never shows through.
    void Start(const std::byte* caller, std::byte* local) const noexcept;
    // Moves what both layouts have into the caller's record; its size word stays.
    void Return(const std::byte* local, std::byte* caller) const noexcept;
    // Whether writing needs no local record: all records have this library's own layout, to the word. Where they move
    // field by field their texts must end as well, since that way cuts those that do not.
    bool areOwn(const std::byte* first, std::uint32_t count) const noexcept;
    // Makes the local record that writing goes through; each of the caller's then brings into it what both layouts
    // have.
    void Prepare(std::byte* local) const noexcept;
    void Take(const std::byte* caller, std::byte* local) const noexcept;

  private:
    const record::Table& table_;
    Stride how_;
    std::uint32_t stride_;
};

} // namespace orrery

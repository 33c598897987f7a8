// Motion detection: devices send its grid and its windows in two forms, with the bits of a grid's rows in opposite
// order.
#include "alarm/AlarmInput.h"

#include "alarm/EventHandler.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace orrery {

using namespace record;

namespace {

constexpr std::uint32_t kRows = ORRERY_MOTION_ROWS;
constexpr std::uint32_t kCols = ORRERY_MOTION_COLS;
constexpr std::int32_t kReadCols = ORRERY_MOTION_READ_COLS;

// A grid's rows in use; what a client counts beyond the grid ends at it.
std::uint32_t Clamped(std::int32_t count, std::uint32_t most) {
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(count, 0, most));
}

// The cells of a row that hold exactly 1, the leftmost in the lowest bit. Eight at a time: bytes that become zero are
// found without carrying into their neighbours, and a multiplication gathers their marks in its highest byte.
std::uint32_t RowBits(const std::byte* cells) {
    constexpr std::uint64_t kEach = 0x0101010101010101u;
    std::uint32_t bits = 0;
    for (std::uint32_t col = 0; col < kCols; col += 8) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, cells + col, sizeof eight);
        if constexpr (std::endian::native == std::endian::big) eight = __builtin_bswap64(eight);
        eight ^= kEach;
        const std::uint64_t watched = ~(((eight & 0x7F * kEach) + 0x7F * kEach) | eight) >> 7 & kEach;
        bits |= static_cast<std::uint32_t>((watched * 0x0102040810204080u) >> 56) << col;
    }
    return bits;
}

std::uint32_t Reversed(std::uint32_t bits) {
    bits = (bits >> 1 & 0x55555555u) | (bits & 0x55555555u) << 1;
    bits = (bits >> 2 & 0x33333333u) | (bits & 0x33333333u) << 2;
    bits = (bits >> 4 & 0x0F0F0F0Fu) | (bits & 0x0F0F0F0Fu) << 4;
    return __builtin_bswap32(bits);
}

void WriteGrid(const std::byte* grid, std::uint32_t rows, std::uint32_t cols, bool lowBitFirst, WriteCall& call) {
    static_assert(kCols == 32, "a row is one word");
    call.out.BeginArray();
    for (std::uint32_t row = 0; row < rows; ++row, grid += kCols) {
        const std::uint32_t beyond = kCols - cols; // cells that the record does not count
        const std::uint32_t bits = cols == 0 ? 0 : RowBits(grid) << beyond;
        call.out.UInt(lowBitFirst ? (cols == 0 ? 0 : bits >> beyond) : Reversed(bits));
    }
    call.out.EndArray();
}

// ---- Windows ----

// Missing numbers read as 0.
constexpr TypedTable<CFG_RECT> kWindowRect = kRect.As(Shape::LooseTuple);

PART(kMotionWindow, CFG_MOTION_WINDOW,
     {
         FIELD(nThreshold, "Threshold", Int),
         FIELD(nSensitive, "Sensitive", Int),
         FIELD(stuWindow, "Window", Record(kWindowRect)),
     });

// Leftmost cell in the highest of the 22 bits.
void ReadWindowGrid(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    const std::uint32_t rows = std::min(value.size(), kRows);
    SET_MEMBER(record, CFG_MOTION_REGION_WINDOW, nRow, static_cast<std::int32_t>(rows));
    SET_MEMBER(record, CFG_MOTION_REGION_WINDOW, nCol, kReadCols);
    for (std::uint32_t row = 0; row < rows; ++row) {
        const std::uint32_t bits = value[row].asUInt();
        std::byte* const cells = record + field.offset + row * kCols;
        for (std::int32_t col = 0; col < kReadCols; ++col) {
            cells[col] = static_cast<std::byte>((bits >> (kReadCols - 1 - col)) & 1);
        }
    }
}

void WriteWindowGrid(const Field& field, const std::byte* record, WriteCall& call) {
    const std::uint32_t rows = Clamped(MEMBER(record, CFG_MOTION_REGION_WINDOW, nRow), kRows);
    if (rows == 0) return;
    call.Key();
    WriteGrid(record + field.offset, rows, Clamped(MEMBER(record, CFG_MOTION_REGION_WINDOW, nCol), kCols), false, call);
}

constexpr CustomCodec kWindowGrid{ReadWindowGrid, WriteWindowGrid, "[4194303,5,0]"};

PART(kMotionRegionWindow, CFG_MOTION_REGION_WINDOW,
     {
         FIELD(nId, "Id", Int),
         FIELD(szName, "Name", Text),
         FIELD(nThreshold, "Threshold", Int),
         FIELD(nSensitive, "Sensitive", Int),
         FIELD(nRow),
         FIELD(nCol),
         FIELD(byRegion, "Region", Custom(kWindowGrid)).Count(AT(nRow)),
     });

constexpr std::size_t kWindowsAt = offsetof(CFG_MOTION_DETECT_INFO, stuWindow);
constexpr std::size_t kRegionWindowsAt = offsetof(CFG_MOTION_DETECT_INFO, stuRegionWindow);

// An element may have either form or both; they fill different arrays at the same index.
void ReadWindows(const Field&, const json::Value& value, std::byte* record, ReadCall& call) {
    const std::uint32_t count = std::min(value.size(), std::uint32_t{ORRERY_MOTION_WINDOWS});
    const auto number = static_cast<std::int32_t>(count);
    for (std::uint32_t i = 0; i < count; ++i) {
        const json::Value& element = value[i];
        if (element["Region"].type() == json::Type::Array) {
            SET_MEMBER(record, CFG_MOTION_DETECT_INFO, abRegionWindow, 1);
            SET_MEMBER(record, CFG_MOTION_DETECT_INFO, nRegionWindowNum, number);
            ReadFields(kMotionRegionWindow, element, record + kRegionWindowsAt + i * sizeof(CFG_MOTION_REGION_WINDOW),
                       call);
        }
        if (!element["Window"].isNull()) {
            SET_MEMBER(record, CFG_MOTION_DETECT_INFO, abWindow, 1);
            SET_MEMBER(record, CFG_MOTION_DETECT_INFO, nWindowNum, number);
            ReadFields(kMotionWindow, element, record + kWindowsAt + i * sizeof(CFG_MOTION_WINDOW), call);
        }
    }
}

// Both forms go to one list, element by element; where both have a key the grid's stands.
void WriteWindows(const Field&, const std::byte* record, WriteCall& call) {
    const bool hasWindows = MEMBER(record, CFG_MOTION_DETECT_INFO, abWindow) != 0;
    const bool hasRegions = MEMBER(record, CFG_MOTION_DETECT_INFO, abRegionWindow) != 0;
    const std::int32_t windowNum = MEMBER(record, CFG_MOTION_DETECT_INFO, nWindowNum);
    const std::int32_t regionNum = MEMBER(record, CFG_MOTION_DETECT_INFO, nRegionWindowNum);
    const std::uint32_t windows = hasWindows ? Clamped(windowNum, ORRERY_MOTION_WINDOWS) : 0;
    const std::uint32_t regions = hasRegions ? Clamped(regionNum, ORRERY_MOTION_WINDOWS) : 0;
    const std::uint32_t count = std::max(windows, regions);
    // An empty list tells the device to drop its windows, but only from a client that deals in them.
    if (count == 0 && !(hasWindows && windowNum <= 0 && regionNum <= 0)) return;

    call.Key();
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::byte* const window = record + kWindowsAt + i * sizeof(CFG_MOTION_WINDOW);
        if (i >= regions) {
            WriteRecord(kMotionWindow, window, call);
            continue;
        }
        OpenObject element{call.object, {}, false};
        call.object = &element;
        WriteFields(kMotionRegionWindow, record + kRegionWindowsAt + i * sizeof(CFG_MOTION_REGION_WINDOW), call);
        if (i < windows) {
            call.Quoted("\"Window\" : "); // behind all keys of a grid
            WriteRecord(kWindowRect, window + offsetof(CFG_MOTION_WINDOW, stuWindow), call);
        }
        call.object = element.parent;
        call.out.EndObject();
    }
    call.out.EndArray();
}

constexpr CustomCodec kWindows{
    ReadWindows, WriteWindows,
    R"([{"Id":1,"Name":"Yard","Region":[7,4194303],"Sensitive":60,"Threshold":5,"Window":[0,0,21,17]}])"};

// ---- The grid of the whole picture ----

bool IsWholePicture(const std::byte* record) {
    return MEMBER(record, CFG_MOTION_DETECT_INFO, abRegionWindow) == 0;
}

// Leftmost cell in the lowest bit, all 32 of them.
void ReadGrid(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    if (!value.isArray()) return;
    const std::uint32_t rows = std::min(value.size(), kRows);
    for (std::uint32_t row = 0; row < rows; ++row) {
        const std::uint32_t bits = value[row].asUInt();
        std::byte* const cells = record + field.offset + row * kCols;
        for (std::uint32_t col = 0; col < kCols; ++col)
            cells[col] = static_cast<std::byte>((bits >> col) & 1);
    }
}

void WriteWholeGrid(const Field& field, const std::byte* record, WriteCall& call) {
    const std::uint32_t rows = Clamped(MEMBER(record, CFG_MOTION_DETECT_INFO, nRow), kRows);
    if (rows == 0) return;
    call.Key();
    WriteGrid(record + field.offset, rows, Clamped(MEMBER(record, CFG_MOTION_DETECT_INFO, nCol), kCols), true, call);
}

constexpr CustomCodec kGrid{ReadGrid, WriteWholeGrid, "[4194303,5,0]"};

// "Row" and "Col" tell the grid's size; without them it is the list's length by 22.
void FillGridSize(const json::Value& table, std::byte* record, ReadCall&) {
    const json::Value& region = table["Region"];
    if (region.type() != json::Type::Array) return;
    if (table["Row"].isNull()) {
        SET_MEMBER(record, CFG_MOTION_DETECT_INFO, nRow, static_cast<std::int32_t>(std::min(region.size(), kRows)));
    }
    if (table["Col"].isNull()) SET_MEMBER(record, CFG_MOTION_DETECT_INFO, nCol, kReadCols);
}

void WriteVersion(const Field&, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.String(IsWholePicture(record) ? "V1.0" : "V3.0");
}

constexpr CustomCodec kVersion{nullptr, WriteVersion};

} // namespace

void MarkMotionDetectRead(std::byte* record) {
    SET_MEMBER(record, CFG_MOTION_DETECT_INFO, bRead, 1);
}

TABLE(kMotionDetect, CFG_MOTION_DETECT_INFO,
      {
          MakeVirtual("DetectVersion", Custom(kVersion)),
          FIELD(nChannel),
          FIELD(bEnable, "Enable", Bool),
          FIELD(nLevel, "Level", Int).SetsAndNeeds(AT(abLevel)).WriteIf(IsWholePicture),
          FIELD(nRow, "Row", Int).WriteAtMost(ORRERY_MOTION_ROWS).WriteIf(IsWholePicture),
          FIELD(nCol, "Col", Int).WriteAtMost(ORRERY_MOTION_COLS).WriteIf(IsWholePicture),
          FIELD(byRegion, "Region", Custom(kGrid)).Count(AT(nRow)).WriteIf(IsWholePicture),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerWeek)),
          FIELD(bRead),
          FIELD(abLevel),
          FIELD(abVolumeRatio),
          FIELD(nVolumeRatio, "VolumeRatio", Int).SetsAndNeeds(AT(abVolumeRatio)),
          FIELD(abSubRatio),
          FIELD(nSubRatio, "SubRatio", Int).SetsAndNeeds(AT(abSubRatio)),
          FIELD(abWindow),
          FIELD(nWindowNum),
          FIELD(stuWindow, nullptr, Record(kMotionWindow)).Count(AT(nWindowNum)),
          FIELD(abRegionWindow),
          FIELD(nRegionWindowNum),
          FIELD(stuRegionWindow, nullptr, Record(kMotionRegionWindow)).Count(AT(nRegionWindowNum)),
          MakeVirtual("MotionDetectWindow", Custom(kWindows)),
      })
    .AfterRead(FillGridSize);

} // namespace orrery

#include "frame/record/ReadWeek.h"

#include <algorithm>

namespace orrery::record {

namespace {

// Where a row keeps its sections, day after day.
struct Days {
    std::byte* first;
    std::uint32_t rows;
    std::uint32_t columns;
};

bool ReadSections(const Days& into, const char* p, TextCall& text, Week& week) noexcept {
    const bool isSame = week.after != nullptr && week.days.areFull && week.columns == into.columns;
    if (isSame && week.rows >= std::min(into.rows, week.days.count)) {
        week.rows = std::min(into.rows, week.days.count);
        std::memcpy(into.first, week.sections, std::size_t{week.rows} * week.columns * sizeof(CFG_TIME_SECTION));
        return true;
    }
    auto* const sections = reinterpret_cast<CFG_TIME_SECTION*>(into.first);
    week.after = JsonParser::ReadUsualDays(p, text.end, text.arena(), sections, into.rows, into.columns, week.days);
    if (week.after == nullptr) return false;
    week.sections = into.first;
    week.columns = into.columns;
    week.rows = std::min(into.rows, week.days.count);
    return true;
}

} // namespace

bool ReadWeek(const Table& table, const Node& node, const char* p, std::byte* record, TextCall& text,
              Week& week) noexcept {
    if (text.call.refused) return false;
    const Field& row = table.rows[node.row];
    std::byte* const at = record + row.offset;
    if (row.kind != Kind::HolidaySchedule) {
        if (!ReadSections({at, row.dims[0], row.dims[1]}, p, text, week)) return false;
        StoreSlot(row.count, record, row.countUncapped ? week.days.count : week.rows);
    } else {
        std::memset(at, 0, sizeof(CFG_TIME_SCHEDULE));
        constexpr std::size_t kSections = offsetof(CFG_TIME_SCHEDULE, stuTimeSection);
        if (!ReadSections({at + kSections, ORRERY_SCHEDULE_DAYS, ORRERY_DAY_SECTIONS}, p, text, week)) return false;
        const std::int32_t hasHoliday = week.rows == ORRERY_SCHEDULE_DAYS;
        Store(at + offsetof(CFG_TIME_SCHEDULE, bEnableHoliday), hasHoliday);
    }
    StoreSlot(row.flag, record, 1);
    return true;
}

} // namespace orrery::record

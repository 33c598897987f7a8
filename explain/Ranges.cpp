#include "explain/Ranges.h"

#include "Commands.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "explain/headers/HeaderWords.h"

#include <bit>
#include <unordered_set>
#include <utility>
#include <vector>

namespace orrery::explain {

using namespace record;

namespace {

// By row: names are looked up once, not for each number of each text.
class Ranges {
  public:
    Ranges() {
        for (const Command& command : Commands()) {
            Meet(command.table);
            Meet(command.otherTable);
        }
        for (const events::EventRow& event : events::Events())
            Meet(event.table);
        for (const RuleBody& rule : RuleBodies())
            Meet(rule.table);
        for (const events::TypedRow& typed : events::TypedRows())
            Meet(typed.table);
        for (const TemplateRow& row : Templates())
            Meet(row.table);
        met_.clear();
        // At the most half of the slots are taken, so that a look for what has none ends soon.
        slots_.resize(std::bit_ceil(2 * ranges_.size() + 1));
        mask_ = slots_.size() - 1;
        for (const auto& [field, range] : ranges_) {
            std::size_t at = PlaceOf(field);
            while (slots_[at].field != nullptr)
                at = Behind(at);
            slots_[at] = {field, range};
        }
        ranges_.clear();
    }

    const Range* Find(const Field& field) const {
        for (std::size_t at = PlaceOf(&field);; at = Behind(at)) {
            const Slot& slot = slots_[at];
            if (slot.field == &field || slot.field == nullptr) return slot.field == nullptr ? nullptr : &slot.range;
        }
    }

  private:
    // Tables nest as deep as records do, a handful of levels.
    void Meet(const Table* table) {
        if (table == nullptr || !met_.insert(table).second) return;
        const headers::Record* const words = headers::FindRecord(table->record);
        for (const Field& field : *table) {
            if (field.table != nullptr) Meet(field.table);
            const bool isNumber = field.kind == Kind::Int || field.kind == Kind::UInt || field.kind == Kind::Real;
            if (words == nullptr || !isNumber || !field.readable) continue;
            const headers::Member* const member = words->Find(field.name);
            if (member != nullptr && member->hasRange) ranges_.emplace_back(&field, Range{member->low, member->high});
        }
    }

    struct Slot {
        const Field* field = nullptr;
        Range range{};
    };
    std::size_t PlaceOf(const Field* field) const {
        return (reinterpret_cast<std::uintptr_t>(field) / alignof(Field) * 0x9E3779B97F4A7C15u >> 32) & mask_;
    }
    std::size_t Behind(std::size_t place) const { return (place + 1) & mask_; }

    std::unordered_set<const Table*> met_;
    std::vector<std::pair<const Field*, Range>> ranges_;
    std::vector<Slot> slots_; // a power of two
    std::size_t mask_ = 0;
};

} // namespace

const Range* RangeOf(const Field& field) {
    static const Ranges ranges; // at first use: where rows lie, no compiler knows
    return ranges.Find(field);
}

} // namespace orrery::explain

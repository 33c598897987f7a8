#include "explain/Ranges.h"

#include "Commands.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "explain/headers/HeaderWords.h"

#include <unordered_map>
#include <unordered_set>

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
    }

    const Range* Find(const Field& field) const {
        const auto found = ranges_.find(&field);
        return found == ranges_.end() ? nullptr : &found->second;
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
            if (member != nullptr && member->hasRange) ranges_.emplace(&field, Range{member->low, member->high});
        }
    }

    std::unordered_set<const Table*> met_;
    std::unordered_map<const Field*, Range> ranges_;
};

} // namespace

const Range* RangeOf(const Field& field) {
    static const Ranges ranges;
    return ranges.Find(field);
}

} // namespace orrery::explain

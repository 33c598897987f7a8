// Values for functions that bring none of their own.
#include "orrery/Samples.h"
#include "orrery/Tables.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace orrery::tool {
namespace {

// One whose row has another key by now, or whose function brings its own, would say nothing of anything.
TEST(Samples, EachIsOfARowThatHasNoneOfItsOwn) {
    std::set<std::pair<std::string_view, std::string_view>> told;
    for (const record::Table* const table : Tables().all) {
        for (const record::Field& field : *table) {
            if (field.custom == nullptr || field.custom->sample != nullptr || field.key == nullptr) continue;
            if (SampleOf(*table, field) != nullptr) told.emplace(table->record, field.key);
        }
    }
    EXPECT_EQ(told.size(), SamplesToldHere());
}

} // namespace
} // namespace orrery::tool

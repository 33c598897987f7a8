#include "explain/Finding.h"

#include <algorithm>
#include <numeric>

namespace orrery::explain {

namespace {

std::string Folded(std::string_view text) {
    std::string folded(text);
    for (char& c : folded)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return folded;
}

// Insertions, removals and replacements between two texts.
std::size_t Distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t k = 0; k < right.size(); ++k) {
            const std::size_t replaced = diagonal + (left[i] != right[k]);
            diagonal = row[k + 1];
            row[k + 1] = std::min({replaced, row[k] + 1, row[k + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::vector<std::string_view> Nearest(std::string_view wanted, const std::vector<std::string_view>& names) {
    constexpr std::size_t kMost = 3;
    const std::string key = Folded(wanted.substr(0, 256));
    const std::size_t farthest = std::max<std::size_t>(2, key.size() * 2 / 5);
    std::vector<std::pair<std::size_t, std::string_view>> near;
    for (const std::string_view name : names) {
        const std::string folded = Folded(name);
        const std::size_t distance = Distance(key, folded);
        if (distance <= farthest && distance < folded.size())
            near.emplace_back(distance, name);
        else if (key.size() >= 3 && folded.find(key) != std::string::npos)
            near.emplace_back(farthest + 1, name); // a part of the name
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string_view> nearest;
    for (const auto& [distance, name] : near) {
        if (nearest.size() < kMost && std::find(nearest.begin(), nearest.end(), name) == nearest.end())
            nearest.push_back(name);
    }
    return nearest;
}

} // namespace orrery::explain

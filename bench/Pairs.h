// How two calls are compared: in pairs, by the thread's own processor time.
#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace orrery::bench {

// What this thread has had of a processor, so that other programs' turns do not count.
inline double ThreadSeconds() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

inline double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

// Runs `count` calls, text after text in rotation from `first`; returns the seconds that a call took.
template <class Call>
double Run(Call& call, std::size_t variants, std::size_t first, std::size_t count) {
    std::size_t i = first % variants;
    const double start = ThreadSeconds();
    for (std::size_t k = 0; k < count; ++k) {
        benchmark::DoNotOptimize(call(i));
        if (++i == variants) i = 0;
    }
    return (ThreadSeconds() - start) / static_cast<double>(count);
}

struct Ratio {
    double ratio; // theirs to ours: above 1 ours is faster
    double ours;  // seconds a call
    double theirs;
};

class Table {
  public:
    Table(bool quick, std::string only)
        : pairs_(quick ? 3 : 101), time_(quick ? 0.0002 : 0.002), only_(std::move(only)) {}

    // Ours and theirs in turn, each pair over the same texts, so that a machine that slows down slows both; the ratio
    // is the median of the pairs' own. Before each sample one call goes untimed: what the other side left of the caches
    // and of the heap is not what a sample is about.
    template <class Ours, class Theirs>
    Ratio Compare(std::size_t variants, Ours ours, Theirs theirs) const {
        // Once through all texts, to warm up and to find how many calls make a sample.
        const double once = std::max(Run(ours, variants, 0, variants), Run(theirs, variants, 0, variants));
        const auto count = static_cast<std::size_t>(std::max(1.0, time_ / once));
        const double sample = 2 * once * static_cast<double>(count + 1);
        const auto pairs = std::clamp<std::size_t>(static_cast<std::size_t>(kMostSeconds / sample), 3, pairs_);
        std::vector<double> a, b, ratios;
        for (std::size_t pair = 0; pair < pairs; ++pair) {
            Run(ours, variants, pair * count + variants - 1, 1);
            a.push_back(Run(ours, variants, pair * count, count));
            Run(theirs, variants, pair * count + variants - 1, 1);
            b.push_back(Run(theirs, variants, pair * count, count));
            ratios.push_back(b.back() / a.back());
        }
        return {Median(ratios), Median(a), Median(b)};
    }

    template <class Ours, class Theirs>
    void Line(const std::string& name, double bar, std::size_t variants, Ours ours, Theirs theirs) const {
        if (Wants(name)) Print(name, Compare(variants, ours, theirs), bar);
    }

    static void Print(const std::string& name, const Ratio& r, double bar) {
        std::printf("%-44s %7.2f   ", name.c_str(), r.ratio);
        if (bar > 0)
            std::printf("bar %5.2f %-6s", bar, r.ratio >= bar ? "met" : "MISSED");
        else
            std::printf("%-16s", "no bar");
        std::printf("   %10.0f ns %10.0f ns\n", r.ours * 1e9, r.theirs * 1e9);
        std::fflush(stdout);
    }

    // Whether the run is to show the line of this name.
    bool Wants(const std::string& name) const { return name.find(only_) != std::string::npos; }
    std::size_t pairs() const { return pairs_; }
    double time() const { return time_; }

  private:
    static constexpr double kMostSeconds = 3; // for one line
    std::size_t pairs_;
    double time_;      // of a sample
    std::string only_; // a part of the names of the lines that are shown
};

// Cost per byte of a short text to that of a long one: 1 is flat, below 1 length costs extra.
inline constexpr double kFlat = 1 / 1.5;
inline constexpr double kFlatLongest = 1 / 1.3;

template <class Short, class Long>
void Flat(const Table& table, const std::string& name, std::size_t variants, double shortBytes, double longBytes,
          Short shortCall, Long longCall, double bar = kFlat) {
    if (!table.Wants(name)) return;
    Ratio r = table.Compare(variants, longCall, shortCall);
    r.ratio *= longBytes / shortBytes;
    Table::Print(name, r, bar);
}

inline double MeanSize(const std::vector<std::string>& texts) {
    double sum = 0;
    for (const auto& text : texts)
        sum += static_cast<double>(text.size());
    return sum / static_cast<double>(texts.size());
}

} // namespace orrery::bench

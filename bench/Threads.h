// What two threads get done at once to what each of them does alone.
#pragma once

#include "bench/Pairs.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <sys/resource.h>

namespace orrery::bench {

// One run of a thread, by the clock on the wall: a thread that waits for the other gets no processor time meanwhile.
struct Turn {
    double begin = 0;
    double end = 0;
    bool isWhole = false; // nobody else took the processor away meanwhile

    double seconds() const { return end - begin; }
};

inline double WallSeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// How often the system gave this thread's processor to another program. What a thread waits for by itself, as for a
// lock, is not among it.
inline long TimesTurnedOut() {
#ifdef RUSAGE_THREAD
    rusage use;
    if (getrusage(RUSAGE_THREAD, &use) == 0) return use.ru_nivcsw;
#endif
    return 0;
}

template <class Work>
Turn TakeTurn(Work work) {
    Turn turn;
    const long before = TimesTurnedOut();
    turn.begin = WallSeconds();
    work();
    turn.end = WallSeconds();
    turn.isWhole = TimesTurnedOut() == before;
    return turn;
}

// Whether both ran at the same time, but for what one may be slower.
inline bool Overlap(const Turn& a, const Turn& b) {
    const double both = std::min(a.end, b.end) - std::max(a.begin, b.begin);
    return both >= 0.9 * std::min(a.seconds(), b.seconds());
}

// `first` and `second` do their work once: the sum of what each gets done beside the other to what it does alone; 2 is
// perfect. Each has its own time alone, in its own memory and, mostly, on its own processor. The threads wait for each
// other and warm up before the clock is read: how long the system takes to start a thread, which is as much as a
// hundred short calls, is not about the calls. A sample in which another program took one of the processors, or in
// which the two had but one between them, tells of that and is taken again, so long as that makes sense; `isGood` tells
// whether enough were good.
struct Together {
    double ratio = 0;
    double alone = 0; // seconds of the first
    double together = 0;
    bool isGood = false;
};
template <class First, class Second>
Together RunTogether(std::size_t samples, First first, Second second) {
    constexpr double kMostSeconds = 4; // on a machine where most samples are not good
    const double start = WallSeconds();
    struct Samples {
        std::vector<double> ratios, alone, together;

        Together Summed(bool isGood) const { return {Median(ratios), Median(alone), Median(together), isGood}; }
    } good, all;
    while (good.ratios.size() < samples && (all.ratios.size() < 3 || WallSeconds() - start < kMostSeconds)) {
        first();
        const Turn firstAlone = TakeTurn(first);
        std::atomic<int> ready = 0;
        const auto meet = [&ready] {
            ++ready;
            while (ready.load() < 2) {
            }
        };
        Turn secondAlone, secondBeside;
        std::atomic<bool> isAlone = true;
        std::thread other([&] {
            second();
            secondAlone = TakeTurn(second);
            isAlone = false;
            isAlone.notify_one();
            second();
            meet();
            secondBeside = TakeTurn(second);
        });
        isAlone.wait(true); // asleep
        first();
        meet();
        const Turn firstBeside = TakeTurn(first);
        other.join();
        const auto keep = [&](Samples& to) {
            to.ratios.push_back(firstAlone.seconds() / firstBeside.seconds()
                                + secondAlone.seconds() / secondBeside.seconds());
            to.alone.push_back(firstAlone.seconds());
            to.together.push_back(firstBeside.seconds());
        };
        keep(all);
        if (firstAlone.isWhole && secondAlone.isWhole && firstBeside.isWhole && secondBeside.isWhole
            && Overlap(firstBeside, secondBeside))
            keep(good);
    }
    const bool isEnough = good.ratios.size() >= std::min<std::size_t>(samples, 3);
    return isEnough ? good.Summed(true) : all.Summed(false);
}

// Of a call over the records of two benches.
template <class Make, class Call>
void ThreadsLine(const Table& table, const std::string& name, Make make, Call call) {
    if (!table.Wants(name)) return;
    constexpr double kBar = 1.95;
    auto one = make();
    // What a thread asks for itself lies apart from what another one has. In one block behind the other the end of this
    // one's text would lie in a pair of cache lines, which processors fetch together, with the begin of the other's.
    std::optional<decltype(make())> theirs;
    std::thread([&] { theirs.emplace(make()); }).join();
    auto& two = *theirs;
    const auto run = [&](auto& bench, std::size_t count) {
        auto bound = [&](std::size_t i) { return call(bench, i); };
        return Run(bound, bench.records.size(), 0, count);
    };
    // The first calls touch memory for the first time and take several times as long.
    run(one, 20);
    const auto count = static_cast<std::size_t>(std::max(1.0, table.time() / run(one, 20)));
    const Together both = RunTogether(
        table.pairs(), [&] { run(one, count); }, [&] { run(two, count); });
    const double calls = static_cast<double>(count);
    Table::Print(name, {both.ratio, both.together / calls, both.alone / calls}, both.isGood ? kBar : 0);
    if (!both.isGood) std::printf("%-44s too few samples with two processors to themselves\n", "");
}

} // namespace orrery::bench

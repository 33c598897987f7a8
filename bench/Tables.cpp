#include "bench/Tables.h"

#include "bench/Calls.h"
#include "bench/Companion.h"
#include "bench/Events.h"
#include "bench/Explains.h"
#include "bench/Heap.h"
#include "bench/Hot.h"
#include "bench/Members.h"
#include "bench/Pairs.h"
#include "bench/Readers.h"
#include "bench/Rules.h"
#include "bench/Threads.h"

#include <algorithm>
#include <cstdio>

namespace orrery::bench {

namespace {

void Readers(const Table& table, const std::string& size, ReaderBench& bench, double rapidjson, double jsoncpp) {
    const std::size_t variants = bench.texts.size();
    const std::string prefix = "reader." + size + '.';
    table.Line(prefix + "rapidjson", rapidjson, variants, bench.orrery, bench.rapidjson);
    table.Line(prefix + "rapidjson_insitu", 0, variants, bench.orrery, bench.rapidjsonInSitu);
    table.Line(prefix + "simdjson", 0, variants, bench.orrery, bench.simdjson);
    table.Line(prefix + "simdjson_ondemand_all_values", 0, variants, bench.orrery, bench.simdjsonOnDemand);
    table.Line(prefix + "nlohmann", 0, variants, bench.orrery, bench.nlohmann);
    table.Line(prefix + "jsoncpp", jsoncpp, variants, bench.orrery, bench.jsoncpp());
}

// A pack of the commands that cost most takes at most a fifth of building and writing the same document.
constexpr double kPackBar = 5;

template <class R>
void Calls(const Table& table, CallBench<R>& bench, double bar) {
    const std::string name = bench.command;
    const std::size_t texts = bench.texts.size(), records = bench.records.size();
    const auto parse = [&](std::size_t i) { return bench.Parse(i); };
    table.Line(name + ".parse.rapidjson_text_and_clear", bar, texts, parse,
               [&](std::size_t i) { return bench.ParseTextAndClear(i); });
    table.Line(name + ".parse.by_hand", 0, texts, parse, [&](std::size_t i) { return bench.ParseTheirs(i); });
    table.Line(name + ".parse.clearing_alone", 0, texts, parse, [&](std::size_t i) { return bench.Clear(i); });
    if (bench.packByHand == nullptr) return;
    const auto pack = [&](std::size_t i) { return bench.Pack(i); };
    table.Line(name + ".pack.rapidjson_write_and_clear", bar * kPackBar, records, pack,
               [&](std::size_t i) { return bench.WriteAndClear(i); });
    table.Line(name + ".pack.by_hand", 0, records, pack, [&](std::size_t i) { return bench.PackTheirs(i); });
    table.Line(name + ".pack.clearing_alone", 0, records, pack, [&](std::size_t i) { return bench.ClearText(i); });
}

void Events(const Table& table, EventBench& bench) {
    table.Line(
        std::string(bench.name) + ".rapidjson_text_and_clear", 1, bench.texts.size(),
        [&](std::size_t i) { return bench.Decode(i); }, [&](std::size_t i) { return bench.ParseTextAndClear(i); });
}

// "Encode" clears no record, so there is no clearing on the peer's side either.
void EncodeCalls(const Table& table, EncodeBench& bench) {
    const auto parse = [&](std::size_t i) { return bench.Parse(i); };
    const auto pack = [&](std::size_t i) { return bench.Pack(i); };
    const std::size_t texts = bench.texts.size(), records = bench.records.size();
    table.Line("Encode.parse.rapidjson_text", 1, texts, parse, [&](std::size_t i) { return bench.ParseText(i); });
    table.Line("Encode.parse.by_hand", 0, texts, parse, [&](std::size_t i) { return bench.ParseTheirs(i); });
    table.Line("Encode.pack.rapidjson_write_and_clear", kPackBar, records, pack,
               [&](std::size_t i) { return bench.WriteAndClear(i); });
    table.Line("Encode.pack.by_hand", 0, records, pack, [&](std::size_t i) { return bench.PackTheirs(i); });
}

void RuleCalls(const Table& table, RuleBench& bench) {
    const std::string name = "VideoAnalyseRule";
    const auto parse = [&](std::size_t i) { return bench.Parse(i); };
    table.Line(name + ".parse.rapidjson_text_and_clear", 1, bench.texts.size(), parse,
               [&](std::size_t i) { return bench.ParseTextAndClear(i); });
    table.Line(name + ".parse.clearing_alone", 0, bench.texts.size(), parse,
               [&](std::size_t i) { return bench.Clear(i); });
    table.Line(
        name + ".pack.rapidjson_write_and_clear", kPackBar, bench.records(),
        [&](std::size_t i) { return bench.Pack(i); }, [&](std::size_t i) { return bench.WriteAndClear(i); });
}

void Members(const Table& table, MemberBench& bench) {
    const std::string name = std::string("member.") + bench.name;
    const auto parse = [&](std::size_t i) { return bench.Parse(i); };
    table.Line(name + ".parse.rapidjson_text_and_clear", 1, bench.texts.size(), parse,
               [&](std::size_t i) { return bench.ParseTextAndClear(i); });
    // Of the commands that are written most, the parse is held to simdjson's as well.
    table.Line(name + ".parse.simdjson_and_clear", bench.packBar == kPackBar ? 1 / 1.5 : 0, bench.texts.size(), parse,
               [&](std::size_t i) { return bench.ParseSimdJsonAndClear(i); });
    // At most three times the parse, where there is nothing to tell of.
    table.Line(
        name + ".explain.parse", bench.isClean ? 1.0 / 3 : 0, bench.texts.size(),
        [&](std::size_t i) { return bench.Explain(i); }, parse);
    if (!bench.packs) return;
    table.Line(
        name + ".pack.rapidjson_write_and_clear", bench.packBar, bench.records(),
        [&](std::size_t i) { return bench.Pack(i); }, [&](std::size_t i) { return bench.WriteAndClear(i); });
    table.Line(
        name + ".pack.clearing_alone", 0, bench.records(), [&](std::size_t i) { return bench.Pack(i); },
        [&](std::size_t i) { return bench.ClearText(i); });
}

void Lengths(const Table& table) {
    constexpr int kVariants = 24;
    const Texts base = TextsOfSize(2000, kVariants);
    for (const auto& [name, size] :
         {std::pair{"20KB", 20000}, {"200KB", 200000}, {"1MB", 1000000}, {"10MB", 10000000}}) {
        if (!table.Wants(std::string("flat.reader.") + name)) continue;
        const Texts longer = TextsOfSize(static_cast<std::size_t>(size), kVariants);
        Flat(table, std::string("flat.reader.") + name, kVariants, MeanSize(base), MeanSize(longer), OrreryReader{base},
             OrreryReader{longer}, size == 10000000 ? kFlatLongest : kFlat);
    }
    auto shortAlarm = MakeLongAlarmBench(3500, kVariants);
    for (const auto& [name, size] : {std::pair{"35KB", 35000}, {"350KB", 350000}}) {
        auto longAlarm = MakeLongAlarmBench(static_cast<std::size_t>(size), kVariants);
        Flat(
            table, std::string("flat.Alarm.parse.") + name, kVariants, MeanSize(shortAlarm.texts),
            MeanSize(longAlarm.texts), [&](std::size_t i) { return shortAlarm.Parse(i); },
            [&](std::size_t i) { return longAlarm.Parse(i); });
        // The same room for both, or clearing it would be charged to the longer text alone.
        shortAlarm.room = std::size_t{64} << 10;
        const auto length = [](AlarmBench& bench) {
            bench.Pack(0);
            return static_cast<double>(std::strlen(bench.buffer.get()));
        };
        longAlarm.room = longAlarm.room > (std::size_t{64} << 10) ? longAlarm.room : std::size_t{64} << 10;
        Flat(
            table, std::string("flat.Alarm.pack.") + name, longAlarm.records.size(), length(shortAlarm),
            length(longAlarm), [&](std::size_t i) { return shortAlarm.Pack(i); },
            [&](std::size_t i) { return longAlarm.Pack(i); });
    }
}

// Cost per rule. The rule buffer grows with the rules, and so does the text buffer.
void RuleCounts(const Table& table) {
    RuleBench few(8);
    for (const int rules : {16, 32}) {
        RuleBench many(rules);
        const std::string count = std::to_string(rules) + "rules";
        Flat(
            table, "flat.VideoAnalyseRule.parse." + count, few.texts.size(), 8, rules,
            [&](std::size_t i) { return few.Parse(i); }, [&](std::size_t i) { return many.Parse(i); });
        Flat(
            table, "flat.VideoAnalyseRule.pack." + count, few.records(), 8, rules,
            [&](std::size_t i) { return few.Pack(i); }, [&](std::size_t i) { return many.Pack(i); });
    }
}

void HeapLine(const std::string& name, const HeapUse& use, bool mustBeNone) {
    std::printf("%-44s %7zu allocations %9zu bytes at most   %s\n", name.c_str(), use.allocations, use.peakBytes,
                !mustBeNone            ? "no bar"
                : use.allocations == 0 ? "bar 0 met"
                                       : "bar 0 MISSED");
}

// The worst of all variants.
template <class Call>
HeapUse Worst(std::size_t variants, Call call) {
    HeapUse worst;
    for (std::size_t i = 0; i < variants; ++i) {
        const HeapUse use = HeapUseOf([&] { call(i); });
        worst.allocations = std::max(worst.allocations, use.allocations);
        worst.peakBytes = std::max(worst.peakBytes, use.peakBytes);
    }
    return worst;
}

template <class R>
void HeapOfCalls(CallBench<R>& bench) {
    const std::string name = bench.command;
    std::size_t longest = 0;
    for (const auto& text : bench.texts)
        longest = std::max(longest, text.size());
    const bool small = longest <= 4096;
    HeapLine(name + ".parse (" + std::to_string(longest) + " B)",
             Worst(bench.texts.size(), [&](std::size_t i) { bench.Parse(i); }), small);
    if (bench.packByHand == nullptr) return;
    HeapLine(name + ".pack", Worst(bench.records.size(), [&](std::size_t i) { bench.Pack(i); }), small);
}

void HeapOfRules(RuleBench& bench) {
    HeapLine("VideoAnalyseRule.parse (" + std::to_string(bench.texts[0].size()) + " B)",
             Worst(bench.texts.size(), [&](std::size_t i) { bench.Parse(i); }), false);
    HeapLine("VideoAnalyseRule.pack", Worst(bench.records(), [&](std::size_t i) { bench.Pack(i); }), false);
}

void HeapOfEvents(EventBench& bench) {
    HeapLine(std::string(bench.name) + " (" + std::to_string(bench.texts[0].size()) + " B)",
             Worst(bench.texts.size(), [&](std::size_t i) { bench.Decode(i); }), false);
}

void HeapOfMembers(MemberBench& bench) {
    const std::string name = std::string("member.") + bench.name;
    HeapLine(name + ".parse (" + std::to_string(bench.texts[0].size()) + " B)",
             Worst(bench.texts.size(), [&](std::size_t i) { bench.Parse(i); }), false);
    if (bench.packs) HeapLine(name + ".pack", Worst(bench.records(), [&](std::size_t i) { bench.Pack(i); }), false);
}

void HeapOfReaders(const std::string& size, std::size_t bytes) {
    ReaderBench bench(bytes, 12);
    const std::size_t variants = bench.texts.size();
    HeapLine("reader." + size + ".orrery", Worst(variants, bench.orrery), bytes <= 4096);
    HeapLine("reader." + size + ".rapidjson", Worst(variants, bench.rapidjson), false);
    HeapLine("reader." + size + ".simdjson", Worst(variants, bench.simdjson), false);
    HeapLine("reader." + size + ".nlohmann", Worst(variants, bench.nlohmann), false);
    HeapLine("reader." + size + ".jsoncpp", Worst(variants, bench.jsoncpp()), false);
}

} // namespace

void PrintTables(bool quick, const std::string& only) {
    const Table table(quick, only);
    auto alarm = MakeAlarmBench(48);
    auto motion = MakeMotionBench(48);
    auto switches = MakeSwitchBench(48);
    auto caps = MakeCapsBench(48);
    auto encode = MakeEncodeBench(24);
    RuleBench rules(32);
    auto junction = MakeJunctionBench(48);
    auto manyEvents = MakeManyEventsBench(24);
    auto typed = MakeTypedBench(24);

    if (only.empty()) {
        std::printf("\nheap use of one call, the worst of its texts\n\n");
        HeapOfCalls(alarm);
        HeapOfCalls(motion);
        HeapOfCalls(switches);
        HeapOfCalls(caps);
        HeapOfCalls(encode);
        HeapOfRules(rules);
        HeapOfEvents(junction);
        HeapOfEvents(manyEvents);
        HeapOfEvents(typed);
        for (const MemberRow& row : MemberRows()) {
            MemberBench bench(row);
            HeapOfMembers(bench);
        }
        HeapOfReaders("200B", 200);
        HeapOfReaders("2KB", 2000);
        HeapOfReaders("4KB", 3900);
        HeapOfReaders("60KB", 60000);
        HeapOfReaders("1MB", 1000000);
    }
    PrintHeapBars(only);
    PrintSystemCalls(only);

    std::printf("\nname and ratio, peer's time to ours: above 1 is faster than the peer; then ours and the peer's\n\n");
    {
        ReaderBench tiny(200, 48), small(2000, 48), middle(60000, 48), large(1000000, 24);
        Readers(table, "200B", tiny, 1, 0);
        Readers(table, "2KB", small, 2, 15);
        Readers(table, "60KB", middle, 2, 15);
        Readers(table, "1MB", large, 2, 15);
    }
    Calls(table, alarm, 1);
    Calls(table, motion, 0);
    Calls(table, switches, 0);
    Calls(table, caps, 0);
    EncodeCalls(table, encode);
    RuleCalls(table, rules);
    Events(table, junction);
    Events(table, manyEvents);
    Events(table, typed);
    for (const MemberRow& row : MemberRows()) {
        MemberBench bench(row);
        Members(table, bench);
    }
    PrintExplains(table, !only.empty());
    PrintCompanion(table);
    HotLines(table, alarm, encode, rules, junction, manyEvents);
    Lengths(table);
    RuleCounts(table);
    const auto makeAlarm = [] { return MakeAlarmBench(3); };
    const auto makeEncode = [] { return MakeEncodeBench(3); };
    const auto parse = [](auto& bench, std::size_t i) { return bench.Parse(i); };
    const auto pack = [](auto& bench, std::size_t i) { return bench.Pack(i); };
    ThreadsLine(table, "threads.2_to_1.Alarm.parse", makeAlarm, parse);
    ThreadsLine(table, "threads.2_to_1.Alarm.pack", makeAlarm, pack);
    ThreadsLine(table, "threads.2_to_1.Encode.parse", makeEncode, parse);
    ThreadsLine(table, "threads.2_to_1.Encode.pack", makeEncode, pack);
}

} // namespace orrery::bench

// orrery_bench [--benchmark_...]: every call on its own, in nanoseconds, by Google Benchmark.
// orrery_bench --table [--quick] [--only=PART]: heap use, then the table of ratios; of the lines whose names have PART.
#include "bench/Calls.h"
#include "bench/Events.h"
#include "bench/Readers.h"
#include "bench/SystemCalls.h"
#include "bench/Tables.h"

#include <cstdio>
#include <cstring>
#include <functional>

namespace {

using namespace orrery::bench;

template <class Call>
void Register(const std::string& name, std::size_t variants, std::size_t bytes, Call call) {
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        std::size_t i = 0;
        for (auto _ : state) {
            if (!call(i)) state.SkipWithError("the call failed");
            if (++i == variants) i = 0;
        }
        if (bytes > 0) state.SetBytesProcessed(static_cast<std::int64_t>(bytes / variants) * state.iterations());
    });
}

std::size_t BytesOf(const Texts& texts) {
    std::size_t bytes = 0;
    for (const auto& text : texts)
        bytes += text.size();
    return bytes;
}

void RegisterReaders(const char* size, ReaderBench& bench) {
    const std::string prefix = std::string("reader/") + size + '/';
    const auto add = [&](const char* name, auto reader) {
        Register(prefix + name, bench.texts.size(), BytesOf(bench.texts), reader);
    };
    add("orrery", bench.orrery);
    add("rapidjson", bench.rapidjson);
    add("rapidjson_insitu", bench.rapidjsonInSitu);
    add("simdjson", bench.simdjson);
    add("simdjson_ondemand", bench.simdjsonOnDemand);
    add("nlohmann", bench.nlohmann);
    add("jsoncpp", bench.jsoncpp());
}

template <class R>
void RegisterCalls(const char* name, CallBench<R>& bench) {
    const std::string prefix = std::string("call/") + name + '/';
    const std::size_t texts = bench.texts.size();
    Register(prefix + "parse", texts, BytesOf(bench.texts), [&](std::size_t i) { return bench.Parse(i); });
    Register(prefix + "parse_by_hand", texts, BytesOf(bench.texts),
             [&](std::size_t i) { return bench.ParseTheirs(i); });
    Register(prefix + "clear_record", texts, 0, [&](std::size_t i) { return bench.Clear(i); });
    if (bench.packByHand == nullptr) return;
    Register(prefix + "pack", bench.records.size(), 0, [&](std::size_t i) { return bench.Pack(i); });
    Register(prefix + "pack_by_hand", bench.records.size(), 0, [&](std::size_t i) { return bench.PackTheirs(i); });
}

void RegisterEvents(const char* name, EventBench& bench) {
    const std::string prefix = std::string("events/") + name + '/';
    const std::size_t texts = bench.texts.size();
    Register(prefix + "decode", texts, BytesOf(bench.texts), [&](std::size_t i) { return bench.Decode(i); });
    Register(prefix + "rapidjson_and_clear", texts, BytesOf(bench.texts),
             [&](std::size_t i) { return bench.ParseTextAndClear(i); });
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 7 && std::strcmp(argv[1], kFirstCall) == 0) return RunFirstCall(argv + 2);
    bool table = false, quick = false;
    const char* only = "";
    int kept = 0;
    for (int i = 0; i < argc; ++i) {
        if (std::strcmp(argv[i], "--table") == 0)
            table = true;
        else if (std::strcmp(argv[i], "--quick") == 0)
            quick = true;
        else if (std::strncmp(argv[i], "--only=", 7) == 0)
            only = argv[i] + 7;
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    if (table && argc > 1) {
        std::fprintf(stderr, "orrery_bench: '%s' is nothing that --table takes; it takes --quick and --only=PART\n",
                     argv[1]);
        return 2;
    }

    if (!SelfTest()) {
        std::fprintf(stderr, "the ways under comparison do not do the same; no figures\n");
        return 1;
    }
    if (table) {
        PrintTables(quick, only);
        return 0;
    }

    ReaderBench tiny(200, 48), small(2000, 48), middle(60000, 48), large(1000000, 24);
    RegisterReaders("200B", tiny);
    RegisterReaders("2KB", small);
    RegisterReaders("60KB", middle);
    RegisterReaders("1MB", large);
    auto alarm = MakeAlarmBench(48);
    auto motion = MakeMotionBench(48);
    auto switches = MakeSwitchBench(48);
    auto caps = MakeCapsBench(48);
    RegisterCalls("Alarm", alarm);
    RegisterCalls("MotionDetect", motion);
    RegisterCalls("PwdReset", switches);
    RegisterCalls("alarm.getAlarmCaps", caps);
    auto junction = MakeJunctionBench(48);
    auto manyEvents = MakeManyEventsBench(24);
    auto typed = MakeTypedBench(24);
    RegisterEvents("junction", junction);
    RegisterEvents("128", manyEvents);
    RegisterEvents("typed", typed);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

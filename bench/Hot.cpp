#include "bench/Hot.h"

#include "bench/Heap.h"
#include "bench/Readers.h"
#include "bench/SystemCalls.h"

namespace orrery::bench {

namespace {

// simdjson's parse, on the best instruction set that it finds, of texts that have their padding beforehand.
class Bare {
  public:
    explicit Bare(const Texts& texts) : padded_(texts) {}
    auto call() {
        return [this](std::size_t i) { return SimdJsonReader{padded_, parser_}(i); };
    }

  private:
    PaddedTexts padded_;
    simdjson::dom::parser parser_;
};

// Texts of `size` bytes that cost the reader most memory: a list of the shortest values there are.
std::string Ones(std::size_t size) {
    std::string text = "[1";
    while (text.size() + 3 <= size)
        text += ",1";
    return text + "]";
}

void HeapBar(const std::string& name, std::size_t bytes, std::size_t peak, std::size_t most, const std::string& only) {
    if (name.find(only) == std::string::npos) return;
    constexpr std::size_t kFree = std::size_t{64} << 10;
    std::printf("%-44s %9zu bytes at most, %5.2f of the text beyond 64 KB   bar %2zu %s\n", name.c_str(), peak,
                peak > kFree ? static_cast<double>(peak - kFree) / static_cast<double>(bytes) : 0.0, most,
                peak <= kFree + most * bytes ? "met" : "MISSED");
}

template <class Call>
void SystemLine(const std::string& name, std::size_t bytes, std::size_t variants, Call call, const std::string& only) {
    if (name.find(only) == std::string::npos) return;
    const SystemUse use = SystemUseOf(variants, call);
    if (!use.known) {
        std::printf("%-44s system calls could not be counted here\n", name.c_str());
        return;
    }
    constexpr std::size_t kBarred = std::size_t{256} << 10;
    std::printf("%-44s %7.2f system calls, %5.2f of memory, %7.2f page faults   %s\n",
                (name + " (" + std::to_string(bytes) + " B)").c_str(), use.calls, use.memoryCalls, use.pageFaults,
                bytes > kBarred        ? "no bar"
                : use.memoryCalls == 0 ? "bar 0 met"
                                       : "bar 0 MISSED");
    std::fflush(stdout);
}

} // namespace

void HotLines(const Table& table, AlarmBench& alarm, EncodeBench& encode, RuleBench& rules, EventBench& junction,
              EventBench& manyEvents) {
    std::printf("%-44s (simdjson: %s)\n", "hot.", simdjson::get_active_implementation()->name().c_str());
    Bare encodeTexts(encode.texts), ruleTexts(rules.texts), junctionTexts(junction.texts), manyTexts(manyEvents.texts),
        alarmTexts(alarm.texts);
    table.Line(
        "hot.Encode.parse.simdjson", 1 / 1.4, encode.texts.size(), [&](std::size_t i) { return encode.Parse(i); },
        encodeTexts.call());
    table.Line(
        "hot.events.junction.simdjson", 1 / 3.0, junction.texts.size(),
        [&](std::size_t i) { return junction.Decode(i); }, junctionTexts.call());
    table.Line(
        "hot.events.128.simdjson", 1 / 2.8, manyEvents.texts.size(),
        [&](std::size_t i) { return manyEvents.Decode(i); }, manyTexts.call());
    table.Line(
        "hot.VideoAnalyseRule.parse.simdjson_and_clear", 1 / 0.95, rules.texts.size(),
        [&](std::size_t i) { return rules.Parse(i); },
        [&](std::size_t i) { return rules.Clear(i) && ruleTexts.call()(i); });
    // The record of "Alarm" is large and its text is short: what the call takes beyond clearing is what there is to
    // see.
    if (const std::string name = "hot.Alarm.parse.less_clearing.simdjson"; table.Wants(name)) {
        const auto parse = [&](std::size_t i) { return alarm.Parse(i); };
        const Ratio whole = table.Compare(alarm.texts.size(), parse, [&](std::size_t i) { return alarm.Clear(i); });
        const Ratio bare = table.Compare(alarm.texts.size(), parse, alarmTexts.call());
        const double ours = whole.ours - whole.theirs;
        Table::Print(name, {bare.theirs / ours, ours, bare.theirs}, 1 / 2.0);
    }
}

void PrintHeapBars(const std::string& only) {
    constexpr std::size_t kLike = 4;   // texts like those of devices
    constexpr std::size_t kWorst = 16; // any text
    for (const auto& [name, size] :
         {std::pair{"20KB", 20000}, {"200KB", 200000}, {"1MB", 1000000}, {"10MB", 10000000}}) {
        const auto bytes = static_cast<std::size_t>(size);
        const Texts texts = TextsOfSize(bytes, 3);
        std::size_t peak = 0;
        for (std::size_t i = 0; i < texts.size(); ++i)
            peak = std::max(peak, HeapUseOf([&] { OrreryReader{texts}(i); }).peakBytes);
        HeapBar(std::string("heap.reader.") + name, bytes, peak, kLike, only);
        const Texts ones = {Ones(bytes)};
        HeapBar(std::string("heap.reader.ones.") + name, bytes, HeapUseOf([&] { OrreryReader{ones}(0); }).peakBytes,
                kWorst, only);
    }
}

void PrintSystemCalls(const std::string& only) {
    std::printf("\nwhat a warm call takes from the system, the mean of many\n\n");
    auto alarm = MakeAlarmBench(12);
    auto encode = MakeEncodeBench(12);
    RuleBench rules(32);
    auto junction = MakeJunctionBench(12);
    auto manyEvents = MakeManyEventsBench(12);
    auto typed = MakeTypedBench(12);
    const auto line = [&](const std::string& name, const Texts& texts, auto call) {
        std::size_t longest = 0;
        for (const auto& text : texts)
            longest = std::max(longest, text.size());
        SystemLine("system." + name, longest, texts.size(), call, only);
    };
    line("Alarm.parse", alarm.texts, [&](std::size_t i) { return alarm.Parse(i); });
    line("Encode.parse", encode.texts, [&](std::size_t i) { return encode.Parse(i); });
    line("VideoAnalyseRule.parse", rules.texts, [&](std::size_t i) { return rules.Parse(i); });
    line("events.junction", junction.texts, [&](std::size_t i) { return junction.Decode(i); });
    line("events.128", manyEvents.texts, [&](std::size_t i) { return manyEvents.Decode(i); });
    line("events.typed", typed.texts, [&](std::size_t i) { return typed.Decode(i); });
    SystemLine(
        "system.Alarm.pack", 0, alarm.records.size(), [&](std::size_t i) { return alarm.Pack(i); }, only);
    SystemLine(
        "system.Encode.pack", 0, encode.records.size(), [&](std::size_t i) { return encode.Pack(i); }, only);
    SystemLine(
        "system.VideoAnalyseRule.pack", 0, rules.records(), [&](std::size_t i) { return rules.Pack(i); }, only);
    for (const auto& [name, size] : {std::pair{"20KB", 20000},
                                     {"35KB", 35000},
                                     {"60KB", 60000},
                                     {"90KB", 90000},
                                     {"120KB", 120000},
                                     {"180KB", 180000},
                                     {"256KB", 260000},
                                     {"1MB", 1000000}}) {
        const Texts texts = TextsOfSize(static_cast<std::size_t>(size), 12);
        line(std::string("reader.") + name, texts, OrreryReader{texts});
    }
    for (const auto& [name, size] : {std::pair{"20KB", 20000}, {"60KB", 60000}, {"256KB", 260000}}) {
        const Texts texts = {Ones(static_cast<std::size_t>(size))};
        line(std::string("reader.ones.") + name, texts, OrreryReader{texts});
    }
    std::printf("\nwhat the first call of a process takes from the system\n\n");
    const auto first = [&](const char* command, const Texts& texts, std::size_t recordSize) {
        const std::string name = std::string("system.first.") + command;
        if (name.find(only) == std::string::npos) return;
        const SystemUse use = FirstUseOf(command, texts[0], recordSize);
        if (use.known)
            std::printf("%-44s %7.0f system calls, %5.0f of memory, %7.0f page faults   no bar\n", name.c_str(),
                        use.calls, use.memoryCalls, use.pageFaults);
        else
            std::printf("%-44s system calls could not be counted here\n", name.c_str());
    };
    first("Alarm", alarm.texts, sizeof(CFG_ALARM_INPUT_INFO));
    first("Encode", encode.texts, sizeof(byhand::EncodeChannels));
}

} // namespace orrery::bench

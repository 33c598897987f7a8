#include "bench/Calls.h"

#include "bench/Events.h"
#include "bench/Members.h"
#include "bench/Readers.h"
#include "bench/Rules.h"

#include <algorithm>
#include <cstdio>

#include <rapidjson/writer.h>

namespace orrery::bench {

namespace {

constexpr std::size_t kRecordsKept = 3;

template <class Bench>
Bench WithRecords(Bench bench) {
    bench.KeepRecords(std::min(kRecordsKept, bench.texts.size()));
    return bench;
}

// A text as RapidJSON writes it: both libraries' texts compare by it.
std::string Normal(const char* text) {
    byhand::LocalDocument document;
    document->Parse<rapidjson::kParseStopWhenDoneFlag>(text);
    if (document->HasParseError()) return "no JSON";
    rapidjson::StringBuffer out;
    rapidjson::Writer<rapidjson::StringBuffer> writer(out);
    document->Accept(writer);
    return out.GetString();
}

template <class R>
bool SameBothWays(CallBench<R>& bench) {
    const auto theirs = std::make_unique<R>();
    const auto theirText = std::make_unique<char[]>(bench.room);
    for (std::size_t i = 0; i < bench.texts.size(); ++i) {
        if (!bench.Parse(i) || !bench.parseByHand(bench.texts[i].c_str(), *theirs)) {
            std::fprintf(stderr, "%s: text %zu is not read\n", bench.command, i);
            return false;
        }
        const auto* const a = reinterpret_cast<const char*>(bench.record.get());
        const auto* const b = reinterpret_cast<const char*>(theirs.get());
        const auto at = std::mismatch(a, a + sizeof(R), b).first - a;
        if (at != sizeof(R)) {
            std::fprintf(stderr, "%s: text %zu: records differ at byte %td\n%s\n", bench.command, i, at,
                         bench.texts[i].c_str());
            return false;
        }
        if (bench.packByHand == nullptr) continue;
        if (CLIENT_PacketData(bench.command, theirs.get(), sizeof(R), bench.buffer.get(),
                              static_cast<uint32_t>(bench.room))
                == 0
            || !bench.packByHand(*theirs, theirText.get(), bench.room)) {
            std::fprintf(stderr, "%s: text %zu: its record is not packed\n", bench.command, i);
            return false;
        }
        if (Normal(bench.buffer.get()) != Normal(theirText.get())) {
            std::fprintf(stderr, "%s: text %zu: documents differ\n%s\n%s\n", bench.command, i,
                         Normal(bench.buffer.get()).c_str(), Normal(theirText.get()).c_str());
            return false;
        }
    }
    return true;
}

template <class Reader>
bool ReadsAll(const char* name, const Texts& texts, const Reader& reader) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (reader(i)) continue;
        std::fprintf(stderr, "%s does not read text %zu of %zu bytes\n", name, i, texts[i].size());
        return false;
    }
    return true;
}

bool DecodesAll(EventBench& bench) {
    for (std::size_t i = 0; i < bench.texts.size(); ++i) {
        if (bench.Decode(i) && bench.ParseTextAndClear(i)) continue;
        std::fprintf(stderr, "%s: text %zu is not decoded\n", bench.name, i);
        return false;
    }
    return true;
}

bool AllReadersRead(std::size_t size) {
    ReaderBench bench(size, 4);
    return ReadsAll("orrery", bench.texts, bench.orrery) && ReadsAll("rapidjson", bench.texts, bench.rapidjson)
           && ReadsAll("rapidjson in situ", bench.texts, bench.rapidjsonInSitu)
           && ReadsAll("simdjson", bench.texts, bench.simdjson)
           && ReadsAll("simdjson on demand", bench.texts, bench.simdjsonOnDemand)
           && ReadsAll("nlohmann", bench.texts, bench.nlohmann) && ReadsAll("jsoncpp", bench.texts, bench.jsoncpp());
}

} // namespace

AlarmBench MakeAlarmBench(int variants) {
    return WithRecords(
        AlarmBench("Alarm", AlarmReplies(variants), byhand::ParseAlarm, byhand::PackAlarm, byhand::WriteAlarm));
}
AlarmBench MakeLongAlarmBench(std::size_t size, int variants) {
    return WithRecords(AlarmBench("Alarm", LongAlarmReplies(size, variants), byhand::ParseAlarm, byhand::PackAlarm,
                                  byhand::WriteAlarm, size * 2 + kTextRoom));
}
MotionBench MakeMotionBench(int variants) {
    return WithRecords(MotionBench("MotionDetect", MotionDetectReplies(variants), byhand::ParseMotionDetect,
                                   byhand::PackMotionDetect, byhand::WriteMotionDetect));
}
SwitchBench MakeSwitchBench(int variants) {
    return WithRecords(
        SwitchBench("PwdReset", SwitchReplies(variants), byhand::ParseSwitch, byhand::PackSwitch, byhand::WriteSwitch));
}
CapsBench MakeCapsBench(int variants) {
    return CapsBench("alarm.getAlarmCaps", AlarmCapsReplies(variants), byhand::ParseAlarmCaps, nullptr, nullptr);
}
EncodeBench MakeEncodeBench(int variants) {
    return WithRecords(
        EncodeBench("Encode", EncodeReplies(variants), byhand::ParseEncode, byhand::PackEncode, byhand::WriteEncode));
}

bool SelfTest() {
    auto alarm = MakeAlarmBench(48);
    auto longAlarm = MakeLongAlarmBench(60000, 4);
    auto motion = MakeMotionBench(48);
    auto switches = MakeSwitchBench(48);
    auto caps = MakeCapsBench(48);
    auto encode = MakeEncodeBench(24);
    auto junction = MakeJunctionBench(48);
    auto manyEvents = MakeManyEventsBench(24);
    auto typed = MakeTypedBench(24);
    bool good = DecodesAll(junction) && DecodesAll(manyEvents) && DecodesAll(typed) && SameBothWays(alarm)
                && SameBothWays(longAlarm) && SameBothWays(motion) && SameBothWays(switches) && SameBothWays(caps)
                && SameBothWays(encode);
    for (const int rules : {8, 16, 32})
        good = good && RuleBench(rules).SameBothWays();
    for (const MemberRow& row : MemberRows())
        good = good && MemberBench(row).IsGood();
    for (const std::size_t size : {200, 2000, 60000})
        good = good && AllReadersRead(size);
    return good;
}

} // namespace orrery::bench

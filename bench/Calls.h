// Whole parse and pack calls and their counterparts by hand. A call is given the number of a text or a record and
// answers whether it succeeded.
#pragma once

#include "bench/ByHand.h"
#include "bench/Texts.h"

#include "orrery/orrery.h"

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace orrery::bench {

inline constexpr std::size_t kTextRoom = std::size_t{64} << 10; // what a client keeps for a text

// A command with its replies; `R` is its record. Records to pack come from parsing the replies.
template <class R>
struct CallBench {
    using ParseByHand = bool (*)(const char*, R&);
    using PackByHand = bool (*)(const R&, char*, std::size_t);
    using WriteByHand = void (*)(const R&, rapidjson::StringBuffer&);

    CallBench(const char* itsCommand, Texts itsTexts, ParseByHand parse, PackByHand pack, WriteByHand write,
              std::size_t textRoom = kTextRoom)
        : command(itsCommand), texts(std::move(itsTexts)), parseByHand(parse), packByHand(pack), writeByHand(write),
          room(textRoom), record(std::make_unique<R>()), buffer(new char[textRoom]) {}

    const char* command;
    Texts texts;
    ParseByHand parseByHand;
    PackByHand packByHand;
    WriteByHand writeByHand;
    std::size_t room;
    std::unique_ptr<R> record;
    std::unique_ptr<char[]> buffer;
    std::vector<std::unique_ptr<R>> records; // of the first texts, to be packed

    // Large records would not stay in the cache, as a client's one record does: a few take turns.
    void KeepRecords(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            records.push_back(std::make_unique<R>());
            static_cast<void>(CLIENT_ParseData(command, texts[i].c_str(), records.back().get(), sizeof(R), nullptr));
        }
    }

    bool Parse(std::size_t i) {
        uint32_t length = 0;
        const bool done = CLIENT_ParseData(command, texts[i].c_str(), record.get(), sizeof(R), &length) != 0;
        benchmark::ClobberMemory();
        return done;
    }
    bool ParseTheirs(std::size_t i) {
        const bool done = parseByHand(texts[i].c_str(), *record);
        benchmark::ClobberMemory();
        return done;
    }
    // RapidJSON's parse of the text and nothing more, but for clearing the record.
    bool ParseTextAndClear(std::size_t i) {
        std::memset(record.get(), 0, sizeof(R));
        benchmark::ClobberMemory();
        byhand::LocalDocument document;
        document->Parse(texts[i].c_str());
        benchmark::DoNotOptimize(document);
        return !document->HasParseError();
    }
    // For a command that keeps what the record holds.
    bool ParseText(std::size_t i) {
        byhand::LocalDocument document;
        document->Parse(texts[i].c_str());
        benchmark::DoNotOptimize(document);
        return !document->HasParseError();
    }
    bool Clear(std::size_t) {
        std::memset(record.get(), 0, sizeof(R));
        benchmark::ClobberMemory();
        return true;
    }

    bool Pack(std::size_t i) {
        const bool done =
            CLIENT_PacketData(command, records[i].get(), sizeof(R), buffer.get(), static_cast<uint32_t>(room)) != 0;
        benchmark::ClobberMemory();
        return done;
    }
    bool ClearText(std::size_t) {
        std::memset(buffer.get(), 0, room);
        benchmark::ClobberMemory();
        return true;
    }
    bool PackTheirs(std::size_t i) {
        const bool done = packByHand(*records[i], buffer.get(), room);
        benchmark::ClobberMemory();
        return done;
    }
    // Building and writing the document and nothing more, but for clearing the text buffer.
    bool WriteAndClear(std::size_t i) {
        rapidjson::StringBuffer out;
        writeByHand(*records[i], out);
        benchmark::DoNotOptimize(out.GetString());
        std::memset(buffer.get(), 0, room);
        benchmark::ClobberMemory();
        return true;
    }
};

using AlarmBench = CallBench<CFG_ALARM_INPUT_INFO>;
using MotionBench = CallBench<CFG_MOTION_DETECT_INFO>;
using SwitchBench = CallBench<CFG_ENABLE_INFO>;
using CapsBench = CallBench<CFG_ALARM_CAPS>;
using EncodeBench = CallBench<byhand::EncodeChannels>;

AlarmBench MakeAlarmBench(int variants);
AlarmBench MakeLongAlarmBench(std::size_t size, int variants);
MotionBench MakeMotionBench(int variants);
SwitchBench MakeSwitchBench(int variants);
CapsBench MakeCapsBench(int variants);
// All of 16 channels, about 50 KB.
EncodeBench MakeEncodeBench(int variants);

// Both ways give the same records and documents for all texts; says on standard error what differs.
bool SelfTest();

} // namespace orrery::bench

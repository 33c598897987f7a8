// Texts of analyzer events: decoded whole, and RapidJSON's parse of the same text plus clearing as many bytes of
// record.
#pragma once

#include "bench/ByHand.h"
#include "bench/Texts.h"

#include "orrery/orrery.h"

#include <cstring>
#include <memory>

#include <benchmark/benchmark.h>

namespace orrery::bench {

struct EventBench {
    // How a text is decoded: what it hands over counts as its events.
    using Decoder = int32_t (*)(const char*, uint32_t, ORRERY_EVENT_CALLBACK, void*);
    EventBench(const char* itsName, Texts itsTexts, std::size_t eventsPerText,
               Decoder itsDecoder = CLIENT_ParseAnalyzerEventData);

    const char* name;
    Texts texts;
    std::size_t events;      // in each text
    std::size_t recordBytes; // of the records of one text
    std::unique_ptr<char[]> records;
    Decoder decoder;

    bool Decode(std::size_t i) {
        std::size_t count = 0;
        const int32_t done = decoder(
            texts[i].c_str(), static_cast<uint32_t>(texts[i].size()),
            [](uint32_t, const void* record, uint32_t, void*, int32_t, void* user) -> int32_t {
                benchmark::DoNotOptimize(record);
                ++*static_cast<std::size_t*>(user);
                return 0;
            },
            &count);
        return done != 0 && count == events;
    }
    bool ParseTextAndClear(std::size_t i) {
        std::memset(records.get(), 0, recordBytes);
        benchmark::ClobberMemory();
        byhand::LocalDocument document;
        document->Parse(texts[i].c_str());
        benchmark::DoNotOptimize(document);
        return !document->HasParseError();
    }
};

// One junction event with every key, about 4 KB.
EventBench MakeJunctionBench(int variants);
// One event of several kinds each, 200 to 400 bytes.
Texts MakeShortEventTexts(int variants);
// 128 events of several kinds.
EventBench MakeManyEventsBench(int variants);
// A typed text of eight rules and 32 objects.
EventBench MakeTypedBench(int variants);

} // namespace orrery::bench

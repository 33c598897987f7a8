// Replies with a channel's analysis rules: read and packed whole, and what RapidJSON needs for the text and the
// document alone.
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

// One step of building a document. Keys and texts lie in the bench, and are referred to.
struct BuildStep {
    enum Kind : unsigned char { OpenObject, OpenArray, Close, Null, Bool, Int, Real, Text, Week };
    Kind kind;
    bool flag;
    std::string_view key; // empty in a list
    std::string_view text;
    std::int64_t number;
    double real;
    std::size_t week; // offset in the rule buffer
};

class RuleBench {
  public:
    // The texts differ in the kind of rule that they begin with.
    explicit RuleBench(int rules);

    Texts texts;
    // Of one text: the largest rule buffer needed, and the text buffer that a client keeps.
    std::size_t ruleBytes = 0;
    std::size_t room;

    bool Parse(std::size_t i) {
        CFG_ANALYSERULES_INFO rules = {-1, buffer_.get(), static_cast<int32_t>(ruleBytes)};
        const bool done = CLIENT_ParseData(kCommand, texts[i].c_str(), &rules, sizeof rules, nullptr) != 0;
        benchmark::ClobberMemory();
        return done && rules.nRuleCount == count_;
    }
    bool ParseTextAndClear(std::size_t i) {
        Clear(i);
        byhand::LocalDocument document;
        document->Parse(texts[i].c_str());
        benchmark::DoNotOptimize(document);
        return !document->HasParseError();
    }
    bool Clear(std::size_t) {
        std::memset(buffer_.get(), 0, ruleBytes);
        benchmark::ClobberMemory();
        return true;
    }

    // Records to pack, of the first texts.
    std::size_t records() const { return kept_.size(); }
    bool Pack(std::size_t i) {
        CFG_ANALYSERULES_INFO rules = {count_, kept_[i].get(), static_cast<int32_t>(ruleBytes)};
        const bool done =
            CLIENT_PacketData(kCommand, &rules, sizeof rules, packed_.get(), static_cast<uint32_t>(room)) != 0;
        benchmark::ClobberMemory();
        return done;
    }
    bool WriteAndClear(std::size_t i) {
        rapidjson::StringBuffer out;
        Write(i, out);
        benchmark::DoNotOptimize(out.GetString());
        std::memset(packed_.get(), 0, room);
        benchmark::ClobberMemory();
        return true;
    }

    // Every text is read, and what is packed of it is the document that is due, by either way.
    bool SameBothWays();

  private:
    static constexpr const char* kCommand = "VideoAnalyseRule";

    void Write(std::size_t i, rapidjson::StringBuffer& out) const;

    int32_t count_;
    std::unique_ptr<uint8_t[]> buffer_;
    std::unique_ptr<char[]> packed_;
    std::vector<std::unique_ptr<uint8_t[]>> kept_;
    std::vector<std::unique_ptr<rapidjson::Document>> due_; // members in order
    std::vector<std::vector<BuildStep>> steps_;
};

} // namespace orrery::bench

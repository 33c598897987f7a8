// The readers under comparison, each used as its own documentation advises. A reader is called with the number of a
// text of its corpus and answers whether the text was read.
#pragma once

#include "bench/ByHand.h"
#include "bench/Texts.h"

#include "frame/Arena.h"
#include "frame/json/Reader.h"

#include <memory>

#include <benchmark/benchmark.h>
#include <json/json.h>
#include <nlohmann/json.hpp>
#include <simdjson.h>

namespace orrery::bench {

struct OrreryReader {
    const Texts& texts;
    bool operator()(std::size_t i) const {
        StackArena<std::size_t{16} << 10> arena;
        json::Value root;
        const bool read = json::Parse(texts[i], arena, root);
        benchmark::DoNotOptimize(root);
        return read;
    }
};

struct RapidJsonReader {
    const Texts& texts;
    bool operator()(std::size_t i) const {
        byhand::LocalDocument document;
        document->Parse(texts[i].data(), texts[i].size());
        benchmark::DoNotOptimize(document);
        return !document->HasParseError();
    }
};

// Reads in a copy, since reading in situ destroys the text and the caller's text is not to be touched.
struct RapidJsonInSituReader {
    const Texts& texts;
    mutable std::string copy = {};
    bool operator()(std::size_t i) const {
        copy.assign(texts[i]);
        byhand::LocalDocument document;
        document->ParseInsitu(copy.data());
        benchmark::DoNotOptimize(document);
        return !document->HasParseError();
    }
};

// The padding that simdjson wants behind a text is there before the clock runs.
class PaddedTexts {
  public:
    explicit PaddedTexts(const Texts& texts) {
        for (const std::string& text : texts)
            texts_.emplace_back(text);
    }
    const simdjson::padded_string& operator[](std::size_t i) const { return texts_[i]; }

  private:
    std::vector<simdjson::padded_string> texts_;
};

struct SimdJsonReader {
    const PaddedTexts& texts;
    simdjson::dom::parser& parser;
    bool operator()(std::size_t i) const {
        simdjson::dom::element root;
        const auto error = parser.parse(texts[i]).get(root);
        benchmark::DoNotOptimize(root);
        return error == simdjson::SUCCESS;
    }
};

// On demand nothing is read before it is asked for, so every key and every value is asked for.
struct SimdJsonOnDemandReader {
    const PaddedTexts& texts;
    simdjson::ondemand::parser& parser;
    bool operator()(std::size_t i) const;
};

struct NlohmannReader {
    const Texts& texts;
    bool operator()(std::size_t i) const {
        const auto root = nlohmann::json::parse(texts[i], nullptr, false);
        benchmark::DoNotOptimize(root);
        return !root.is_discarded();
    }
};

struct JsoncppReader {
    const Texts& texts;
    Json::CharReader& reader;
    bool operator()(std::size_t i) const {
        Json::Value root;
        const bool read = reader.parse(texts[i].data(), texts[i].data() + texts[i].size(), &root, nullptr);
        benchmark::DoNotOptimize(root);
        return read;
    }
};

// Texts of one size and all readers over them.
struct ReaderBench {
    ReaderBench(std::size_t size, int variants) : texts(TextsOfSize(size, variants)), padded(texts) {
        Json::CharReaderBuilder builder;
        builder["collectComments"] = false;
        charReader.reset(builder.newCharReader());
    }

    Texts texts;
    PaddedTexts padded;
    simdjson::dom::parser domParser;
    simdjson::ondemand::parser onDemandParser;
    std::unique_ptr<Json::CharReader> charReader;

    OrreryReader orrery{texts};
    RapidJsonReader rapidjson{texts};
    RapidJsonInSituReader rapidjsonInSitu{texts};
    SimdJsonReader simdjson{padded, domParser};
    SimdJsonOnDemandReader simdjsonOnDemand{padded, onDemandParser};
    NlohmannReader nlohmann{texts};
    JsoncppReader jsoncpp() { return {texts, *charReader}; }
};

} // namespace orrery::bench

// The telling commands of the families, a row each: their replies are made from their tables, full records with the
// keys in the order that devices keep, and the same bench serves them all.
#pragma once

#include "bench/ByHand.h"
#include "bench/Texts.h"

#include "Commands.h"
#include "support/CallerMemory.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <simdjson.h>

namespace orrery::bench {

struct MemberRow {
    const char* command;
    unsigned records = 1; // in a reply
    unsigned most = 4;    // elements of a list at the most; pointers of the caller's lead to as many
    double packBar = 3;   // how many times as long building and writing the document takes at the least
};

std::span<const MemberRow> MemberRows();

// Whole calls of one command beside what RapidJSON and simdjson need for the text, or the document, alone.
class MemberBench {
  public:
    explicit MemberBench(const MemberRow& row);

    const char* name;
    Texts texts;
    bool packs = false;
    double packBar;

    bool Parse(std::size_t i);
    bool ParseTextAndClear(std::size_t i);
    bool ParseSimdJsonAndClear(std::size_t i);
    bool Clear(std::size_t i);
    // Tells what of the text is passed over.
    bool Explain(std::size_t i);
    bool isClean = true; // there is nothing to tell of

    std::size_t records() const { return kept_.size(); }
    bool Pack(std::size_t i);
    bool WriteAndClear(std::size_t i);
    bool ClearText(std::size_t i);

    // Every text is read, and what is packed of it is JSON; says on standard error what is not.
    bool IsGood();

  private:
    static void AddRooms(const record::Table& table, std::byte* record, std::vector<std::span<std::byte>>& rooms);
    std::int32_t Findings(std::size_t i) const;

    const Command& command_;
    std::uint32_t size_ = 0;                               // of the caller's records
    std::size_t room_ = 0;                                 // of the caller's text buffer
    test::CallerMemory memory_;                            // behind pointers
    std::vector<std::vector<std::span<std::byte>>> rooms_; // of each text, what a call clears there
    std::unique_ptr<std::byte[]> buffer_;
    std::unique_ptr<char[]> packed_;
    std::vector<std::unique_ptr<std::byte[]>> kept_; // records to pack, of the first texts
    std::vector<std::unique_ptr<test::CallerMemory>> keptMemory_;
    std::vector<std::unique_ptr<rapidjson::Document>> due_; // what they pack to
    std::vector<simdjson::padded_string> padded_;
    simdjson::dom::parser parser_;
};

} // namespace orrery::bench

#include "bench/Explains.h"

#include "Commands.h"
#include "frame/PackedItems.h"
#include "support/CallerMemory.h"
#include "support/TableText.h"

#include "orrery/explain.h"
#include "orrery/orrery.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orrery::bench {

namespace {

constexpr double kBar = 1.0 / 3;
constexpr std::size_t kWorst = 12; // lines that are shown unasked

// The numbers of a text that its headers' ranges do not know, each with one that they do.
struct Change {
    std::size_t offset, length;
    std::string low;
};

std::int32_t NoteChange(const ORRERY_FINDING* finding, void* user) {
    constexpr const char* kRange = " is none of ";
    const char* const range = std::strstr(finding->szMessage, kRange);
    if (finding->nGravity != ORRERY_FINDING_NOTE || range == nullptr) return 1;
    const char* const low = range + std::strlen(kRange);
    static_cast<std::vector<Change>*>(user)->push_back({static_cast<std::size_t>(finding->nOffset),
                                                        static_cast<std::size_t>(finding->nLength),
                                                        {low, std::strcspn(low, " ")}});
    return 1;
}

// Texts that are made of tables number their members: they are brought into range.
std::string Clean(const std::string& name, std::string text) {
    std::vector<Change> changes;
    ORRERY_ExplainReply(name.c_str(), text.data(), text.size(), 0, NoteChange, &changes);
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        text.replace(change->offset, change->length, change->low);
    return text;
}

class ExplainBench {
  public:
    // `isTold`: with numbers that the headers' ranges do not know, each of which is told of.
    ExplainBench(const Command& command, bool isTold) : name(command.name) {
        constexpr std::uint64_t kVariants = 4;
        constexpr unsigned kMost = 4;
        size_ = command.table->size;
        buffer_ = std::make_unique<std::byte[]>(size_);
        memory_.PrepareBuffer(command, buffer_.get(), size_);
        for (std::uint64_t seed = 1; seed <= kVariants; ++seed) {
            test::JsonTree tree = test::ReplyTree(command, {.seed = seed, .most = kMost, .records = 1});
            tree.Sort();
            std::string text = isTold ? tree.Text() : Clean(name, tree.Text());
            const auto take = [](const ORRERY_FINDING*, void*) -> std::int32_t { return 1; };
            isClean = isClean && ORRERY_ExplainReply(name.c_str(), text.data(), text.size(), 0, take, nullptr) == 0;
            texts.push_back(std::move(text));
        }
    }

    std::string name;
    std::vector<std::string> texts;
    bool isClean = true;

    bool Parse(std::size_t i) {
        std::uint32_t length = 0;
        const bool done = CLIENT_ParseData(name.c_str(), texts[i].c_str(), buffer_.get(), size_, &length) != 0;
        benchmark::ClobberMemory();
        return done;
    }
    bool Explain(std::size_t i) const {
        const auto take = [](const ORRERY_FINDING*, void*) -> std::int32_t { return 1; };
        return ORRERY_ExplainReply(name.c_str(), texts[i].data(), texts[i].size(), 0, take, nullptr) >= 0;
    }

  private:
    std::uint32_t size_ = 0;
    test::CallerMemory memory_{4}; // behind pointers
    std::unique_ptr<std::byte[]> buffer_;
};

struct Line {
    std::string name;
    Ratio ratio;
    bool isClean;
};

} // namespace

namespace {

// The worst lines of all commands, and how many take longer than three parses; all lines when those alone are wanted.
void PrintAll(const Table& table, const std::string& prefix, bool isTold, bool all) {
    std::vector<Line> lines;
    for (const Command& command : Commands()) {
        const std::string name = prefix + std::string(command.name);
        if (!command.parses() || command.table == nullptr || !table.Wants(name)) continue;
        if (ItemsBehind(*command.table) != nullptr) continue; // its texts are those of the rules' own lines
        ExplainBench bench(command, isTold);
        if (isTold && bench.isClean) continue;
        const Ratio ratio = table.Compare(
            bench.texts.size(), [&](std::size_t i) { return bench.Explain(i); },
            [&](std::size_t i) { return bench.Parse(i); });
        lines.push_back({name, ratio, bench.isClean});
    }
    if (lines.empty()) return;
    std::ranges::stable_sort(lines, std::less{}, [](const Line& line) { return line.ratio.ratio; });
    const auto missed = std::ranges::count_if(lines, [](const Line& line) { return line.ratio.ratio < kBar; });
    const auto unclean = std::ranges::count_if(lines, [](const Line& line) { return !line.isClean; });
    for (std::size_t i = 0; i < lines.size() && (all || i < kWorst); ++i)
        Table::Print(lines[i].name, lines[i].ratio, lines[i].isClean ? kBar : 0);
    std::printf("%-44s %7zu of %zu over three parses, %zu texts with findings\n", (prefix + "all").c_str(),
                static_cast<std::size_t>(missed), lines.size(), static_cast<std::size_t>(unclean));
}

} // namespace

void PrintExplains(const Table& table, bool all) {
    PrintAll(table, "explain.", false, all);
    PrintAll(table, "explain_told.", true, all);
}

} // namespace orrery::bench

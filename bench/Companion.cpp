#include "bench/Companion.h"

#include "bench/Events.h"

#include "orrery/Stream.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

namespace orrery::bench {

namespace {

constexpr double kBar = 1.0 / 3;
constexpr std::size_t kBytes = std::size_t{1} << 20; // of a file

// A file of event texts, one a line, which ends with this.
class EventFile {
  public:
    explicit EventFile(const Texts& kinds) : file_(std::tmpfile(), std::fclose) {
        for (std::size_t size = 0, i = 0; file_ != nullptr && size < kBytes; i = (i + 1) % kinds.size()) {
            texts.push_back(kinds[i]);
            size += kinds[i].size();
            std::fprintf(file_.get(), "%s\n", kinds[i].c_str());
        }
        if (file_ != nullptr) std::fflush(file_.get());
    }

    // Empty when there is none.
    std::string name() const { return file_ == nullptr ? "" : "/dev/fd/" + std::to_string(fileno(file_.get())); }

    Texts texts;

  private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
};

// While it lives, nobody reads the standard output.
class Unheard {
  public:
    Unheard() : kept_((std::fflush(stdout), dup(STDOUT_FILENO))) {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDOUT_FILENO);
        close(nowhere);
    }
    Unheard(const Unheard&) = delete;
    Unheard& operator=(const Unheard&) = delete;
    ~Unheard() {
        std::fflush(stdout);
        dup2(kept_, STDOUT_FILENO);
        close(kept_);
    }

  private:
    int kept_;
};

bool DecodeAll(const Texts& texts) {
    std::size_t events = 0;
    for (const std::string& text : texts)
        CLIENT_ParseAnalyzerEventData(
            text.c_str(), static_cast<std::uint32_t>(text.size()),
            [](std::uint32_t, const void* record, std::uint32_t, void*, std::int32_t, void* user) -> std::int32_t {
                benchmark::DoNotOptimize(record);
                ++*static_cast<std::size_t*>(user);
                return 0;
            },
            &events);
    return events >= texts.size();
}

void Lines(const Table& table, const std::string& kind, const Texts& texts) {
    const std::string name = "companion.events." + kind;
    if (!table.Wants(name) && !table.Wants(name + ".brief")) return;
    const EventFile file(texts);
    const auto print = [&](bool brief) {
        tool::StreamOptions options;
        options.events.brief = brief;
        return tool::StreamEvents({file.name()}, options) == 0;
    };
    for (const bool brief : {false, true}) {
        Ratio ratio;
        {
            const Unheard unheard;
            ratio = table.Compare(
                1, [&](std::size_t) { return print(brief); }, [&](std::size_t) { return DecodeAll(file.texts); });
        }
        Table::Print(name + (brief ? ".brief" : ""), ratio, kBar);
    }
}

} // namespace

void PrintCompanion(const Table& table) {
    Lines(table, "short", MakeShortEventTexts(96));
    Lines(table, "junction", MakeJunctionBench(48).texts);
    Lines(table, "128", MakeManyEventsBench(24).texts);
}

} // namespace orrery::bench

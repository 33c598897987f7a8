#include "orrery/Stream.h"

#include "orrery/Input.h"
#include "orrery/Jobs.h"
#include "orrery/Output.h"
#include "orrery/System.h"
#include "orrery/Terminal.h"
#include "orrery/TextSplitter.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace orrery::tool {

namespace {

// Texts of a file that are shown together, or what there is to say about the file itself.
struct Batch {
    std::string file;
    Result said{};
    std::string texts{}; // one behind the other
    struct Place {
        std::size_t end; // of a text among them
        std::uint64_t line;
        bool isLine; // of which nobody knows yet whether it is one text
    };
    std::vector<Place> places{};

    void Add(const TextSplitter::Piece& piece, bool isLine) {
        texts += piece.text;
        places.push_back({texts.size(), piece.line, isLine});
    }
};

// What is printed of a batch.
struct Shown {
    Result said;
    LineWriter out;
};

class Stream {
  public:
    explicit Stream(const StreamOptions& options)
        : options_(options), jobs_(
                                 options.jobs, [this](const Batch& batch) { return ShowAll(batch); },
                                 [this](Shown& shown) { return Print(shown); }) {}

    int Run(const std::vector<std::string>& files) {
        jobs_.Give({{}, {kDone, EventHead(options_.events), {}}});
        for (const std::string& file : files)
            if (!Read(file)) break;
        jobs_.Finish();
        return exit_;
    }

  private:
    static constexpr std::chrono::milliseconds kPause{200}; // between two looks at a file that may have grown

    // False when nobody reads what is printed any more.
    bool Read(const std::string& name) {
        ByteSource file(name);
        if (!file.isOpen()) return Complain(name);
        progress_.emplace(file.isInput() ? "standard input" : Printable(name), file.Size(), options_.progress);
        const bool isWanted = ReadAll(name, file);
        {
            const std::lock_guard lock(printing_);
            progress_.reset();
        }
        return isWanted;
    }

    bool ReadAll(const std::string& name, ByteSource& file) {
        TextSplitter splitter;
        std::vector<char> chunk(kChunk);
        std::uint64_t done = 0;
        for (;;) {
            const std::ptrdiff_t got = file.Read(chunk.data(), chunk.size());
            if (got < 0) {
                if (!Complain(name)) return false;
                break;
            }
            if (got == 0) {
                if (!options_.follow || file.isInput()) break;
                std::this_thread::sleep_for(kPause);
                continue;
            }
            const std::string_view bytes(chunk.data(), static_cast<std::size_t>(got));
            if (done == 0 && !BeginsWell(name, bytes)) return true;
            done += bytes.size();
            splitter.Feed(bytes);
            if (!GiveAll(name, splitter, false)) return false;
            const std::lock_guard lock(printing_);
            progress_->Reached(done);
        }
        return GiveAll(name, splitter, true);
    }

    // A few texts at a time: what is printed of them is still in the processor's caches when the system takes it.
    bool GiveAll(const std::string& name, TextSplitter& splitter, bool isEnd) {
        Batch batch{name};
        for (;;) {
            std::optional<TextSplitter::Piece> piece = splitter.NextLine();
            const bool isLine = piece.has_value();
            if (!isLine) piece = isEnd ? splitter.Rest() : splitter.Next();
            if (!piece) return batch.places.empty() || jobs_.Give(std::move(batch));
            batch.Add(*piece, isLine);
            if (batch.texts.size() >= kTogether && !jobs_.Give(std::exchange(batch, {name}))) return false;
        }
    }

    // False for a file that holds no texts for devices.
    bool BeginsWell(const std::string& name, std::string_view bytes) {
        const std::string shown = name == "-" ? "standard input" : Printable(name);
        if (bytes.starts_with(kByteOrderMark)) {
            jobs_.Give(
                {name,
                 {kDone,
                  {},
                  "orrery: note: " + shown + " begins with a byte order mark, which is skipped: devices send none\n"}});
            return true;
        }
        const std::string_view encoding = ForeignEncoding(bytes);
        if (encoding.empty()) return true;
        jobs_.Give({name, {kRefused, {}, "orrery: " + shown + ": " + NotUtf8(encoding) + "\n"}});
        return false;
    }

    bool Complain(const std::string& name) {
        return jobs_.Give({name,
                           {kUsage,
                            {},
                            "orrery: can't read " + (name == "-" ? "standard input" : Printable(name)) + ": "
                                + std::strerror(errno) + "\n"}});
    }

    LineWriter TakeSpare() {
        const std::lock_guard lock(printing_);
        return std::exchange(spare_, {});
    }

    static void Add(Shown& all, Result result) {
        all.said.exit = std::max(all.said.exit, result.exit);
        all.said.err += result.err;
    }

    Shown ShowAll(const Batch& batch) {
        try {
            Shown all{batch.said, TakeSpare()};
            EventOptions options = options_.events;
            options.file = Printable(batch.file);
            std::size_t begin = 0;
            for (const Batch::Place& place : batch.places) {
                const std::string_view text = std::string_view(batch.texts).substr(begin, place.end - begin);
                begin = place.end;
                options.line = place.line;
                if (!place.isLine) {
                    Add(all, ShowEvents(text, options, all.out));
                } else if (auto shown = ShowEventsOf(text, options, all.out)) {
                    Add(all, std::move(*shown));
                } else {
                    TextSplitter splitter;
                    splitter.Feed(text);
                    while (const auto piece = splitter.Rest()) { // all of the one line
                        Add(all, ShowEvents(piece->text, options, all.out));
                    }
                }
            }
            if (IsColoured(options)) all.said.out += Coloured(all.out.Take(), options);
            return all;
        } catch (const std::bad_alloc&) {
            return {{kRefused, {}, "orrery: out of memory\n"}, {}};
        }
    }

    bool Print(Shown& shown) {
        const std::lock_guard lock(printing_);
        const Result& said = shown.said;
        if (progress_ && !said.err.empty()) progress_->Clear();
        const bool isWritten = Write(said.out) && Write(shown.out.text()) && std::fflush(stdout) == 0;
        const int error = errno;
        std::fputs(said.err.c_str(), stderr);
        exit_ = std::max(exit_, said.exit);
        spare_ = std::move(shown.out);
        spare_.Clear();
        if (isWritten) return true;
        std::fprintf(stderr, "orrery: can't write: %s\n", std::strerror(error));
        exit_ = std::max(exit_, kRefused);
        return false;
    }

    static bool Write(std::string_view text) {
        return text.empty() || std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    }

    static constexpr std::size_t kChunk = std::size_t{64} << 10;
    static constexpr std::size_t kTogether = std::size_t{16} << 10;

    const StreamOptions& options_;
    int exit_ = kDone;
    std::mutex printing_; // also of the bar
    LineWriter spare_;    // what was printed: its memory is used again
    std::optional<Progress> progress_;
    Jobs<Batch, Shown> jobs_; // its threads end before the rest
};

} // namespace

int StreamEvents(const std::vector<std::string>& files, const StreamOptions& options) {
    return Stream(options).Run(files);
}

} // namespace orrery::tool

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

// Texts that came with one look at a file, or what there is to say about the file itself.
struct Batch {
    std::string file;
    std::vector<TextSplitter::Piece> pieces{};
    Result said{};
};

class Stream {
  public:
    explicit Stream(const StreamOptions& options)
        : options_(options), jobs_(
                                 options.jobs, [this](const Batch& batch) { return ShowAll(batch); },
                                 [this](Result& result) { return Print(result); }) {}

    int Run(const std::vector<std::string>& files) {
        jobs_.Give({{}, {}, {kDone, EventHead(options_.events), {}}});
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
            Batch batch{name};
            while (auto piece = splitter.Next())
                batch.pieces.push_back(std::move(*piece));
            if (!batch.pieces.empty() && !jobs_.Give(std::move(batch))) return false;
            const std::lock_guard lock(printing_);
            progress_->Reached(done);
        }
        Batch batch{name};
        while (auto piece = splitter.Rest())
            batch.pieces.push_back(std::move(*piece));
        return batch.pieces.empty() || jobs_.Give(std::move(batch));
    }

    // False for a file that holds no texts for devices.
    bool BeginsWell(const std::string& name, std::string_view bytes) {
        const std::string shown = name == "-" ? "standard input" : Printable(name);
        if (bytes.starts_with(kByteOrderMark)) {
            jobs_.Give(
                {name,
                 {},
                 {kDone,
                  {},
                  "orrery: note: " + shown + " begins with a byte order mark, which is skipped: devices send none\n"}});
            return true;
        }
        const std::string_view encoding = ForeignEncoding(bytes);
        if (encoding.empty()) return true;
        jobs_.Give({name, {}, {kRefused, {}, "orrery: " + shown + ": " + NotUtf8(encoding) + "\n"}});
        return false;
    }

    bool Complain(const std::string& name) {
        return jobs_.Give({name,
                           {},
                           {kUsage,
                            {},
                            "orrery: can't read " + (name == "-" ? "standard input" : Printable(name)) + ": "
                                + std::strerror(errno) + "\n"}});
    }

    std::string TakeSpare() {
        const std::lock_guard lock(printing_);
        return std::exchange(spare_, {});
    }

    Result ShowAll(const Batch& batch) {
        try {
            Result all = batch.said;
            EventOptions options = options_.events;
            options.file = Printable(batch.file);
            LineWriter out(TakeSpare());
            for (const TextSplitter::Piece& piece : batch.pieces) {
                options.line = piece.line;
                const Result result = ShowEvents(piece.text, options, out);
                all.exit = std::max(all.exit, result.exit);
                all.err += result.err;
            }
            if (!batch.pieces.empty()) all.out = Coloured(out.Take(), options);
            return all;
        } catch (const std::bad_alloc&) {
            return {kRefused, {}, "orrery: out of memory\n"};
        }
    }

    bool Print(Result& result) {
        const std::lock_guard lock(printing_);
        if (progress_ && !result.err.empty()) progress_->Clear();
        const bool isWritten = std::fwrite(result.out.data(), 1, result.out.size(), stdout) == result.out.size()
                               && std::fflush(stdout) == 0;
        const int error = errno;
        std::fputs(result.err.c_str(), stderr);
        exit_ = std::max(exit_, result.exit);
        spare_ = std::move(result.out);
        if (isWritten) return true;
        std::fprintf(stderr, "orrery: can't write: %s\n", std::strerror(error));
        exit_ = std::max(exit_, kRefused);
        return false;
    }

    static constexpr std::size_t kChunk = std::size_t{256} << 10;

    const StreamOptions& options_;
    int exit_ = kDone;
    std::mutex printing_; // also of the bar
    std::string spare_;   // what was printed: its memory is used again
    std::optional<Progress> progress_;
    Jobs<Batch, Result> jobs_; // its threads end before the rest
};

} // namespace

int StreamEvents(const std::vector<std::string>& files, const StreamOptions& options) {
    return Stream(options).Run(files);
}

} // namespace orrery::tool

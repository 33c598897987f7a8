#include "orrery/Stream.h"

#include "orrery/Output.h"
#include "orrery/TextSplitter.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace orrery::tool {

namespace {

class Stream {
  public:
    Stream(std::string name, const StreamOptions& options) : name_(std::move(name)), options_(options) {}

    int Run() {
        const bool isInput = name_ == "-";
        const int file = isInput ? STDIN_FILENO : open(name_.c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0) return Complain("can't read", kUsage);
        char chunk[1 << 16];
        for (;;) {
            const ssize_t got = read(file, chunk, sizeof chunk);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) {
                exit_ = Complain("can't read", kUsage);
                break;
            }
            if (got == 0) {
                if (!options_.follow || isInput) break;
                usleep(kPause);
                continue;
            }
            splitter_.Feed({chunk, static_cast<std::size_t>(got)});
            while (const auto piece = splitter_.Next()) {
                if (!Show(*piece)) return kRefused;
            }
        }
        while (const auto piece = splitter_.Rest()) {
            if (!Show(*piece)) return kRefused;
        }
        if (!isInput) close(file);
        return exit_;
    }

  private:
    static constexpr unsigned kPause = 200'000; // microseconds between two looks at a file that may have grown

    int Complain(const char* what, int exit) {
        std::fprintf(stderr, "orrery: %s %s: %s\n", what, name_ == "-" ? "standard input" : name_.c_str(),
                     std::strerror(errno));
        return exit;
    }
    // False when nobody reads what is printed any more.
    bool Show(const TextSplitter::Piece& piece) {
        EventOptions options = options_.events;
        options.file = name_;
        options.line = piece.line;
        const Result result = ShowEvents(piece.text, options);
        const bool isWritten = std::fwrite(result.out.data(), 1, result.out.size(), stdout) == result.out.size()
                               && std::fflush(stdout) == 0;
        std::fputs(result.err.c_str(), stderr);
        exit_ = std::max(exit_, result.exit);
        if (!isWritten) std::fprintf(stderr, "orrery: can't write: %s\n", std::strerror(errno));
        return isWritten;
    }

    std::string name_;
    const StreamOptions& options_;
    TextSplitter splitter_;
    int exit_ = kDone;
};

} // namespace

int StreamEvents(const std::vector<std::string>& files, const StreamOptions& options) {
    int exit = kDone;
    for (const std::string& file : files)
        exit = std::max(exit, Stream(file, options).Run());
    return exit;
}

} // namespace orrery::tool

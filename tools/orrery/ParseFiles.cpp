#include "orrery/ParseFiles.h"

#include "orrery/Input.h"
#include "orrery/Jobs.h"
#include "orrery/Terminal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>

namespace orrery::tool {

namespace {

Result ParseFile(const std::string& command, const std::string& file, const FilesOptions& options) {
    try {
        std::string text, note;
        if (!ReadText(file, text, note)) return {kUsage, {}, note};
        ParseOptions parse = options.parse;
        parse.file = file;
        Result result = ParseText(command, text, parse);
        result.err = note + result.err;
        const bool isObjects = !IsRows(parse.format);
        if (options.colour && isObjects) result.out = ColouredJson(result.out);
        if ((!options.warn && !options.strict) || result.exit != kDone) return result;
        const Result found = CheckText(command, file, text, options.check);
        result.err += options.findingColour ? ColouredFindings(found.out) : found.out;
        if (options.strict && found.exit != kDone) result.exit = found.exit;
        return result;
    } catch (const std::bad_alloc&) {
        return {kRefused, {}, "orrery: out of memory\n"};
    }
}

} // namespace

int WorseExit(int left, int right) {
    constexpr std::array kWorst = {kUsage, kRefused, kFound, kDone};
    for (const int exit : kWorst)
        if (left == exit || right == exit) return exit;
    return std::max(left, right);
}

int PrintResult(const Result& result) {
    const bool isWritten =
        std::fwrite(result.out.data(), 1, result.out.size(), stdout) == result.out.size() && std::fflush(stdout) == 0;
    const int error = errno;
    std::fputs(result.err.c_str(), stderr);
    if (isWritten) return result.exit;
    std::fprintf(stderr, "orrery: can't write: %s\n", std::strerror(error));
    return kRefused;
}

namespace {

// The row of names, and what `work` makes of each file.
template <class Options, class Work>
int ForAll(const std::vector<std::string>& files, const Options& options, unsigned threads, const Work& work) {
    int exit = kDone;
    if (IsRows(options.format)) {
        exit = PrintResult({kDone, RowOfNames(options.format, options.width, ColumnsOf(options)), {}});
        if (exit != kDone) return exit;
    }
    Jobs<std::string, Result> jobs(threads, work, [&](Result& result) {
        const int shown = PrintResult(result);
        exit = WorseExit(exit, shown);
        return shown == result.exit; // else nobody reads it any more
    });
    for (const std::string& file : files)
        if (!jobs.Give(file)) break;
    jobs.Finish();
    return exit;
}

} // namespace

int ParseFiles(const std::string& command, const std::vector<std::string>& files, const FilesOptions& options) {
    return ForAll(files, options.parse, options.jobs,
                  [&](const std::string& file) { return ParseFile(command, file, options); });
}

int CheckFiles(const std::string& command, const std::vector<std::string>& files, const CheckOptions& options,
               unsigned jobs, bool isColoured) {
    return ForAll(files, options, jobs, [&](const std::string& file) -> Result {
        try {
            std::string text, note;
            if (!ReadText(file, text, note)) return {kUsage, {}, note};
            Result result = CheckText(command, file, text, options);
            result.err = note + result.err;
            if (isColoured) result.out = ColouredFindings(result.out);
            return result;
        } catch (const std::bad_alloc&) {
            return {kRefused, {}, "orrery: out of memory\n"};
        }
    });
}

} // namespace orrery::tool

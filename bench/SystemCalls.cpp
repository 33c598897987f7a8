#include "bench/SystemCalls.h"

#include "orrery/orrery.h"

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orrery::bench {

namespace {

constexpr std::size_t kWarm = 24;
constexpr std::size_t kCounted = 96;
constexpr long kMark = SYS_getppid; // no call of the library makes it

std::int64_t PageFaults() {
    rusage use{};
    getrusage(RUSAGE_SELF, &use);
    return use.ru_minflt + use.ru_majflt;
}

// Tells its count of page faults through the pipe, once tracing is over.
[[noreturn]] void RunChild(std::size_t variants, const std::function<bool(std::size_t)>& call, int pipe) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    for (std::size_t i = 0; i < kWarm; ++i)
        call(i % variants);
    syscall(kMark);
    const std::int64_t before = PageFaults();
    for (std::size_t i = 0; i < kCounted; ++i)
        call(i % variants);
    const std::int64_t faults = PageFaults() - before;
    syscall(kMark);
    const bool told = write(pipe, &faults, sizeof faults) == sizeof faults;
    _exit(told ? 0 : 1);
}

bool IsMemory(long number) {
    return number == SYS_brk || number == SYS_mmap || number == SYS_munmap || number == SYS_mremap
           || number == SYS_madvise;
}

// The means of `count` calls that a traced child makes between its two marks; `pipe` brings its page faults.
SystemUse Watch(pid_t child, int pipe, std::size_t count) {
    SystemUse use;
    int status = 0;
    bool good = child > 0 && waitpid(child, &status, 0) == child && WIFSTOPPED(status)
                && ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) == 0;
    int marks = 0;
    std::size_t calls = 0, memoryCalls = 0;
    bool entering = true;
    while (good) {
        if (ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) != 0) good = false;
        if (!good || waitpid(child, &status, 0) != child || !WIFSTOPPED(status)) break;
        if (WSTOPSIG(status) != (SIGTRAP | 0x80)) continue;
        __ptrace_syscall_info info{};
        if (entering && ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info) > 0) {
            const auto number = static_cast<long>(info.entry.nr);
            if (number == kMark)
                ++marks;
            else if (marks == 1) {
                ++calls;
                memoryCalls += IsMemory(number);
            }
        }
        entering = !entering;
    }
    std::int64_t faults = 0;
    good = good && marks == 2 && read(pipe, &faults, sizeof faults) == sizeof faults;
    close(pipe);
    if (child > 0 && WIFSTOPPED(status)) {
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
    }
    if (!good) return use;
    constexpr std::size_t kOwn = 2; // the counts of page faults
    const auto mean = [count](auto sum) { return static_cast<double>(sum) / static_cast<double>(count); };
    return {true, mean(calls - kOwn), mean(memoryCalls), mean(faults)};
}

} // namespace

SystemUse SystemUseOf(std::size_t variants, const std::function<bool(std::size_t)>& call) {
    int ends[2];
    if (pipe(ends) != 0) return {};
    const pid_t child = fork();
    if (child == 0) RunChild(variants, call, ends[1]);
    close(ends[1]);
    return Watch(child, ends[0], kCounted);
}

SystemUse FirstUseOf(const char* command, const std::string& text, std::size_t recordSize) {
    int ends[2];
    const int file = memfd_create("reply", 0);
    const std::string sent = text + '\0';
    if (file < 0 || write(file, sent.data(), sent.size()) != static_cast<ssize_t>(sent.size()) || pipe(ends) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        const std::string numbers[] = {std::to_string(file), std::to_string(sent.size()), std::to_string(recordSize),
                                       std::to_string(ends[1])};
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        execl("/proc/self/exe", "orrery_bench", kFirstCall, command, numbers[0].c_str(), numbers[1].c_str(),
              numbers[2].c_str(), numbers[3].c_str(), nullptr);
        _exit(1);
    }
    close(ends[1]);
    close(file);
    return Watch(child, ends[0], 1);
}

int RunFirstCall(char** arguments) {
    const char* const command = arguments[0];
    const auto number = [arguments](int i) { return std::strtoul(arguments[i], nullptr, 10); };
    // The client's own memory has been touched before.
    std::vector<char> text(number(2)), record(number(3), 1);
    if (pread(static_cast<int>(number(1)), text.data(), text.size(), 0) != static_cast<ssize_t>(text.size())) return 1;
    syscall(kMark);
    const std::int64_t before = PageFaults();
    const int done =
        CLIENT_ParseData(command, text.data(), record.data(), static_cast<uint32_t>(record.size()), nullptr);
    const std::int64_t faults = PageFaults() - before;
    syscall(kMark);
    const bool told = done != 0 && write(static_cast<int>(number(4)), &faults, sizeof faults) == sizeof faults;
    _exit(told ? 0 : 1);
}

} // namespace orrery::bench

#include "bench/SystemCalls.h"

#include <csignal>
#include <cstdint>

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

} // namespace

SystemUse SystemUseOf(std::size_t variants, const std::function<bool(std::size_t)>& call) {
    SystemUse use;
    int ends[2];
    if (pipe(ends) != 0) return use;
    const pid_t child = fork();
    if (child == 0) RunChild(variants, call, ends[1]);
    close(ends[1]);
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
    good = good && marks == 2 && read(ends[0], &faults, sizeof faults) == sizeof faults;
    close(ends[0]);
    if (child > 0 && WIFSTOPPED(status)) {
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
    }
    if (!good) return use;
    constexpr std::size_t kOwn = 2; // the counts of page faults
    const auto mean = [](double sum) { return sum / static_cast<double>(kCounted); };
    return {true, mean(static_cast<double>(calls - kOwn)), mean(static_cast<double>(memoryCalls)),
            mean(static_cast<double>(faults))};
}

} // namespace orrery::bench

#ifdef _WIN32 // the library shows what stands here
#define ORRERY_API __declspec(dllexport)
#endif
#include "frame/Log.h"

#include "frame/Lock.h"

#include <atomic>
#include <cstdarg>

namespace {

// Both are initialised at compile time, so a static initialiser of the host may log before this file's turn comes.
// Sinks stay the host's property: the library owns none, so there is nothing to destroy when it is unloaded.
constinit orrery::RecursiveLock logLock;
constinit std::atomic<LogSink*> installedSink = nullptr; // changed and called under the lock only

// Runs `call` on the sink, if there is one, under the log lock. Recursive, because a sink may log in its turn. Without
// a sink there is nothing to guard: who installs one at the same moment hears of what comes after.
template <class Call>
void Forward(Call call) noexcept {
    if (installedSink.load(std::memory_order_relaxed) == nullptr) return;
    const std::lock_guard<orrery::RecursiveLock> hold(logLock);
    if (LogSink* const sink = installedSink.load(std::memory_order_relaxed)) call(*sink);
}

} // namespace

LogSink* LogOne_SetSink(LogSink* sink) {
    const std::lock_guard<orrery::RecursiveLock> hold(logLock);
    return installedSink.exchange(sink, std::memory_order_relaxed);
}

void LogOne_SetMaxSizeKB(int sizeKB) {
    Forward([=](LogSink& sink) { sink.SetMaxSizeKB(sizeKB); });
}

void LogOne_SetFileCount(int count) {
    Forward([=](LogSink& sink) { sink.SetFileCount(count); });
}

void LogOne_SetPrintLevel(E_LOG_LEVEL level) {
    Forward([=](LogSink& sink) { sink.SetPrintLevel(level); });
}

void LogOne_SetPrintStrategy(int strategy) {
    Forward([=](LogSink& sink) { sink.SetPrintStrategy(strategy); });
}

void LogOneTraceOutAll(E_LOG_LEVEL level, int code, const char* file, int line, const char* format, char*& arguments) {
    Forward([&](LogSink& sink) { sink.TraceOutAll(level, code, file, line, format, arguments); });
}

void LogOneTraceOutAllW(E_LOG_LEVEL level, int code, const char* file, int line, const wchar_t* format,
                        char*& arguments) {
    Forward([&](LogSink& sink) { sink.TraceOutAllW(level, code, file, line, format, arguments); });
}

void LogOneTraceOutW(int code, const wchar_t* format, char*& arguments) {
    Forward([&](LogSink& sink) { sink.TraceOutW(0, code, format, arguments); });
}

namespace orrery {

void LogSetPosition(const char* file, int line, E_LOG_LEVEL level) noexcept {
    Forward([=](LogSink& sink) { sink.SetPosition(file, line, level); });
}

void LogTrace(std::uint32_t code, const char* format, ...) noexcept {
    va_list list;
    va_start(list, format);
    char* arguments = LogOne_ArgumentList(list);
    Forward([&](LogSink& sink) { sink.TraceOut(0, static_cast<int>(code), format, arguments); });
    va_end(list);
}

bool LogHasSink() noexcept {
    return installedSink.load(std::memory_order_relaxed) != nullptr;
}

} // namespace orrery

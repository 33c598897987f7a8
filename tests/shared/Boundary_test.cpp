// Others' functions that do not return to the library as functions do: it has nothing of its own to unwind, so the
// program ends there, before anything is lost or left locked.
#include "orrery/calls.h"
#include "orrery/log.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include <pthread.h>

namespace {

constexpr const char* kEvents =
    R"({"Event":[{"Code":"TrafficControl","Data":{}},{"Code":"TrafficControl","Data":{}}]})";

std::int32_t Throw(std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) {
    throw std::runtime_error("out of a callback");
}

std::int32_t EndThread(std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) {
    pthread_exit(nullptr);
}

// Throws in the operation of that number, in the order in which they are declared.
class ThrowingSink final : public LogSink {
  public:
    explicit ThrowingSink(int which) : which_(which) {}
    void TraceOutAllW(E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&) override { Throw(0); }
    void TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char*, char*&) override { Throw(1); }
    void TraceOutW(int, int, const wchar_t*, char*&) override { Throw(2); }
    void TraceOut(int, int, const char*, char*&) override { Throw(3); }
    void SetMaxSizeKB(int) override { Throw(4); }
    void SetFileCount(int) override { Throw(5); }
    void SetPrintLevel(E_LOG_LEVEL) override { Throw(6); }
    void SetPrintStrategy(int) override { Throw(7); }
    void SetPosition(const char*, int, E_LOG_LEVEL) override { Throw(8); }

  private:
    void Throw(int operation) const {
        if (operation == which_) throw std::runtime_error("out of a sink");
    }
    int which_;
};

// What an exception that does come back says.
template <class Call>
void Guarded(Call call) {
    try {
        call();
    } catch (const std::exception&) {
        std::_Exit(3);
    }
    std::_Exit(4);
}

void CallLog(int operation) {
    char* none = nullptr;
    switch (operation) {
    case 0:
        return LogOneTraceOutAllW(E_LOG_LEVEL_ERROR, 0, "", 0, L"", none);
    case 1:
        return LogOneTraceOutAll(E_LOG_LEVEL_ERROR, 0, "", 0, "", none);
    case 2:
        return LogOneTraceOutW(0, L"", none);
    case 4:
        return LogOne_SetMaxSizeKB(1);
    case 5:
        return LogOne_SetFileCount(1);
    case 6:
        return LogOne_SetPrintLevel(E_LOG_LEVEL_ERROR);
    case 7:
        return LogOne_SetPrintStrategy(1);
    default: // lines of the library's own
        CLIENT_ParseAnalyzerEventData(
            kEvents, 0, [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) { return 0; },
            nullptr);
    }
}

TEST(BoundaryDeathTest, AnExceptionOutOfACallbackEndsTheProgram) {
    EXPECT_EXIT(Guarded([] { CLIENT_ParseAnalyzerEventData(kEvents, 0, Throw, nullptr); }),
                testing::KilledBySignal(SIGABRT), "out of a callback");
}

TEST(BoundaryDeathTest, EndingTheThreadInACallbackEndsTheProgram) {
    EXPECT_EXIT(
        {
            pthread_t thread;
            pthread_create(
                &thread, nullptr,
                [](void*) -> void* {
                    CLIENT_ParseAnalyzerEventData(kEvents, 0, EndThread, nullptr);
                    return nullptr;
                },
                nullptr);
            pthread_join(thread, nullptr);
            std::_Exit(3);
        },
        testing::KilledBySignal(SIGABRT), "");
}

TEST(BoundaryDeathTest, AnExceptionOutOfASinkEndsTheProgram) {
    for (int operation = 0; operation < 9; ++operation) {
        EXPECT_EXIT(
            {
                ThrowingSink sink(operation);
                LogOne_SetSink(&sink);
                Guarded([operation] { CallLog(operation); });
            },
            testing::KilledBySignal(SIGABRT), "out of a sink")
            << "operation " << operation;
    }
}

} // namespace

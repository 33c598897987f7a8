#include "frame/Log.h"

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

std::string Format(const char* format, char* arguments) {
    char text[256];
    std::vsnprintf(text, sizeof text, format, LogOne_VaList(arguments));
    return text;
}

std::string Format(const wchar_t* format, char* arguments) {
    wchar_t wide[256];
    std::vswprintf(wide, 256, format, LogOne_VaList(arguments));
    std::string text;
    for (const wchar_t* at = wide; *at != 0; ++at)
        text += static_cast<char>(*at);
    return text;
}

// Writes each call down as one line of text. Reserved operations are written down too: none may ever come.
class RecordingSink : public LogSink {
  public:
    std::vector<std::string> calls;
    char** lastReference = nullptr;

    void TraceOutAllW(E_LOG_LEVEL level, int code, const char* file, int line, const wchar_t* format,
                      char*& arguments) override {
        lastReference = &arguments;
        Note("TraceOutAllW " + Head(level, code, file, line) + Format(format, arguments));
    }
    void TraceOutAll(E_LOG_LEVEL level, int code, const char* file, int line, const char* format,
                     char*& arguments) override {
        lastReference = &arguments;
        Note("TraceOutAll " + Head(level, code, file, line) + Format(format, arguments));
    }
    void TraceOutW(int zero, int code, const wchar_t* format, char*& arguments) override {
        lastReference = &arguments;
        Note("TraceOutW " + std::to_string(zero) + " " + std::to_string(code) + " " + Format(format, arguments));
    }
    void TraceOut(int zero, int code, const char* format, char*& arguments) override {
        char head[64];
        std::snprintf(head, sizeof head, "TraceOut %d %08x ", zero, static_cast<unsigned>(code));
        Note(head + Format(format, arguments));
    }
    void SetMaxSizeKB(int sizeKB) override { Note("SetMaxSizeKB " + std::to_string(sizeKB)); }
    void SetFileCount(int count) override { Note("SetFileCount " + std::to_string(count)); }
    void SetPrintLevel(E_LOG_LEVEL level) override { Note("SetPrintLevel " + std::to_string(level)); }
    void SetPrintStrategy(int strategy) override { Note("SetPrintStrategy " + std::to_string(strategy)); }
    void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
        Note("SetPosition " + std::string(file) + ":" + std::to_string(line) + " " + std::to_string(level));
    }

    void Reserved3() override { Note("Reserved3"); }
    void Reserved4() override { Note("Reserved4"); }
    void Reserved6() override { Note("Reserved6"); }
    void Reserved8() override { Note("Reserved8"); }
    void Reserved9() override { Note("Reserved9"); }
    void Reserved10() override { Note("Reserved10"); }
    void Reserved12() override { Note("Reserved12"); }
    void Reserved13() override { Note("Reserved13"); }
    void Reserved17() override { Note("Reserved17"); }

  protected:
    virtual void Note(std::string call) { calls.push_back(std::move(call)); }

  private:
    static std::string Head(E_LOG_LEVEL level, int code, const char* file, int line) {
        return std::to_string(level) + " " + std::to_string(code) + " " + file + ":" + std::to_string(line) + " ";
    }
};

// A sink stays installed for one test only.
class InstalledSink {
  public:
    explicit InstalledSink(LogSink& sink) : former_(LogOne_SetSink(&sink)) {}
    ~InstalledSink() { LogOne_SetSink(former_); }
    InstalledSink(const InstalledSink&) = delete;
    InstalledSink& operator=(const InstalledSink&) = delete;

  private:
    LogSink* former_;
};

void TraceAll(const char* format, ...) {
    va_list list;
    va_start(list, format);
    char* arguments = LogOne_ArgumentList(list);
    LogOneTraceOutAll(E_LOG_LEVEL_DETAIL, 7, "Door", 12, format, arguments);
    va_end(list);
}

char** TraceAllWide(const wchar_t* format, ...) {
    va_list list;
    va_start(list, format);
    static char* arguments;
    arguments = LogOne_ArgumentList(list);
    LogOneTraceOutAllW(E_LOG_LEVEL_ERROR, -3, "Door", 13, format, arguments);
    va_end(list);
    return &arguments;
}

void TraceWide(int code, const wchar_t* format, ...) {
    va_list list;
    va_start(list, format);
    char* arguments = LogOne_ArgumentList(list);
    LogOneTraceOutW(code, format, arguments);
    va_end(list);
}

using Calls = std::vector<std::string>;

TEST(Log, SettingsReachTheSinkUnchanged) {
    RecordingSink sink;
    const InstalledSink installed(sink);
    LogOne_SetMaxSizeKB(1024);
    LogOne_SetFileCount(-1);
    LogOne_SetPrintLevel(static_cast<E_LOG_LEVEL>(77)); // a level without a name is not judged
    LogOne_SetPrintStrategy(3);
    EXPECT_EQ(sink.calls, (Calls{"SetMaxSizeKB 1024", "SetFileCount -1", "SetPrintLevel 77", "SetPrintStrategy 3"}));
}

TEST(Log, NarrowLineWithPosition) {
    RecordingSink sink;
    const InstalledSink installed(sink);
    TraceAll("%s opened %d times, %.1f", "front", 3, 2.5);
    EXPECT_EQ(sink.calls, (Calls{"TraceOutAll 2 7 Door:12 front opened 3 times, 2.5"}));
}

TEST(Log, WideLineWithPosition) {
    RecordingSink sink;
    const InstalledSink installed(sink);
    TraceAllWide(L"door %d of %ls", 4, L"east");
    EXPECT_EQ(sink.calls, (Calls{"TraceOutAllW 0 -3 Door:13 door 4 of east"}));
}

TEST(Log, WideLineGetsZeroInFront) {
    RecordingSink sink;
    const InstalledSink installed(sink);
    TraceWide(99, L"code %x", 255);
    EXPECT_EQ(sink.calls, (Calls{"TraceOutW 0 99 code ff"}));
}

TEST(Log, ArgumentListIsTheCallersOwnVariable) {
    RecordingSink sink;
    const InstalledSink installed(sink);
    char** const given = TraceAllWide(L"nothing to format");
    EXPECT_EQ(sink.lastReference, given);
}

TEST(Log, PositionThenLine) {
    RecordingSink sink;
    const InstalledSink installed(sink);
    orrery::LogSetPosition("AlarmConfig", 321, E_LOG_LEVEL_ERROR);
    orrery::LogTrace(E_LOG_CODE_BAD_ARGUMENT, "Parameters invalid, size %u", 17u);
    EXPECT_EQ(sink.calls, (Calls{"SetPosition AlarmConfig:321 0", "TraceOut 0 90000001 Parameters invalid, size 17"}));
}

TEST(Log, CodesKeepTheirBits) {
    RecordingSink sink;
    const InstalledSink installed(sink);
    orrery::LogTrace(E_LOG_CODE_NONE, "a");
    orrery::LogTrace(E_LOG_CODE_RECORD_SIZE, "b");
    orrery::LogTrace(E_LOG_CODE_WRONG_SHAPE, "c");
    EXPECT_EQ(sink.calls, (Calls{"TraceOut 0 00000000 a", "TraceOut 0 9000001e b", "TraceOut 0 90003002 c"}));
}

TEST(Log, WithoutASinkNothingHappens) {
    RecordingSink sink;
    LogSink* const former = LogOne_SetSink(&sink);
    EXPECT_EQ(LogOne_SetSink(nullptr), &sink);
    LogOne_SetMaxSizeKB(1024);
    LogOne_SetFileCount(2);
    LogOne_SetPrintLevel(E_LOG_LEVEL_ERROR);
    LogOne_SetPrintStrategy(1);
    TraceAll("%d", 1);
    TraceAllWide(L"%d", 1);
    TraceWide(1, L"%d", 1);
    orrery::LogSetPosition("AlarmConfig", 1, E_LOG_LEVEL_ERROR);
    orrery::LogTrace(E_LOG_CODE_NONE, "%d", 1);
    EXPECT_EQ(LogOne_SetSink(former), nullptr);
    EXPECT_TRUE(sink.calls.empty());
}

TEST(Log, SetSinkReturnsTheFormerSink) {
    RecordingSink first;
    RecordingSink second;
    LogSink* const former = LogOne_SetSink(&first);
    EXPECT_EQ(LogOne_SetSink(&second), &first);
    LogOne_SetFileCount(5);
    EXPECT_EQ(LogOne_SetSink(former), &second);
    EXPECT_TRUE(first.calls.empty());
    EXPECT_EQ(second.calls, (Calls{"SetFileCount 5"}));
}

TEST(Log, ASinkMayLogOnItsOwnThread) {
    class EchoingSink : public RecordingSink {
      public:
        void SetMaxSizeKB(int sizeKB) override {
            RecordingSink::SetMaxSizeKB(sizeKB);
            if (sizeKB > 0) LogOne_SetMaxSizeKB(sizeKB - 1);
            Note("left " + std::to_string(sizeKB));
        }
    };
    EchoingSink sink;
    const InstalledSink installed(sink);
    LogOne_SetMaxSizeKB(2);
    EXPECT_EQ(sink.calls, (Calls{"SetMaxSizeKB 2", "SetMaxSizeKB 1", "SetMaxSizeKB 0", "left 0", "left 1", "left 2"}));
}

#ifdef __x86_64__ // reads the virtual table as that machine lays it out
// The order of the virtual table is what a sink built elsewhere relies on, so it is read from the object itself: entry
// by entry, each operation's address as its own recording sink reports it when called through that entry.
TEST(Log, OperationsStandInTheirSlots) {
    RecordingSink sink;
    void** table;
    LogSink* const base = &sink;
    std::memcpy(&table, static_cast<void*>(base), sizeof table);
    const auto callReserved = [&](int entry) { reinterpret_cast<void (*)(LogSink*)>(table[entry])(base); };
    const auto callInt = [&](int entry) { reinterpret_cast<void (*)(LogSink*, int)>(table[entry])(base, 9); };
    for (const int entry : {2, 3, 5, 7, 8, 9, 12, 13, 17})
        callReserved(entry);
    for (const int entry : {14, 15, 16, 18})
        callInt(entry);
    reinterpret_cast<void (*)(LogSink*, const char*, int, int)>(table[19])(base, "Door", 1, 2);
    va_list nothing{};
    char* list = LogOne_ArgumentList(nothing);
    using Wide = void (*)(LogSink*, E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&);
    using Narrow = void (*)(LogSink*, E_LOG_LEVEL, int, const char*, int, const char*, char*&);
    using ShortWide = void (*)(LogSink*, int, int, const wchar_t*, char*&);
    using Short = void (*)(LogSink*, int, int, const char*, char*&);
    reinterpret_cast<Wide>(table[0])(base, E_LOG_LEVEL_ERROR, 1, "Door", 2, L"wide", list);
    reinterpret_cast<Narrow>(table[1])(base, E_LOG_LEVEL_DETAIL, 3, "Door", 4, "narrow", list);
    reinterpret_cast<ShortWide>(table[4])(base, 0, 5, L"wide", list);
    reinterpret_cast<Short>(table[6])(base, 0, 6, "narrow", list);
    EXPECT_EQ(sink.calls,
              (Calls{"Reserved3", "Reserved4", "Reserved6", "Reserved8", "Reserved9", "Reserved10", "Reserved12",
                     "Reserved13", "Reserved17", "SetMaxSizeKB 9", "SetFileCount 9", "SetPrintLevel 9",
                     "SetPrintStrategy 9", "SetPosition Door:1 2", "TraceOutAllW 0 1 Door:2 wide",
                     "TraceOutAll 2 3 Door:4 narrow", "TraceOutW 0 5 wide", "TraceOut 0 00000006 narrow"}));
}

TEST(Log, TheDeletingDestructorStandsInItsSlot) {
    class DyingSink : public RecordingSink {
      public:
        explicit DyingSink(int& deaths) : deaths_(deaths) {}
        ~DyingSink() override { ++deaths_; }

      private:
        int& deaths_;
    };
    int deaths = 0;
    LogSink* const sink = new DyingSink(deaths);
    void** table;
    std::memcpy(&table, static_cast<void*>(sink), sizeof table);
    reinterpret_cast<void (*)(LogSink*)>(table[11])(sink);
    EXPECT_EQ(deaths, 1);
}
#endif

TEST(LogThreads, TheSinkNeverRunsTwiceAtOnce) {
    class ExclusiveSink : public RecordingSink {
      public:
        std::atomic<bool> overlapped{false};
        int count = 0; // deliberately plain: only the log lock guards it

      protected:
        void Note(std::string) override {
            if (inside_.exchange(true)) overlapped = true;
            ++count;
            std::this_thread::yield(); // widens the window in which a second thread would be caught
            inside_ = false;
        }

      private:
        std::atomic<bool> inside_{false};
    };
    constexpr int kThreads = 8;
    constexpr int kCalls = 500;
    ExclusiveSink sink;
    const InstalledSink installed(sink);
    std::vector<std::thread> threads;
    for (int index = 0; index < kThreads; ++index) {
        threads.emplace_back([] {
            for (int call = 0; call < kCalls; ++call) {
                LogOne_SetFileCount(call);
                orrery::LogTrace(E_LOG_CODE_NONE, "%d", call);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_FALSE(sink.overlapped);
    EXPECT_EQ(sink.count, kThreads * kCalls * 2);
}

TEST(LogThreads, AReplacedSinkMayBeDestroyedAtOnce) {
    std::atomic<bool> stop{false};
    std::thread writer([&] {
        while (!stop)
            LogOne_SetFileCount(1);
    });
    LogSink* const former = LogOne_SetSink(nullptr);
    for (int round = 0; round < 500; ++round) {
        auto sink = std::make_unique<RecordingSink>();
        LogOne_SetSink(sink.get());
        std::this_thread::yield();
        EXPECT_EQ(LogOne_SetSink(nullptr), sink.get());
    }
    stop = true;
    writer.join();
    LogOne_SetSink(former);
}

} // namespace

// What the library says of calls that it refuses goes to a sink of the program's. Without one it says nothing.
#include <cstdarg>
#include <cstdio>
#include <orrery/log.h>
#include <orrery/orrery.h>

static const char kReply[] = R"({ "result" : true, "params" : { "table" : "a text" } })"; // neither object nor list

class Sink : public LogSink {
  public:
    // The library tells where and how grave, and then what.
    void SetPosition(const char* file, int, E_LOG_LEVEL level) override {
        std::printf("%s, level %d, ", file, static_cast<int>(level));
    }
    void TraceOut(int, int code, const char* format, char*& arguments) override {
        std::printf("0x%08x: ", static_cast<unsigned>(code));
        std::vprintf(format, LogOne_VaList(arguments));
        std::puts("");
    }
    // What a host's own lines and settings would come by.
    void TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char*, char*&) override {}
    void TraceOutAllW(E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&) override {}
    void TraceOutW(int, int, const wchar_t*, char*&) override {}
    void SetMaxSizeKB(int) override {}
    void SetFileCount(int) override {}
    void SetPrintLevel(E_LOG_LEVEL) override {}
    void SetPrintStrategy(int) override {}
};

int main() {
    static Sink sink;
    static CFG_SCADA_DEV_INFO device;
    LogSink* const before = LogOne_SetSink(&sink);
    const int done = CLIENT_ParseData("SCADADev", kReply, &device, sizeof device, nullptr);
    LogOne_SetSink(before); // from here on no thread is inside the sink
    std::printf("answered %d\n", done);
}

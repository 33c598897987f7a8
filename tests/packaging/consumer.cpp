// A client in C++11: one reply in, the same record out, with a log sink in place. Built against the installed package
// only.
#include <cstdio>
#include <orrery/log.h>
#include <orrery/orrery.h>
#include <string>

namespace {

struct CountingSink : LogSink {
    int settings = 0;
    void TraceOutAllW(E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&) override {}
    void TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char*, char*&) override {}
    void TraceOutW(int, int, const wchar_t*, char*&) override {}
    void TraceOut(int, int, const char*, char*&) override {}
    void SetMaxSizeKB(int) override { ++settings; }
    void SetFileCount(int) override {}
    void SetPrintLevel(E_LOG_LEVEL) override {}
    void SetPrintStrategy(int) override {}
    void SetPosition(const char*, int, E_LOG_LEVEL) override {}
};

} // namespace

int main() {
    const std::string reply = R"({"result":true,"params":{"table":{"Enable":true}}})";
    CFG_ENABLE_INFO record{};
    std::uint32_t length = 0;
    char text[64];
    if (!CLIENT_ParseData("PwdReset", reply.c_str(), &record, sizeof record, &length)) return 1;
    if (length != sizeof record || record.bEnable != 1) return 2;
    if (!CLIENT_PacketData("PwdReset", &record, sizeof record, text, sizeof text)) return 3;
    if (std::string(text) != "{ \"Enable\" : true }\n") return 4;

    CountingSink sink;
    LogOne_SetMaxSizeKB(1);
    if (LogOne_SetSink(&sink) != nullptr) return 5;
    LogOne_SetMaxSizeKB(1024);
    if (LogOne_SetSink(nullptr) != &sink || sink.settings != 1) return 6;
    std::puts("consumer ok");
    return 0;
}

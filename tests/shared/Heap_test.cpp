// Calls under a converting locale when an allocation fails, in the C library's converters too. They keep what they have
// once loaded, so each failure is tried in a process of its own.
#include "orrery/alarm_input.h"
#include "orrery/events_traffic_flow.h"
#include "shared/InterposedHeap.h"
#include "support/Locales.h"

#include "orrery/calls.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using orrery::test::InterposedHeap;
using orrery::test::ProcessLocale;

#define ZHONG "\xE4\xB8\xAD" // U+4E2D, D6 D0 in GBK

class HeapIn : public orrery::test::CompiledLocales {
  protected:
    void SetUp() override {
        CompiledLocales::SetUp();
        Compile("GBK", "zh_CN.GBK");
    }
    // `call` answers with the exit code of the process that it is made in; the last argument tells whether every
    // allocation from then on fails.
    template <class Call>
    static int InAProcess(Call call) {
        const pid_t child = fork();
        if (child == 0) {
            alarm(60);
            _exit(call());
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status);
    }
};

enum : int { kRight = 10, kRefused, kEmpty, kNothing, kWrong };

// Runs `call` for each allocation; `Accepts` says which ends are right. A call makes several, in the C library at
// least.
template <class Call, class Accepts>
void TryEach(Call call, Accepts accepts) {
    int others = 0;
    for (const bool onwards : {false, true}) {
        for (std::size_t n = 1; n < 200; ++n) {
            const int end = call(n, onwards);
            ASSERT_TRUE(accepts(end)) << "allocation " << n << (onwards ? " and on" : "") << " ends with " << end;
            others += end != kRight;
        }
    }
    EXPECT_GT(others, 10);
}

TEST_F(HeapIn, AParseFailsOrIsRight) {
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    const auto record = std::make_unique<CFG_ALARM_INPUT_INFO>();
    const auto parse = [&](std::size_t n, bool onwards) {
        return InAProcess([&] {
            std::int32_t done = 0;
            {
                const InterposedHeap heap(n, onwards);
                done = CLIENT_ParseData("Alarm", R"({"result":true,"params":{"table":{"Name":")" ZHONG R"("}}})",
                                        record.get(), sizeof *record, nullptr);
            }
            if (done == 0) return record->szName[0] == '\0' ? kRefused : kWrong;
            return std::strcmp(record->szName, "\xD6\xD0") == 0 ? kRight : kWrong;
        });
    };
    ASSERT_EQ(parse(0, false), kRight);
    TryEach(parse, [](int end) { return end == kRight || end == kRefused; });
}

TEST_F(HeapIn, APackFailsOrIsRight) {
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    const auto record = std::make_unique<CFG_ALARM_INPUT_INFO>();
    std::strcpy(record->szName, "\xD6\xD0");
    std::string text(1 << 20, '#');
    const auto pack = [&](std::size_t n, bool onwards) {
        return InAProcess([&] {
            std::int32_t done = 0;
            {
                const InterposedHeap heap(n, onwards);
                done = CLIENT_PacketData("Alarm", record.get(), sizeof *record, text.data(), 1 << 20);
            }
            if (done == 0) return text[0] == '\0' ? kRefused : kWrong;
            return text.find("\"Name\" : \"" ZHONG "\"") != std::string::npos ? kRight : kWrong;
        });
    };
    ASSERT_EQ(pack(0, false), kRight);
    TryEach(pack, [](int end) { return end == kRight || end == kRefused; });
}

// A text for which memory runs out is empty, and that is all that is lost of its event.
TEST_F(HeapIn, AnEventIsDeliveredWithoutTheTextThatCouldNotBeConverted) {
    const ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    static int end;
    const auto callback = [](std::uint32_t, const void* record, std::uint32_t, void*, std::int32_t, void*) {
        const auto* const event = static_cast<const DEV_EVENT_TRAFFICCONTROL_INFO*>(record);
        const std::string name(event->szName, strnlen(event->szName, sizeof event->szName));
        end = event->nEventID != 7 || event->nChannelID != -1 ? kWrong
              : name == "\xD6\xD0"                            ? kRight
              : name.empty()                                  ? kEmpty
                                                              : kWrong;
        return 0;
    };
    const auto decode = [&](std::size_t n, bool onwards) {
        return InAProcess([&] {
            end = kNothing;
            const InterposedHeap heap(n, onwards);
            CLIENT_ParseAnalyzerEventData(R"({"Event":[{"Code":"TrafficControl","Data":{"EventID":7,"Name":")" ZHONG
                                          R"("}}]})",
                                          0, callback, nullptr);
            return end;
        });
    };
    ASSERT_EQ(decode(0, false), kRight);
    TryEach(decode, [](int result) { return result == kRight || result == kEmpty; });
}

} // namespace

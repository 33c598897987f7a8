// What the library tells the log, line by line, while it lives.
#pragma once

#include "orrery/log.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace orrery::test {

class LogLines : public LogSink {
  public:
    LogLines() : former_(LogOne_SetSink(this)) {}
    ~LogLines() { LogOne_SetSink(former_); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    // How often a line was told at that level.
    std::ptrdiff_t count(E_LOG_LEVEL level, const std::string& text) const {
        return std::count_if(lines_.begin(), lines_.end(),
                             [&](const Line& line) { return line.level == level && line.text == text; });
    }

    // All lines of a level, in order.
    std::vector<std::string> texts(E_LOG_LEVEL level) const {
        std::vector<std::string> texts;
        for (const Line& line : lines_) {
            if (line.level == level) texts.push_back(line.text);
        }
        return texts;
    }

    void SetPosition(const char*, int, E_LOG_LEVEL level) override { level_ = level; }
    void TraceOut(int, int, const char* format, char*& arguments) override {
        char text[1024];
        std::vsnprintf(text, sizeof text, format, LogOne_VaList(arguments));
        lines_.push_back({level_, text});
    }

    void TraceOutAllW(E_LOG_LEVEL, int, const char*, int, const wchar_t*, char*&) override {}
    void TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char*, char*&) override {}
    void TraceOutW(int, int, const wchar_t*, char*&) override {}
    void SetMaxSizeKB(int) override {}
    void SetFileCount(int) override {}
    void SetPrintLevel(E_LOG_LEVEL) override {}
    void SetPrintStrategy(int) override {}
    void Reserved3() override {}
    void Reserved4() override {}
    void Reserved6() override {}
    void Reserved8() override {}
    void Reserved9() override {}
    void Reserved10() override {}
    void Reserved12() override {}
    void Reserved13() override {}
    void Reserved17() override {}

  private:
    struct Line {
        E_LOG_LEVEL level;
        std::string text;
    };
    std::vector<Line> lines_;
    E_LOG_LEVEL level_{};
    LogSink* former_;
};

} // namespace orrery::test

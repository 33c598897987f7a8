// Any number of threads may call at once, each with buffers of its own.
#include <atomic>
#include <cstdio>
#include <orrery/cpp.h>
#include <orrery/orrery.h>
#include <thread>
#include <vector>

static const char kReply[] = R"({ "result" : true, "params" : { "table" : { "Enable" : true, "Port" : 123 } } })";

int main() {
    const int threads = 4, replies = 1000;
    std::atomic<int> all(0);
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i)
        running.emplace_back([&all] {
            for (int k = 0; k < replies; ++k) {
                auto clock = orrery::parse<CFG_NTP_INFO>(kReply);
                if (clock && (*clock)->nPort == 123) ++all;
            }
        });
    for (auto& thread : running)
        thread.join();
    std::printf("%d replies in %d threads\n", all.load(), threads);
}

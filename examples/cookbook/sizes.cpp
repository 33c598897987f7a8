// Records that begin with their size: those of parse_all() and sized<> have it.
#include <cstdio>
#include <orrery/cpp.h>
#include <orrery/orrery.h>

static const char kReply[] =
    R"({ "result" : true, "params" : { "table" : [
         { "SerialNo" : 1, "Name" : "Door" }, { "SerialNo" : 2, "Name" : "Yard" } ] } })";

int main() {
    auto titles = orrery::parse_all<orrery::commands::ChannelTitle>(kReply, 8);
    if (!titles) return 1;
    for (auto& title : *titles) {
        std::printf("%d %s, of %u bytes\n", static_cast<int>(title.nSerialNo), title.szName,
                    static_cast<unsigned>(title.dwSize));
        title.nSerialNo += 10;
    }
    auto text = orrery::pack_all<orrery::commands::ChannelTitle>(*titles);
    if (!text) return 1;
    std::fputs(text->c_str(), stdout);
}

// Several records from one reply, and back into one text.
#include <cstdio>
#include <orrery/cpp.h>
#include <orrery/orrery.h>

static const char kReply[] =
    R"({ "result" : true, "params" : { "table" : [
         { "Name" : "Siren", "Mode" : 1 }, { "Name" : "Lamp" }, { "Name" : "Gate", "Mode" : 1 } ] } })";

int main() {
    auto outputs = orrery::parse_all<orrery::commands::ExAlarmOut>(kReply, 16); // as many as the device may have
    if (!outputs) return 1;
    std::printf("%zu outputs\n", outputs->size());
    for (auto& output : *outputs) {
        std::printf("%s: %d\n", output.szName, static_cast<int>(output.nMode));
        output.nMode = 2; // off
    }
    auto text = orrery::pack_all<orrery::commands::ExAlarmOut>(*outputs);
    if (!text) return 1;
    std::fputs(text->c_str(), stdout);
}
